#include "ui/export/TSLauncherProgress.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QVariantMap>

namespace {

void send(const QVariantMap &properties)
{
    QDBusMessage update = QDBusMessage::createSignal(QStringLiteral("/com/canonical/unity/launcherentry/1"),
                                                     QStringLiteral("com.canonical.Unity.LauncherEntry"),
                                                     QStringLiteral("Update"));
    update << QStringLiteral("application://%1.desktop").arg(QGuiApplication::desktopFileName())
           << properties;
    QDBusConnection::sessionBus().send(update);
}

} // namespace

void TSLauncherProgress::show(double progress)
{
    m_isShown = true;
    send({{QStringLiteral("progress"), progress}, {QStringLiteral("progress-visible"), true}});
}

void TSLauncherProgress::hide()
{
    if (m_isShown)
        send({{QStringLiteral("progress"), 0.0}, {QStringLiteral("progress-visible"), false}});
    m_isShown = false;
}
