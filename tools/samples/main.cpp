#include "Scenes.h"

#include <cstdio>
#include <cstring>
#include <exiv2/exiv2.hpp>
#include <QBuffer>
#include <QDir>
#include <QGuiApplication>

namespace {

constexpr int Quality = 88;

struct Shot {
    const char *file;
    QImage (*scene)();
    const char *taken;
    std::uint16_t iso;
    Exiv2::Rational exposure;
    Exiv2::Rational aperture;
    Exiv2::Rational focalLength;
};

void addPlace(Exiv2::ExifData &exif)
{
    exif["Exif.GPSInfo.GPSVersionID"] = "2 3 0 0";
    exif["Exif.GPSInfo.GPSLatitudeRef"] = "N";
    exif["Exif.GPSInfo.GPSLatitude"] = "59/1 7/1 2850/100";
    exif["Exif.GPSInfo.GPSLongitudeRef"] = "E";
    exif["Exif.GPSInfo.GPSLongitude"] = "11/1 23/1 1520/100";
    exif["Exif.GPSInfo.GPSAltitudeRef"] = "0";
    exif["Exif.GPSInfo.GPSAltitude"] = Exiv2::Rational(42, 1);
}

void addThumbnail(Exiv2::ExifData &exif, const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.scaled(160, 160, Qt::KeepAspectRatio, Qt::SmoothTransformation).save(&buffer, "JPG", 80);
    Exiv2::ExifThumb(exif).setJpegThumbnail(reinterpret_cast<const Exiv2::byte *>(bytes.constData()),
                                            long(bytes.size()));
}

/// Camera, exposure and dates, as a camera would write them; the maker is invented.
Exiv2::ExifData cameraData(const Shot &shot, const QImage &image)
{
    Exiv2::ExifData exif;
    exif["Exif.Image.Make"] = "Halden";
    exif["Exif.Image.Model"] = "Halden M3";
    exif["Exif.Image.Orientation"] = std::uint16_t(1);
    exif["Exif.Image.XResolution"] = Exiv2::Rational(300, 1);
    exif["Exif.Image.YResolution"] = Exiv2::Rational(300, 1);
    exif["Exif.Image.ResolutionUnit"] = std::uint16_t(2);
    exif["Exif.Image.Software"] = "Halden M3 1.2";
    exif["Exif.Image.DateTime"] = shot.taken;
    exif["Exif.Image.Artist"] = "Tessaro";
    exif["Exif.Image.Copyright"] = "Tessaro, GPL-3.0-or-later";
    exif["Exif.Photo.ExposureTime"] = shot.exposure;
    exif["Exif.Photo.FNumber"] = shot.aperture;
    exif["Exif.Photo.ISOSpeedRatings"] = shot.iso;
    exif["Exif.Photo.ExifVersion"] = "48 50 51 48";
    exif["Exif.Photo.DateTimeOriginal"] = shot.taken;
    exif["Exif.Photo.DateTimeDigitized"] = shot.taken;
    exif["Exif.Photo.FocalLength"] = shot.focalLength;
    exif["Exif.Photo.ColorSpace"] = std::uint16_t(1);
    exif["Exif.Photo.PixelXDimension"] = std::uint32_t(image.width());
    exif["Exif.Photo.PixelYDimension"] = std::uint32_t(image.height());
    exif["Exif.Photo.LensModel"] = "Halden Prime 50 mm";
    addPlace(exif);
    addThumbnail(exif, image);
    return exif;
}

bool writeShot(const QDir &folder, const Shot &shot)
{
    const QString path = folder.filePath(QString::fromLatin1(shot.file));
    const QImage image = shot.scene();
    if (!image.save(path, nullptr, image.hasAlphaChannel() ? -1 : Quality))
        return false;
    if (shot.taken) {
        const auto file = Exiv2::ImageFactory::open(path.toStdString());
        file->setExifData(cameraData(shot, image));
        file->writeMetadata();
    }
    return true;
}

const Shot Shots[] = {
    {"photos/evening lake.jpg",
     samples::eveningLake,
     "2023:09:14 19:42:05",
     400,
     {1, 250},
     {28, 10},
     {50, 1}},
    {"photos/hills in fog.jpg", samples::hillsInFog, nullptr, 0, {}, {}, {}},
    {"photos/dunes.jpg", samples::dunes, "2024:02:03 07:15:41", 100, {1, 640}, {80, 10}, {24, 1}},
    {"photos/city at dusk.jpg", samples::cityAtDusk, "2023:11:18 16:58:20", 800, {2, 1}, {56, 10}, {35, 1}},
    {"photos/moon.png", samples::moon, nullptr, 0, {}, {}, {}},
    {"logo.png", samples::logo, nullptr, 0, {}, {}, {}},
};

} // namespace

/// Draws the samples into a folder, always the same; with further arguments only those whose file name
/// contains one.
int main(int argc, char **argv)
try {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "Usage: make-samples FOLDER [NAME...]\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    folder.mkpath(QStringLiteral("photos"));
    for (const Shot &shot : Shots) {
        bool wanted = argc == 2;
        for (int i = 2; i < argc; ++i)
            wanted |= std::strstr(shot.file, argv[i]) != nullptr;
        if (wanted && !writeShot(folder, shot)) {
            std::fprintf(stderr, "make-samples: %s could not be written.\n", shot.file);
            return 1;
        }
    }
    return 0;
} catch (const std::exception &error) {
    std::fprintf(stderr, "make-samples: %s\n", error.what());
    return 1;
}
