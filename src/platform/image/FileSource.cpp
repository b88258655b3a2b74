#include "platform/image/FileSource.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <QFile>

namespace platform {

namespace {

struct PatchedFile : QFile {
    using QFile::QFile;
    std::vector<FilePatch> patches;
};

gint64 readFile(VipsSourceCustom *, void *buffer, gint64 length, void *data)
{
    auto *file = static_cast<PatchedFile *>(data);
    const gint64 begin = file->pos();
    const gint64 end = begin + file->read(static_cast<char *>(buffer), length);
    for (const FilePatch &patch : file->patches) {
        const gint64 from = std::max<gint64>(begin, patch.position);
        const gint64 to = std::min<gint64>(end, patch.position + patch.bytes.size());
        if (from < to)
            std::memcpy(static_cast<char *>(buffer) + (from - begin),
                        patch.bytes.constData() + (from - patch.position), size_t(to - from));
    }
    return end - begin;
}

gint64 seekFile(VipsSourceCustom *, gint64 offset, int whence, void *data)
{
    auto *file = static_cast<PatchedFile *>(data);
    const gint64 from = whence == SEEK_CUR ? file->pos() : whence == SEEK_END ? file->size() : 0;
    return file->seek(from + offset) ? file->pos() : -1;
}

void deleteFile(void *file)
{
    delete static_cast<PatchedFile *>(file);
}

} // namespace

VipsSourcePtr openFileSource(const QString &path, std::vector<FilePatch> patches)
{
    auto file = std::make_unique<PatchedFile>(path);
    file->patches = std::move(patches);
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
