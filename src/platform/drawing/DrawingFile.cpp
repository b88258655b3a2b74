#include "platform/drawing/DrawingFile.h"

#include "platform/image/LazyImage.h"
#include "platform/image/RawPicture.h"
#include "platform/system/Folders.h"
#include "platform/system/RestrictedProcess.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <QFile>
#include <QFileInfo>
#include <QRectF>
#include <QRegularExpression>

namespace platform {

namespace {

QImage refused(QString *reason, const QString &text)
{
    if (reason)
        *reason = text;
    return {};
}

double scaleToTouch(const QSizeF &size, const QSizeF &box)
{
    return std::min(box.width() / size.width(), box.height() / size.height());
}

/// What the document says of its size, in points, the finer statement going first. It stands at the head or
/// the end.
std::optional<QRectF> boundingBox(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    constexpr qint64 part = 64 * 1024;
    QByteArray text = file.read(part);
    if (file.size() > 2 * part && file.seek(file.size() - part))
        text += '\n' + file.read(part);
    const QString words = QString::fromLatin1(text);
    // Not every maker leaves a blank behind the colon.
    static const QString numbers =
        QStringLiteral("\\s*(-?[0-9.]+)") + QStringLiteral("\\s+(-?[0-9.]+)").repeated(3);
    for (const QString &key : {QStringLiteral("%%HiResBoundingBox:"), QStringLiteral("%%BoundingBox:")}) {
        const QRegularExpressionMatch match = QRegularExpression(key + numbers).match(words);
        const auto at = [&](int i) { return match.captured(i).toDouble(); };
        const QRectF box(at(1), at(2), at(3) - at(1), at(4) - at(2));
        if (match.hasMatch() && box.width() > 0 && box.height() > 0)
            return box;
    }
    return std::nullopt;
}

QString reasonOf(RestrictedProcess::Outcome outcome, const QByteArray &messages, const char *usual)
{
    using Outcome = RestrictedProcess::Outcome;
    if (outcome == Outcome::TookTooLong)
        return qtTrId("Drawing the file takes longer than 10 seconds.");
    if (outcome == Outcome::IsMissing)
        return qtTrId("The program that draws such files is not installed.");
    if (messages.contains("Incorrect password"))
        return qtTrId("The document is protected by a password.");
    bool isTooLarge = outcome == Outcome::TookTooMuchSpace;
    for (const char *const word : {"ut of memory", "bad_alloc", "VMerror", "limitcheck"})
        isTooLarge = isTooLarge || messages.contains(word);
    if (isTooLarge)
        return qtTrId("Drawing the file takes more memory than it may have.");
    return qtTrId(usual);
}

constexpr const char *damaged = QT_TRID_NOOP("The file is damaged, or is not what its name says.");

/// How far a picture may leave its box where an interpreter rounds up. It answers for the size of its picture
/// as little as for anything else.
QSizeF withMargin(const QSizeF &box)
{
    return box + QSizeF(2, 2);
}

QImage pictureWithin(const QString &path, const QSizeF &box)
{
    const LazyImage picture = LazyImage::open(path, {});
    const QSize size = picture.size();
    const bool fits = size.width() <= box.width() && size.height() <= box.height();
    const QImage image = fits ? picture.inSRGB().toImage() : QImage();
    vips_error_clear();
    return image;
}

/// Runs an interpreter that is to leave a picture in its folder.
QImage drawnBy(const QString &program, const QStringList &arguments, RestrictedProcess &process,
               const QString &target, const QSizeF &box, QString *reason, const CancelTest &isCancelled)
{
    const RestrictedProcess::Outcome outcome = process.run(program, arguments, isCancelled);
    const bool isDone = outcome == RestrictedProcess::Outcome::Done;
    const QImage image = isDone ? pictureWithin(target, withMargin(box)) : QImage();
    return image.isNull() ? refused(reason, reasonOf(outcome, process.messages(), damaged)) : image;
}

bool isPdf(const QString &path)
{
    // Readers look for the mark in so many bytes.
    constexpr qint64 head = 1024;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(head).contains("%PDF-");
}

/// As the interpreter would turn it; nothing when it does not tell.
std::optional<QSizeF> sizeOfFirstPage(const QString &path, const CancelTest &isCancelled)
{
    RestrictedProcess process;
    process.run(QStringLiteral("pdfinfo"), {QFileInfo(path).absoluteFilePath()}, isCancelled);
    const QString told = QString::fromLatin1(process.messages());
    static const QRegularExpression size(QStringLiteral("Page size:\\s+([0-9.]+) x ([0-9.]+) pts"));
    static const QRegularExpression quarterTurn(QStringLiteral("Page rot:\\s+(90|270)\\b"));
    const QRegularExpressionMatch match = size.match(told);
    const QSizeF page(match.captured(1).toDouble(), match.captured(2).toDouble());
    if (page.isEmpty())
        return std::nullopt;
    return quarterTurn.match(told).hasMatch() ? page.transposed() : page;
}

/// Sides of whole pixels, which the page is stretched to by less than one: a last row that it covers in part
/// shows as an edge.
QStringList sizeOptions(const QString &path, double side, const CancelTest &isCancelled)
{
    const auto pixels = [](double length) { return QString::number(std::max(1, qRound(length))); };
    const std::optional<QSizeF> page = sizeOfFirstPage(path, isCancelled);
    if (!page)
        return {QStringLiteral("-scale-to"), pixels(side)};
    const QSizeF size = *page * scaleToTouch(*page, {side, side});
    return {QStringLiteral("-scale-to-x"), pixels(size.width()), QStringLiteral("-scale-to-y"),
            pixels(size.height())};
}

} // namespace

QImage rasterizePdf(const QString &path, const QSizeF &box, QString *reason, const CancelTest &isCancelled)
{
    if (!isPdf(path))
        return refused(reason, qtTrId("The file is not a PDF document."));
    RestrictedProcess process;
    const QString target = process.path(QStringLiteral("page"));
    const QStringList options =
        QStringList{QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-cropbox"),
                    QStringLiteral("-f"),   QStringLiteral("1"),           QStringLiteral("-l"),
                    QStringLiteral("1")} +
        sizeOptions(path, std::floor(std::min(box.width(), box.height())), isCancelled);
    return drawnBy(QStringLiteral("pdftocairo"),
                   options + QStringList{QFileInfo(path).absoluteFilePath(), target}, process,
                   target + QStringLiteral(".png"), box, reason, isCancelled);
}

QImage rasterizeEps(const QString &path, const QSizeF &box, QString *reason, const CancelTest &isCancelled)
{
    const std::optional<QRectF> bounds = boundingBox(path);
    if (!bounds)
        return refused(reason, qtTrId("The file is not a PostScript drawing with a size."));
    constexpr double pointsPerInch = 72;
    const double resolution = pointsPerInch * scaleToTouch(bounds->size(), box);
    RestrictedProcess process;
    const QString target = process.path(QStringLiteral("page.png"));
    return drawnBy(QStringLiteral("gs"),
                   {QStringLiteral("-q"), QStringLiteral("-dSAFER"), QStringLiteral("-dBATCH"),
                    QStringLiteral("-dNOPAUSE"), QStringLiteral("-dEPSCrop"), QStringLiteral("-dLastPage=1"),
                    QStringLiteral("-dTextAlphaBits=4"), QStringLiteral("-dGraphicsAlphaBits=4"),
                    QStringLiteral("-sDEVICE=pngalpha"), QStringLiteral("-r%1").arg(resolution, 0, 'f', 4),
                    QStringLiteral("-sOutputFile=") + target, QStringLiteral("-f"),
                    QFileInfo(path).absoluteFilePath()},
                   process, target, box, reason, isCancelled);
}

QImage rasterizeSvg(const QString &path, const QSizeF &box, QString *reason, const CancelTest &isCancelled)
{
    RestrictedProcess process;
    const QString target = process.path(QStringLiteral("pixels"));
    const RestrictedProcess::Outcome outcome = process.run(
        helperProgram(QStringLiteral("tessaro-svg")),
        {QFileInfo(path).absoluteFilePath(), QString::number(std::min(box.width(), box.height())), target},
        isCancelled);
    const bool isDone = outcome == RestrictedProcess::Outcome::Done;
    const QImage image = isDone ? readRawPicture(target, withMargin(box)) : QImage();
    return image.isNull()
               ? refused(reason, reasonOf(outcome, process.messages(),
                                          QT_TRID_NOOP("The drawing has no size, or cannot be read.")))
               : image;
}

} // namespace platform
