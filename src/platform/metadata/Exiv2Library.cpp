#include "platform/metadata/Exiv2Library.h"

#include <mutex>

namespace platform {

namespace {

void lockXmp(void *mutex, bool lock)
{
    auto *xmpMutex = static_cast<std::recursive_mutex *>(mutex);
    lock ? xmpMutex->lock() : xmpMutex->unlock();
}

} // namespace

void initializeExiv2()
{
    static std::once_flag once;
    static std::recursive_mutex xmpMutex;
    std::call_once(once, [] {
        // Its warnings tell of oddities in camera files that no reader of ours can act on.
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::XmpParser::initialize(lockXmp, &xmpMutex);
    });
}

} // namespace platform
