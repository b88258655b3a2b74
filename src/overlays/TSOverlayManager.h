#pragma once

#include "overlays/TSOverlay.h"
#include "session/TSCurrentInstance.h"
#include "session/TSPhotoListObserver.h"

class TSImage;

/// The working list of overlays: one list for all photos, index 0 on top, Script texts at the end. What
/// differs from photo to photo lies in the rows of each overlay, which follow the photo list from here.
///
/// For the thread that the list is current on.
class TSOverlayManager : public platform::Archivable, public TSPhotoListObserver {
public:
    using Overlays = std::vector<std::shared_ptr<TSOverlay>>;

    TSOverlayManager() : m_current(this) {}
    explicit TSOverlayManager(platform::KeyedUnarchiver &coder);
    /// The list as it is now, with overlays of its own, for one thread to work on.
    TSOverlayManager(const TSOverlayManager &other);
    TSOverlayManager &operator=(const TSOverlayManager &) = delete;

    /// The current instance: the calling thread's own, the one made last that still lives, or else one made
    /// at the first use. Managers that were decoded from an archive never become current.
    static TSOverlayManager *overlayManager();

    qint64 overlayCount() const { return qint64(m_overlays.size()); }
    /// At index 0.
    void addOverlay(const std::shared_ptr<TSOverlay> &overlay);
    void removeOverlay(const std::shared_ptr<TSOverlay> &overlay);
    void removeAllOverlay() { m_overlays.clear(); }
    /// A copy, so that callers can walk it while the list changes.
    Overlays overlays() const { return m_overlays; }
    std::shared_ptr<TSOverlay> overlayAtIndex(qint64 index) const;
    /// −1 when absent.
    qint64 indexOfOverlay(const std::shared_ptr<TSOverlay> &overlay) const;
    void insertOverlay(const std::shared_ptr<TSOverlay> &overlay, qint64 index);
    void moveScript(const std::shared_ptr<TSOverlay> &overlay, qint64 index);
    void upOverlay(const Overlays &selection) { ChangeHierarchy(-1, selection); }
    void downOverlay(const Overlays &selection) { ChangeHierarchy(1, selection); }
    /// Moves the selected overlays by d places among the others; does nothing when that would leave the list.
    void ChangeHierarchy(qint64 d, const Overlays &selection);

    // Counts over the top level of the list; members of groups do not count.
    qint64 notScriptsCount() const;
    qint64 textCount() const;
    qint64 scriptCount() const;
    qint64 imageCount() const;
    std::vector<std::shared_ptr<TSImage>> images() const;
    qint64 wildcardCount() const;
    bool hasGroupObject() const;
    bool hasStrokeEffect() const;
    bool hasGlowEffect() const;
    bool hasShadowEffect() const;

    void photoWillJoin(qint64 position, qint64 selectedPhoto) override;
    void photoWasRemoved(qint64 position) override;
    void photoWasMoved(qint64 from, qint64 to) override;
    void allPhotosWereRemoved() override;

    QStringList classChain() const override { return {QStringLiteral("TSOverlayManager")}; }
    void encodeWithCoder(platform::KeyedArchiver &coder) const override;

private:
    bool moveInOrder(qint64 d, const Overlays &selection);

    TSCurrentInstance<TSOverlayManager> m_current;
    Overlays m_overlays;
};
