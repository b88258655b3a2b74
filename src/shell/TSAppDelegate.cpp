#include "shell/TSAppDelegate.h"

#include "session/TSDefaults.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QTranslator>

namespace {

const QString service = QStringLiteral("org.tessaro.Tessaro");
const QString object = QStringLiteral("/org/tessaro/Tessaro");

} // namespace

bool TSAppDelegate::becomeTheOnlyOne()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    // Without a bus nobody can be told.
    if (!bus.isConnected())
        return true;
    if (!bus.registerService(service)) {
        QDBusInterface(service, object, service, bus).call(QStringLiteral("activate"));
        return false;
    }
    bus.registerObject(object, this, QDBusConnection::ExportAllSlots);
    return true;
}

void TSAppDelegate::installTranslations()
{
    for (const QLocale &locale : {QLocale(QLocale::English), QLocale()}) {
        auto *translator = new QTranslator(qApp);
        if (translator->load(locale, QStringLiteral("tessaro"), QStringLiteral("_"),
                             QStringLiteral(":/translations")))
            QApplication::installTranslator(translator);
        else
            delete translator;
    }
}

void TSAppDelegate::applicationDidFinishLaunching()
{
    TSWriteLaunchDefaults();
    // The window hides when it is closed; only Quit ends the program.
    QApplication::setQuitOnLastWindowClosed(false);
    m_mainWc = std::make_unique<TSMainWindowController>();
    connect(m_mainWc->window().quitAction, &QAction::triggered, qApp, &QApplication::quit);
    m_mainWc->window().show();
}

void TSAppDelegate::activate()
{
    QWidget &window = m_mainWc->window();
    window.show();
    window.raise();
    window.activateWindow();
}
