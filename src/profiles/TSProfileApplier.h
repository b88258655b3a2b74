#pragma once

#include "overlays/TSOverlayManager.h"

#include <QStringList>

/// Whoever a profile is applied for: it is asked once, and told what happens to what it shows.
class TSProfileApplierDelegate {
public:
    struct Answer {
        bool isToCover = false;
        bool isNotToAskAgain = false;
    };

    virtual ~TSProfileApplierDelegate() = default;
    /// Whether the present marks may go.
    virtual Answer askToCoverWatermarks() = 0;
    /// The selection refers to marks that are about to go.
    virtual void clearSelection() = 0;
    /// The marks stand; what is on show is to be drawn again, and the Batch switch with it.
    virtual void profileWasApplied() = 0;
    /// Tells which of the layouts that come with the program was used; never of the user's own.
    virtual void recordProfileData(const QString &group, const QString &name) = 0;
};

/// Puts the marks of a profile package to work. Needs a photo on the canvas, since marks rebuild their frames
/// against it while they are read. Main thread.
class TSProfileApplier {
public:
    explicit TSProfileApplier(TSProfileApplierDelegate *delegate = nullptr) : m_delegate(delegate) {}

    /// Replaces the layout, after a question unless the user has switched it off. False when nothing was
    /// read; the former marks are gone then all the same.
    bool applyProfile(const QString &package);
    /// Adds the marks of a package on top of those there are. Answers whether any could be read.
    bool performProfile(const QString &package);
    /// The names of the pictures that the last package should have and that could not be found.
    const QStringList &missingPictures() const { return m_missing; }

private:
    void tellUse(const QString &package);

    TSProfileApplierDelegate *m_delegate;
    QStringList m_missing;
};
