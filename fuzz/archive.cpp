#include "overlays/TSOverlayClasses.h"
#include "platform/archive/KeyedArchive.h"
#include "session/TSDataManager.h"
#include "Target.h"

#include <QGuiApplication>

namespace {

/// Texts measure themselves while they are read, which takes fonts, and place themselves on a canvas.
void prepare()
{
    static int count = 1;
    static char name[] = "fuzz-archive";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(count, arguments);
    TSDataManager::dataManager()->canvasFrame = QRectF(0, 0, 800, 600);
    TSDataManager::dataManager()->photoRatioOfSize = 0.5;
}

} // namespace

/// What can be read can be written, and read again.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool isPrepared = (prepare(), true);
    require(isPrepared);
    const auto value = platform::unarchive(bytesOf(data, size), TSOverlayClasses());
    if (value)
        require(platform::unarchive(platform::archiveRootObject(*value), TSOverlayClasses()).has_value());
    return 0;
}
