#pragma once

#include "shell/TSMainWindowController.h"
#include "shell/TSQuitSignals.h"

#include <memory>
#include <QObject>

/// Starts the program: the defaults first, then the main window. One process serves the user; a second start
/// brings the first one's window back and ends.
class TSAppDelegate : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.tessaro.Tessaro")

public:
    ~TSAppDelegate() override;

    /// False when another process of the user is there already, and has been told.
    bool becomeTheOnlyOne();
    void applicationDidFinishLaunching();
    /// The words of the user's language, and English ones below them.
    static void installTranslations();

public Q_SLOTS:
    /// Shows the window again, over D-Bus too.
    void activate();

private:
    std::unique_ptr<TSMainWindowController> m_mainWc;
    TSQuitSignals m_quitSignals;
};
