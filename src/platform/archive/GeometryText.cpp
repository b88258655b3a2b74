#include "platform/archive/GeometryText.h"

#include <algorithm>
#include <cmath>
#include <QLocale>
#include <vector>

namespace platform {

namespace {

/// Four numbers with their braces are far shorter.
constexpr qsizetype kMaximumLength = 256;

QString pairText(double first, double second)
{
    const auto number = [](double value) {
        return QString::number(value, 'g', QLocale::FloatingPointShortest);
    };
    return QStringLiteral("{%1, %2}").arg(number(first), number(second));
}

/// The numbers between the braces if there are as many as asked for, else as many zeros.
std::vector<double> numbers(QStringView text, size_t count)
{
    std::vector<double> result;
    QString plain = text.left(kMaximumLength).toString();
    std::replace_if(
        plain.begin(), plain.end(), [](QChar c) { return c == u'{' || c == u'}' || c == u','; }, u' ');
    bool sound = true;
    for (const QString &part : plain.simplified().split(u' ', Qt::SkipEmptyParts)) {
        bool isNumber = false;
        result.push_back(part.toDouble(&isNumber));
        sound = sound && isNumber && std::isfinite(result.back());
    }
    return sound && result.size() == count ? result : std::vector<double>(count);
}

} // namespace

QString pointText(QPointF point)
{
    return pairText(point.x(), point.y());
}

QString sizeText(QSizeF size)
{
    return pairText(size.width(), size.height());
}

QString rectText(const QRectF &rect)
{
    return QStringLiteral("{%1, %2}").arg(pointText(rect.topLeft()), sizeText(rect.size()));
}

QPointF pointFromText(QStringView text)
{
    const auto values = numbers(text, 2);
    return {values[0], values[1]};
}

QSizeF sizeFromText(QStringView text)
{
    const auto values = numbers(text, 2);
    return {values[0], values[1]};
}

QRectF rectFromText(QStringView text)
{
    const auto values = numbers(text, 4);
    return {values[0], values[1], values[2], values[3]};
}

} // namespace platform
