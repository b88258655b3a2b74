#pragma once

#include "overlays/TSOverlay.h"
#include "platform/paint/Picture.h"

#include <memory>
#include <QImage>

/// A picture watermark: where the picture lies, drawn scaled into the frame. It carries a shadow and draws
/// none. A picture that can no longer be read leaves the overlay in place, invisible.
class TSImage : public TSOverlay {
public:
    explicit TSImage(const QString &path) : m_imagePath(path) {}
    explicit TSImage(platform::KeyedUnarchiver &coder);
    std::shared_ptr<TSOverlay> copy() const override { return std::shared_ptr<TSImage>(new TSImage(*this)); }

    /// Chosen from the user's disk, against one of the program's own.
    bool isFromFinder() const { return m_isFromFinder; }
    void setIsFromFinder(bool isFromFinder) { m_isFromFinder = isFromFinder; }
    const QString &imagePath() const { return m_imagePath; }
    void setImagePath(const QString &path) { m_imagePath = path; }
    /// The copy inside a profile package: the profile's folder, "Stickers", the file.
    const QString &imageName() const { return m_imageName; }
    void setImageName(const QString &name) { m_imageName = name; }
    /// Where the user's picture was taken from.
    const QString &oldPath() const { return m_oldPath; }
    void setOldPath(const QString &path) { m_oldPath = path; }

    void drawIncontext(platform::PaintLayer &context) override;

    QStringList classChain() const override;
    void encodeWithCoder(platform::KeyedArchiver &coder) const override;

protected:
    TSImage(const TSImage &) = default;

private:
    QImage pixelsOf(const std::shared_ptr<platform::Picture> &picture, const QSize &size);

    QString m_imagePath;
    QString m_imageName;
    QString m_oldPath;
    bool m_isFromFinder = false;
    /// What the screen showed last, and of which picture.
    QImage m_seen;
    std::weak_ptr<platform::Picture> m_seenPicture;
};
