#pragma once

#include "platform/archive/KeyedArchiver.h"
#include "platform/archive/KeyedUnarchiver.h"

namespace platform {

/// The platform's own classes in keyed archives, in their published layouts: collections, colours, fonts,
/// texts.
ArchiveLayout platformLayout(const ArchiveValue &value);
const ArchiveClasses &platformClasses();

} // namespace platform
