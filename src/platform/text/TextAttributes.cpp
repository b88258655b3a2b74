#include "platform/text/TextAttributes.h"

namespace platform {

namespace {

template <typename T>
void take(std::optional<T> &target, const std::optional<T> &value)
{
    if (value)
        target = value;
}

} // namespace

void TextAttributes::merge(const TextAttributes &other)
{
    take(font, other.font);
    take(foregroundColor, other.foregroundColor);
    take(strokeWidth, other.strokeWidth);
    take(strokeColor, other.strokeColor);
    take(underlineStyle, other.underlineStyle);
    take(underlineColor, other.underlineColor);
    take(strikethroughStyle, other.strikethroughStyle);
    take(strikethroughColor, other.strikethroughColor);
    take(alignment, other.alignment);
}

} // namespace platform
