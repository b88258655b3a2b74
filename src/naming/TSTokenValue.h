#pragma once

#include "naming/TSToken.h"

#include <memory>
#include <QString>
#include <variant>

/// An element of a name pattern or of a text's words: text as it stands, or a placeholder. One token may
/// stand in several places, which then share its variant.
using TSTokenValue = std::variant<QString, std::shared_ptr<TSToken>>;
