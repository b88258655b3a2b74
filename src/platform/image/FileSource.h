#pragma once

#include <memory>
#include <QString>
#include <vips/vips.h>

namespace platform {

struct VipsSourceUnref {
    void operator()(VipsSource *source) const { g_object_unref(source); }
};
using VipsSourcePtr = std::unique_ptr<VipsSource, VipsSourceUnref>;

/// A file for libvips to read. It would map one that it opened itself, for some formats, and a mapped file
/// that shrinks meanwhile, or whose card is pulled, ends the process. Nothing when it cannot be opened.
VipsSourcePtr openFileSource(const QString &path);

} // namespace platform
