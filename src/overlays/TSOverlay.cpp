#include "overlays/TSOverlay.h"

#include "platform/archive/KeyedArchiver.h"
#include "platform/archive/KeyedUnarchiver.h"
#include "session/TSPhotoManager.h"

#include <QTransform>

namespace {

QTransform turnAbout(const QPointF &center, double angle)
{
    QTransform transform;
    transform.translate(center.x(), center.y());
    transform.rotateRadians(angle);
    transform.translate(-center.x(), -center.y());
    return transform;
}

} // namespace

TSOverlay::TSOverlay() : m_shadow(std::make_shared<TSShadow>()) {}

TSOverlay::TSOverlay(platform::KeyedUnarchiver &coder) : TSOverlay()
{
    m_ratioOfFrameByAlignment = coder.decodeRect(u"ratioOfFrameByAlignment");
    m_centerRatioOfFrame = coder.decodeRect(u"centerRatioOfFrame");
    m_angle = double(coder.decodeFloat(u"angle"));
    m_opacity = double(coder.decodeFloat(u"opacity"));
    if (auto shadow = coder.decodeObject(u"shadow").toObject<TSShadow>())
        m_shadow = std::move(shadow);
    m_wmAlignment = unsigned(coder.decodeInteger(u"wmAlignment"));
    m_xPixel = double(coder.decodeFloat(u"xPixel"));
    m_yPixel = double(coder.decodeFloat(u"yPixel"));
    m_oldRatioOfFrameByAlignment = coder.decodeRect(u"oldRatioOfFrameByAlignment");
    m_oldXPixel = double(coder.decodeFloat(u"oldXPixel"));
    m_oldYPixel = double(coder.decodeFloat(u"oldYPixel"));
    m_frame = coder.decodeRect(u"frame");
    const qint64 photos = TSPhotoManager::photoManager()->photoCount();
    for (qint64 i = 0; i < photos; ++i)
        appendRow();
    m_rows.changeAll([this](TSRow &row) { row.oldRatioOfFrameByAlignment = m_oldRatioOfFrameByAlignment; });
    // Of the stored frame only the shape counts: the frame is made anew for the canvas of today.
    updateFrameByAlignmentRatio(false);
}

TSOverlay::TSOverlay(const TSOverlay &other) = default;

std::shared_ptr<TSOverlay> TSOverlay::copy() const
{
    return std::shared_ptr<TSOverlay>(new TSOverlay(*this));
}

void TSOverlay::encodeWithCoder(platform::KeyedArchiver &coder) const
{
    coder.encodeRect(u"ratioOfFrameByAlignment", m_ratioOfFrameByAlignment);
    coder.encodeRect(u"centerRatioOfFrame", m_centerRatioOfFrame);
    coder.encodeFloat(u"angle", float(m_angle));
    coder.encodeFloat(u"opacity", float(m_opacity));
    coder.encodeObject(u"shadow", std::make_shared<TSShadow>(*m_shadow));
    coder.encodeInteger(u"wmAlignment", m_wmAlignment);
    coder.encodeFloat(u"xPixel", float(m_xPixel));
    coder.encodeFloat(u"yPixel", float(m_yPixel));
    coder.encodeRect(u"oldRatioOfFrameByAlignment", m_oldRatioOfFrameByAlignment);
    coder.encodeFloat(u"oldXPixel", float(m_oldXPixel));
    coder.encodeFloat(u"oldYPixel", float(m_oldYPixel));
    coder.encodeRect(u"frame", m_frame);
}

void TSOverlay::appendRow()
{
    TSRow row{
        m_ratioOfFrameByAlignment, {}, float(m_xPixel), float(m_yPixel), m_wmAlignment, float(m_angle), {}};
    writeTextRow(row);
    m_rows.append(row);
}

void TSOverlay::loadRow(qint64 position)
{
    const TSRow *row = m_rows.at(position);
    if (!row)
        return;
    m_ratioOfFrameByAlignment = row->ratioOfFrameByAlignment;
    m_xPixel = double(row->xPixel);
    m_yPixel = double(row->yPixel);
    m_wmAlignment = row->wmAlignment;
    m_angle = double(row->angle);
    readTextRow(*row);
}

QPointF TSOverlay::convertPoint(const QPointF &point) const
{
    return turnAbout(m_frame.center(), -m_angle).map(point);
}

QRectF TSOverlay::convertRect(const QRectF &rect) const
{
    return turnAbout(m_frame.center(), -m_angle).mapRect(rect);
}

QPointF TSOverlay::convertPointToPreview(const QPointF &point) const
{
    return turnAbout(m_frame.center(), m_angle).map(point);
}

QRectF TSOverlay::convertRectToPreview(const QRectF &rect) const
{
    return turnAbout(m_frame.center(), m_angle).mapRect(rect);
}

void TSOverlay::updateFrameByCenterPoint(const QPointF &center)
{
    const QPointF turned = turnAbout(center, m_angle).map(m_frame.center());
    m_frame.moveTopLeft(turned - QPointF(m_frame.width() / 2, m_frame.height() / 2));
    m_tracker.setFrame(m_frame);
}

void TSOverlay::drawIncontext(platform::PaintLayer &) {}
