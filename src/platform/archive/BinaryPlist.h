#pragma once

#include <memory>
#include <plist/plist.h>
#include <QByteArray>
#include <QString>

namespace platform {

struct PlistDeleter {
    void operator()(plist_t node) const { plist_free(node); }
};

/// A property list and all that it holds.
using Plist = std::unique_ptr<void, PlistDeleter>;

/// The largest property list that is looked at.
constexpr qint64 kMaximumPlistSize = 64 * 1024 * 1024;

/// Nothing for bytes that are no sound binary property list, and for one that would take far more memory than
/// its size lets expect.
Plist readBinaryPlist(const QByteArray &bytes);
QByteArray writeBinaryPlist(plist_t root);

/// The text of a string node; empty for any other node.
QString plistString(plist_t node);

} // namespace platform
