#include "preview/TSProportionalResize.h"

#include <array>
#include <cmath>

namespace {

constexpr double leastSide = 6;

/// Which of the two deltas counts; the other follows by the shape.
enum class Given { XUnlessZero, X, Y };

struct NodeRule {
    Given given;
    /// Whether a growing delta widens or heightens the frame, or the opposite.
    int widthSign;
    int heightSign;
    bool movesX;
    bool movesY;
};

constexpr std::array<NodeRule, 8> rules = {{
    {Given::XUnlessZero, -1, -1, true, true},
    {Given::Y, -1, -1, false, true},
    {Given::XUnlessZero, 1, -1, false, true},
    // The right edge works like the corner below it, and the left edge does not mirror it. People's hands
    // know both.
    {Given::XUnlessZero, 1, 1, false, false},
    {Given::XUnlessZero, 1, 1, false, false},
    {Given::Y, 1, 1, false, false},
    {Given::XUnlessZero, -1, 1, true, false},
    {Given::X, -1, -1, true, true},
}};

} // namespace

QRectF TSProportionallyResizedFrame(const QRectF &frame, int node, double dx, double dy)
{
    if (node < 0 || size_t(node) >= rules.size() || frame.height() == 0)
        return frame;
    const NodeRule &rule = rules[size_t(node)];
    const double shape = frame.width() / frame.height();
    const double sign = rule.widthSign * rule.heightSign;
    if (rule.given == Given::Y || (rule.given == Given::XUnlessZero && dx == 0))
        dx = sign * shape * dy;
    else
        dy = sign * dx / shape;
    double width = frame.width() + rule.widthSign * dx;
    double height = frame.height() + rule.heightSign * dy;
    if (shape > 1 ? width < leastSide : height < leastSide) {
        width = shape > 1 ? leastSide : leastSide * shape;
        height = shape > 1 ? leastSide / shape : leastSide;
        dx = rule.widthSign * (width - frame.width());
        dy = rule.heightSign * (height - frame.height());
    }
    return {frame.x() + (rule.movesX ? dx : 0), frame.y() + (rule.movesY ? dy : 0), width, height};
}
