#pragma once

#include "overlays/TSOverlay.h"

#include <functional>

class TSPhoto;

/// An overlay made of overlays, placed, turned and sized as one. A member's place is `centerRatioOfFrame`:
/// its middle from the group's middle, and its size, in fractions of the group's. Members keep their own
/// turn; only the group's rows count. They are drawn first to last, so that the one selected first lies at
/// the bottom.
class TSGroup : public TSOverlay {
public:
    using Members = std::vector<std::shared_ptr<TSOverlay>>;

    static std::shared_ptr<TSGroup> groupOverlayWithOverlays(const Members &overlays);
    explicit TSGroup(const Members &overlays);
    explicit TSGroup(platform::KeyedUnarchiver &coder);
    std::shared_ptr<TSOverlay> copy() const override { return std::shared_ptr<TSGroup>(new TSGroup(*this)); }

    const Members &overlaysOfGroup() const { return m_overlaysOfGroup; }

    /// Measures the members: frames to ratios.
    void updateOverlayFrameRatioOfGroup();
    /// Places the members: ratios to frames.
    void updateOverlayFrameOfGroup();
    void updateTextImageOfGroup();
    /// Sets the group's opacity and that of every member, nested ones too.
    void updateOverlayOpacityOfGroup(double opacity);
    /// Fills in the wildcards of member texts and fits each text into the box it had when the group was made.
    void updateTextContentsAndImageFrameOfGroup(const TSPhoto &photo, bool isTokenName);
    /// Frees the members where they are seen, down through nested groups. `freed` takes each in turn, its
    /// place measured.
    void unGroupOverlaysOfGroup(double changedAngle,
                                const std::function<void(const std::shared_ptr<TSOverlay> &)> &freed);

    void drawIncontext(platform::PaintLayer &context) override;
    void drawIncontext(platform::PaintLayer &context, const Members &overlays);

    QStringList classChain() const override;
    void encodeWithCoder(platform::KeyedArchiver &coder) const override;

protected:
    TSGroup(const TSGroup &other);

private:
    QRectF memberFrame(const QRectF &ratio) const;

    Members m_overlaysOfGroup;
};
