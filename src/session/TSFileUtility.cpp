#include "session/TSFileUtility.h"

#include "platform/image/ImageFile.h"

#include <algorithm>
#include <array>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QLocale>
#include <QMimeDatabase>

namespace {

QString extensionOf(const QString &path)
{
    return QFileInfo(path).suffix().toLower();
}

QStringList entries(const QString &folder, QDir::Filters filters, bool deep)
{
    if (!TSIsDirectory(folder))
        return {};
    QStringList list;
    QDirIterator walk(folder, filters | QDir::NoDotAndDotDot,
                      deep ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
    while (walk.hasNext())
        list.append(walk.next());
    list.sort();
    return list;
}

QStringList filtered(QStringList paths, bool (*keep)(const QString &))
{
    paths.erase(
        std::remove_if(paths.begin(), paths.end(), [keep](const QString &path) { return !keep(path); }),
        paths.end());
    return paths;
}

QString numbered(const QString &name, int number, int width)
{
    return name + QStringLiteral("%1").arg(number, width, 10, QLatin1Char('0'));
}

} // namespace

bool TSFileExists(const QString &path)
{
    return !path.isEmpty() && QFileInfo::exists(path);
}

bool TSIsNameTaken(const QString &path)
{
    return TSFileExists(path) || QFileInfo(path).isSymLink();
}

bool TSIsDirectory(const QString &path)
{
    return !path.isEmpty() && QFileInfo(path).isDir();
}

bool TSIsEmptyDirectory(const QString &path)
{
    return !TSIsDirectory(path) ||
           QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

bool TSIsWritableFile(const QString &path)
{
    return TSFileExists(path) && QFileInfo(path).isWritable();
}

bool TSEnsureDirectory(const QString &path)
{
    return TSFileExists(path) || (!path.isEmpty() && QDir().mkpath(path));
}

bool TSIsImagePath(const QString &path)
{
    if (!TSFileExists(path) || TSIsDirectory(path))
        return false;
    return TSIsVectorType(TSImageType(path)) || platform::isDecodableImage(path);
}

bool TSAnyImagePath(const QStringList &paths)
{
    return std::any_of(paths.begin(), paths.end(), TSIsImagePath);
}

bool TSIsMoviePath(const QString &path)
{
    return TSFileExists(path) && !TSIsDirectory(path) && TSMimeTypeOfPath(path).startsWith(u"video/");
}

bool TSAnyMoviePath(const QStringList &paths)
{
    return std::any_of(paths.begin(), paths.end(), TSIsMoviePath);
}

bool TSSavePathExists(const QString &path, const QStringList &)
{
    return TSFileExists(path);
}

unsigned TSImageType(const QString &path)
{
    struct Entry {
        QStringView extension;
        unsigned code;
    };
    static constexpr std::array<Entry, 10> table = {{{u"tiff", TSImageTypeCode::TIFF},
                                                     {u"tif", TSImageTypeCode::TIFF},
                                                     {u"bmp", TSImageTypeCode::BMP},
                                                     {u"gif", TSImageTypeCode::GIF},
                                                     {u"jpg", TSImageTypeCode::JPG},
                                                     {u"png", TSImageTypeCode::PNG},
                                                     {u"eps", TSImageTypeCode::EPS},
                                                     {u"ai", TSImageTypeCode::AI},
                                                     {u"svg", TSImageTypeCode::SVG},
                                                     {u"pdf", TSImageTypeCode::PDF}}};
    const QString extension = extensionOf(path);
    for (const Entry &entry : table)
        if (extension == entry.extension)
            return entry.code;
    return TSImageTypeCode::JPG;
}

bool TSIsVectorType(unsigned type)
{
    return type >= TSImageTypeCode::EPS && type <= TSImageTypeCode::PDF;
}

QString TSMimeTypeOfData(const QByteArray &data)
{
    if (data.isEmpty())
        return {};
    switch (uchar(data.front())) {
    case 0x47:
        return QStringLiteral("image/gif");
    case 0x49:
    case 0x4D:
        return QStringLiteral("image/tiff");
    case 0x89:
        return QStringLiteral("image/png");
    case 0xFF:
        return QStringLiteral("image/jpeg");
    default:
        return {};
    }
}

QString TSMimeTypeOfPath(const QString &path)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension);
    return type.isDefault() ? QString() : type.name();
}

QStringList TSDistinctNames(const QStringList &paths, qsizetype count)
{
    const auto ending = [](const QString &path, qsizetype parts) { return path.section(u'/', -parts); };
    QHash<QString, QStringList> namesakes;
    for (const QString &path : paths)
        namesakes[ending(path, 1)].append(path);
    QStringList names;
    for (const QString &path : paths.first(std::min(count, paths.size()))) {
        const QStringList &others = namesakes[ending(path, 1)];
        qsizetype parts = 1;
        while (std::any_of(others.begin(), others.end(), [&](const QString &other) {
            return other != path && ending(other, parts) == ending(path, parts);
        }))
            ++parts;
        names.append(ending(path, parts));
    }
    return names;
}

QString TSFileSizeText(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() ? QLocale().formattedDataSize(info.size(), 1, QLocale::DataSizeSIFormat) : QString();
}

QString TSUniquePath(const QString &folder, const QString &name, const QString &extension,
                     const std::function<bool(const QString &path)> &isTaken)
{
    QString candidate = QStringLiteral("%1/%2.%3").arg(folder, name, extension);
    for (int number = 1; isTaken(candidate); ++number)
        candidate = QStringLiteral("%1/%2.%3").arg(folder, numbered(name + u'_', number, 3), extension);
    return candidate;
}

QString TSNextNumberedPath(const QString &folder, const QString &name, const QString &extension)
{
    qsizetype digits = 0;
    while (digits < 3 && digits < name.size() && name.at(name.size() - 1 - digits).isDigit())
        ++digits;
    const QString stem = name.chopped(digits);
    QString candidate = QStringLiteral("%1/%2.%3").arg(folder, name, extension);
    for (int number = 1; TSIsNameTaken(candidate); ++number)
        candidate = QStringLiteral("%1/%2.%3")
                        .arg(folder, numbered(stem, number, std::max(1, int(digits))), extension);
    return candidate;
}

QStringList TSListImagesDeep(const QString &folder)
{
    return filtered(entries(folder, QDir::Files | QDir::Hidden, true), TSIsImagePath);
}

QStringList TSListFilesWithExtension(const QString &folder, const QString &extension, bool deep)
{
    QStringList paths = entries(folder, QDir::AllEntries, deep);
    if (extension == u"*")
        return paths;
    const QString wanted = extension.toLower();
    paths.erase(std::remove_if(paths.begin(), paths.end(),
                               [&](const QString &path) { return extensionOf(path) != wanted; }),
                paths.end());
    return paths;
}

QStringList TSListFolders(const QString &folder, bool deep)
{
    return entries(folder, QDir::Dirs, deep);
}

QStringList TSListFiles(const QString &folder, bool deep)
{
    return entries(folder, QDir::AllEntries, deep);
}

QStringList TSListImages(const QString &folder, bool deep)
{
    return filtered(entries(folder, QDir::Files, deep), TSIsImagePath);
}

QString TSFindFileNamed(const QString &name, const QString &folder, bool deep)
{
    const QString wanted = name.toLower();
    const QStringList paths = entries(folder, QDir::AllEntries, deep);
    const auto found = std::find_if(paths.begin(), paths.end(), [&](const QString &path) {
        return QFileInfo(path).fileName() == wanted;
    });
    return found == paths.end() ? QString() : *found;
}
