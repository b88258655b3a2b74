#pragma once

#include <exiv2/exiv2.hpp>

namespace platform {

/// Prepares Exiv2 once for the process: silent, and its XMP part fit for several threads. Every entry point
/// of this room that uses Exiv2 calls it, and lets none of its exceptions out.
void initializeExiv2();

} // namespace platform
