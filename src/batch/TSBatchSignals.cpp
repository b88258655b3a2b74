#include "batch/TSBatchSignals.h"

namespace {

std::atomic<std::atomic<bool> *> raisedFlag = nullptr;
static_assert(std::atomic<bool>::is_always_lock_free, "the flag is set inside a signal handler");

void raiseFlag(int)
{
    if (std::atomic<bool> *flag = raisedFlag)
        *flag = true;
}

} // namespace

TSBatchSignals::TSBatchSignals(std::atomic<bool> &flag)
{
    raisedFlag = &flag;
    struct sigaction action {};
    action.sa_handler = raiseFlag;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (size_t i = 0; i < std::size(handled); ++i)
        sigaction(handled[i], &action, &m_before[i]);
    action.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &action, &m_pipeBefore);
}

TSBatchSignals::~TSBatchSignals()
{
    for (size_t i = 0; i < std::size(handled); ++i)
        sigaction(handled[i], &m_before[i], nullptr);
    sigaction(SIGPIPE, &m_pipeBefore, nullptr);
    raisedFlag = nullptr;
}
