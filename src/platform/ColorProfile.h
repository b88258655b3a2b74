#pragma once

#include "platform/Vips.h"

#include <QByteArray>

namespace platform {

/// The bytes of an sRGB ICC profile.
QByteArray sRGBProfile();

/// The picture in sRGB by its embedded profile. Nothing when there is no profile, when it does not fit the
/// picture, or when it is sRGB itself: the picture can then be taken as it is.
VipsImagePtr toSRGBByProfile(VipsImage *image);

} // namespace platform
