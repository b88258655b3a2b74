#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

/// Threads that photos stream on, side by side. A task streams its photo while it holds one of as many slots
/// as there are jobs, and goes on without one while it writes: the disk takes a good part of a photo's time
/// and nothing of the processor's, so one task more than slots is under way.
///
/// Tasks are added from one thread.
class TSExportWorkers {
public:
    /// `memory` is what the tasks under way may take together, in bytes; one is let in whatever it takes.
    TSExportWorkers(int jobs, double memory);
    /// Waits for what is under way.
    ~TSExportWorkers();
    TSExportWorkers(const TSExportWorkers &) = delete;
    TSExportWorkers &operator=(const TSExportWorkers &) = delete;

    /// Waits for room before it hands the task over.
    void add(double memory, std::function<void()> task);

    /// Held by a task while it streams; waits for its turn.
    class Slot {
    public:
        explicit Slot(TSExportWorkers &workers);
        ~Slot();
        Slot(const Slot &) = delete;
        Slot &operator=(const Slot &) = delete;

    private:
        TSExportWorkers &m_workers;
    };

private:
    struct Task {
        double memory;
        std::function<void()> run;
    };

    bool hasRoom(double memory) const;
    bool takeTask(Task &task);
    void work();

    const int m_jobs;
    const double m_memory;
    std::mutex m_lock;
    std::condition_variable m_changed;
    std::deque<Task> m_waiting;
    int m_underWay = 0;
    int m_streaming = 0;
    double m_memoryTaken = 0;
    bool m_isClosing = false;
    std::vector<std::thread> m_threads;
};
