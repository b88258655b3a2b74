#pragma once

#include "platform/paint/Color.h"

#include <optional>
#include <QtGlobal>

/// One component of a packed colour: its byte, cut and not rounded, and back in single precision.
qint64 TSByteOfComponent(double component);
double TSComponentOfByte(qint64 packed, int shift);

/// The colours of a text in an archive: alpha, red, green, blue from the top byte down, each component times
/// 255 and cut. A missing colour packs as 0.
qint64 TSPackColor(const std::optional<platform::Color> &color);
platform::Color TSUnpackColor(qint64 packed);
