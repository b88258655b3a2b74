#pragma once

#include "overlays/TSOverlayManager.h"
#include "session/TSDataManager.h"
#include "session/TSPhotoManager.h"

#include <memory>

/// The session as it stood when a run began: photos, requested output, and marks with their rows. The run
/// places and draws these marks, so the ones on the screen stay where they are, and nothing has to be locked.
///
/// Taken on the main thread; used, and destroyed, on the thread of the run alone, since the fonts of its
/// texts belong to that.
class TSRunSession {
public:
    /// Of the current session.
    static std::unique_ptr<TSRunSession> snapshot();

    /// While one lives, the session is current on its thread.
    class Current {
    public:
        explicit Current(TSRunSession &session);

    private:
        TSCurrentInstance<TSDataManager>::OnThisThread m_data;
        TSCurrentInstance<TSPhotoManager>::OnThisThread m_photos;
        TSCurrentInstance<TSOverlayManager>::OnThisThread m_overlays;
    };

    const TSDataManager &data() const { return m_data; }
    const TSOverlayManager &overlays() const { return m_overlays; }
    /// The flag by which the user leaves the run; it belongs to the session that this is a copy of.
    std::atomic<bool> &isExitExport() const { return m_origin.isExitExport; }
    /// Fills in `photoOutputSize` of every photo, and `photoSize` where it was not known.
    void computeOutputSizes();
    /// Whether an output has more pixels altogether than that.
    bool isHasBiggerPhoto(double pixels) const;

private:
    TSRunSession();

    TSDataManager &m_origin;
    TSDataManager m_data;
    TSPhotoManager m_photos;
    TSOverlayManager m_overlays;
};
