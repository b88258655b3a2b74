#include "platform/DrawingFile.h"

#include "platform/LazyImage.h"

#include <cmath>
#include <cstring>
#include <optional>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <sys/resource.h>

namespace platform {

namespace {

constexpr int timeLimitSeconds = 10;
constexpr rlim_t memoryLimit = rlim_t(1) << 30;

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

VipsImagePtr openPdf(const QString &path, double scale)
{
    struct Unref {
        void operator()(VipsSource *source) const { g_object_unref(source); }
    };
    const std::unique_ptr<VipsSource, Unref> source(
        vips_source_new_from_file(QFile::encodeName(path).constData()));
    const char *loader = source ? vips_foreign_find_load_source(source.get()) : nullptr;
    // Whatever else bears the name is not for this interpreter.
    if (!loader || !std::strstr(loader, "Pdf"))
        return nullptr;
    const QByteArray options = "page=0,n=1,scale=" + QByteArray::number(scale, 'g', 12);
    return VipsImagePtr(vips_image_new_from_source(source.get(), options.constData(), nullptr));
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
    static const QString number = QStringLiteral("\\s+(-?[0-9.]+)");
    for (const QString &key : {QStringLiteral("%%HiResBoundingBox:"), QStringLiteral("%%BoundingBox:")}) {
        const QRegularExpressionMatch match = QRegularExpression(key + number.repeated(4)).match(words);
        const auto at = [&](int i) { return match.captured(i).toDouble(); };
        const QRectF box(at(1), at(2), at(3) - at(1), at(4) - at(2));
        if (match.hasMatch() && box.width() > 0 && box.height() > 0)
            return box;
    }
    return std::nullopt;
}

void limitProcess()
{
    const rlimit memory{memoryLimit, memoryLimit};
    const rlimit seconds{timeLimitSeconds, timeLimitSeconds};
    setrlimit(RLIMIT_AS, &memory);
    setrlimit(RLIMIT_CPU, &seconds);
}

/// The interpreter lets drawings write where temporary files go; `folder` is all that it gets of that.
bool runInterpreter(const QStringList &arguments, const QString &folder)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &name : {QStringLiteral("TMPDIR"), QStringLiteral("TEMP"), QStringLiteral("TMP")})
        environment.insert(name, folder);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.setChildProcessModifier(limitProcess);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QStringLiteral("gs"), arguments);
    if (!process.waitForFinished(timeLimitSeconds * 1000)) {
        process.kill();
        process.waitForFinished();
        return false;
    }
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

} // namespace

QImage rasterizePdf(const QString &path, const QSizeF &box, QString *reason)
{
    initializeVips();
    const VipsImagePtr page = openPdf(path, 1);
    if (!page) {
        const QString text = takeVipsError();
        return refused(reason, text.isEmpty()
                                   ? QStringLiteral("The file is not a PDF document that can be read.")
                                   : QStringLiteral("The document cannot be read (%1).").arg(text));
    }
    VipsImagePtr scaled = openPdf(path, scaleToTouch(QSizeF(page->Xsize, page->Ysize), box));
    const LazyImage picture = scaled ? LazyImage::fromVips(std::move(scaled)).inSRGB() : LazyImage();
    const QImage image = picture.toImage();
    vips_error_clear();
    return image.isNull() ? refused(reason, QStringLiteral("The document's first page cannot be drawn."))
                          : image;
}

QImage rasterizeEps(const QString &path, const QSizeF &box, QString *reason)
{
    const std::optional<QRectF> bounds = boundingBox(path);
    const QTemporaryDir folder;
    if (!bounds || !folder.isValid())
        return refused(reason, QStringLiteral("The file is not a PostScript drawing with a size."));
    constexpr double pointsPerInch = 72;
    const double resolution = pointsPerInch * scaleToTouch(bounds->size(), box);
    const QString target = folder.filePath(QStringLiteral("page.png"));
    const bool isDrawn = runInterpreter(
        {QStringLiteral("-q"), QStringLiteral("-dSAFER"), QStringLiteral("-dBATCH"),
         QStringLiteral("-dNOPAUSE"), QStringLiteral("-dEPSCrop"), QStringLiteral("-dLastPage=1"),
         QStringLiteral("-dTextAlphaBits=4"), QStringLiteral("-dGraphicsAlphaBits=4"),
         QStringLiteral("-sDEVICE=pngalpha"), QStringLiteral("-r%1").arg(resolution, 0, 'f', 4),
         QStringLiteral("-sOutputFile=") + target, QStringLiteral("-f"), QFileInfo(path).absoluteFilePath()},
        folder.path());
    const QImage image = isDrawn ? LazyImage::open(target, {}).inSRGB().toImage() : QImage();
    vips_error_clear();
    return image.isNull() ? refused(reason, QStringLiteral("The PostScript drawing cannot be drawn."))
                          : image;
}

} // namespace platform
