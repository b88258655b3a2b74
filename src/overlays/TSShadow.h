#pragma once

#include "platform/archive/Archivable.h"
#include "platform/paint/Color.h"

#include <QSizeF>

namespace platform {
class KeyedUnarchiver;
}

/// The settings of a drop shadow. `blur` is in points of what is drawn on and is not scaled with it, `angle`
/// in degrees, `offset` in percent of a reference length.
class TSShadow : public platform::Archivable {
public:
    TSShadow() = default;
    TSShadow(const platform::Color &color, float blur, float angle, float offset);
    /// Takes the three bytes of colour that an archive holds, and the alpha beside them; fractions of the
    /// other settings do not survive an archive.
    explicit TSShadow(platform::KeyedUnarchiver &coder);

    const platform::Color &color() const { return m_color; }
    void setColor(const platform::Color &color) { m_color = color; }
    float blur() const { return m_blur; }
    float angle() const { return m_angle; }
    float offset() const { return m_offset; }

    /// The offset for a reference length, y upward whatever the canvas: 45 degrees throw the shadow to the
    /// lower right.
    QSizeF offsetWithReference(float reference) const;

    QStringList classChain() const override { return {QStringLiteral("TSShadow")}; }
    void encodeWithCoder(platform::KeyedArchiver &coder) const override;

private:
    platform::Color m_color{0, 0, 0, 0.5};
    float m_blur = 5;
    float m_angle = 45;
    float m_offset = 10;
};
