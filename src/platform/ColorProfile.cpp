#include "platform/ColorProfile.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <mutex>
#include <QColorSpace>

namespace platform {

namespace {

constexpr int steps = 9;
constexpr int probeCount = steps * steps * steps;

VipsImagePtr transformed(VipsImage *image)
{
    VipsImage *out = nullptr;
    // The intent meant for photographs; printers' profiles bring their own compression of the shadows for it.
    const int failed = vips_icc_transform(image, &out, "srgb", "embedded", TRUE, "depth", 8, "intent",
                                          VIPS_INTENT_PERCEPTUAL, nullptr);
    if (failed)
        vips_error_clear();
    return VipsImagePtr(failed ? nullptr : out);
}

/// A picture of colours spread over the whole cube.
std::array<uchar, probeCount * 3> probeColors()
{
    std::array<uchar, probeCount * 3> colors{};
    for (int i = 0; i < probeCount; ++i) {
        const std::array<int, 3> level = {i % steps, i / steps % steps, i / (steps * steps)};
        for (size_t band = 0; band < 3; ++band)
            colors[size_t(i) * 3 + band] = uchar(level[band] * 255 / (steps - 1));
    }
    return colors;
}

/// Most cameras embed sRGB in one wording or another. Whether a profile is it shows in what it does to
/// colours, and knowing that saves the conversion of every pixel.
bool movesColors(QByteArrayView profile)
{
    const auto colors = probeColors();
    VipsImagePtr probe(
        vips_image_new_from_memory_copy(colors.data(), colors.size(), probeCount, 1, 3, VIPS_FORMAT_UCHAR));
    if (!probe)
        return true;
    probe->Type = VIPS_INTERPRETATION_sRGB;
    vips_image_set_blob_copy(probe.get(), VIPS_META_ICC_NAME, profile.data(), size_t(profile.size()));
    const VipsImagePtr moved = transformed(probe.get());
    size_t size = 0;
    auto *bytes = moved ? static_cast<uchar *>(vips_image_write_to_memory(moved.get(), &size)) : nullptr;
    if (!bytes || size != colors.size()) {
        g_free(bytes);
        return true;
    }
    const bool same = std::equal(colors.begin(), colors.end(), bytes,
                                 [](int before, int after) { return std::abs(before - after) <= 2; });
    g_free(bytes);
    return !same;
}

/// The photos of a batch mostly carry one profile, so the last answer is kept.
bool isSRGB(QByteArrayView profile)
{
    static std::mutex mutex;
    static QByteArray lastProfile;
    static bool lastAnswer = false;
    const std::lock_guard lock(mutex);
    if (profile != lastProfile) {
        lastAnswer = !movesColors(profile);
        lastProfile = profile.toByteArray();
    }
    return lastAnswer;
}

bool begins(VipsImage *image, const char *field, const char *value)
{
    const char *text = nullptr;
    return vips_image_get_typeof(image, field) && !vips_image_get_string(image, field, &text) &&
           QByteArrayView(text).startsWith(value);
}

/// Cameras that shoot in Adobe RGB say so in the EXIF block, by the name of the file rules that they keep to,
/// and many embed no profile. A block that names sRGB at once is taken at its word: an editor has converted
/// the photo and left the rest as it was.
bool isAdobeRGBByCamera(VipsImage *image)
{
    constexpr const char *sRGB = "1 ";
    return begins(image, "exif-ifd4-InteroperabilityIndex", "R03") &&
           !begins(image, "exif-ifd2-ColorSpace", sRGB);
}

VipsImagePtr withAdobeRGBProfile(VipsImage *image)
{
    static const QByteArray profile = QColorSpace(QColorSpace::AdobeRgb).iccProfile();
    VipsImage *copy = nullptr;
    if (vips_copy(image, &copy, nullptr))
        return nullptr;
    vips_image_set_blob_copy(copy, VIPS_META_ICC_NAME, profile.constData(), size_t(profile.size()));
    return VipsImagePtr(copy);
}

bool isPlainRGB(const VipsImage *image)
{
    return image->BandFmt == VIPS_FORMAT_UCHAR && (image->Bands == 3 || image->Bands == 4) &&
           image->Type == VIPS_INTERPRETATION_sRGB;
}

} // namespace

QByteArray sRGBProfile()
{
    static const QByteArray bytes = [] {
        initializeVips();
        VipsBlob *blob = nullptr;
        if (vips_profile_load("srgb", &blob, nullptr) || !blob)
            return QByteArray();
        size_t length = 0;
        const void *data = vips_blob_get(blob, &length);
        const QByteArray copy(static_cast<const char *>(data), qsizetype(length));
        vips_area_unref(VIPS_AREA(blob));
        return copy;
    }();
    return bytes;
}

VipsImagePtr toSRGBByProfile(VipsImage *image)
{
    const QByteArrayView profile = attachedBytes(image, VIPS_META_ICC_NAME);
    if (profile.isEmpty()) {
        const bool isAdobe = isPlainRGB(image) && isAdobeRGBByCamera(image);
        const VipsImagePtr profiled = isAdobe ? withAdobeRGBProfile(image) : nullptr;
        return profiled ? transformed(profiled.get()) : nullptr;
    }
    return isPlainRGB(image) && isSRGB(profile) ? nullptr : transformed(image);
}

} // namespace platform
