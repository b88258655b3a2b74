#pragma once

#include <atomic>
#include <csignal>
#include <iterator>

/// While it lives, an interrupt, a request to end or a lost terminal sets a flag, and a reader that has gone
/// away is no reason to end. One at a time in a process.
class TSBatchSignals {
public:
    explicit TSBatchSignals(std::atomic<bool> &flag);
    ~TSBatchSignals();
    TSBatchSignals(const TSBatchSignals &) = delete;
    TSBatchSignals &operator=(const TSBatchSignals &) = delete;

private:
    static constexpr int handled[] = {SIGINT, SIGTERM, SIGHUP};

    struct sigaction m_before[std::size(handled)];
    struct sigaction m_pipeBefore;
};
