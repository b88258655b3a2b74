#pragma once

#include "export/TSExportHost.h"

#include <deque>
#include <functional>
#include <future>

/// What is still to be told of the photos of a run. Photos end in any order; they are told of in that of the
/// list, on the thread that asks.
class TSPendingOutcomes {
public:
    /// A photo that came as far as a name for its file has its turn in the progress line.
    using Tell = std::function<void(qint64 index, bool isNamed, const TSExportOutcome &outcome)>;

    explicit TSPendingOutcomes(Tell tell) : m_tell(std::move(tell)) {}

    /// A photo that is being written to a path.
    void add(qint64 index, const QString &path, std::future<TSExportOutcome> outcome);
    /// A photo of which all is known.
    void add(qint64 index, bool isNamed, const TSExportOutcome &outcome);

    /// Tells of those that have ended and have none before them that has not.
    void tellEnded();
    /// Waits for all.
    void tellAll();
    /// Waits for the last one whose path satisfies the test, and those before it.
    void tellThrough(const std::function<bool(const QString &path)> &test);

private:
    struct Pending {
        qint64 index;
        QString path;
        bool isNamed;
        std::future<TSExportOutcome> outcome;
    };

    void tellFirst();

    Tell m_tell;
    std::deque<Pending> m_pending;
};
