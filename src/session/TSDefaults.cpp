#include "session/TSDefaults.h"

#include "platform/system/UserDefaults.h"

namespace {

const QString batchKey = QStringLiteral("BatchControlOverlay");

void writeFirstLaunchDefaults(platform::UserDefaults &defaults)
{
    defaults.setInteger(QStringLiteral("ByWidth"), 2400);
    defaults.setInteger(QStringLiteral("ByHeight"), 2400);
    defaults.setInteger(QStringLiteral("ByPercentage"), 50);
    defaults.setInteger(QStringLiteral("FitSizeWidth"), 2400);
    defaults.setInteger(QStringLiteral("FitSizeHeight"), 2400);
    defaults.setBool(QStringLiteral("kShowSaveInfo"), true);
    defaults.setBool(QStringLiteral("ShowRemoveProfileTip"), true);
    defaults.setBool(QStringLiteral("ShowApplyProfileTip"), true);
    defaults.setBool(QStringLiteral("WatermarkAutoSnap"), true);
    defaults.setBool(QStringLiteral("WatermarkAutoSnapToObjects"), false);
    defaults.setBool(QStringLiteral("WatermarkAutoSnapToPhoto"), true);
    defaults.setBool(QStringLiteral("WatermarkAuxiliaryLine"), true);
}

} // namespace

bool TSIsBatchControlOverlay()
{
    return platform::UserDefaults::standard().boolForKey(batchKey);
}

void TSSetBatchControlOverlay(bool isBatch)
{
    platform::UserDefaults::standard().setBool(batchKey, isBatch);
}

void TSWriteLaunchDefaults()
{
    platform::UserDefaults &defaults = platform::UserDefaults::standard();
    // A width of 0, which the user can save too, stands for a first launch and brings the rest back with it.
    if (defaults.integerForKey(QStringLiteral("ByWidth")) == 0)
        writeFirstLaunchDefaults(defaults);
    defaults.setBool(batchKey, true);
    defaults.setFloat(QStringLiteral("TemplateZoom"), 0.7f);
    defaults.setInteger(QStringLiteral("NSInitialToolTipDelay"), 50);
    defaults.synchronize();
}
