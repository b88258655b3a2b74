#include "platform/image/FileSource.h"

#include <cstdio>
#include <QFile>

namespace platform {

namespace {

gint64 readFile(VipsSourceCustom *, void *buffer, gint64 length, void *file)
{
    return static_cast<QFile *>(file)->read(static_cast<char *>(buffer), length);
}

gint64 seekFile(VipsSourceCustom *, gint64 offset, int whence, void *data)
{
    auto *file = static_cast<QFile *>(data);
    const gint64 from = whence == SEEK_CUR ? file->pos() : whence == SEEK_END ? file->size() : 0;
    return file->seek(from + offset) ? file->pos() : -1;
}

void deleteFile(void *file)
{
    delete static_cast<QFile *>(file);
}

} // namespace

VipsSourcePtr openFileSource(const QString &path)
{
    auto file = std::make_unique<QFile>(path);
    if (!file->open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        vips_error("Tessaro", "%s", qUtf8Printable(file->errorString()));
        return nullptr;
    }
    VipsSourceCustom *source = vips_source_custom_new();
    // It lives as long as the source that reads it.
    void *reader = file.release();
    g_object_set_data_full(G_OBJECT(source), "tessaro-file", reader, deleteFile);
    g_signal_connect(source, "read", G_CALLBACK(readFile), reader);
    g_signal_connect(source, "seek", G_CALLBACK(seekFile), reader);
    return VipsSourcePtr(VIPS_SOURCE(source));
}

} // namespace platform
