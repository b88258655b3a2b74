#include "preview/TSTrackerLayer.h"

#include "overlays/TSAnchor.h"
#include "platform/system/UserDefaults.h"
#include "preview/TSOverlayCreation.h"
#include "preview/TSSelection.h"
#include "preview/TSTrackerState.h"
#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"

#include <QPainter>

namespace {

const QColor knobColor(Qt::lightGray);
const QColor auxiliaryColor =
    QColor::fromRgbF(float(0.34509803921568627), float(0.7607843137254902), float(0.043137254901960784));

/// Without nodes, and faint on any photo: a dark line with light dashes.
void drawInactiveFrame(QPainter &context, const QRectF &frame)
{
    context.setPen(QPen(QColor(0, 0, 0, 110), 1));
    context.drawRect(frame);
    context.setPen(QPen(QColor(255, 255, 255, 170), 1, Qt::DashLine));
    context.drawRect(frame);
}

void drawTurnedTracker(QPainter &context, TSOverlay &overlay, bool isInactive)
{
    const QPointF center = overlay.tracker()->frame().center();
    QTransform turn;
    turn.translate(center.x(), center.y());
    turn.rotateRadians(overlay.angle());
    turn.translate(-center.x(), -center.y());
    context.save();
    context.setTransform(turn, true);
    if (isInactive)
        drawInactiveFrame(context, overlay.frame());
    else
        overlay.tracker()->drawInContext(context);
    context.restore();
}

/// Of a Script text, whose frame is the canvas.
void drawScriptFrame(QPainter &context, bool isInactive)
{
    const QRectF &canvas = TSDataManager::dataManager()->canvasFrame;
    if (isInactive) {
        drawInactiveFrame(context, canvas);
        return;
    }
    context.setPen(QPen(Qt::yellow, 1));
    context.drawRect(canvas);
}

} // namespace

void TSTrackerLayer::drawRect(QPainter &context)
{
    context.save();
    context.setRenderHint(QPainter::Antialiasing);
    context.setBrush(Qt::NoBrush);
    drawBoundsRect(context);
    drawTrackers(context);
    // Lines say nothing of a turn.
    if (!m_state.isRotate) {
        drawAligmentLines(context);
        if (platform::UserDefaults::standard().boolForKey(QStringLiteral("WatermarkAuxiliaryLine")))
            drawAuxiliaryLine(context);
    }
    context.restore();
}

void TSTrackerLayer::drawBoundsRect(QPainter &context) const
{
    if (m_state.boundsRect == QRectF() || !m_state.isMultipleChoice)
        return;
    context.setPen(QPen(knobColor, 1));
    context.drawRect(m_state.boundsRect);
}

void TSTrackerLayer::drawTrackers(QPainter &context)
{
    const auto &selected = m_selection.editingOverlaysArray();
    for (auto overlay = selected.rbegin(); overlay != selected.rend(); ++overlay) {
        m_state.tracker = std::shared_ptr<TSTracker>(*overlay, (*overlay)->tracker());
        (*overlay)->tracker()->setFrame((*overlay)->frame());
        if (m_selection.isContainScriptObject())
            drawScriptFrame(context, m_state.isInactive);
        else
            drawTurnedTracker(context, **overlay, m_state.isInactive);
    }
}

void TSTrackerLayer::drawAligmentLines(QPainter &context) const
{
    context.setPen(QPen(Qt::yellow, 1));
    for (const TSLine &line : m_state.alignmentLines)
        context.drawLine(QPointF(double(line.beginX), double(line.beginY)),
                         QPointF(double(line.endX), double(line.endY)));
}

void TSTrackerLayer::drawAuxiliaryLine(QPainter &context) const
{
    const TSDataManager *data = TSDataManager::dataManager();
    if (!data->isDragging)
        return;
    context.setPen(QPen(auxiliaryColor, 1));
    const auto &selected = m_selection.editingOverlaysArray();
    for (auto overlay = selected.rbegin(); overlay != selected.rend(); ++overlay) {
        const unsigned anchor = (*overlay)->wmAlignment();
        context.drawLine(TSAnchorOfRect(anchor, data->canvasFrame),
                         TSAnchorOfRect(anchor, (*overlay)->frame()));
    }
}

void TSTrackerLayer::keyDown(int key)
{
    if (key == Qt::Key_Backspace || key == Qt::Key_Delete)
        m_creation.deleteEditingOverlay();
    m_currentKey = key;
    Q_EMIT TSNotificationCenter::defaultCenter()->TSChangeWatermarkPostion();
    m_currentKey = 0;
}
