#pragma once

#include <functional>
#include <QString>
#include <QStringList>

/// Image type codes. 0 to 4 are those of bitmap file types; the vector types are the system's own.
namespace TSImageTypeCode {
constexpr unsigned TIFF = 0;
constexpr unsigned BMP = 1;
constexpr unsigned GIF = 2;
/// JPEG, and everything that is not known.
constexpr unsigned JPG = 3;
constexpr unsigned PNG = 4;
constexpr unsigned EPS = 8;
constexpr unsigned AI = 9;
constexpr unsigned SVG = 10;
constexpr unsigned PDF = 11;
} // namespace TSImageTypeCode

/// Tests on paths. An empty path gives false. They read the disk and nothing else, and may run on any thread.

bool TSFileExists(const QString &path);
/// Whether something stands under that path, be it a link that leads nowhere.
bool TSIsNameTaken(const QString &path);
bool TSIsDirectory(const QString &path);
/// True for what is no folder, and for a folder with nothing below it.
bool TSIsEmptyDirectory(const QString &path);
bool TSIsWritableFile(const QString &path);
/// Whether the folder is there; makes it with its parents when it is not.
bool TSEnsureDirectory(const QString &path);
/// An existing file that can be read as a picture. Vector files are taken by their extension alone.
bool TSIsImagePath(const QString &path);
bool TSAnyImagePath(const QStringList &paths);
bool TSIsMoviePath(const QString &path);
bool TSAnyMoviePath(const QStringList &paths);
/// The list is not looked at.
bool TSSavePathExists(const QString &path, const QStringList &list);

/// The type code by the extension alone, compared in lower case.
unsigned TSImageType(const QString &path);
bool TSIsVectorType(unsigned type);
/// The MIME type by the first byte, or empty.
QString TSMimeTypeOfData(const QByteArray &data);
/// The MIME type by the extension, or empty.
QString TSMimeTypeOfPath(const QString &path);
/// The file names of the first paths, in their order, each with as much of its folder as tells it from others
/// of that name among all of them.
QStringList TSDistinctNames(const QStringList &paths, qsizetype count);
/// The size of a file in words, or nothing when it cannot be read.
QString TSFileSizeText(const QString &path);

/// "folder/name.extension", or the first of "folder/name_001.extension" and so on that is free: on the disk,
/// unless the caller knows of more.
QString TSUniquePath(const QString &folder, const QString &name, const QString &extension,
                     const std::function<bool(const QString &path)> &isTaken = TSIsNameTaken);
/// A free name found by counting on the name's trailing digits, of which up to three give the width.
QString TSNextNumberedPath(const QString &folder, const QString &name, const QString &extension);

/// Folder listings: full paths, in the order of the listing. Hidden entries are skipped but by
/// `TSListImagesDeep`.
QStringList TSListImagesDeep(const QString &folder);
/// Entries whose extension equals the given one in lower case; "*" for all.
QStringList TSListFilesWithExtension(const QString &folder, const QString &extension, bool deep);
QStringList TSListFolders(const QString &folder, bool deep);
QStringList TSListFiles(const QString &folder, bool deep);
QStringList TSListImages(const QString &folder, bool deep);
/// The first entry whose file name is the given name in lower case, or empty.
QString TSFindFileNamed(const QString &name, const QString &folder, bool deep);
