#include "platform/image/DeviceTarget.h"

#include <cstdio>
#include <QIODevice>

namespace platform {

namespace {

struct Writing {
    QIODevice &device;
    qint64 origin;
};

gint64 writeDevice(VipsTargetCustom *, const void *bytes, gint64 length, void *data)
{
    return static_cast<Writing *>(data)->device.write(static_cast<const char *>(bytes), length);
}

gint64 seekDevice(VipsTargetCustom *, gint64 offset, int whence, void *data)
{
    const auto &[device, origin] = *static_cast<Writing *>(data);
    const qint64 from = whence == SEEK_CUR ? device.pos() : whence == SEEK_END ? device.size() : origin;
    return device.seek(from + offset) ? device.pos() - origin : -1;
}

void deleteWriting(void *writing)
{
    delete static_cast<Writing *>(writing);
}

} // namespace

VipsTargetPtr openDeviceTarget(QIODevice &device)
{
    VipsTargetCustom *target = vips_target_custom_new();
    auto *writing = new Writing{device, device.pos()};
    g_object_set_data_full(G_OBJECT(target), "tessaro-device", writing, deleteWriting);
    g_signal_connect(target, "write", G_CALLBACK(writeDevice), writing);
    g_signal_connect(target, "seek", G_CALLBACK(seekDevice), writing);
    return VipsTargetPtr(VIPS_TARGET(target));
}

} // namespace platform
