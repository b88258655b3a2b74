#pragma once

#include "vector/TSBezierPathBuilder.h"
#include "vector/TSStyledBezierPath.h"
#include "vector/TSSVGAttributes.h"

/// Turns elements into shapes, one after another. It holds the state of one document; another needs another
/// factory.
class TSStyledBezierPathFactory {
public:
    /// A shape, or nothing for an element that is none. Gradients are remembered for the elements that
    /// follow.
    std::shared_ptr<TSStyledBezierPath> styledPathFromElementName(const QString &name,
                                                                  const TSSVGAttributes &attributes);
    /// To the gradient begun last, whether or not the stop stands inside it.
    void addGradientStopWithAttributes(const TSSVGAttributes &attributes);
    void addGroupOpacityValueWithAttributes(const TSSVGAttributes &attributes);
    /// Groups do not nest: the end of any of them ends the opacity.
    void removeGroupOpacityValue() { m_groupOpacityValue.reset(); }
    static QRectF getViewboxFromAttributes(const TSSVGAttributes &attributes);

private:
    std::optional<QPainterPath> outline(const QString &name, const TSSVGAttributes &attributes);
    std::shared_ptr<TSStyledBezierPath> createStyledPath(const QPainterPath &path,
                                                         const TSSVGAttributes &attributes);
    std::shared_ptr<TSSVGGradient> gradientForFillURL(const QString &text) const;
    std::optional<double> opacity(const TSSVGAttributes &attributes) const;
    void saveLinearGradient(const TSSVGAttributes &attributes);
    void saveRadialGradient(const TSSVGAttributes &attributes);
    void saveGradient(const std::shared_ptr<TSSVGGradient> &gradient, const TSSVGAttributes &attributes);

    std::vector<std::shared_ptr<TSSVGGradient>> m_gradients;
    QHash<QString, std::shared_ptr<TSSVGGradient>> m_gradientsByName;
    std::optional<double> m_groupOpacityValue;
    TSBezierPathBuilder m_builder;
    /// Of the element at hand: where a line begins and ends in one point.
    std::vector<QPointF> m_dots;
};
