#pragma once

#include <QStringList>

/// Why the first of some names that cannot be a file's is none, as a sentence for the user; empty when all
/// can be. A slash may be typed, and may come out of a date's format.
QString TSNameRefusal(const QStringList &names);
