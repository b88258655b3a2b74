#include "overlays/TSShadow.h"

#include "overlays/TSPackedColor.h"
#include "platform/archive/KeyedArchiver.h"
#include "platform/archive/KeyedUnarchiver.h"

#include <cmath>
#include <numbers>

TSShadow::TSShadow(const platform::Color &color, float blur, float angle, float offset)
    : m_color(color), m_blur(blur), m_angle(angle), m_offset(offset)
{
}

TSShadow::TSShadow(platform::KeyedUnarchiver &coder)
{
    const qint64 packed = coder.decodeInteger(u"color");
    m_color = {TSComponentOfByte(packed, 0), TSComponentOfByte(packed, 8), TSComponentOfByte(packed, 16),
               double(coder.decodeFloat(u"alpha"))};
    m_blur = float(coder.decodeInteger(u"blur"));
    m_angle = float(coder.decodeInteger(u"angle"));
    m_offset = float(coder.decodeInteger(u"offset"));
}

QSizeF TSShadow::offsetWithReference(float reference) const
{
    const float distance = m_offset * reference / 100;
    const float radians = float(double(m_angle) * std::numbers::pi / 180);
    return {double(std::cos(radians) * distance), double(-std::sin(radians) * distance)};
}

/// Red in the low byte and the alpha apart, unlike the colours of a text: archives made elsewhere hold it so.
void TSShadow::encodeWithCoder(platform::KeyedArchiver &coder) const
{
    coder.encodeInteger(u"color", TSByteOfComponent(m_color.red) + TSByteOfComponent(m_color.green) * 256 +
                                      TSByteOfComponent(m_color.blue) * 65536);
    coder.encodeFloat(u"alpha", float(m_color.alpha));
    coder.encodeInteger(u"blur", qint64(m_blur));
    coder.encodeInteger(u"angle", qint64(m_angle));
    coder.encodeInteger(u"offset", qint64(m_offset));
}
