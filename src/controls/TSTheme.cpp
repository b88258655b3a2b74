#include "controls/TSTheme.h"

#include <QApplication>
#include <QPainter>

namespace {

struct Colors {
    QRgb window, base, alternate, button, text, muted, hairline, outline, accent, onAccent, tip, onTip;
};

// Text meets its surface at 7:1 or more, muted text at 4.5:1, outlines and accent at 3:1.
constexpr Colors light = {0xffededed, 0xffffffff, 0xfff6f6f6, 0xfffbfbfb, 0xff1f1f1f, 0xff666666,
                          0xffd4d4d4, 0xff8a8a8a, 0xffb85c00, 0xffffffff, 0xff2b2b2b, 0xfff2f2f2};
constexpr Colors dark = {0xff2a2a2a, 0xff1e1e1e, 0xff252525, 0xff3a3a3a, 0xffe8e8e8, 0xffa3a3a3,
                         0xff404040, 0xff7d7d7d, 0xfff2a93b, 0xff1a1a1a, 0xff101010, 0xffe8e8e8};

void setTextColors(QPalette &palette, const Colors &colors)
{
    const auto roles = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText};
    for (const QPalette::ColorRole role : roles) {
        palette.setColor(role, QColor(colors.text));
        palette.setColor(QPalette::Disabled, role,
                         TSTheme::mixed(QColor(colors.text), QColor(colors.window), 0.62));
    }
    palette.setColor(QPalette::PlaceholderText, QColor(colors.muted));
}

QFont scaledFont(double factor)
{
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

} // namespace

TSTheme::Scheme TSTheme::systemScheme()
{
    return isDark(QGuiApplication::palette()) ? Scheme::Dark : Scheme::Light;
}

QPalette TSTheme::palette(Scheme scheme)
{
    const Colors &colors = scheme == Scheme::Dark ? dark : light;
    QPalette palette(QColor(colors.button), QColor(colors.window));
    const std::pair<QPalette::ColorRole, QRgb> roles[] = {
        {QPalette::Window, colors.window},
        {QPalette::Base, colors.base},
        {QPalette::AlternateBase, colors.alternate},
        {QPalette::Button, colors.button},
        {QPalette::Midlight, colors.hairline},
        {QPalette::Mid, colors.outline},
        {QPalette::Highlight, colors.accent},
        {QPalette::HighlightedText, colors.onAccent},
        {QPalette::Link, colors.accent},
        {QPalette::LinkVisited, colors.accent},
        {QPalette::ToolTipBase, colors.tip},
        {QPalette::ToolTipText, colors.onTip},
    };
    for (const auto &[role, rgb] : roles)
        palette.setColor(role, QColor(rgb));
    setTextColors(palette, colors);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(colors.outline));
    return palette;
}

bool TSTheme::isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QColor TSTheme::raised(const QColor &surface, const QPalette &palette, double amount)
{
    return mixed(surface, palette.color(QPalette::WindowText), amount);
}

QColor TSTheme::mixed(const QColor &from, const QColor &to, double share)
{
    const auto channel = [share](double a, double b) { return float(a + (b - a) * share); };
    return QColor::fromRgbF(channel(from.redF(), to.redF()), channel(from.greenF(), to.greenF()),
                            channel(from.blueF(), to.blueF()), channel(from.alphaF(), to.alphaF()));
}

QFont TSTheme::smallFont()
{
    return scaledFont(0.9);
}

QFont TSTheme::titleFont()
{
    QFont font = scaledFont(1.15);
    font.setWeight(QFont::DemiBold);
    return font;
}

void TSTheme::drawFocusRing(QPainter &painter, const QRectF &rect, const QPalette &palette,
                            double cornerRadius)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    constexpr double half = ringWidth / 2.0, gap = ringWidth + 0.5;
    painter.setPen(QPen(palette.color(QPalette::Window), 1));
    painter.drawRoundedRect(rect.adjusted(gap, gap, -gap, -gap), cornerRadius - gap, cornerRadius - gap);
    painter.setPen(QPen(focusRing(palette), ringWidth));
    painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), cornerRadius - half,
                            cornerRadius - half);
    painter.restore();
}
