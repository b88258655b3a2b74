#include "controls/TSStyle.h"

#include "controls/TSBarPainter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <QTextEdit>

namespace {

bool has(const QStyleOption *option, QStyle::StateFlag state)
{
    return option->state & state;
}

/// The middle of the pixels at the edge, so that a line of one pixel is sharp.
QRectF crisp(const QRectF &rect)
{
    return rect.adjusted(0.5, 0.5, -0.5, -0.5);
}

QColor pressedOrHovered(const QColor &surface, const QStyleOption *option)
{
    const bool down = has(option, QStyle::State_Sunken) && has(option, QStyle::State_Enabled);
    const bool over = has(option, QStyle::State_MouseOver) && has(option, QStyle::State_Enabled);
    return down || over ? TSTheme::raised(surface, option->palette, down ? 0.16 : 0.07) : surface;
}

QColor outlineOf(const QStyleOption *option)
{
    return has(option, QStyle::State_Enabled) ? TSTheme::outline(option->palette)
                                              : TSTheme::hairline(option->palette);
}

bool isDefaultButton(const QStyleOption *option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    return button && (button->features & QStyleOptionButton::DefaultButton) &&
           has(option, QStyle::State_Enabled);
}

void drawSurface(QPainter *painter, const QRectF &rect, const QColor &fill, const QColor &line, double radius)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(fill);
    painter->setPen(line.isValid() ? QPen(line, 1) : QPen(Qt::NoPen));
    painter->drawRoundedRect(line.isValid() ? crisp(rect) : rect, radius, radius);
}

/// Around the words of a check box or radio button with some air.
QRectF focusFrame(const QStyleOption *option, const QWidget *widget)
{
    const bool isButton = qobject_cast<const QAbstractButton *>(widget);
    return isButton ? QRectF(option->rect).adjusted(-5, -2, 5, 2) : QRectF(option->rect);
}

void drawPushButton(const QStyleOption *option, QPainter *painter)
{
    const bool isDefault = isDefaultButton(option), isOn = has(option, QStyle::State_On);
    const QPalette &palette = option->palette;
    QColor surface = palette.color(isDefault ? QPalette::Highlight : QPalette::Button);
    if (isOn)
        surface = TSTheme::raised(surface, palette, 0.18);
    drawSurface(painter, option->rect, pressedOrHovered(surface, option),
                isDefault ? QColor() : outlineOf(option), TSTheme::radius);
    if (has(option, QStyle::State_HasFocus))
        TSTheme::drawFocusRing(*painter, option->rect, palette);
}

void drawToolButton(const QStyleOption *option, QPainter *painter)
{
    const QPalette &palette = option->palette;
    const QColor clear = palette.color(QPalette::Window);
    const bool isOn = has(option, QStyle::State_On);
    const QColor surface = isOn ? TSTheme::raised(clear, palette, 0.14) : clear;
    const QColor fill = pressedOrHovered(surface, option);
    if (fill != clear || isOn)
        drawSurface(painter, option->rect, fill, QColor(), TSTheme::radius);
    if (has(option, QStyle::State_HasFocus))
        TSTheme::drawFocusRing(*painter, option->rect, palette);
}

void drawField(const QStyleOption *option, QPainter *painter)
{
    const QColor fill =
        option->palette.color(has(option, QStyle::State_Enabled) ? QPalette::Base : QPalette::Window);
    drawSurface(painter, option->rect, fill, outlineOf(option), TSTheme::radius - 1);
    if (has(option, QStyle::State_HasFocus))
        TSTheme::drawFocusRing(*painter, option->rect, option->palette, TSTheme::radius - 1);
}

void drawMark(const QStyleOption *option, QPainter *painter, bool isRound)
{
    const QPalette &palette = option->palette;
    const bool isOn = has(option, QStyle::State_On) || has(option, QStyle::State_NoChange);
    const QRectF rect = option->rect;
    const double radius = isRound ? rect.width() / 2 : 4;
    const QColor fill = isOn ? palette.color(QPalette::Highlight) : palette.color(QPalette::Base);
    drawSurface(painter, rect, pressedOrHovered(fill, option), isOn ? QColor() : outlineOf(option), radius);
    if (!isOn)
        return;
    const QPointF c = rect.center();
    const double u = rect.width() / 16;
    const QColor ink = palette.color(QPalette::HighlightedText);
    painter->setBrush(ink);
    painter->setPen(isRound ? QPen(Qt::NoPen) : QPen(ink, 2 * u, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (isRound)
        painter->drawEllipse(c, 3 * u, 3 * u);
    else if (has(option, QStyle::State_NoChange))
        painter->drawLine(c - QPointF(3.5 * u, 0), c + QPointF(3.5 * u, 0));
    else
        painter->drawPolyline(
            QPolygonF({c + QPointF(-3.6, 0.2) * u, c + QPointF(-1.1, 2.7) * u, c + QPointF(3.8, -2.7) * u}));
}

void drawChevron(QPainter *painter, const QPointF &center, const QColor &color)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPolyline(
        QPolygonF({center + QPointF(-4, -2), center + QPointF(0, 2), center + QPointF(4, -2)}));
}

void drawMenuSeparator(const QStyleOption *option, QPainter *painter)
{
    constexpr int inset = 6;
    const int y = option->rect.center().y();
    painter->setPen(TSTheme::hairline(option->palette));
    painter->drawLine(option->rect.left() + inset, y, option->rect.right() - inset, y);
}

/// A picture beside words is drawn in their colour, also where they lie on the accent.
QIcon iconOnAccent(const QStyleOptionMenuItem &item, int side, const QPainter &painter)
{
    return item.icon.pixmap(QSize(side, side), painter.device()->devicePixelRatioF(), QIcon::Selected);
}

void drawComboBox(const QStyleOptionComboBox *option, QPainter *painter)
{
    const QColor surface = option->palette.color(option->editable ? QPalette::Base : QPalette::Button);
    drawSurface(painter, option->rect, pressedOrHovered(surface, option), outlineOf(option), TSTheme::radius);
    constexpr int fromRight = 14;
    const QRectF rect = option->rect;
    drawChevron(painter, {rect.right() - fromRight, rect.center().y() + 0.5},
                option->palette.color(QPalette::ButtonText));
    if (has(option, QStyle::State_HasFocus))
        TSTheme::drawFocusRing(*painter, rect, option->palette);
}

} // namespace

TSStyle::TSStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void TSStyle::apply(TSTheme::Scheme scheme)
{
    QApplication::setStyle(new TSStyle);
    QApplication::setPalette(TSTheme::palette(scheme));
}

void TSStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    painter->save();
    switch (element) {
    case PE_PanelButtonCommand:
        drawPushButton(option, painter);
        break;
    case PE_PanelButtonTool:
        drawToolButton(option, painter);
        break;
    case PE_PanelLineEdit:
        drawField(option, painter);
        break;
    case PE_Frame:
        if (qobject_cast<const QTextEdit *>(widget))
            drawField(option, painter);
        else
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        break;
    case PE_FrameLineEdit:
    case PE_FrameDefaultButton:
        break;
    case PE_FrameMenu:
        painter->setPen(TSTheme::outline(option->palette));
        painter->drawRect(crisp(option->rect));
        break;
    case PE_IndicatorCheckBox:
        drawMark(option, painter, false);
        break;
    case PE_IndicatorRadioButton:
        drawMark(option, painter, true);
        break;
    case PE_FrameFocusRect:
        TSTheme::drawFocusRing(*painter, focusFrame(option, widget), option->palette, 5);
        break;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    painter->restore();
}

void TSStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const
{
    if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
        element == CE_MenuItem && item)
        return drawMenuItem(*item, painter, widget);
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element == CE_PushButtonLabel && button && isDefaultButton(option)) {
        QStyleOptionButton label(*button);
        label.palette.setColor(QPalette::ButtonText, option->palette.color(QPalette::HighlightedText));
        QProxyStyle::drawControl(element, &label, painter, widget);
    } else if (element == CE_PushButton && button) {
        // Without the base's focus rectangle inside the button: its panel already wears the ring.
        drawControl(CE_PushButtonBevel, option, painter, widget);
        QStyleOptionButton label(*button);
        label.rect = subElementRect(SE_PushButtonContents, option, widget);
        drawControl(CE_PushButtonLabel, &label, painter, widget);
    } else if (const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(option);
               element == CE_ProgressBar && bar && bar->maximum > bar->minimum && !bar->textVisible) {
        painter->save();
        TSBarPainter::drawProgress(bar, painter);
        painter->restore();
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void TSStyle::drawMenuItem(const QStyleOptionMenuItem &option, QPainter *painter, const QWidget *widget) const
{
    painter->save();
    if (option.menuItemType == QStyleOptionMenuItem::Separator && option.text.isEmpty()) {
        drawMenuSeparator(&option, painter);
    } else {
        QStyleOptionMenuItem item(option);
        if (has(&option, State_Selected) && has(&option, State_Enabled) && !item.icon.isNull())
            item.icon = iconOnAccent(item, pixelMetric(PM_SmallIconSize, &option, widget), *painter);
        QProxyStyle::drawControl(CE_MenuItem, &item, painter, widget);
    }
    painter->restore();
}

void TSStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                 const QWidget *widget) const
{
    painter->save();
    if (const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option); combo && combo->frame)
        drawComboBox(combo, painter);
    else if (const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
             bar && control == CC_ScrollBar)
        TSBarPainter::drawScrollBar(bar, painter);
    else if (control == CC_Slider)
        drawSlider(option, painter, widget);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    painter->restore();
}

void TSStyle::drawSlider(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (!slider || slider->orientation == Qt::Vertical)
        return QProxyStyle::drawComplexControl(CC_Slider, option, painter, widget);
    const QPalette &palette = option->palette;
    const QRectF handle = subControlRect(CC_Slider, option, SC_SliderHandle, widget);
    const QRectF all = option->rect;
    constexpr double thickness = 4, knob = 16;
    const QPointF center(handle.center().x(), all.center().y());
    const QRectF groove(all.left(), center.y() - thickness / 2, all.width(), thickness);
    TSBarPainter::drawGroove(painter, groove, TSBarPainter::grooveColor(palette));
    const QRectF filled(groove.topLeft(), QPointF(center.x(), groove.bottom()));
    TSBarPainter::drawGroove(painter,
                             option->direction == Qt::RightToLeft
                                 ? QRectF(center.x(), groove.top(), groove.right() - center.x(), thickness)
                                 : filled,
                             palette.color(QPalette::Highlight));
    const QRectF circle(center.x() - knob / 2, center.y() - knob / 2, knob, knob);
    drawSurface(painter, circle, pressedOrHovered(palette.color(QPalette::Button), option), outlineOf(option),
                knob / 2);
    if (has(option, QStyle::State_HasFocus))
        TSTheme::drawFocusRing(*painter, circle.adjusted(-2, -2, 2, 2), palette, knob / 2 + 2);
}

QRect TSStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                              const QWidget *widget) const
{
    const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    if (control == CC_ComboBox && part == SC_ComboBoxEditField)
        return rect.adjusted(6, 0, 0, 0);
    const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control != CC_ScrollBar || !bar)
        return rect;
    // A bar without arrows: the wheel, the keys and the handle do what they did.
    const QRect handle = TSBarPainter::scrollBarHandle(bar);
    const bool isLying = bar->orientation == Qt::Horizontal;
    QRect rest = bar->rect;
    switch (part) {
    case SC_ScrollBarSlider:
        return handle;
    case SC_ScrollBarGroove:
        return rest;
    case SC_ScrollBarSubPage:
        isLying ? rest.setRight(handle.left() - 1) : rest.setBottom(handle.top() - 1);
        return rest;
    case SC_ScrollBarAddPage:
        isLying ? rest.setLeft(handle.right() + 1) : rest.setTop(handle.bottom() + 1);
        return rest;
    default:
        return {};
    }
}

int TSStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_SliderThickness:
    case PM_SliderControlThickness:
    case PM_SliderLength:
        return 20;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return 16;
    case PM_ScrollBarExtent:
        return 12;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 10;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int TSStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                       QStyleHintReturn *returnData) const
{
    // A click on the groove goes there, as with the other sliders of a photographer's desk.
    if (hint == SH_Slider_AbsoluteSetButtons)
        return Qt::LeftButton;
    // In milliseconds; at once, nearly: there is little to read under icons and thumbnails but these.
    if (hint == SH_ToolTip_WakeUpDelay)
        return 50;
    // An echo of disabled words in a lighter colour reads as a flaw on dark surfaces.
    // Nor do the toolkit's coloured pictures belong on our buttons.
    if (hint == SH_EtchDisabledText || hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    // What goes on stands on the right in every sheet, and so in every dialog.
    if (hint == SH_DialogButtonLayout)
        return QDialogButtonBox::GnomeLayout;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

QSize TSStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                const QWidget *widget) const
{
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_PushButton)
        result = (result + QSize(16, 0)).expandedTo({80, TSTheme::controlHeight});
    else if (type == CT_ComboBox)
        result = (result + QSize(12, 0)).expandedTo({0, TSTheme::controlHeight});
    else if (type == CT_LineEdit)
        result = result.expandedTo({0, TSTheme::controlHeight});
    else if (type == CT_CheckBox || type == CT_RadioButton)
        result += QSize(6, 4);
    return result;
}
