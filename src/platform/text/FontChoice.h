#pragma once

#include "platform/text/TextAttributes.h"

#include <QFont>

namespace platform {

/// The font for a description, without hinting, so that a layout keeps its shape at every scale. A family
/// that is not installed is replaced by one of the same metrics where there is one. Needs an application
/// object.
QFont fontFor(const FontDescription &description);

/// Whether there is any font at all. Where there is none, boxes stand for all letters.
bool hasAnyFont();
/// The font of colour emoji, and whether it is there.
QFont inEmojiFont(QFont font);
bool hasEmojiFont();

/// Whether a family is installed, or has a replacement of the same metrics that is.
bool isFontFamilyAvailable(const QString &family);

} // namespace platform
