#include "shell/TSAppDelegate.h"

#include "session/TSDefaults.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QLibraryInfo>
#include <QTranslator>

namespace {

const QString service = QStringLiteral("org.tessaro.Tessaro");
const QString object = QStringLiteral("/org/tessaro/Tessaro");

void install(const QLocale &locale, const QString &table, const QString &folder)
{
    auto *translator = new QTranslator(qApp);
    if (translator->load(locale, table, QStringLiteral("_"), folder))
        QApplication::installTranslator(translator);
    else
        delete translator;
}

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
    const QString toolkitsOwn = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    const QString ours = QStringLiteral(":/translations");
    // The last one installed is asked first.
    install(QLocale(), QStringLiteral("qtbase"), toolkitsOwn);
    install(QLocale(QLocale::English), QStringLiteral("tessaro"), ours);
    install(QLocale(), QStringLiteral("tessaro"), ours);
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
