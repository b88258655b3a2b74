#pragma once

#include <QRectF>
#include <QString>

namespace platform {

/// Geometry as archives write it: "{x, y}", "{w, h}", "{{x, y}, {w, h}}", in the numbers of the C locale.
QString pointText(QPointF point);
QString sizeText(QSizeF size);
QString rectText(const QRectF &rect);

/// Zero for a text of another form or with a number that is not finite.
QPointF pointFromText(QStringView text);
QSizeF sizeFromText(QStringView text);
QRectF rectFromText(QStringView text);

} // namespace platform
