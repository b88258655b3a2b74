#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <exiv2/exiv2.hpp>
#include <memory>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <turbojpeg.h>
#include <vector>

namespace {

constexpr int Width = 6000;
constexpr int Height = 4000;
constexpr int Quality = 92;

std::uint32_t hash(std::uint32_t x, std::uint32_t y, std::uint32_t seed)
{
    std::uint32_t h = x * 0x8da6b343u ^ y * 0xd8163841u ^ seed * 0xcb1ab31fu;
    h = (h ^ (h >> 15)) * 0x2c1b3c6du;
    h = (h ^ (h >> 12)) * 0x297a2d39u;
    return h ^ (h >> 15);
}

float lattice(int x, int y, std::uint32_t seed)
{
    return float(hash(std::uint32_t(x), std::uint32_t(y), seed)) / 4294967296.0f - 0.5f;
}

float smooth(float t)
{
    return t * t * (3 - 2 * t);
}

/// Adds value noise of one scale to a row: random values on a lattice, smoothly joined.
void addOctave(std::vector<float> &row, int y, int cell, float amplitude, std::uint32_t seed)
{
    const int cellY = y / cell;
    const float v = smooth(float(y % cell) / float(cell));
    for (int begin = 0; begin < Width; begin += cell) {
        const int cellX = begin / cell;
        const float left = std::lerp(lattice(cellX, cellY, seed), lattice(cellX, cellY + 1, seed), v);
        const float right =
            std::lerp(lattice(cellX + 1, cellY, seed), lattice(cellX + 1, cellY + 1, seed), v);
        for (int x = begin; x < std::min(begin + cell, Width); ++x)
            row[x] += amplitude * std::lerp(left, right, smooth(float(x - begin) / float(cell)));
    }
}

/// Large shapes, detail down to a few pixels that changes in strength over the picture, as focus does, and
/// the noise of a sensor: together the amount that a camera's JPEG of this size holds.
void drawRow(std::vector<unsigned char> &pixels, int y, std::uint32_t seed)
{
    std::vector<float> light(Width), detail(Width), focus(Width), hue(Width);
    for (int cell : {1600, 800, 400})
        addOctave(light, y, cell, 0.08f * float(cell) / 800 * 255, seed + std::uint32_t(cell));
    for (int cell : {128, 40, 16, 7, 4, 2})
        addOctave(detail, y, cell, 170.0f * std::pow(float(cell) / 128, 0.3f), seed + std::uint32_t(cell));
    addOctave(focus, y, 1000, 1.6f, seed + 1);
    addOctave(hue, y, 700, 60, seed + 2);
    for (int x = 0; x < Width; ++x) {
        const float strength = std::clamp(0.6f + focus[x], 0.15f, 1.2f);
        const std::uint32_t grain = hash(std::uint32_t(x), std::uint32_t(y), seed + 3);
        const float noise =
            (float(grain & 255) + float(grain >> 8 & 255) + float(grain >> 16 & 255) - 382.5f) / 45;
        const float value =
            120 + 30.0f * float(Height / 2 - y) / Height + light[x] + strength * detail[x] + noise;
        const std::array<float, 3> tint = {hue[x] * 0.5f, 0, -hue[x]};
        for (std::size_t c = 0; c < 3; ++c)
            pixels[(std::size_t(y) * Width + x) * 3 + c] =
                static_cast<unsigned char>(std::clamp(value + tint[c], 0.0f, 255.0f));
    }
}

QByteArray encoded(std::uint32_t seed)
{
    std::vector<unsigned char> pixels(std::size_t(Width) * Height * 3);
    for (int y = 0; y < Height; ++y)
        drawRow(pixels, y, seed);
    const std::unique_ptr<void, int (*)(tjhandle)> encoder(tjInitCompress(), tjDestroy);
    unsigned char *bytes = nullptr;
    unsigned long size = 0;
    if (tjCompress2(encoder.get(), pixels.data(), Width, 0, Height, TJPF_RGB, &bytes, &size, TJSAMP_420,
                    Quality, 0))
        return {};
    const QByteArray result(reinterpret_cast<const char *>(bytes), qsizetype(size));
    tjFree(bytes);
    return result;
}

/// What a camera writes beside the picture, since passing it on is part of the work that is measured.
void tagLikeCamera(const QString &path)
{
    const auto image = Exiv2::ImageFactory::open(path.toStdString());
    Exiv2::ExifData exif;
    exif["Exif.Image.Make"] = "Halden";
    exif["Exif.Image.Model"] = "Halden M3";
    exif["Exif.Photo.ExposureTime"] = Exiv2::Rational(1, 250);
    exif["Exif.Photo.FNumber"] = Exiv2::Rational(28, 10);
    exif["Exif.Photo.ISOSpeedRatings"] = std::uint16_t(400);
    exif["Exif.Photo.DateTimeOriginal"] = "2023:09:14 18:42:05";
    image->setExifData(exif);
    image->writeMetadata();
}

bool writePhoto(const QString &path, std::uint32_t seed)
{
    const QByteArray bytes = encoded(seed);
    QFile file(path);
    if (bytes.isEmpty() || !file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return false;
    file.close();
    tagLikeCamera(path);
    return true;
}

/// The ready-made mark for programs that draw no text: one line of text, as large as the one drawn for
/// comparison.
bool writeMark(const QString &path)
{
    QImage image(1500, 160, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QFont font(QStringLiteral("Nimbus Sans"));
    font.setPixelSize(132);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(image.rect(), Qt::AlignCenter, QStringLiteral("Tessaro Photographs"));
    painter.end();
    return image.save(path);
}

} // namespace

/// Makes the benchmark's photos, the same ones each time, and the picture mark.
int main(int argc, char **argv)
try {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "Usage: bench-photos FOLDER COUNT\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    bool whole = folder.mkpath(QStringLiteral(".")) && writeMark(folder.filePath(QStringLiteral("mark.png")));
    for (int i = 1; whole && i <= std::atoi(argv[2]); ++i)
        whole = writePhoto(folder.filePath(QStringLiteral("photo-%1.jpg").arg(i)), std::uint32_t(i) * 7919);
    if (!whole)
        std::fprintf(stderr, "bench-photos: could not write into %s.\n", argv[1]);
    return whole ? 0 : 1;
} catch (const std::exception &error) {
    std::fprintf(stderr, "bench-photos: %s\n", error.what());
    return 1;
}
