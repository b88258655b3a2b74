#pragma once

#include <QPalette>

class QFont;
class QPainter;
class QRectF;

/// How the program looks: neutral greys, so that nothing tints the photos, and one warm accent for selection
/// and focus. Lengths are in device-independent pixels.
class TSTheme {
public:
    enum class Scheme { Light, Dark };

    static constexpr int spacing = 8;
    static constexpr int margin = 16;
    static constexpr int radius = 6;
    static constexpr int ringWidth = 2;
    static constexpr int controlHeight = 28;
    static constexpr int iconSize = 20;

    /// What the desktop asks for. Ask before our palette lies over the desktop's.
    static Scheme systemScheme();
    static QPalette palette(Scheme scheme);
    static bool isDark(const QPalette &palette);

    /// Outlines of controls: faint for what stands still, strong enough to find what can be used.
    static QColor hairline(const QPalette &palette) { return palette.color(QPalette::Midlight); }
    static QColor outline(const QPalette &palette) { return palette.color(QPalette::Mid); }
    static QColor focusRing(const QPalette &palette)
    {
        return palette.color(QPalette::Active, QPalette::Highlight);
    }
    /// The step from a surface to the same surface under the pointer or the finger.
    static QColor raised(const QColor &surface, const QPalette &palette, double amount);
    static QColor mixed(const QColor &from, const QColor &to, double share);

    static QFont smallFont();
    static QFont titleFont();

    /// The focus ring lies inside the rectangle, with a gap that sets it off from an accented surface.
    static void drawFocusRing(QPainter &painter, const QRectF &rect, const QPalette &palette,
                              double cornerRadius = radius);
};
