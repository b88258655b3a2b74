#include "platform/image/Vips.h"

#include <csignal>
#include <mutex>
#include <QImageReader>
#include <QStringList>

namespace platform {

namespace {

/// Of 20000 by 20000 pixels in four bytes each.
constexpr int largestPictureInMegabytes = 1526;

void discardMessage(const gchar *, GLogLevelFlags, const gchar *, gpointer) {}

} // namespace

void initializeVips()
{
    static std::once_flag once;
    std::call_once(once, [] {
        VIPS_INIT("tessaro");
        vips_concurrency_set(1);
        vips_cache_set_max(0);
        // A file that may not grow any further is an error of its writer, and no reason to end.
        std::signal(SIGXFSZ, SIG_IGN);
        // The toolkit would stop at a twelfth of this, which photos outgrow.
        QImageReader::setAllocationLimit(largestPictureInMegabytes);
        // Its warnings tell of oddities in camera files that no reader of ours can act on.
        g_log_set_handler("VIPS", GLogLevelFlags(G_LOG_LEVEL_WARNING | G_LOG_LEVEL_INFO | G_LOG_LEVEL_DEBUG),
                          discardMessage, nullptr);
    });
}

QByteArrayView attachedBytes(VipsImage *image, const char *name)
{
    const void *data = nullptr;
    size_t length = 0;
    if (vips_image_get_typeof(image, name) == 0 || vips_image_get_blob(image, name, &data, &length) != 0)
        return {};
    return {static_cast<const char *>(data), qsizetype(length)};
}

QString takeVipsError()
{
    const QString text = QString::fromUtf8(vips_error_buffer());
    vips_error_clear();
    const QStringList lines = text.split(u'\n', Qt::SkipEmptyParts);
    return lines.isEmpty() ? QString() : lines.constFirst().trimmed();
}

} // namespace platform
