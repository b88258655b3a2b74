#include "platform/metadata/ImageProperties.h"

#include "platform/image/ImageSource.h"
#include "platform/metadata/Exiv2Library.h"
#include "platform/metadata/MetadataBlobs.h"

#include <QFile>

namespace platform {

namespace {

using Reader = QVariant (*)(const Exiv2::Exifdatum &);

QVariant text(const Exiv2::Exifdatum &datum)
{
    const QString value = QString::fromUtf8(QByteArray::fromStdString(datum.toString()));
    return value.isEmpty() ? QVariant() : value;
}

QVariant wholeNumber(const Exiv2::Exifdatum &datum)
{
    const long value = datum.toLong();
    return datum.value().ok() ? QVariant::fromValue(qlonglong(value)) : QVariant();
}

QVariant wholeNumbers(const Exiv2::Exifdatum &datum)
{
    QVariantList result;
    for (long i = 0; i < datum.count(); ++i) {
        const long value = datum.toLong(i);
        if (datum.value().ok())
            result.append(qlonglong(value));
    }
    return result.isEmpty() ? QVariant() : result;
}

QVariant fraction(const Exiv2::Exifdatum &datum)
{
    double dividend = 0;
    double divisor = 0;
    // Asked for a plain rational number, the library would turn large unsigned ones negative.
    if (const auto *value = dynamic_cast<const Exiv2::URationalValue *>(&datum.value())) {
        dividend = value->value_.front().first;
        divisor = value->value_.front().second;
    } else {
        const Exiv2::Rational number = datum.toRational();
        dividend = number.first;
        divisor = datum.value().ok() ? number.second : 0;
    }
    // Cameras write 0/0 and the like for what they do not know.
    return divisor == 0 ? QVariant() : dividend / divisor;
}

struct Property {
    const char *group;
    const char *name;
    const char *key;
    Reader read;
};

constexpr Property Properties[] = {
    {"{TIFF}", "Make", "Exif.Image.Make", text},
    {"{TIFF}", "Model", "Exif.Image.Model", text},
    {"{TIFF}", "Orientation", "Exif.Image.Orientation", wholeNumber},
    {"{Exif}", "ExposureTime", "Exif.Photo.ExposureTime", fraction},
    {"{Exif}", "FNumber", "Exif.Photo.FNumber", fraction},
    {"{Exif}", "FocalLength", "Exif.Photo.FocalLength", fraction},
    {"{Exif}", "ISOSpeedRatings", "Exif.Photo.ISOSpeedRatings", wholeNumbers},
    {"{Exif}", "DateTimeOriginal", "Exif.Photo.DateTimeOriginal", text},
};

Exiv2::ExifData readExif(const QString &path, const QByteArray &fromDecoder)
{
    Exiv2::ExifData exif;
    if (!fromDecoder.isEmpty()) {
        Exiv2::ExifParser::decode(exif, reinterpret_cast<const Exiv2::byte *>(fromDecoder.constData()),
                                  uint32_t(fromDecoder.size()));
        return exif;
    }
    const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    image->readMetadata();
    return image->exifData();
}

void insertExif(QVariantMap &map, const Exiv2::ExifData &exif)
{
    for (const Property &property : Properties) {
        const auto datum = exif.findKey(Exiv2::ExifKey(property.key));
        if (datum == exif.end() || datum->count() == 0)
            continue;
        const QVariant value = property.read(*datum);
        if (!value.isValid())
            continue;
        const QString group = QLatin1String(property.group);
        QVariantMap values = map.value(group).toMap();
        values.insert(QLatin1String(property.name), value);
        map.insert(group, values);
    }
}

} // namespace

QVariantMap imageProperties(const QString &path)
{
    initializeExiv2();
    const VipsImagePtr image = openImageSource(path);
    if (!image) {
        takeVipsError();
        return {};
    }
    QVariantMap result{{QStringLiteral("PixelWidth"), image->Xsize},
                       {QStringLiteral("PixelHeight"), image->Ysize}};
    try {
        insertExif(result, readExif(path, metadataOfDecoder(image.get()).exif));
    } catch (const std::exception &) {
        // A block that cannot be parsed tells nothing; the sizes still hold.
    }
    return result;
}

} // namespace platform
