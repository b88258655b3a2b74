#include <cstdlib>
#include <gtest/gtest.h>
#include <QGuiApplication>
#include <QStandardPaths>

/// Fonts need an application object, and the tests share one; the platform without screens serves them
/// everywhere.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Dates and months in the tests are those of one language and zone, whatever the machine speaks.
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
    QStandardPaths::setTestModeEnabled(true);
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
