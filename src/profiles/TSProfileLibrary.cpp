#include "profiles/TSProfileLibrary.h"

#include "platform/system/Folders.h"

#include <algorithm>
#include <QCollator>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace {

const QString userGroup = QStringLiteral("My Profiles");
const QString extension = QStringLiteral("tspf");

/// Packages at any depth; a package is not searched for others.
void collectPackages(const QString &group, const QString &folder, std::vector<TSProfileEntry> &found)
{
    const QFileInfoList folders =
        QDir(folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QFileInfo &info : folders) {
        if (TSProfileLibrary::isPackage(info.filePath()))
            found.push_back({group, info.completeBaseName(), info.filePath()});
        else
            collectPackages(group, info.filePath(), found);
    }
}

std::vector<TSProfileEntry> profilesOfGroup(const QString &group, const QString &folder)
{
    std::vector<TSProfileEntry> found;
    collectPackages(group, folder, found);
    // The bare locale sorts by character codes.
    QCollator collator(QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale());
    collator.setNumericMode(true);
    std::stable_sort(found.begin(), found.end(),
                     [&](const TSProfileEntry &left, const TSProfileEntry &right) {
                         return collator.compare(left.name, right.name) < 0;
                     });
    return found;
}

} // namespace

QString TSProfileLibrary::userFolder()
{
    return QStringLiteral("%1/Tessaro/%2").arg(platform::applicationSupportFolder(), userGroup);
}

QString TSProfileLibrary::userPackage(const QString &name)
{
    return QStringLiteral("%1/%2.%3").arg(userFolder(), name, extension);
}

QString TSProfileLibrary::builtInRoot()
{
    return platform::resourceFolder() + QStringLiteral("/Profile");
}

QStringList TSProfileLibrary::builtInGroups()
{
    return {QStringLiteral("Text"), QStringLiteral("Script"), QStringLiteral("Text & Image"),
            QStringLiteral("Info Stamp")};
}

QString TSProfileLibrary::problemWithName(const QString &name)
{
    constexpr qsizetype longestFileName = 255;
    if (name.trimmed().isEmpty())
        return qtTrId("The name is empty.");
    if (name.contains(u'/') || name.contains(QChar(0)))
        return qtTrId("A name cannot hold the character \"/\".");
    if (name.startsWith(u'.'))
        return qtTrId("A name cannot begin with a full stop.");
    if (name.toUtf8().size() + extension.size() + 1 > longestFileName)
        return qtTrId("The name is too long.");
    return {};
}

std::vector<TSProfileEntry> TSProfileLibrary::profiles()
{
    std::vector<TSProfileEntry> all = profilesOfGroup(userGroup, userFolder());
    for (const QString &group : builtInGroups()) {
        const auto more = profilesOfGroup(group, builtInRoot() + u'/' + group);
        all.insert(all.end(), more.begin(), more.end());
    }
    return all;
}

QString TSProfileLibrary::find(const QString &text)
{
    const QString path = QDir::cleanPath(QFileInfo(text).absoluteFilePath());
    if (QFileInfo(path).isDir() && QFileInfo::exists(archivePath(path)))
        return path;
    const std::vector<TSProfileEntry> all = profiles();
    for (const bool byTitle : {true, false}) {
        const auto entry = std::find_if(all.begin(), all.end(), [&](const TSProfileEntry &candidate) {
            return (byTitle ? candidate.title() : candidate.name) == text;
        });
        if (entry != all.end())
            return entry->path;
    }
    return {};
}

bool TSProfileLibrary::isPackage(const QString &path)
{
    const QFileInfo info(path);
    return info.isDir() && info.suffix() == extension;
}

QString TSProfileLibrary::archivePath(const QString &package)
{
    // A property list in binary form, whatever the name says.
    return package + QStringLiteral("/info.xml");
}

QString TSProfileLibrary::picturePath(const QString &package)
{
    return QStringLiteral("%1/%2.jpg").arg(package, QFileInfo(package).completeBaseName());
}

QString TSProfileLibrary::stickerFolder(const QString &package)
{
    return package + QStringLiteral("/Stickers");
}
