#pragma once

#include <QString>

namespace platform {

/// The folder that holds the data of all of the user's applications.
QString applicationSupportFolder();
/// The pictures and layouts that come with the program: beside the installed program, or in the tree it was
/// built from.
QString resourceFolder();
/// A program of ours that only our programs call: apart from those that people call once it is installed, and
/// beside them where they are built.
QString helperProgram(const QString &name);

} // namespace platform
