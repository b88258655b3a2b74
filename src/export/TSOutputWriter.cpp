#include "export/TSOutputWriter.h"

#include "export/TSFailureText.h"
#include "platform/AtomicFile.h"
#include "platform/CarriedMetadata.h"
#include "platform/JpegFile.h"
#include "platform/TiffMetadata.h"
#include "session/TSOutputCodes.h"

#include <cmath>
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

} // namespace

TSWriteResult TSOutputWriter::write(TSOutputImage &image, const TSOutputRequest &request) const
{
    TSWriteResult result;
    const QByteArray bytes = encoded(image, request, result);
    const QString decoderText = platform::takeVipsError();
    if (isCancelled && isCancelled())
        result.reason = QStringLiteral("The export was cancelled.");
    else if (bytes.isEmpty() || TSTellsOfDamage(decoderText))
        result.reason = TSDecodingFailureText(decoderText);
    else
        result.reason = put(bytes, request);
    result.isWritten = result.reason.isEmpty();
    return result;
}

QByteArray TSOutputWriter::encoded(TSOutputImage &image, const TSOutputRequest &request,
                                   TSWriteResult &result) const
{
    switch (request.type) {
    case TSFileType::JPG:
        return encodedJpeg(image, request, result);
    case TSFileType::PNG:
        return image.picture().encodePng(isCancelled);
    default:
        // Files of the BMP type have always held TIFF data; readers of ours go by contents.
        return image.picture().encodeTiff(isCancelled);
    }
}

QByteArray TSOutputWriter::encodedJpeg(TSOutputImage &image, const TSOutputRequest &request,
                                       TSWriteResult &result) const
{
    if (request.propertiesDic.isEmpty())
        return image.picture().encodeJpeg(optionsFor(request, std::nullopt), isCancelled);
    const std::optional<platform::JpegFile> source = platform::JpegFile::open(request.sourcePath);
    const auto metadata = platform::CarriedMetadata::ofFile(request.sourcePath);
    const QSize thumbnail = image.size().scaled(metadata.largestPicture(), Qt::KeepAspectRatio);
    const QByteArray bytes = image.picture(thumbnail).encodeJpeg(optionsFor(request, source), isCancelled);
    if (source)
        result.note = noteAbout(source->remainder());
    return bytes.isEmpty() ? bytes : metadata.insertedInto(bytes, image.thumbnail());
}

QString TSOutputWriter::put(const QByteArray &bytes, const TSOutputRequest &request) const
{
    const bool takesMetadata = request.type == TSFileType::TIFF && !request.propertiesDic.isEmpty();
    if (!takesMetadata)
        return platform::writeFileAtomically(request.targetPath, bytes);
    const auto metadata = platform::CarriedMetadata::ofFile(request.sourcePath);
    return platform::writeFileAtomically(request.targetPath, bytes.size(), [&](QIODevice &file) {
        // Metadata that does not fit into the file stays behind, and the picture is written all the same.
        return platform::writeTiffWithMetadata(bytes, metadata, file) || file.write(bytes) == bytes.size();
    });
}
