#pragma once

#include <QString>

namespace platform {

/// The folder that holds the data of all of the user's applications.
QString applicationSupportFolder();
/// The pictures and layouts that come with the program: beside the installed program, or in the tree it was
/// built from.
QString resourceFolder();

} // namespace platform
