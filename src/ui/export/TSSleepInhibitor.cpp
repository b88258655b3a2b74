#include "ui/export/TSSleepInhibitor.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <utility>

namespace {

QDBusMessage powerManagerCall(const char *method)
{
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.PowerManagement"),
                                          QStringLiteral("/org/freedesktop/PowerManagement/Inhibit"),
                                          QStringLiteral("org.freedesktop.PowerManagement.Inhibit"),
                                          QLatin1String(method));
}

} // namespace

void TSSleepInhibitor::hold(const QString &reason)
{
    release();
    m_isHeld = true;
    m_reason = reason;
    askLoginManager();
}

void TSSleepInhibitor::release()
{
    m_isHeld = false;
    ++m_turn;
    m_lock = QDBusUnixFileDescriptor();
    if (m_cookie != 0)
        freePowerManager(std::exchange(m_cookie, 0));
}

void TSSleepInhibitor::askLoginManager()
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
    message << QStringLiteral("sleep:idle") << QGuiApplication::applicationDisplayName() << m_reason
            << QStringLiteral("block");
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::systemBus().asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, turn = m_turn] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *watcher;
        if (!m_isHeld || turn != m_turn)
            return;
        if (reply.isError())
            askPowerManager();
        else
            m_lock = reply.value();
    });
}

void TSSleepInhibitor::askPowerManager()
{
    QDBusMessage message = powerManagerCall("Inhibit");
    message << QGuiApplication::applicationDisplayName() << m_reason;
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, turn = m_turn] {
        watcher->deleteLater();
        const QDBusPendingReply<uint> reply = *watcher;
        if (reply.isError())
            return;
        if (m_isHeld && turn == m_turn)
            m_cookie = reply.value();
        else
            freePowerManager(reply.value());
    });
}

void TSSleepInhibitor::freePowerManager(uint cookie)
{
    QDBusMessage message = powerManagerCall("UnInhibit");
    message << cookie;
    QDBusConnection::sessionBus().send(message);
}
