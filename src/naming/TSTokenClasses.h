#pragma once

#include "platform/KeyedUnarchiver.h"

/// The token classes under the names that archives give them.
platform::ArchiveClasses tokenClasses();
