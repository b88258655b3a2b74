#include "export/TSPendingOutcomes.h"

#include <algorithm>

void TSPendingOutcomes::add(qint64 index, const QString &path, std::future<TSExportOutcome> outcome)
{
    m_pending.push_back({index, path, true, std::move(outcome)});
}

void TSPendingOutcomes::add(qint64 index, bool isNamed, const TSExportOutcome &outcome)
{
    std::promise<TSExportOutcome> known;
    known.set_value(outcome);
    m_pending.push_back({index, {}, isNamed, known.get_future()});
    tellEnded();
}

/// Out of the list before it is told of: whoever hears may come back here.
void TSPendingOutcomes::tellFirst()
{
    Pending first = std::move(m_pending.front());
    m_pending.pop_front();
    m_tell(first.index, first.isNamed, first.outcome.get());
}

void TSPendingOutcomes::tellEnded()
{
    while (!m_pending.empty() &&
           m_pending.front().outcome.wait_for(std::chrono::seconds(0)) == std::future_status::ready)
        tellFirst();
}

void TSPendingOutcomes::tellAll()
{
    while (!m_pending.empty())
        tellFirst();
}

void TSPendingOutcomes::tellThrough(const std::function<bool(const QString &path)> &test)
{
    const auto last = std::find_if(m_pending.rbegin(), m_pending.rend(), [&](const Pending &pending) {
        return !pending.path.isEmpty() && test(pending.path);
    });
    for (auto count = m_pending.rend() - last; count > 0 && !m_pending.empty(); --count)
        tellFirst();
}
