#pragma once

#include "platform/paint/Color.h"

#include <optional>
#include <QString>

namespace platform {

/// A font by family and style name ("Bold Italic"; empty for the family's regular face). The size is in
/// pixels of the layout, so that 36 lays out 36 pixels to the em.
struct FontDescription {
    QString family;
    QString style;
    double size = 36;

    bool operator==(const FontDescription &) const = default;
};

/// How the lines of a paragraph stand in the width of the longest. The numbers are those that archives hold.
enum class TextAlignment { Left = 0, Right = 1, Center = 2, Justified = 3, Natural = 4 };

/// The look of a run of characters; what is not set is left to the default of the layout.
///
/// `strokeWidth` is in percent of the font size: 0 fills the glyphs, a positive number draws their outline
/// alone. The two line styles are 0 for no line, 1 for a single one.
struct TextAttributes {
    std::optional<FontDescription> font;
    std::optional<Color> foregroundColor;
    std::optional<double> strokeWidth;
    std::optional<Color> strokeColor;
    std::optional<int> underlineStyle;
    std::optional<Color> underlineColor;
    std::optional<int> strikethroughStyle;
    std::optional<Color> strikethroughColor;
    std::optional<TextAlignment> alignment;

    bool operator==(const TextAttributes &) const = default;

    /// Takes over every attribute that `other` sets.
    void merge(const TextAttributes &other);
};

} // namespace platform
