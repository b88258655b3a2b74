#include "platform/image/ColorProfile.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <mutex>
#include <QColorSpace>

namespace platform {

namespace {

constexpr int steps = 9;
constexpr int probeCount = steps * steps * steps;

/// Hands the result of a libvips operation on, or nothing when it failed.
VipsImagePtr taken(int failed, VipsImage *const &out)
{
    if (failed)
        vips_error_clear();
    return VipsImagePtr(failed ? nullptr : out);
}

int colorBands(const VipsImage *image)
{
    switch (image->Type) {
    case VIPS_INTERPRETATION_B_W:
    case VIPS_INTERPRETATION_GREY16:
        return 1;
    case VIPS_INTERPRETATION_CMYK:
        return 4;
    default:
        return std::min(image->Bands, 3);
    }
}

/// The intent meant for photographs; printers' profiles bring their own compression of the shadows for it,
/// but many leave black where ink on paper would have it.
VipsImagePtr transformedColors(VipsImage *image, const char *profile)
{
    VipsImage *out = nullptr;
    const bool isInk = colorBands(image) == 4;
    return taken(vips_icc_transform(image, &out, "srgb", "embedded", profile == nullptr, "input_profile",
                                    profile, "depth", 8, "intent", VIPS_INTENT_PERCEPTUAL,
                                    "black_point_compensation", isInk, nullptr),
                 out);
}

VipsImagePtr bands(VipsImage *image, int first, int count)
{
    VipsImage *out = nullptr;
    return taken(vips_extract_band(image, &out, first, "n", count, nullptr), out);
}

/// In eight bits.
VipsImagePtr alphaOf(VipsImage *image)
{
    constexpr double stepsOfSixteenBits = 257;
    VipsImage *out = nullptr;
    VipsImagePtr alpha = bands(image, colorBands(image), 1);
    if (alpha && alpha->BandFmt == VIPS_FORMAT_USHORT)
        alpha = taken(vips_linear1(alpha.get(), &out, 1 / stepsOfSixteenBits, 0.5, nullptr), out);
    return alpha ? taken(vips_cast_uchar(alpha.get(), &out, nullptr), out) : nullptr;
}

/// The transform takes an alpha for one more band and leaves it in whatever range it had.
VipsImagePtr transformed(VipsImage *image, const char *profile = nullptr)
{
    const int further = image->Bands - colorBands(image);
    if (further == 0)
        return transformedColors(image, profile);
    const VipsImagePtr opaque = bands(image, 0, colorBands(image));
    VipsImagePtr colors = opaque ? transformedColors(opaque.get(), profile) : nullptr;
    // What several more bands stand for, nobody tells.
    if (!colors || further > 1)
        return colors;
    const VipsImagePtr alpha = alphaOf(image);
    VipsImage *out = nullptr;
    return alpha ? taken(vips_bandjoin2(colors.get(), alpha.get(), &out, nullptr), out) : nullptr;
}

/// Profiles of another space than the picture's stand in files all the same, and would be taken for what they
/// are not.
bool fits(VipsImage *image, QByteArrayView profile)
{
    constexpr qsizetype spaceField = 16;
    struct Kind {
        int bands;
        const char *space;
    };
    constexpr Kind kinds[] = {{1, "GRAY"}, {3, "RGB "}, {4, "CMYK"}};
    if (profile.size() < spaceField + 4)
        return false;
    const QByteArrayView space = profile.sliced(spaceField, 4);
    if (image->Type == VIPS_INTERPRETATION_LAB || image->Type == VIPS_INTERPRETATION_LABS)
        return space == "Lab ";
    return std::any_of(std::begin(kinds), std::end(kinds), [&](const Kind &kind) {
        return kind.bands == colorBands(image) && space == kind.space;
    });
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
    if (fits(image, profile))
        return isPlainRGB(image) && isSRGB(profile) ? nullptr : transformed(image);
    if (image->Type == VIPS_INTERPRETATION_CMYK)
        return transformed(image, "cmyk");
    const bool isAdobe = profile.isEmpty() && isPlainRGB(image) && isAdobeRGBByCamera(image);
    const VipsImagePtr profiled = isAdobe ? withAdobeRGBProfile(image) : nullptr;
    return profiled ? transformed(profiled.get()) : nullptr;
}

} // namespace platform
