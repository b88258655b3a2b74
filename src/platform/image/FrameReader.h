#pragma once

#include "platform/image/Vips.h"

#include <functional>
#include <QImage>
#include <QString>

namespace platform {

/// The frames of one picture file, one after the other. The file is decoded once from its beginning to its
/// end, since the frames of an animation are made from the ones before; memory is that of a frame. One
/// thread.
class FrameReader {
public:
    explicit FrameReader(const QString &path);

    /// 0 for a file that cannot be read.
    int frameCount() const { return m_frameCount; }
    /// The next frame, upright, reduced to the longest side in pixels where it is larger. Null for one that
    /// is damaged, for all that follow it in an animation, and behind the last.
    QImage nextThumbnail(int longestSide);
    /// Of the frame that was answered last, upright and not reduced; empty where there was none.
    QSize frameSize() const { return m_frameSize; }
    /// Once it answers true, the frame at hand is given up. Asked again and again.
    std::function<bool()> isCancelled;

private:
    struct RegionUnref {
        void operator()(VipsRegion *region) const { g_object_unref(region); }
    };

    VipsImagePtr nextFrame();
    void openRoll();
    VipsImagePtr frameOfRoll();
    void giveRollUp();
    QImage thumbnail(VipsImagePtr frame, int longestSide);

    QString m_path;
    int m_frameCount = 0;
    bool m_isAnimation = false;
    bool m_isBroken = false;
    int m_next = 0;
    QSize m_frameSize;
    int m_framesAtOnce = 1;
    /// Some frames, one below the other.
    std::unique_ptr<VipsRegion, RegionUnref> m_roll;
    int m_rollStart = 0;
    int m_rollFrames = 0;
};

} // namespace platform
