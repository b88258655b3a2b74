#pragma once

#include <QPointF>

namespace TSModifier {
constexpr unsigned Shift = 0x20000;
constexpr unsigned Command = 0x100000;
} // namespace TSModifier

/// A mouse event, its point in overlay space.
struct TSMouseEvent {
    QPointF point;
    unsigned modifierFlags = 0;
    int clickCount = 1;

    /// The keys that add to a selection, and hold a drag still.
    bool isShiftOrCommand() const { return (modifierFlags & (TSModifier::Shift | TSModifier::Command)) != 0; }
};
