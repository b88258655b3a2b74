#include "shell/TSAppDelegate.h"

#include "session/TSDefaults.h"

#include <cstdlib>
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

/// The toolkit calls exit() out of the event loop when the display is gone. What is static must not go from
/// under the threads that still work; an object of the main thread goes before it.
struct ExitGuard {
    ~ExitGuard()
    {
        if (!working)
            return;
        working->abandonExport();
        std::_Exit(EXIT_FAILURE);
    }
    TSMainWindowController *working = nullptr;
};
thread_local ExitGuard exitGuard;

} // namespace

TSAppDelegate::~TSAppDelegate()
{
    exitGuard.working = nullptr;
}

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
    exitGuard.working = m_mainWc.get();
    connect(m_mainWc->window().quitAction, &QAction::triggered, m_mainWc.get(),
            &TSMainWindowController::quit);
    // Not by quit(), which asks every window, and the sheet of an export would ask the user.
    connect(&m_quitSignals, &TSQuitSignals::quitWasAsked, qApp, [] { QApplication::exit(); });
    m_mainWc->window().show();
}

void TSAppDelegate::activate()
{
    QWidget &window = m_mainWc->window();
    window.show();
    window.raise();
    window.activateWindow();
}
