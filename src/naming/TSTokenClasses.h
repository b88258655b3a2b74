#pragma once

#include "platform/archive/KeyedUnarchiver.h"

/// The token classes under the names that archives give them.
platform::ArchiveClasses tokenClasses();
