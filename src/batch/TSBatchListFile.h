#pragma once

#include <optional>
#include <QByteArray>
#include <QStringList>

/// A file that holds a path a line. Blank lines, either line ending and a byte order mark are all right.
class TSBatchListFile {
public:
    /// Nothing when the file cannot be read.
    static std::optional<QStringList> read(const QString &path);
    static QStringList paths(QByteArray bytes);
};
