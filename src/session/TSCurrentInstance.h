#pragma once

#include <algorithm>
#include <memory>
#include <vector>

/// Keeps track of which instance of a session-wide class is current: the youngest that lives. So a test sets
/// up a fresh session by making one, and leaves the older one as it was. Main thread only, but for `get()`
/// once an instance exists.
template <typename T>
class TSCurrentInstance {
public:
    static T *get()
    {
        if (instances().empty())
            fallback() = std::make_unique<T>();
        return instances().back();
    }
    static void enter(T *instance) { instances().push_back(instance); }
    static void leave(T *instance) { std::erase(instances(), instance); }

private:
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
};
