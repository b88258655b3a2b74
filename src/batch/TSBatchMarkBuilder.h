#pragma once

#include "batch/TSBatchOptions.h"

#include <memory>

class TSOverlay;
class TSPhoto;
class TSText;

/// Makes the overlays of a command line and gives each its rows, one for each photo. Needs a session with its
/// photos in the list, one of them selected and its canvas published.
class TSBatchMarkBuilder {
public:
    /// Fills the overlay manager, the first mark on top, and sets the session's unit. Answers the path of a
    /// profile that no mark could be read from, or nothing; `missing` gets the names of the pictures that
    /// profiles should have and have not.
    static QString build(const std::vector<TSBatchMark> &marks, QStringList &missing);

private:
    static void add(const TSBatchMark &mark, const TSPhoto &shown);
    static std::shared_ptr<TSOverlay> placedOverlay(const TSBatchMark &mark, const TSPhoto &shown);
    static std::shared_ptr<TSOverlay> newGroup(const TSBatchMark &mark, const TSPhoto &shown);
    static std::shared_ptr<TSOverlay> newOverlay(const TSBatchMark &mark, const TSPhoto &shown);
    static void place(TSOverlay &overlay, const TSBatchMark &mark);
    static void becomeScript(TSText &text, const TSBatchMark &mark);
    static void writeRows(TSOverlay &overlay, const TSBatchMark &mark);
};
