#pragma once

#include "platform/archive/KeyedUnarchiver.h"

/// The classes that an archive of a layout is made of, the tokens of its texts among them.
const platform::ArchiveClasses &TSOverlayClasses();
