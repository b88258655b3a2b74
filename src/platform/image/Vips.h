#pragma once

#include <memory>
#include <QByteArrayView>
#include <QString>
#include <vips/vips.h>

namespace platform {

struct VipsImageUnref {
    void operator()(VipsImage *image) const { g_object_unref(image); }
};
/// One reference to a libvips image.
using VipsImagePtr = std::unique_ptr<VipsImage, VipsImageUnref>;

/// Starts libvips once for the process, set up for one picture streamed at a time: a single worker beside the
/// background writer, no operation cache. Every entry point of this room that uses libvips calls it.
void initializeVips();

/// The bytes that a picture carries under a name of libvips, such as `VIPS_META_ICC_NAME`; empty where it
/// carries none. They last as long as the picture.
QByteArrayView attachedBytes(VipsImage *image, const char *name);

/// Takes the library's pending error text as one plain line and clears it.
QString takeVipsError();

} // namespace platform
