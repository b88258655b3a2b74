#pragma once

#include "overlays/TSImage.h"
#include "overlays/TSOverlayManager.h"

#include <QStringList>

/// The user's pictures inside packages. Each is there as pixels, under a number; one that was a drawing lies
/// beside them as it was, under the same number.
class TSProfileStickers {
public:
    using Pictures = std::vector<std::shared_ptr<TSImage>>;

    /// All pictures among the marks, those of groups behind the others: which of them has which number is
    /// told by the order.
    static Pictures picturesAmong(const TSOverlayManager::Overlays &overlays);
    static QString fileOfNumber(int number);
    /// Puts a picture into the file of a package, and its drawing beside it. Answers an empty text or a
    /// sentence for the user.
    static QString store(const TSImage &image, const platform::Picture &picture, const QString &file);
    /// What is to be shown of a file of a package: the drawing where there is one.
    static QString shown(const QString &file);
    /// A package brings its pictures along, wherever it lies and whatever it is called by now. Answers the
    /// names of those that are nowhere to be found.
    static QStringList find(const TSOverlayManager::Overlays &overlays, const QString &package);
};
