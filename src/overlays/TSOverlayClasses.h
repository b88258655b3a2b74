#pragma once

#include "platform/KeyedUnarchiver.h"

/// The classes that an archive of a layout is made of, the tokens of its texts among them.
const platform::ArchiveClasses &TSOverlayClasses();
