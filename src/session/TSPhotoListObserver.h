#pragma once

#include <limits>
#include <QtGlobal>

/// Whoever keeps one row a photo. The photo list calls it at the very step where its own entries change, on
/// the thread that changes them; positions are those of the list as it is told in each call.
class TSPhotoListObserver {
public:
    virtual ~TSPhotoListObserver() = default;
    /// The position of a photo that joins behind all others, however many rows there are.
    static constexpr qint64 atEnd = std::numeric_limits<qint64>::max();

    /// A photo joins at a position; its row starts as a copy of the selected photo's.
    virtual void photoWillJoin(qint64 position, qint64 selectedPhoto) = 0;
    virtual void photoWasRemoved(qint64 position) = 0;
    /// Moved before the photo that stood at `to`, counted before the move.
    virtual void photoWasMoved(qint64 from, qint64 to) = 0;
    virtual void allPhotosWereRemoved() = 0;
};
