#include "overlays/TSPackedColor.h"

qint64 TSByteOfComponent(double component)
{
    return qint64(component * 255);
}

double TSComponentOfByte(qint64 packed, int shift)
{
    return double(float((packed >> shift) & 0xFF) / 255.0f);
}

qint64 TSPackColor(const std::optional<platform::Color> &color)
{
    if (!color)
        return 0;
    return ((TSByteOfComponent(color->alpha) * 256 + TSByteOfComponent(color->red)) * 256 +
            TSByteOfComponent(color->green)) *
               256 +
           TSByteOfComponent(color->blue);
}

platform::Color TSUnpackColor(qint64 packed)
{
    return {TSComponentOfByte(packed, 16), TSComponentOfByte(packed, 8), TSComponentOfByte(packed, 0),
            TSComponentOfByte(packed, 24)};
}
