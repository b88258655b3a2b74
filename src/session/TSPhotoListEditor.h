#pragma once

#include "session/TSPhotoListEditorHost.h"
#include "session/TSPhotoListObserver.h"
#include "session/TSPhotoStrip.h"

#include <QStringList>

/// How photos leave the list and change their places in it, with the rows of the overlays. What it works on
/// outlives it. Main thread only.
class TSPhotoListEditor {
public:
    TSPhotoListEditor(TSPhotoListObserver &rows, TSPhotoStrip &strip, TSPhotoListEditorHost &host)
        : m_rows(rows), m_strip(strip), m_host(host)
    {
    }

    /// The selected photos. Asks before the last one goes, since the overlays go with it.
    void removePhotoAction();
    /// Asks in any case. Overlays go too.
    void removeAllPhotosAction();
    /// The strip's own reorder: before the photo that stood at `target`, counted before the move; always
    /// true. The selected photo is not followed.
    bool moveItemsAtIndexes(const std::set<qint64> &indexes, qint64 target);
    /// The files behind the items, for a drag to other programs.
    QStringList writeItemsAtIndexes(const std::set<qint64> &indexes) const;
    /// Takes the photos off the list whose files have gone, and tells so. To be called when the selection has
    /// changed.
    void removeItemsWithoutSource();

private:
    bool confirmRemoval();
    void removeSelection(const std::set<qint64> &indexes);
    void stopFilling();

    TSPhotoListObserver &m_rows;
    TSPhotoStrip &m_strip;
    TSPhotoListEditorHost &m_host;
    bool m_isLock = false;
};
