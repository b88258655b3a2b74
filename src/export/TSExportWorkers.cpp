#include "export/TSExportWorkers.h"

TSExportWorkers::TSExportWorkers(int jobs, double memory) : m_jobs(jobs), m_memory(memory)
{
    for (int i = 0; i < jobs + 1; ++i)
        m_threads.emplace_back(&TSExportWorkers::work, this);
}

TSExportWorkers::~TSExportWorkers()
{
    {
        const std::lock_guard lock(m_lock);
        m_isClosing = true;
    }
    m_changed.notify_all();
    for (std::thread &thread : m_threads)
        thread.join();
}

bool TSExportWorkers::hasRoom(double memory) const
{
    return m_underWay == 0 || (m_underWay <= m_jobs && m_memoryTaken + memory <= m_memory);
}

void TSExportWorkers::add(double memory, std::function<void()> task)
{
    std::unique_lock lock(m_lock);
    m_changed.wait(lock, [&] { return hasRoom(memory); });
    ++m_underWay;
    m_memoryTaken += memory;
    m_waiting.push_back({memory, std::move(task)});
    m_changed.notify_all();
}

/// False when there will be no more.
bool TSExportWorkers::takeTask(Task &task)
{
    std::unique_lock lock(m_lock);
    m_changed.wait(lock, [this] { return m_isClosing || !m_waiting.empty(); });
    if (m_waiting.empty())
        return false;
    task = std::move(m_waiting.front());
    m_waiting.pop_front();
    return true;
}

void TSExportWorkers::work()
{
    for (Task task; takeTask(task);) {
        task.run();
        // What it held goes before the room that it gives.
        task.run = nullptr;
        const std::lock_guard lock(m_lock);
        --m_underWay;
        m_memoryTaken -= task.memory;
        m_changed.notify_all();
    }
}

TSExportWorkers::Slot::Slot(TSExportWorkers &workers) : m_workers(workers)
{
    std::unique_lock lock(m_workers.m_lock);
    m_workers.m_changed.wait(lock, [&] { return m_workers.m_streaming < m_workers.m_jobs; });
    ++m_workers.m_streaming;
}

TSExportWorkers::Slot::~Slot()
{
    const std::lock_guard lock(m_workers.m_lock);
    --m_workers.m_streaming;
    m_workers.m_changed.notify_all();
}
