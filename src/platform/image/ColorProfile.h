#pragma once

#include "platform/image/Vips.h"

#include <QByteArray>

namespace platform {

/// The bytes of an sRGB ICC profile.
QByteArray sRGBProfile();

/// The picture in sRGB by its embedded profile or, without one, by what its camera says of its colours.
/// Nothing when neither tells of any, when they do not fit the picture, or when they are sRGB: the picture
/// can then be taken as it is.
VipsImagePtr toSRGBByProfile(VipsImage *image);

} // namespace platform
