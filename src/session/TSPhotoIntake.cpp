#include "session/TSPhotoIntake.h"

#include "platform/drawing/DrawingFile.h"
#include "platform/image/FrameReader.h"
#include "platform/image/GifFrames.h"
#include "platform/image/ImageFile.h"
#include "platform/metadata/ImageProperties.h"
#include "session/TSDataManager.h"
#include "session/TSFileUtility.h"
#include "session/TSPhotoManager.h"

#include <algorithm>
#include <QDateTime>
#include <QFileInfo>

using enum TSRepresentationType;

namespace {

constexpr int frameSide = 2000;

/// File systems that keep no date of birth answer the date of the last change for both.
QVariantMap fileAttributes(const QString &path)
{
    const QFileInfo info(path);
    const QDateTime modified = info.lastModified();
    const QDateTime born = info.birthTime();
    return {{TSFileAttribute::CreationDate.toString(), born.isValid() ? born : modified},
            {TSFileAttribute::ModificationDate.toString(), modified}};
}

QString reasonForRefusal(const QString &path)
{
    const QFileInfo info(path);
    // What stands for bytes that are no text leads back to no file.
    if (!info.exists() && path.contains(QChar::ReplacementCharacter))
        return qtTrId("The file's name is not in UTF-8; rename it.");
    if (!info.exists())
        return qtTrId("There is no such file.");
    if (info.isDir())
        return qtTrId("This is a folder, not a photo.");
    if (!info.isFile())
        return qtTrId("This is not a file.");
    if (!info.isReadable())
        return qtTrId("The file may not be read: permission is missing.");
    if (info.size() == 0)
        return qtTrId("The file is empty.");
    const QString refusal = platform::refusalOfImage(path);
    return refusal.isEmpty() ? qtTrId("The file is not a picture that can be read.") : refusal;
}

std::shared_ptr<TSImageBrowserItem> newItem(const QString &path)
{
    auto item = std::make_shared<TSImageBrowserItem>();
    item->path = path;
    item->resourePath = path;
    item->fileAttributesDic = fileAttributes(path);
    return item;
}

/// The key of a frame: a path below the file that is never opened.
QString framePath(const QString &path, int frame, int frames)
{
    const QString name = QFileInfo(path).completeBaseName();
    if (frames == 1)
        return QStringLiteral("%1/%2").arg(path, name);
    const QString number = QStringLiteral("%1").arg(frame + 1, 2, 10, QLatin1Char('0'));
    return QStringLiteral("%1/%2_frame%3").arg(path, name, number);
}

std::shared_ptr<TSPhoto> newPhoto(const TSImageBrowserItem &item, qint64 index)
{
    auto photo = std::make_shared<TSPhoto>();
    photo->index = index;
    photo->path = item.path;
    photo->resourcePath = item.path;
    photo->propertiesDic = item.propertiesDic;
    photo->fileAttributesDic = item.fileAttributesDic;
    return photo;
}

} // namespace

void TSPhotoIntake::addItemsWithURLs(const QStringList &paths, bool isInsert)
{
    clearRepeatedFileNames();
    for (const QString &path : paths) {
        if (isGivenUp())
            return;
        addFile(path, isInsert);
    }
}

QString TSPhotoIntake::repeatedFileNames() const
{
    const std::lock_guard lock(m_namesLock);
    return m_repeatedFileNames;
}

void TSPhotoIntake::clearRepeatedFileNames()
{
    const std::lock_guard lock(m_namesLock);
    m_repeatedFileNames.clear();
}

void TSPhotoIntake::addFile(const QString &path, bool isInsert)
{
    const unsigned type = TSImageType(path);
    // Properties are read with the header, and reading that twice would double the time of most photos.
    const bool hasProperties = type == TSImageTypeCode::JPG;
    const QVariantMap properties = hasProperties ? platform::imageProperties(path) : QVariantMap();
    if (hasProperties ? properties.isEmpty() : !TSIsImagePath(path)) {
        // It counts as handled all the same: the strip is brought up to date even if nothing else came.
        isHasAddItem = true;
        return refuse(path, reasonForRefusal(path));
    }
    if (!isAddItem(path))
        return refuse(path, qtTrId("The photo is in the list already."));
    if (TSIsVectorType(type))
        addDrawing(path, type, isInsert);
    else if (type == TSImageTypeCode::TIFF || type == TSImageTypeCode::GIF)
        addFrames(path, isInsert);
    else
        addPlainFile(path, properties, isInsert);
    isHasAddItem = true;
}

bool TSPhotoIntake::isAddItem(const QString &path)
{
    if (!TSDataManager::dataManager()->isHasItem(path))
        return true;
    const QString name = QFileInfo(path).fileName();
    const std::lock_guard lock(m_namesLock);
    m_repeatedFileNames += m_repeatedFileNames.isEmpty() ? name : u',' + name;
    return false;
}

void TSPhotoIntake::addFrames(const QString &path, bool isInsert)
{
    platform::FrameReader reader(path);
    const int frames = reader.frameCount();
    if (frames == 0)
        return refuse(path, reasonForRefusal(path));
    reader.isCancelled = [this] { return isGivenUp(); };
    std::vector<Item> added;
    for (int frame = 0; frame < frames; ++frame) {
        const Item item = newItem(path);
        item->path = framePath(path, frame, frames);
        item->repType = IKImageBrowserCGImageRepresentationType;
        item->frameCount = quint64(frame);
        item->cgimage = reader.nextThumbnail(frameSide);
        item->frameSize = reader.frameSize();
        if (isGivenUp())
            return takeBack(path, added);
        performAddItem(item, isInsert);
        added.push_back(item);
    }
    if (const int all = platform::gifFrameCount(path); all > frames)
        refuse(
            path,
            qtTrId("The file holds %1 frames, of which only the first %2 can be read.").arg(all).arg(frames));
}

/// A drawing is made a picture once, as large as the preview's box allows; its outputs are stretched from
/// that.
void TSPhotoIntake::addDrawing(const QString &path, unsigned type, bool isInsert)
{
    const QFileInfo info(path);
    if (!info.isFile() || !info.isReadable() || info.size() == 0)
        return refuse(path, reasonForRefusal(path));
    const QSizeF box(frameSide, frameSide);
    const Item item = newItem(path);
    QString reason;
    const platform::CancelTest test = [this] { return isGivenUp(); };
    item->repType = IKImageBrowserCGImageRepresentationType;
    if (type == TSImageTypeCode::SVG)
        item->cgimage = platform::rasterizeSvg(path, box, &reason, test);
    else if (type == TSImageTypeCode::EPS)
        item->cgimage = platform::rasterizeEps(path, box, &reason, test);
    else
        item->cgimage = platform::rasterizePdf(path, box, &reason, test);
    if (item->cgimage.isNull())
        return isGivenUp() ? takeBack(path, {}) : refuse(path, reason);
    item->frameSize = item->cgimage.size();
    performAddItem(item, isInsert);
}

void TSPhotoIntake::addPlainFile(const QString &path, const QVariantMap &properties, bool isInsert)
{
    const Item item = newItem(path);
    item->repType = IKImageBrowserPathRepresentationType;
    item->propertiesDic = properties;
    performAddItem(item, isInsert);
}

void TSPhotoIntake::performAddItem(const Item &item, bool isInsert)
{
    const auto join = [&] { isInsert ? insertItem(item) : addItem(item); };
    if (m_delegate)
        m_delegate->photoIsReady(item->path, join);
    else
        join();
}

void TSPhotoIntake::addItem(const Item &item)
{
    TSDataManager *data = TSDataManager::dataManager();
    TSPhotoManager *photos = TSPhotoManager::photoManager();
    data->addItem(item);
    const qint64 position = data->photoCount() - 1;
    if (m_rows)
        m_rows->photoWillJoin(TSPhotoListObserver::atEnd, photos->selectedPhoto());
    photos->addPhoto(newPhoto(*item, position));
    if (m_delegate)
        m_delegate->photoWasAdded(item->resourePath, position);
}

void TSPhotoIntake::insertItem(const Item &item)
{
    TSPhotoManager *photos = TSPhotoManager::photoManager();
    TSDataManager *data = TSDataManager::dataManager();
    const qint64 position = std::clamp<qint64>(insertAtIndex, 0, data->photoCount());
    insertAtIndex = position + 1;
    data->insertItem(item, position);
    if (m_rows)
        m_rows->photoWillJoin(position, photos->selectedPhoto());
    photos->insertDraggingPhoto(newPhoto(*item, position), position);
    if (m_delegate)
        m_delegate->photoWasAdded(item->resourePath, position);
}

/// From wherever they stand by now: after a cancel the user has the list again.
void TSPhotoIntake::takeBack(const QString &path, const std::vector<Item> &items)
{
    const auto leave = [&] {
        TSDataManager *data = TSDataManager::dataManager();
        TSPhotoManager *photos = TSPhotoManager::photoManager();
        const auto selected = photos->photoAtIndex(photos->selectedPhoto());
        for (auto item = items.rbegin(); item != items.rend(); ++item) {
            const qint64 index = data->indexOfItem(*item);
            data->removePhotoAtIndex(index);
            if (m_rows && index >= 0)
                m_rows->photoWasRemoved(index);
            if (index >= 0 && index < insertAtIndex)
                --insertAtIndex;
        }
        if (selected && photos->photoAtIndex(selected->index) == selected)
            photos->setSelectedPhoto(selected->index);
    };
    if (!m_delegate)
        return leave();
    m_delegate->photoIsReady(path, leave);
    m_delegate->fileWasGivenUp(path);
}

void TSPhotoIntake::refuse(const QString &path, const QString &reason)
{
    if (m_delegate)
        m_delegate->fileWasRefused(path, reason);
}
