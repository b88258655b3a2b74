#pragma once

#include <QString>

namespace platform {

/// What the file system knows a file by, whatever path or link leads to it; empty when there is none.
QString fileIdentity(const QString &path);

} // namespace platform
