#include "controls/TSIconShapes.h"

namespace {

/// A path told piece by piece. Straight pieces lie on half units, where a line of 1.5 is sharpest.
class Sketch {
public:
    Sketch &line(std::initializer_list<QPointF> points)
    {
        m_path.moveTo(*points.begin());
        for (const QPointF *point = points.begin() + 1; point != points.end(); ++point)
            m_path.lineTo(*point);
        return *this;
    }
    Sketch &closed(std::initializer_list<QPointF> points)
    {
        line(points);
        m_path.closeSubpath();
        return *this;
    }
    Sketch &box(double x, double y, double width, double height, double radius = 1.5)
    {
        m_path.addRoundedRect(QRectF(x, y, width, height), radius, radius);
        return *this;
    }
    Sketch &circle(double x, double y, double radius)
    {
        m_path.addEllipse(QPointF(x, y), radius, radius);
        return *this;
    }
    Sketch &arc(const QRectF &rect, double from, double sweep)
    {
        m_path.arcMoveTo(rect, from);
        m_path.arcTo(rect, from, sweep);
        return *this;
    }
    Sketch &curve(QPointF from, QPointF by, QPointF to)
    {
        m_path.moveTo(from);
        m_path.quadTo(by, to);
        return *this;
    }
    operator QPainterPath() const { return m_path; }

private:
    QPainterPath m_path;
};

Sketch magnifier()
{
    return Sketch().circle(8.5, 8.5, 5.5).line({{12.5, 12.5}, {17, 17}});
}

Sketch eye()
{
    return Sketch()
        .curve({2, 10}, {10, 1.5}, {18, 10})
        .curve({18, 10}, {10, 18.5}, {2, 10})
        .circle(10, 10, 2.5);
}

Sketch bin()
{
    return Sketch()
        .line({{3.5, 5.5}, {16.5, 5.5}})
        .line({{5, 5.5}, {5.75, 17}, {14.25, 17}, {15, 5.5}})
        .line({{7.5, 5.5}, {7.5, 3}, {12.5, 3}, {12.5, 5.5}});
}

Sketch rows(std::initializer_list<std::pair<double, double>> ends)
{
    Sketch sketch;
    double y = 4.5;
    for (const auto &[left, right] : ends) {
        sketch.line({{left, y}, {right, y}});
        y += 3.75;
    }
    return sketch;
}

Sketch gear()
{
    Sketch sketch = Sketch().circle(10, 10, 2.5).circle(10, 10, 5.5);
    for (int tooth = 0; tooth < 8; ++tooth) {
        const QLineF ray = QLineF::fromPolar(1, tooth * 45.0);
        sketch.line({QPointF(10, 10) + ray.p2() * 5.75, QPointF(10, 10) + ray.p2() * 7.75});
    }
    return sketch;
}

Sketch corners()
{
    return Sketch()
        .line({{3, 7}, {3, 3}, {7, 3}})
        .line({{13, 3}, {17, 3}, {17, 7}})
        .line({{17, 13}, {17, 17}, {13, 17}})
        .line({{7, 17}, {3, 17}, {3, 13}});
}

QPainterPath toolShape(TSIconName name)
{
    using Name = TSIconName;
    switch (name) {
    case Name::Add:
        return Sketch().line({{10, 4}, {10, 16}}).line({{4, 10}, {16, 10}});
    case Name::Remove:
        return Sketch().line({{4, 10}, {16, 10}});
    case Name::RemoveAll:
    case Name::Trash:
        return bin().line({{8.5, 8.5}, {8.75, 14}}).line({{11.5, 8.5}, {11.25, 14}});
    case Name::Text:
        return Sketch()
            .line({{4, 6}, {4, 3.5}, {16, 3.5}, {16, 6}})
            .line({{10, 3.5}, {10, 16.5}})
            .line({{7.5, 16.5}, {12.5, 16.5}});
    case Name::Sticker:
        return Sketch()
            .line({{10.5, 17}, {6, 17}, {3, 14}, {3, 6}, {6, 3}, {14, 3}, {17, 6}, {17, 10.5}, {10.5, 17}})
            .curve({10.5, 17}, {10, 11}, {17, 10.5});
    case Name::Image:
        return Sketch()
            .box(2.5, 3.5, 15, 13)
            .circle(7, 7.75, 1.25)
            .line({{3, 15}, {7.5, 11}, {10, 13}, {13.5, 9.5}, {17.25, 13}});
    case Name::Layers:
        return Sketch()
            .closed({{10, 2.5}, {17.5, 6.5}, {10, 10.5}, {2.5, 6.5}})
            .line({{2.5, 10}, {10, 14}, {17.5, 10}})
            .line({{2.5, 13.5}, {10, 17.5}, {17.5, 13.5}});
    case Name::SaveLayout:
        return Sketch()
            .closed({{3, 3}, {14, 3}, {17, 6}, {17, 17}, {3, 17}})
            .line({{6.5, 3}, {6.5, 7}, {12.5, 7}, {12.5, 3}})
            .line({{6, 17}, {6, 11}, {14, 11}, {14, 17}});
    case Name::Export:
        return Sketch()
            .line({{7, 7.5}, {4, 7.5}, {4, 17}, {16, 17}, {16, 7.5}, {13, 7.5}})
            .line({{10, 12.5}, {10, 2.5}})
            .line({{6.75, 5.5}, {10, 2.25}, {13.25, 5.5}});
    case Name::Folder:
        return Sketch().closed({{2.5, 16}, {2.5, 4.5}, {8, 4.5}, {10, 6.75}, {17.5, 6.75}, {17.5, 16}});
    case Name::Copy:
        return Sketch().box(7, 7, 10, 10).line({{13, 4.5}, {13, 3}, {3, 3}, {3, 13}, {4.5, 13}});
    case Name::Settings:
        return gear();
    default:
        return {};
    }
}

QPainterPath viewShape(TSIconName name)
{
    using Name = TSIconName;
    switch (name) {
    case Name::ZoomIn:
        return magnifier().line({{6, 8.5}, {11, 8.5}}).line({{8.5, 6}, {8.5, 11}});
    case Name::ZoomOut:
        return magnifier().line({{6, 8.5}, {11, 8.5}});
    case Name::Fit:
        return corners();
    case Name::Group:
        return corners().box(6.5, 6.5, 7, 7, 0.5);
    case Name::Ungroup:
        return Sketch().box(3, 3, 8, 8, 1).line({{13.5, 9}, {17, 9}, {17, 17}, {9, 17}, {9, 13.5}});
    case Name::Visible:
        return eye();
    case Name::Hidden:
        return eye().line({{3.5, 16.5}, {16.5, 3.5}});
    case Name::Close:
        return Sketch().line({{5, 5}, {15, 15}}).line({{15, 5}, {5, 15}});
    case Name::Check:
        return Sketch().line({{4, 10.5}, {8.25, 14.75}, {16, 5.5}});
    case Name::ChevronDown:
        return Sketch().line({{5, 8}, {10, 13}, {15, 8}});
    case Name::Information:
        return Sketch().circle(10, 10, 7.5).line({{10, 9.5}, {10, 14}}).line({{10, 6.5}, {10, 6.6}});
    case Name::Warning:
        return Sketch()
            .closed({{10, 2.75}, {18, 16.75}, {2, 16.75}})
            .line({{10, 7.5}, {10, 11.75}})
            .line({{10, 14.1}, {10, 14.2}});
    default:
        return {};
    }
}

QPainterPath textShape(TSIconName name)
{
    using Name = TSIconName;
    switch (name) {
    case Name::AlignLeft:
        return rows({{3, 17}, {3, 11}, {3, 17}, {3, 11}});
    case Name::AlignCenter:
        return rows({{3, 17}, {6, 14}, {3, 17}, {6, 14}});
    case Name::AlignRight:
        return rows({{3, 17}, {9, 17}, {3, 17}, {9, 17}});
    case Name::Bold:
        return Sketch()
            .line({{10.5, 3.5}, {5.5, 3.5}, {5.5, 16.5}, {11.5, 16.5}})
            .line({{5.5, 9.75}, {11, 9.75}})
            .arc({7.5, 3.5, 6.25, 6.25}, 90, -180)
            .arc({8.5, 9.75, 6.75, 6.75}, 90, -180);
    case Name::Italic:
        return Sketch()
            .line({{8, 3.5}, {14.5, 3.5}})
            .line({{11.5, 3.5}, {8.5, 16.5}})
            .line({{5.5, 16.5}, {12, 16.5}});
    case Name::Underline:
        return Sketch()
            .line({{5.5, 3}, {5.5, 9}})
            .arc({5.5, 4.5, 9, 9}, 180, 180)
            .line({{14.5, 9}, {14.5, 3}})
            .line({{4.5, 17}, {15.5, 17}});
    case Name::Strikethrough:
        return Sketch().arc({6, 3, 8, 7}, 20, 250).arc({6, 10, 8, 7}, 90, -250).line({{3, 10}, {17, 10}});
    case Name::Outline:
        return Sketch()
            .closed({{8, 3}, {12, 3}, {17, 17}, {13.5, 17}, {12.4, 13.75}, {7.6, 13.75}, {6.5, 17}, {3, 17}})
            .closed({{10, 6.5}, {11.4, 10.75}, {8.6, 10.75}});
    case Name::Wildcard:
        return Sketch()
            .box(2, 6, 16, 8, 4)
            .line({{6, 10}, {6.1, 10}})
            .line({{10, 10}, {10.1, 10}})
            .line({{14, 10}, {14.1, 10}});
    case Name::Effect:
        return Sketch()
            .closed({{8, 5}, {9.5, 9.5}, {14, 11}, {9.5, 12.5}, {8, 17}, {6.5, 12.5}, {2, 11}, {6.5, 9.5}})
            .line({{15, 2.5}, {15, 7}})
            .line({{12.75, 4.75}, {17.25, 4.75}});
    default:
        return {};
    }
}

} // namespace

QPainterPath TSIconShapes::lines(TSIconName name)
{
    for (auto *const shape : {toolShape, viewShape, textShape}) {
        const QPainterPath path = shape(name);
        if (!path.isEmpty())
            return path;
    }
    return {};
}
