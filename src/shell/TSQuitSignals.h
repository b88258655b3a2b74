#pragma once

#include <memory>
#include <QObject>
#include <QSocketNotifier>

/// Tells on the main thread that the program is asked to end from outside: by a session that closes, a lost
/// terminal, an interrupt. One in a process; without it such a request ends the program where it stands.
class TSQuitSignals : public QObject {
    Q_OBJECT

public:
    TSQuitSignals();
    ~TSQuitSignals() override;

Q_SIGNALS:
    void quitWasAsked();

private:
    int m_ends[2] = {-1, -1};
    std::unique_ptr<QSocketNotifier> m_notifier;
};
