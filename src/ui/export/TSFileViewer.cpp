#include "ui/export/TSFileViewer.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace {

/// A file manager that has to be started first may take this long, in milliseconds.
constexpr int patience = 5000;

bool openFolder(const QString &path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
}

QDBusMessage showItems(const QString &path)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    const QUrl url = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
    message << QStringList(QString::fromLatin1(url.toEncoded())) << QString();
    return message;
}

} // namespace

void TSFileViewer::selectFile(const QString &path, QObject *context, const std::function<void(bool)> &told)
{
    if (!QFileInfo::exists(path))
        return told(false);
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return told(openFolder(path));
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(showItems(path), patience), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context, [=] {
        watcher->deleteLater();
        told(!watcher->isError() || openFolder(path));
    });
}
