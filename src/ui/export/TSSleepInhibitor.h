#pragma once

#include <QDBusUnixFileDescriptor>
#include <QObject>

class QDBusMessage;

/// Keeps the machine awake from `hold` to `release`: by the login manager, or where there is none by the
/// desktop's power manager. Without either nothing happens. Main thread; nothing waits for an answer.
class TSSleepInhibitor : public QObject {
    Q_OBJECT

public:
    ~TSSleepInhibitor() override { release(); }

    void hold(const QString &reason);
    void release();

private:
    void askLoginManager();
    void askPowerManager();
    void freePowerManager(uint cookie);

    QString m_reason;
    bool m_isHeld = false;
    /// Answers to an earlier `hold` come too late.
    int m_turn = 0;
    /// The login manager's lock, which lasts as long as the descriptor is open.
    QDBusUnixFileDescriptor m_lock;
    uint m_cookie = 0;
};
