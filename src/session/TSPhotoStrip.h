#pragma once

#include <QtGlobal>
#include <set>

/// The strip that shows the photo list, and what stands and falls with it, as those see it who change the
/// list. Main thread only.
class TSPhotoStrip {
public:
    virtual ~TSPhotoStrip() = default;
    virtual std::set<qint64> selectionIndexes() const = 0;
    virtual void reloadData() = 0;
    virtual void scrollIndexToVisible(qint64 index) = 0;
    /// Selects this photo alone. What hangs on the selection follows before it returns.
    virtual void setSelectionIndex(qint64 index) = 0;
    /// Both buttons, the one for the selected photo and the one for all.
    virtual bool isRemoveEnabled() const = 0;
    virtual void setRemoveEnabled(bool enabled) = 0;
    /// A list without photos has a view of its own.
    virtual void updateStartView() = 0;
    /// Calls off a background filling of the cache that has been asked for and not yet begun.
    virtual void cancelCacheImages() = 0;
};
