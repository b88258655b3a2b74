#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>
#include <QVariantMap>

/// Which representation of its picture an item serves.
enum class TSRepresentationType {
    IKImageBrowserPathRepresentationType,
    IKImageBrowserCGImageRepresentationType,
    IKImageBrowserNSImageRepresentationType
};

/// Keys of `fileAttributesDic`; the values are QDateTime.
namespace TSFileAttribute {
inline constexpr QStringView CreationDate = u"NSFileCreationDate";
inline constexpr QStringView ModificationDate = u"NSFileModificationDate";
} // namespace TSFileAttribute

/// What the strip shows of a photo, and how its pixels are reached. A plain record.
class TSImageBrowserItem {
public:
    quint64 version = 0;
    QImage image;
    /// The picture of a frame or of a rasterised vector file; null for a photo that is read from its path.
    QImage cgimage;
    QString title;
    /// The key of the item: the file, or a made-up path below the file for a frame of it.
    QString path;
    QString imagePath;
    TSRepresentationType repType = TSRepresentationType::IKImageBrowserNSImageRepresentationType;
    /// Despite its name the number of this frame in its file, from 0.
    quint64 frameCount = 0;
    /// The file itself. Frames of one file share it, and the duplicate check goes by it.
    QString resourePath;
    /// Pixels of a rasterised vector picture, or of a frame held upright as its file has it.
    QSizeF frameSize{0, 0};
    QVariantMap propertiesDic;
    QVariantMap fileAttributesDic;

    TSRepresentationType imageRepresentationType() const { return repType; }
    QString imageUID() const;
    QString imageTitle() const;
    QString imageKey() const { return path; }
    QString imageSubtitle() const { return {}; }
    QString description() const { return imageTitle(); }

    /// The real file behind the item: a frame's own path is made up and lies below it.
    QString sourcePath() const;
};
