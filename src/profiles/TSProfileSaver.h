#pragma once

#include "overlays/TSOverlayManager.h"

/// Saves the working overlays as a profile of the user: a package with their archive, a picture of them, and
/// a copy of every picture that the user brought in.
///
/// Main thread; needs a photo on the canvas, which lends the picture its placement.
class TSProfileSaver {
public:
    /// Answers an empty text when the profile was saved, else a sentence for the user. A package of that name
    /// is replaced, and only once the new one is whole.
    /// `missing` is told the names of the pictures that could not be read, and which the package lacks.
    static QString saveProfile(const QString &name, QStringList *missing = nullptr);

private:
    explicit TSProfileSaver(const QString &name);

    QString writePackage(const QString &folder);
    QString saveProfileImageToPath(const QString &folder) const;
    QString saveFinderStickerTOPath(const QString &folder);
    QString saveProfileDataToPath(const QString &folder) const;
    void forgetStickers();
    void adoptStickers() const;

    QString m_name;
    /// Where the package will lie, which is what overlays remember while it is written elsewhere.
    QString m_package;
    std::vector<std::pair<std::shared_ptr<TSImage>, QString>> m_formerNames;
    QStringList m_missing;
};
