#include <cstdlib>
#include <gtest/gtest.h>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#ifdef TESSARO_TEST_WIDGETS
#include <QApplication>
using TestApplication = QApplication;
#else
using TestApplication = QGuiApplication;
#endif

/// Fonts need an application object, and the tests share one; the platform without screens serves them
/// everywhere.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Dates and months in the tests are those of one language and zone, whatever the machine speaks; a zone
    // in which the day often is another than in UTC.
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "America/St_Johns");
    // What a test writes as the user's own is gone with it.
    const QTemporaryDir home;
    for (const char *folder : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
        qputenv(folder, QFile::encodeName(home.filePath(QString::fromLatin1(folder))));
    TestApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
