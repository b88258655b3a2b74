#include "shell/TSQuitSignals.h"

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int handled[] = {SIGINT, SIGTERM, SIGHUP};
volatile std::sig_atomic_t writingEnd = -1;

/// All that a handler may do here; the event loop reads at the other end.
void passOn(int)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(writingEnd, &byte, 1);
}

void setHandlers(void (*handler)(int))
{
    for (const int number : handled)
        std::signal(number, handler);
}

} // namespace

TSQuitSignals::TSQuitSignals()
{
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, m_ends) != 0)
        return;
    writingEnd = m_ends[1];
    m_notifier = std::make_unique<QSocketNotifier>(m_ends[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        Q_EMIT quitWasAsked();
    });
    setHandlers(passOn);
}

TSQuitSignals::~TSQuitSignals()
{
    setHandlers(SIG_DFL);
    m_notifier.reset();
    for (const int end : m_ends)
        close(end);
}
