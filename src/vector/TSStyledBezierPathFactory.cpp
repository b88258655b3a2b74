#include "vector/TSStyledBezierPathFactory.h"

#include "vector/TSSVGLinearGradient.h"
#include "vector/TSSVGRadialGradient.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace {

QPainterPath ovalPath(double cx, double cy, double rx, double ry)
{
    QPainterPath path;
    path.addEllipse(QRectF(cx - rx, cy - ry, 2 * rx, 2 * ry));
    return path;
}

std::optional<platform::Color> parseStyleColor(const QString &style)
{
    const QString prefix = QStringLiteral("stop-color:");
    if (!style.startsWith(prefix))
        return std::nullopt;
    const QString rest = style.mid(prefix.size());
    auto color = TSSVGAttributes::colorFromHexString(rest);
    const QString opacityWord = QStringLiteral("stop-opacity:");
    const qsizetype opacity = rest.indexOf(opacityWord);
    if (color && opacity >= 0) {
        float alpha = 1;
        TSScanner(QStringView(rest).mid(opacity + opacityWord.size())).scanFloat(&alpha);
        color->alpha = std::clamp(double(alpha), 0.0, 1.0);
    }
    return color;
}

/// The shortest line that is stroked, in widths of it.
constexpr double dotLength = 1.0 / 16384;

QPen strokeFor(const TSSVGAttributes &attributes)
{
    const double width = attributes.strokeWeightForKey(QStringLiteral("stroke-width"));
    QPen pen(Qt::black, std::max(0.0, width));
    pen.setMiterLimit(attributes.miterLimitForKey(QStringLiteral("stroke-miterlimit")));
    pen.setJoinStyle(attributes.lineJoinForKey(QStringLiteral("stroke-linejoin")));
    pen.setCapStyle(attributes.lineCapForKey(QStringLiteral("stroke-linecap")));
    const std::vector<double> dashes = attributes.dashArrayForKey(QStringLiteral("stroke-dasharray"));
    const bool isUsable = std::all_of(dashes.begin(), dashes.end(), [](double dash) { return dash >= 0; }) &&
                          std::accumulate(dashes.begin(), dashes.end(), 0.0) > 0;
    if (width <= 0 || !isUsable)
        return pen;
    // A pen counts its dashes in widths, and wants an even number of them.
    QList<double> pattern;
    for (size_t round = 0; round < (dashes.size() % 2 == 0 ? 1u : 2u); ++round)
        for (const double dash : dashes)
            pattern.append(dash / width);
    // A dash without a length is its two caps, which the pen forgets.
    for (qsizetype i = 0; i < pattern.size() && pen.capStyle() != Qt::FlatCap; i += 2)
        pattern[i] = std::max(pattern[i], dotLength);
    pen.setDashPattern(pattern);
    return pen;
}

/// A line that ends where it begins is its two caps too.
void addDots(QPainterPath &path, const std::vector<QPointF> &dots, const QPen &pen)
{
    if (pen.capStyle() == Qt::FlatCap)
        return;
    for (const QPointF &dot : dots) {
        path.moveTo(dot);
        path.lineTo(dot + QPointF(dotLength * pen.widthF(), 0));
    }
}

} // namespace

std::shared_ptr<TSStyledBezierPath>
TSStyledBezierPathFactory::styledPathFromElementName(const QString &name, const TSSVGAttributes &attributes)
{
    if (name == u"linearGradient")
        saveLinearGradient(attributes);
    else if (name == u"radialGradient")
        saveRadialGradient(attributes);
    const auto path = outline(name, attributes);
    return path ? createStyledPath(*path, attributes) : nullptr;
}

std::optional<QPainterPath> TSStyledBezierPathFactory::outline(const QString &name,
                                                               const TSSVGAttributes &attributes)
{
    const auto at = [&](QStringView key) { return attributes.floatForKey(key.toString()); };
    QPainterPath path;
    m_dots.clear();
    if (name == u"circle")
        return ovalPath(at(u"cx"), at(u"cy"), at(u"r"), at(u"r"));
    if (name == u"ellipse")
        return ovalPath(at(u"cx"), at(u"cy"), at(u"rx"), at(u"ry"));
    if (name == u"rect") {
        path.addRect(at(u"x"), at(u"y"), at(u"width"), at(u"height"));
        return path;
    }
    if (name == u"line") {
        path.moveTo(at(u"x1"), at(u"y1"));
        path.lineTo(at(u"x2"), at(u"y2"));
        if (path.elementCount() == 1)
            m_dots.push_back(path.currentPosition());
        return path;
    }
    if (name == u"path") {
        const QString data = attributes.textForKey(QStringLiteral("d"));
        path = m_builder.bezierPathFromCommandList(TSBezierPathBuilder::commandListForCommandString(data),
                                                   false);
        m_dots = m_builder.dots();
        return path;
    }
    if (name != u"polyline" && name != u"polygon")
        return std::nullopt;
    const QString points = attributes.textForKey(QStringLiteral("points"));
    path =
        m_builder.bezierPathFromCommandList(TSBezierPathBuilder::commandListForPolylineString(points), true);
    m_dots = m_builder.dots();
    if (name == u"polygon")
        path.closeSubpath();
    return path;
}

std::shared_ptr<TSStyledBezierPath>
TSStyledBezierPathFactory::createStyledPath(const QPainterPath &path, const TSSVGAttributes &attributes)
{
    auto styled = std::make_shared<TSStyledBezierPath>();
    styled->path = path;
    styled->stroke = strokeFor(attributes);
    addDots(styled->path, m_dots, styled->stroke);
    styled->opacity = opacity(attributes);
    styled->fillColor = attributes.fillColorForKey(QStringLiteral("fill"));
    styled->strokeColor = attributes.strokeColorForKey(QStringLiteral("stroke"));
    styled->transform = attributes.transformForKey(QStringLiteral("transform"));
    styled->gradient = gradientForFillURL(attributes.textForKey(QStringLiteral("fill")));
    return styled;
}

std::optional<double> TSStyledBezierPathFactory::opacity(const TSSVGAttributes &attributes) const
{
    const std::optional<double> own = attributes.opacityForKey(QStringLiteral("opacity"));
    if (!m_groupOpacityValue)
        return own;
    return own ? double(float(*own) * float(*m_groupOpacityValue)) : *m_groupOpacityValue;
}

/// Only a gradient that has come before is found.
std::shared_ptr<TSSVGGradient> TSStyledBezierPathFactory::gradientForFillURL(const QString &text) const
{
    const QString opening = QStringLiteral("url(#");
    const qsizetype start = text.indexOf(opening);
    if (start < 0)
        return nullptr;
    return m_gradientsByName.value(text.mid(start + opening.size()).section(u')', 0, 0));
}

void TSStyledBezierPathFactory::saveLinearGradient(const TSSVGAttributes &attributes)
{
    const auto at = [&](QStringView key) { return attributes.floatForKey(key.toString()); };
    auto gradient = std::make_shared<TSSVGLinearGradient>();
    gradient->startPosition = QPointF(at(u"x1"), at(u"y1"));
    gradient->endPosition = QPointF(at(u"x2"), at(u"y2"));
    saveGradient(gradient, attributes);
}

void TSStyledBezierPathFactory::saveRadialGradient(const TSSVGAttributes &attributes)
{
    const auto at = [&](QStringView key) { return attributes.floatForKey(key.toString()); };
    auto gradient = std::make_shared<TSSVGRadialGradient>();
    gradient->position = QPointF(at(u"cx"), at(u"cy"));
    gradient->radius = at(u"r");
    saveGradient(gradient, attributes);
}

void TSStyledBezierPathFactory::saveGradient(const std::shared_ptr<TSSVGGradient> &gradient,
                                             const TSSVGAttributes &attributes)
{
    gradient->identifier = attributes.textForKey(QStringLiteral("id"));
    gradient->gradientTransform = attributes.transformForKey(QStringLiteral("gradientTransform"));
    m_gradients.push_back(gradient);
    // The last one of a name is the one that a reference finds.
    m_gradientsByName.insert(gradient->identifier, gradient);
}

void TSStyledBezierPathFactory::addGradientStopWithAttributes(const TSSVGAttributes &attributes)
{
    if (m_gradients.empty())
        return;
    m_gradients.back()->colorStops.push_back({parseStyleColor(attributes.textForKey(QStringLiteral("style"))),
                                              attributes.floatForKey(QStringLiteral("offset"))});
}

void TSStyledBezierPathFactory::addGroupOpacityValueWithAttributes(const TSSVGAttributes &attributes)
{
    m_groupOpacityValue = attributes.opacityForKey(QStringLiteral("opacity"));
}

QRectF TSStyledBezierPathFactory::getViewboxFromAttributes(const TSSVGAttributes &attributes)
{
    const QString text = attributes.textForKey(QStringLiteral("viewBox"));
    TSScanner scanner(text);
    std::array<float, 4> box{};
    for (float &number : box)
        if (!scanner.scanFloat(&number))
            break;
    return {double(box[0]), double(box[1]), double(box[2]), double(box[3])};
}
