#include "ui/preview/TSMarkAccessible.h"

#include "overlays/TSGroup.h"
#include "overlays/TSImage.h"
#include "overlays/TSText.h"
#include "session/TSDataManager.h"
#include "ui/preview/TSPreviewScrollView.h"

#include <cmath>
#include <QFileInfo>

namespace {

QString kindOf(const TSOverlay &overlay)
{
    if (dynamic_cast<const TSText *>(&overlay))
        return qtTrId("Text Watermark");
    return dynamic_cast<const TSImage *>(&overlay) ? qtTrId("Image Watermark") : qtTrId("Group Watermark");
}

QString nameOf(const TSOverlay &overlay)
{
    if (const auto *text = dynamic_cast<const TSText *>(&overlay))
        return text->textStorage().string();
    if (const auto *image = dynamic_cast<const TSImage *>(&overlay))
        return QFileInfo(image->imagePath()).completeBaseName();
    return kindOf(overlay);
}

/// The middle of the mark, in percent of the photo from its top left.
QString placeOf(const TSOverlay &overlay)
{
    const QRectF &canvas = TSDataManager::dataManager()->canvasFrame;
    const QPointF middle = overlay.frame().center() - canvas.topLeft();
    return qtTrId("MarkPlace")
        .arg(std::lround(middle.x() / canvas.width() * 100))
        .arg(std::lround(middle.y() / canvas.height() * 100));
}

} // namespace

QAccessibleInterface *TSMarkAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(&m_view);
}

QString TSMarkAccessible::text(QAccessible::Text kind) const
{
    const auto overlay = m_overlay.lock();
    if (!overlay)
        return {};
    if (kind == QAccessible::Name)
        return nameOf(*overlay);
    return kind == QAccessible::Description
               ? QStringLiteral("%1, %2").arg(kindOf(*overlay), placeOf(*overlay))
               : QString();
}

QRect TSMarkAccessible::rect() const
{
    const auto overlay = m_overlay.lock();
    return overlay ? m_view.onScreen(overlay->convertRectToPreview(overlay->frame())) : QRect();
}

QAccessible::Role TSMarkAccessible::role() const
{
    const auto overlay = m_overlay.lock();
    if (dynamic_cast<const TSText *>(overlay.get()))
        return QAccessible::StaticText;
    return dynamic_cast<const TSGroup *>(overlay.get()) ? QAccessible::Grouping : QAccessible::Graphic;
}

QAccessible::State TSMarkAccessible::state() const
{
    QAccessible::State state;
    const auto overlay = m_overlay.lock();
    state.invalid = !overlay;
    state.selectable = state.focusable = true;
    state.selected = overlay && m_view.preview().selection().contains(overlay);
    state.focused = state.selected && m_view.hasFocus();
    return state;
}
