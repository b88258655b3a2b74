#pragma once

#include <memory>
#include <QByteArray>
#include <QString>
#include <vips/vips.h>

namespace platform {

struct VipsSourceUnref {
    void operator()(VipsSource *source) const { g_object_unref(source); }
};
using VipsSourcePtr = std::unique_ptr<VipsSource, VipsSourceUnref>;

/// Bytes that stand in for some of a file.
struct FilePatch {
    qint64 position;
    QByteArray bytes;
};

/// A file for libvips to read. It would map one that it opened itself, for some formats, and a mapped file
/// that shrinks meanwhile, or whose card is pulled, ends the process. Nothing when it cannot be opened.
VipsSourcePtr openFileSource(const QString &path, std::vector<FilePatch> patches = {});

} // namespace platform
