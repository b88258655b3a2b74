#pragma once

#include "platform/text/TextAttributes.h"

namespace platform {

/// The single name under which archives keep a font, "Helvetica-BoldOblique" for the family "Helvetica" in
/// the style "Bold Oblique". Spaces stay where leaving them out would lose something: in a family's name
/// always.
QString fontName(const FontDescription &font);
/// The font of such a name, its style's words set apart again. "Regular" is the regular face, which has no
/// style name.
FontDescription fontFromName(const QString &name, double size);

} // namespace platform
