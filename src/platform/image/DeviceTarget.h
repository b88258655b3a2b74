#pragma once

#include <memory>
#include <vips/vips.h>

class QIODevice;

namespace platform {

struct VipsTargetUnref {
    void operator()(VipsTarget *target) const { g_object_unref(target); }
};
using VipsTargetPtr = std::unique_ptr<VipsTarget, VipsTargetUnref>;

/// A device for libvips to write to, from where it stands; positions count from there. The device must
/// outlive the target.
VipsTargetPtr openDeviceTarget(QIODevice &device);

} // namespace platform
