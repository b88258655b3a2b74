#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// A layout on disk: a folder with the extension "tspf".
struct TSProfileEntry {
    /// "My Profiles", or one of the groups that come with the program.
    QString group;
    QString name;
    QString path;

    /// The name that the user types: "group/name".
    QString title() const { return group + u'/' + name; }
};

/// Where profile packages lie and which there are. Paths are full. Any thread; each call reads the disk anew.
class TSProfileLibrary {
public:
    static QString userFolder();
    static QString userPackage(const QString &name);
    static QString builtInRoot();
    /// The groups that come with the program, in the order in which they are shown.
    static QStringList builtInGroups();

    /// Why a name cannot be given to a profile, as a sentence, or nothing.
    static QString problemWithName(const QString &name);

    /// The user's profiles, then those of the groups, each sorted by name as people sort.
    static std::vector<TSProfileEntry> profiles();
    /// The package that is meant by a path, by a title, or by the name alone, the user's before the others;
    /// empty when there is none.
    static QString find(const QString &text);

    // What lies inside a package.
    static bool isPackage(const QString &path);
    static QString archivePath(const QString &package);
    static QString picturePath(const QString &package);
    static QString stickerFolder(const QString &package);
};
