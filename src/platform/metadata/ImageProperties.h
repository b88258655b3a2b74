#pragma once

#include <QString>
#include <QVariantMap>

namespace platform {

/// What a picture file tells about itself, by the names in which readers of camera files know it:
/// "PixelWidth" and "PixelHeight" in pixels as decoded, "{TIFF}" with "Make", "Model" (text) and
/// "Orientation" (whole number), "{Exif}" with "ExposureTime" in seconds, "FNumber", "FocalLength" in
/// millimetres, "ISOSpeedRatings" (a list of whole numbers) and "DateTimeOriginal" (text as it stands). Keys
/// of which the file tells nothing sensible are absent, and the map is empty for a file that cannot be
/// decoded. Only the header is read. Any thread.
QVariantMap imageProperties(const QString &path);

} // namespace platform
