#include "export/TSOutputWriter.h"

#include "export/TSFailureText.h"
#include "platform/metadata/TiffMetadata.h"
#include "session/TSOutputCodes.h"

#include <cmath>
#include <limits>
#include <new>
#include <QStringList>

namespace {

/// The encoder's own choice, for photos that come without properties.
constexpr int encoderDefaultQuality = 75;
/// From here on the colour resolution of the source is worth keeping.
constexpr int fineQuality = 90;

int qualityPercent(const TSOutputRequest &request)
{
    if (request.propertiesDic.isEmpty())
        return encoderDefaultQuality;
    return std::clamp(int(std::lround(float(request.quality) * 100)), 1, 100);
}

platform::JpegOptions optionsFor(const TSOutputRequest &request,
                                 const std::optional<platform::JpegFile> &source)
{
    platform::JpegOptions options;
    options.quality = qualityPercent(request);
    if (options.quality >= fineQuality && source)
        options.chromaSampling = source->chromaSampling().value_or(QSize(1, 1));
    return options;
}

/// Of the encoder, a little below what the format could hold.
constexpr int longestJpegSide = 65500;

bool isTooLong(const QSize &size, unsigned type)
{
    return type == TSFileType::JPG && std::max(size.width(), size.height()) > longestJpegSide;
}

/// The other formats hold none that readers would look for.
bool takesMetadata(const TSOutputRequest &request)
{
    return (request.type == TSFileType::JPG || request.type == TSFileType::TIFF) &&
           !request.propertiesDic.isEmpty();
}

QString noteAbout(const platform::JpegRemainder &rest)
{
    QStringList left;
    if (rest.gainMap)
        left.append(QStringLiteral("a gain map"));
    else if (rest.pictures > 0)
        left.append(QStringLiteral("further pictures"));
    if (rest.previews > 0)
        left.append(QStringLiteral("previews"));
    if (rest.video)
        left.append(QStringLiteral("a video"));
    return left.isEmpty()
               ? QString()
               : QStringLiteral("Behind the photo its file holds %1, which would show it unmarked and was "
                                "left out.")
                     .arg(left.join(QStringLiteral(" and ")));
}

qsizetype rawLength(const platform::LazyImage &picture)
{
    return qsizetype(picture.size().width()) * picture.size().height() * (picture.hasAlpha() ? 4 : 3);
}

/// The words of other decoders than ours are kept for the whole process, where those of photos that fail at
/// one time mix.
QString damageOf(const platform::LazyImage &picture)
{
    const QString told = picture.decoderFailure();
    platform::takeVipsError();
    return told.isEmpty() ? qtTrId("The file is damaged: its picture cannot be read to the end.")
                          : TSDecodingFailureText(told);
}

/// A TIFF file has no place for any of them.
QString noteAboutBlocks(const platform::CarriedMetadata &metadata, unsigned type)
{
    QStringList names = metadata.leftBehind();
    if (type != TSFileType::JPG)
        names += metadata.others();
    return names.isEmpty()
               ? QString()
               : qtTrId("Metadata of other makers was left out: %1.").arg(names.join(QStringLiteral(", ")));
}

QStringList notes(const TSEncodedOutput &output, unsigned type)
{
    QStringList list;
    if (output.lacksEnd)
        list.append(qtTrId("The file lacks the mark of its end, and is otherwise whole."));
    if (const QString note = output.source ? noteAbout(output.source->remainder()) : QString();
        !note.isEmpty())
        list.append(note);
    if (const QString note = noteAboutBlocks(output.metadata, type); !note.isEmpty())
        list.append(note);
    return list;
}

} // namespace

TSEncodedOutput TSOutputWriter::encode(TSOutputImage &image, const TSOutputRequest &request) const
try {
    TSEncodedOutput output;
    if (isTooLong(image.size(), request.type)) {
        output.reason = qtTrId("A JPEG picture has at most %1 pixels on a side; make it smaller, or choose "
                               "another format.")
                            .arg(longestJpegSide);
        return output;
    }
    if (takesMetadata(request)) {
        output.metadata = platform::CarriedMetadata::ofFile(request.sourcePath);
        if (request.type == TSFileType::JPG)
            output.source = platform::JpegFile::open(request.sourcePath);
    }
    const QSize thumbnail = image.size().scaled(output.metadata.largestPicture(), Qt::KeepAspectRatio);
    const platform::LazyImage picture = image.picture(thumbnail);
    encode(picture, request, output);
    output.thumbnail = image.thumbnail();
    output.lacksEnd = picture.lacksEnd();
    if (isCancelled && isCancelled())
        output.reason = qtTrId("The export was cancelled.");
    else if (output.bytes.isEmpty() && !output.file && output.reason.isEmpty())
        output.reason = damageOf(picture);
    return output;
} catch (const std::bad_alloc &) {
    TSEncodedOutput output;
    output.reason = qtTrId("There is not enough memory for the photo.");
    return output;
}

void TSOutputWriter::encode(const platform::LazyImage &picture, const TSOutputRequest &request,
                            TSEncodedOutput &output) const
{
    // Metadata stands before the picture, and holds a small copy that is there only behind it.
    if (request.type == TSFileType::JPG && takesMetadata(request)) {
        output.bytes = picture.encodeJpeg(optionsFor(request, output.source), isCancelled);
        return;
    }
    auto file = std::make_shared<platform::AtomicFile>(request.targetPath);
    if (file->open() && stream(picture, request, output.metadata, *file))
        output.file = std::move(file);
    else if (file->hasFailed())
        output.reason = file->failure(rawLength(picture));
}

/// These files grow with the pixels, and are never in memory.
bool TSOutputWriter::stream(const platform::LazyImage &picture, const TSOutputRequest &request,
                            const platform::CarriedMetadata &carried, platform::AtomicFile &file) const
{
    if (request.type == TSFileType::JPG)
        return picture.encodeJpeg(file.device(), optionsFor(request, std::nullopt), isCancelled);
    if (request.type == TSFileType::PNG)
        return picture.encodePng(file.device(), isCancelled);
    // Files of the BMP type have always held TIFF data; readers of ours go by contents.
    if (!takesMetadata(request))
        return picture.encodeTiff(file.device(), isCancelled, false);
    const platform::TiffMetadata metadata(carried);
    // Metadata that does not fit into the file stays behind, and the picture is written all the same.
    const bool fits = rawLength(picture) + metadata.length() < qsizetype(std::numeric_limits<quint32>::max());
    if (fits)
        file.device().write(metadata.head());
    return picture.encodeTiff(file.device(), isCancelled, true) &&
           (!fits || metadata.finish(file.reader(), file.device()));
}

TSWriteResult TSOutputWriter::write(const TSEncodedOutput &output, const TSOutputRequest &request) const
{
    TSWriteResult result;
    result.reason = output.reason;
    const auto written = result.reason.isEmpty() ? file(output, request, result.reason) : nullptr;
    if (!written)
        return result;
    result.reason = request.isReplacing ? written->commit() : written->commitNew(request.nextPath);
    result.path = written->path();
    result.isWritten = result.reason.isEmpty();
    result.note = notes(output, request.type).join(u' ');
    if (written->isNameTaken())
        result.unnamed = written;
    return result;
}

/// Complete but for its name.
std::shared_ptr<platform::AtomicFile> TSOutputWriter::file(const TSEncodedOutput &output,
                                                           const TSOutputRequest &request, QString &reason)
{
    if (output.file)
        return output.file;
    const bool isPlain = !takesMetadata(request);
    const QByteArray bytes =
        isPlain ? output.bytes : output.metadata.insertedInto(output.bytes, output.thumbnail);
    auto file = std::make_shared<platform::AtomicFile>(request.targetPath);
    if (file->open() && file->device().write(bytes) == bytes.size())
        return file;
    reason = file->failure(bytes.size());
    return nullptr;
}
