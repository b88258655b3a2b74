#include "controls/TSStyle.h"
#include "platform/text/FontChoice.h"
#include "shell/TSAppDelegate.h"
#include "shell/TSDesktopScheme.h"

#include <cstdio>
#include <QApplication>
#include <QIcon>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tessaro"));
    QApplication::setApplicationVersion(QStringLiteral(TESSARO_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("org.tessaro.Tessaro"));
    if (!platform::hasAnyFont()) {
        // Neither a window nor a message could show a word.
        std::fputs("tessaro: no font is installed\n", stderr);
        return 2;
    }
    const TSDesktopScheme desktop;
    TSStyle::apply(desktop.scheme());
    QObject::connect(&desktop, &TSDesktopScheme::schemeDidChange, &TSStyle::apply);
    QApplication::setWindowIcon(QIcon::fromTheme(QApplication::desktopFileName()));
    TSAppDelegate::installTranslations();
    TSAppDelegate delegate;
    if (!delegate.becomeTheOnlyOne())
        return 0;
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
