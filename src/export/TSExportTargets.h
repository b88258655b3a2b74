#pragma once

#include <functional>
#include <QSet>
#include <QStringList>

/// The names of a run's files: which are taken, which are free, and which belong to the originals. The thread
/// of the run.
class TSExportTargets {
public:
    /// Begins a run into the folder. The photos of the list and the files given are the originals.
    void begin(const QString &folder, const QStringList &keptFiles);

    QString path(const QString &name) const;
    /// The path under that name with the first number that is free, or without one.
    QString uniquePath(const QString &name) const;
    /// Answers, on any thread and each time anew, the first of these that is free on the disk.
    std::function<QString()> nextPath(const QString &name) const;
    bool isTaken(const QString &path) const;
    /// Whether writing to the path would write to an original, under whatever name.
    bool isOriginal(const QString &path) const;
    /// Takes a name that no file on the disk stands for.
    void plan(const QString &path) { m_planned.insert(path); }
    /// Whether the file at `path`, once it is there, may stand under the name or one of its numbered forms,
    /// on the disks as well that take upper and lower case for the same.
    bool mayMeet(const QString &name, const QString &path) const;

private:
    QString m_folder;
    QSet<QString> m_originals;
    QSet<QString> m_planned;
};
