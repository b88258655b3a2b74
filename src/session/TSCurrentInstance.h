#pragma once

#include <algorithm>
#include <memory>
#include <vector>

/// Tells which instance of a session-wide class is current: the one that the calling thread has taken for its
/// own, or else the youngest that lives. So a test sets up a fresh session by making one, and a run works on
/// a copy that nobody else sees. An instance holds one of these as a member, made with its own address; that
/// of a copy is empty, so a copy is current only where a thread takes it.
///
/// Instances are made and destroyed on the main thread, copies anywhere. `get()` is for any thread once an
/// instance exists.
template <typename T>
class TSCurrentInstance {
public:
    TSCurrentInstance() = default;
    explicit TSCurrentInstance(T *instance) : m_instance(instance) { instances().push_back(instance); }
    TSCurrentInstance(const TSCurrentInstance &) {}
    TSCurrentInstance &operator=(const TSCurrentInstance &) = delete;
    ~TSCurrentInstance()
    {
        if (m_instance)
            std::erase(instances(), m_instance);
    }

    static T *get()
    {
        if (ofThread())
            return ofThread();
        if (instances().empty())
            fallback() = std::make_unique<T>();
        return instances().back();
    }

    /// While it lives, the instance is current on the thread that made this.
    class OnThisThread {
    public:
        explicit OnThisThread(T &instance) : m_outer(ofThread()) { ofThread() = &instance; }
        ~OnThisThread() { ofThread() = m_outer; }
        OnThisThread(const OnThisThread &) = delete;
        OnThisThread &operator=(const OnThisThread &) = delete;

    private:
        T *m_outer;
    };

private:
    static T *&ofThread()
    {
        static thread_local T *instance = nullptr;
        return instance;
    }
    static std::vector<T *> &instances()
    {
        static std::vector<T *> list;
        return list;
    }
    static std::unique_ptr<T> &fallback()
    {
        // The list is made first, so that it is still there when the fallback leaves it at the end of the
        // process.
        instances();
        static std::unique_ptr<T> instance;
        return instance;
    }

    T *m_instance = nullptr;
};
