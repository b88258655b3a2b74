#pragma once

#include "overlays/TSOverlayManager.h"
#include "preview/TSLine.h"

#include <optional>

struct TSTrackerState;

/// The lines of a rectangle, as bits. y grows downward: the top is the smallest y.
namespace TSAlignmentLine {
constexpr unsigned TSLineLeft = 1;
constexpr unsigned TSLineRight = 2;
constexpr unsigned TSLineBottom = 4;
constexpr unsigned TSLineTop = 8;
/// Horizontal, through the middle.
constexpr unsigned TSLineMiddle = 16;
/// Vertical, through the middle.
constexpr unsigned TSLineCenter = 32;
constexpr unsigned All = 63;
} // namespace TSAlignmentLine

/// Pulls a moved rectangle onto the lines of the canvas and of other overlays, and finds the guide lines that
/// tell what lines up. All lengths are points of the overlay space, 32 bits wide in lines and distances, so
/// that the reach of a snap is the same at every zoom.
///
/// A candidate wins when it is no farther than the distance given, and then takes the distance down to its
/// own: of two that are equally near the later one is taken. Nothing is answered when nothing is near. Main
/// thread.
class TSSnapping {
public:
    using Overlays = TSOverlayManager::Overlays;

    explicit TSSnapping(TSTrackerState &trackerState) : m_trackerState(trackerState) {}

    // The user's switches.
    static bool isSnapToPhoto();
    static bool isSnapToObjects();

    /// The last line that any of the asked lines of the rectangle snaps to. The offsets, which are left alone
    /// on an axis without a snap, bring the rectangle there.
    std::optional<TSLine> alignLineOfRect(const QRectF &rect, float &offsetX, float &offsetY,
                                          const Overlays &objects, unsigned lines) const;
    static std::optional<TSLine> lineForRectInPhoto(const QRectF &rect, unsigned alignmentLine,
                                                    const QRectF &photo, float &minDist);
    static std::optional<TSLine> lineForRectInOverlays(const QRectF &rect, unsigned alignmentLine,
                                                       const Overlays &overlays, float &minDist);
    static std::optional<TSLine> alignmentLine(const TSLine &line, const Overlays &overlays, float &minDist);
    /// Not a valid line for a code that is none of the six.
    static TSLine lineOfRect(const QRectF &rect, unsigned alignmentLine);
    /// A line of the rectangle that the given one lies near to, as long as to span both.
    static std::optional<TSLine> aligmentLine(const TSLine &line, const QRectF &rect, float &minDist,
                                              bool enableCenterAlignment);

    /// Adds the guide lines of a rectangle against the canvas and against the boxes around the overlays. The
    /// switches are not asked.
    void updateLinesForRect(const QRectF &rect, const Overlays &overlays, double minDist);
    void updateLinesForOverlayRect(const QRectF &rect, const std::vector<TSLine> &lines, double minDist);
    void addAligmentLine(const std::optional<TSLine> &line);

private:
    TSTrackerState &m_trackerState;
};
