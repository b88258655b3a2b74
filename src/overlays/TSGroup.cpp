#include "overlays/TSGroup.h"

#include "overlays/TSText.h"
#include "platform/archive/KeyedArchiver.h"
#include "platform/archive/KeyedUnarchiver.h"
#include "platform/paint/PaintLayer.h"
#include "session/TSQuartzUtility.h"

namespace {

void turnAboutMiddle(platform::PaintLayer &context, const TSOverlay &overlay)
{
    const QPointF center = overlay.frame().center();
    context.translate(center.x(), center.y());
    context.rotate(overlay.angle());
    context.translate(-center.x(), -center.y());
}

} // namespace

std::shared_ptr<TSGroup> TSGroup::groupOverlayWithOverlays(const Members &overlays)
{
    return std::make_shared<TSGroup>(overlays);
}

TSGroup::TSGroup(const Members &overlays) : m_overlaysOfGroup(overlays)
{
    QRectF united;
    for (const auto &member : overlays) {
        const QRectF box = member->convertRect(member->frame());
        united = united.isNull() ? box : united.united(box);
    }
    setFrame(united);
    updateAlignmentAndRatio();
    updateOffsetPixel();
    updateOverlayFrameRatioOfGroup();
}

TSGroup::TSGroup(platform::KeyedUnarchiver &coder) : TSOverlay(coder)
{
    for (const platform::ArchiveValue &member : coder.decodeObject(u"overlaysOfGroup").toArray())
        if (auto overlay = member.toObject<TSOverlay>())
            m_overlaysOfGroup.push_back(std::move(overlay));
}

TSGroup::TSGroup(const TSGroup &other) : TSOverlay(other)
{
    for (const auto &member : other.m_overlaysOfGroup)
        m_overlaysOfGroup.push_back(member->copy());
}

void TSGroup::updateOverlayFrameRatioOfGroup()
{
    const QRectF &g = frame();
    for (const auto &member : m_overlaysOfGroup) {
        const QRectF &m = member->frame();
        const QRectF ratio((m.x() + m.width() * 0.5 - g.x() - g.width() * 0.5) / g.width(),
                           (m.y() + m.height() * 0.5 - g.y() - g.height() * 0.5) / g.height(),
                           m.width() / g.width(), m.height() / g.height());
        member->setCenterRatioOfFrame(ratio);
        if (auto *text = dynamic_cast<TSText *>(member.get()))
            text->setLimitRectRatio(ratio);
        if (auto *group = dynamic_cast<TSGroup *>(member.get()))
            group->updateOverlayFrameRatioOfGroup();
    }
}

QRectF TSGroup::memberFrame(const QRectF &ratio) const
{
    const QRectF &g = frame();
    const QSizeF size(ratio.width() * g.width(), ratio.height() * g.height());
    const QPointF center(g.width() * ratio.x() + (g.width() * 0.5 + g.x()),
                         g.height() * ratio.y() + (g.height() * 0.5 + g.y()));
    return {center - QPointF(size.width() / 2, size.height() / 2), size};
}

void TSGroup::updateOverlayFrameOfGroup()
{
    for (const auto &member : m_overlaysOfGroup) {
        member->setFrame(memberFrame(member->centerRatioOfFrame()));
        if (auto *group = dynamic_cast<TSGroup *>(member.get()))
            group->updateOverlayFrameOfGroup();
    }
}

void TSGroup::updateTextImageOfGroup()
{
    for (const auto &member : m_overlaysOfGroup) {
        if (auto *text = dynamic_cast<TSText *>(member.get()))
            text->updateRenderTextImage();
        else if (auto *group = dynamic_cast<TSGroup *>(member.get()))
            group->updateTextImageOfGroup();
    }
}

void TSGroup::updateOverlayOpacityOfGroup(double opacity)
{
    setOpacity(opacity);
    for (const auto &member : m_overlaysOfGroup) {
        member->setOpacity(opacity);
        if (auto *group = dynamic_cast<TSGroup *>(member.get()))
            group->updateOverlayOpacityOfGroup(opacity);
    }
}

void TSGroup::updateTextContentsAndImageFrameOfGroup(const TSPhoto &photo, bool isTokenName)
{
    for (const auto &member : m_overlaysOfGroup) {
        if (auto *group = dynamic_cast<TSGroup *>(member.get()))
            group->updateTextContentsAndImageFrameOfGroup(photo, isTokenName);
        auto *text = dynamic_cast<TSText *>(member.get());
        if (!text)
            continue;
        text->updateTextString(photo, text->textArray(), isTokenName);
        text->updateTextFrameOfGroup();
        const QRectF &limit = text->limitRectRatio();
        const QRectF box = memberFrame(limit);
        const QSizeF size =
            TSAspectFitRect(QRectF(QPointF(0, 0), text->frame().size()), QRectF(QPointF(0, 0), box.size()))
                .size();
        const QSizeF share(size.width() / frame().width(), size.height() / frame().height());
        text->setFrame(memberFrame(QRectF(limit.topLeft(), share)));
        text->setCenterRatioOfFrame(QRectF(text->centerRatioOfFrame().topLeft(), share));
    }
}

void TSGroup::unGroupOverlaysOfGroup(double changedAngle,
                                     const std::function<void(const std::shared_ptr<TSOverlay> &)> &freed)
{
    for (const auto &member : m_overlaysOfGroup) {
        member->setAngle(member->angle() + changedAngle);
        const QRectF &r = member->centerRatioOfFrame();
        const QRectF &g = frame();
        const QPointF inGroup(r.x() * g.width() + g.width() * 0.5 + g.x(),
                              r.y() * g.height() + g.height() * 0.5 + g.y());
        const QSizeF size = member->frame().size();
        const QPointF center = convertPointToPreview(inGroup);
        member->setFrame(QRectF(center - QPointF(size.width() / 2, size.height() / 2), size));
        if (auto *group = dynamic_cast<TSGroup *>(member.get())) {
            group->unGroupOverlaysOfGroup(group->angle(), freed);
            continue;
        }
        member->updateAlignmentAndRatio();
        member->updateOffsetPixel();
        freed(member);
    }
}

void TSGroup::drawIncontext(platform::PaintLayer &context)
{
    context.save();
    turnAboutMiddle(context, *this);
    drawIncontext(context, m_overlaysOfGroup);
    context.restore();
}

void TSGroup::drawIncontext(platform::PaintLayer &context, const Members &overlays)
{
    for (const auto &member : overlays) {
        auto *group = dynamic_cast<TSGroup *>(member.get());
        if (!group) {
            member->drawIncontext(context);
            continue;
        }
        context.save();
        turnAboutMiddle(context, *group);
        drawIncontext(context, group->overlaysOfGroup());
        context.restore();
    }
}

QStringList TSGroup::classChain() const
{
    return QStringList{QStringLiteral("TSGroup")} + TSOverlay::classChain();
}

void TSGroup::encodeWithCoder(platform::KeyedArchiver &coder) const
{
    TSOverlay::encodeWithCoder(coder);
    platform::ArchiveValue::Array members;
    for (const auto &member : m_overlaysOfGroup)
        members.append(member);
    coder.encodeObject(u"overlaysOfGroup", members);
}
