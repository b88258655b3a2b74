#include "preview/TSSnapping.h"

#include "platform/system/UserDefaults.h"
#include "preview/TSTrackerState.h"
#include "session/TSDataManager.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace TSAlignmentLine;

namespace {

using Overlays = TSOverlayManager::Overlays;

constexpr float snapDistance = 8;

/// The lines of a moved rectangle in the order of the search.
struct Step {
    unsigned line;
    /// The middle lines are pulled to the canvas alone.
    bool inObjects;
};
constexpr std::array<Step, 6> steps = {{{TSLineTop, true},
                                        {TSLineBottom, true},
                                        {TSLineMiddle, false},
                                        {TSLineLeft, true},
                                        {TSLineCenter, false},
                                        {TSLineRight, true}}};
constexpr std::array<unsigned, 6> guideOrder = {TSLineTop,  TSLineMiddle, TSLineBottom,
                                                TSLineLeft, TSLineCenter, TSLineRight};

const QRectF &canvas()
{
    return TSDataManager::dataManager()->canvasFrame;
}

double middle(double origin, double length)
{
    return origin + length * 0.5;
}

bool isHorizontalCode(unsigned code)
{
    return code == TSLineTop || code == TSLineMiddle || code == TSLineBottom;
}

/// Where a line of a rectangle stands on the axis across it.
double placeOfLine(const QRectF &rect, unsigned code)
{
    switch (code) {
    case TSLineLeft:
        return rect.left();
    case TSLineRight:
        return rect.right();
    case TSLineBottom:
        return rect.bottom();
    case TSLineTop:
        return rect.top();
    case TSLineMiddle:
        return middle(rect.y(), rect.height());
    default:
        return middle(rect.x(), rect.width());
    }
}

/// One place that may win over the others on an axis.
struct Candidate {
    float ofLine;
    double ofRect;
    bool isCenter;
};

/// The place that won, if any did; `minDist` is then its distance.
std::optional<double> nearestPlace(const std::array<Candidate, 3> &candidates, float &minDist, bool centers)
{
    std::optional<double> place;
    for (const Candidate &candidate : candidates) {
        const float distance = float(std::fabs(double(candidate.ofLine) - candidate.ofRect));
        if ((candidate.isCenter && !centers) || !(distance <= minDist))
            continue;
        minDist = distance;
        place = candidate.ofRect;
    }
    return place;
}

std::optional<TSLine> horizontalMatch(const TSLine &line, const QRectF &rect, float &minDist, bool centers)
{
    const auto place = nearestPlace({{{line.minY(), rect.top(), false},
                                      {line.centerY(), middle(rect.y(), rect.height()), true},
                                      {line.maxY(), rect.bottom(), false}}},
                                    minDist, centers);
    if (!place)
        return {};
    return TSLine{std::min(line.minX(), float(rect.left())), float(*place),
                  std::max(line.maxX(), float(rect.right())), float(*place)};
}

std::optional<TSLine> verticalMatch(const TSLine &line, const QRectF &rect, float &minDist, bool centers)
{
    const auto place = nearestPlace({{{line.minX(), rect.left(), false},
                                      {line.centerX(), middle(rect.x(), rect.width()), true},
                                      {line.maxX(), rect.right(), false}}},
                                    minDist, centers);
    if (!place)
        return {};
    return TSLine{float(*place), std::min(line.minY(), float(rect.top())), float(*place),
                  std::max(line.maxY(), float(rect.bottom()))};
}

} // namespace

bool TSSnapping::isSnapToPhoto()
{
    return platform::UserDefaults::standard().boolForKey(QStringLiteral("WatermarkAutoSnapToPhoto"));
}

bool TSSnapping::isSnapToObjects()
{
    return platform::UserDefaults::standard().boolForKey(QStringLiteral("WatermarkAutoSnapToObjects"));
}

TSLine TSSnapping::lineOfRect(const QRectF &rect, unsigned alignmentLine)
{
    const float place = float(placeOfLine(rect, alignmentLine));
    if (isHorizontalCode(alignmentLine))
        return {float(rect.left()), place, float(rect.right()), place};
    if (alignmentLine == TSLineLeft || alignmentLine == TSLineCenter || alignmentLine == TSLineRight)
        return {place, float(rect.top()), place, float(rect.bottom())};
    return {};
}

/// A line without length is not horizontal, and is compared as a vertical one.
std::optional<TSLine> TSSnapping::aligmentLine(const TSLine &line, const QRectF &rect, float &minDist,
                                               bool enableCenterAlignment)
{
    const auto match = line.isHorizon() ? horizontalMatch : verticalMatch;
    const auto found = match(line, rect, minDist, enableCenterAlignment);
    return found && found->isValid() ? found : std::nullopt;
}

std::optional<TSLine> TSSnapping::lineForRectInPhoto(const QRectF &rect, unsigned alignmentLine,
                                                     const QRectF &photo, float &minDist)
{
    return aligmentLine(lineOfRect(rect, alignmentLine), photo, minDist, true);
}

std::optional<TSLine> TSSnapping::alignmentLine(const TSLine &line, const Overlays &overlays, float &minDist)
{
    std::optional<TSLine> nearest;
    if (!line.isValid())
        return nearest;
    // The moved one counts by the box around it, but its targets by their frames as if they were not turned.
    for (const auto &overlay : overlays)
        if (const auto found = aligmentLine(line, overlay->frame(), minDist, false))
            nearest = found;
    return nearest;
}

std::optional<TSLine> TSSnapping::lineForRectInOverlays(const QRectF &rect, unsigned alignmentLine,
                                                        const Overlays &overlays, float &minDist)
{
    return TSSnapping::alignmentLine(lineOfRect(rect, alignmentLine), overlays, minDist);
}

std::optional<TSLine> TSSnapping::alignLineOfRect(const QRectF &rect, float &offsetX, float &offsetY,
                                                  const Overlays &objects, unsigned lines) const
{
    const bool isPhoto = isSnapToPhoto();
    const bool isObjects = isSnapToObjects();
    // One distance for both axes: what is found on y leaves less for x, and x snaps only when it is as near.
    float distance = snapDistance;
    std::optional<TSLine> result;
    for (const Step &step : steps) {
        if ((lines & step.line) == 0)
            continue;
        const auto take = [&](const std::optional<TSLine> &found) {
            if (!found)
                return;
            result = found;
            const double place = placeOfLine(rect, step.line);
            if (isHorizontalCode(step.line))
                offsetY = float(double(found->beginY) - place);
            else
                offsetX = float(double(found->beginX) - place);
        };
        if (isPhoto)
            take(lineForRectInPhoto(rect, step.line, canvas(), distance));
        if (isObjects && step.inObjects)
            take(lineForRectInOverlays(rect, step.line, objects, distance));
    }
    return result;
}

void TSSnapping::updateLinesForRect(const QRectF &rect, const Overlays &overlays, double minDist)
{
    std::vector<TSLine> lines;
    for (const unsigned code : guideOrder)
        lines.push_back(lineOfRect(rect, code));
    updateLinesForOverlayRect(canvas(), lines, minDist);
    for (const auto &overlay : overlays)
        updateLinesForOverlayRect(overlay->convertRectToPreview(overlay->frame()), lines, minDist);
}

void TSSnapping::updateLinesForOverlayRect(const QRectF &rect, const std::vector<TSLine> &lines,
                                           double minDist)
{
    for (const TSLine &line : lines) {
        float distance = float(minDist);
        addAligmentLine(aligmentLine(line, rect, distance, true));
    }
}

void TSSnapping::addAligmentLine(const std::optional<TSLine> &line)
{
    if (line)
        m_trackerState.alignmentLines.push_back(*line);
}
