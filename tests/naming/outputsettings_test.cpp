#include "naming/TSOutputSettings.h"
#include "platform/system/UserDefaults.h"
#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"
#include "session/TSPhotoManager.h"

#include <gtest/gtest.h>

namespace {

class OutputSettingsTest : public testing::Test {
protected:
    OutputSettingsTest()
    {
        QObject::connect(&m_center, &TSNotificationCenter::TSResizingPhotoView, [this] { ++m_resizings; });
        keep("ByWidth", 2400);
        keep("ByHeight", 1200);
        keep("ByPercentage", 50);
        keep("FitSizeWidth", 800);
        keep("FitSizeHeight", 600);
    }

    void keep(const char *key, qint64 value) { m_defaults->setInteger(key, value); }

    std::unique_ptr<platform::UserDefaults> m_defaults = platform::UserDefaults::inMemory();
    TSNotificationCenter m_center;
    TSDataManager m_session;
    TSPhotoManager m_photos;
    TSOutputSettings m_settings;
    int m_resizings = 0;
};

} // namespace

TEST_F(OutputSettingsTest, StartsFromTheDefaults)
{
    keep("ExportFormat", 2);
    keep("ResizeStyle", 4);
    keep("ByPercentage", 5000);
    m_settings.initSettingsView();
    EXPECT_EQ(m_session.type, TSFileType::BMP);
    EXPECT_EQ(m_session.exportFormat, "bmp");
    EXPECT_EQ(m_session.quality, 0.85);
    EXPECT_EQ(m_session.resizeWay, TSResizeWay::FitSize);
    EXPECT_EQ(m_session.outputWidth, 800);
    EXPECT_EQ(m_session.outputHeight, 600);
    EXPECT_EQ(m_session.percentage, 0);
    EXPECT_EQ(m_settings.size(TSSizeField::ByPercentage), 1000);
    EXPECT_EQ(m_resizings, 1);
    EXPECT_EQ(m_settings.namePattern().objectValue().size(), 1U);
    keep("ExportFormat", 9);
    keep("ResizeStyle", -1);
    m_settings.initSettingsView();
    EXPECT_EQ(m_session.type, TSFileType::JPG);
    EXPECT_EQ(m_session.resizeWay, TSResizeWay::KeepOriginalSize);
}

TEST_F(OutputSettingsTest, EveryWayBringsItsOwnSizesBack)
{
    m_settings.initSettingsView();
    m_settings.resizeWayChanged(TSResizeWay::FitSize);
    m_settings.resizeWayChanged(TSResizeWay::ByWidth);
    EXPECT_EQ(m_session.outputWidth, 2400);
    m_settings.sizeChanged(TSSizeField::ByWidth, 20000);
    EXPECT_EQ(m_session.outputWidth, 9999);
    m_settings.sizeTyped(TSSizeField::ByWidth, 0);
    EXPECT_EQ(m_session.outputWidth, 1);
    m_settings.resizeWayChanged(TSResizeWay::FitSize);
    EXPECT_EQ(m_session.outputWidth, 800);
    EXPECT_EQ(m_session.outputHeight, 600);
}
