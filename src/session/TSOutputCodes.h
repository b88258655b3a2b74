#pragma once

/// Output file types, in the numbers of bitmap file types; GIF (2) is not offered.
namespace TSFileType {
constexpr unsigned TIFF = 0;
constexpr unsigned BMP = 1;
constexpr unsigned JPG = 3;
constexpr unsigned PNG = 4;
} // namespace TSFileType

/// How the size of an output follows from the photo's, in the order of the pop-up.
namespace TSResizeWay {
constexpr unsigned KeepOriginalSize = 0;
constexpr unsigned ByWidth = 1;
constexpr unsigned ByHeight = 2;
constexpr unsigned ByPercentage = 3;
constexpr unsigned FitSize = 4;
} // namespace TSResizeWay

/// How the canvas of the preview is sized; 1 and 3 are not in use.
namespace TSSizeMode {
constexpr unsigned Fit = 2;
constexpr unsigned FixedZoom = 4;
} // namespace TSSizeMode

/// The unit of offsets. It also decides from which of the two an overlay's frame is rebuilt.
namespace TSOffsetUnit {
constexpr unsigned Percentage = 0;
constexpr unsigned Pixel = 1;
} // namespace TSOffsetUnit
