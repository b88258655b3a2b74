#pragma once

#include "platform/image/Vips.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// An empty folder that is gone with its test, and ways to put files into it.
class Folder {
public:
    QTemporaryDir folder;

    QString path(const QString &name) const { return folder.filePath(name); }
    QString write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size())
            << name.toStdString();
        return file.fileName();
    }
    /// Writes with libvips itself, in the kind of pixels and with the fields that the picture has.
    QString writePixels(const QString &name, VipsImage *image) const
    {
        EXPECT_EQ(vips_image_write_to_file(image, QFile::encodeName(path(name)).constData(), nullptr), 0);
        return path(name);
    }
};

/// The names of all that lies in a folder, sorted.
inline QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline QStringList words(const char *list)
{
    return QString::fromLatin1(list).split(u' ', Qt::SkipEmptyParts);
}
