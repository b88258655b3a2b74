#include "ui/photos/TSPhotoStripView.h"

#include "session/TSDataManager.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QPushButton>

namespace {

QPushButton *newButton(const QString &name, const QString &title, QWidget *parent)
{
    auto *button = new QPushButton(title, parent);
    button->setObjectName(name);
    button->setAccessibleName(title);
    return button;
}

} // namespace

TSPhotoStripView::TSPhotoStripView(QWidget *parent)
    : QWidget(parent)
    , m_ibvList(new TSImageBrowserView(TSImageBrowserView::Arrangement::Strip, this))
    , m_btAddPhotos(newButton(QStringLiteral("btAddPhotos"), qtTrId("AddPhotos"), this))
    , m_btRemove(newButton(QStringLiteral("btRemove"), qtTrId("Remove"), this))
    , m_btRemoveAll(newButton(QStringLiteral("btRemoveAll"), qtTrId("RemoveAll"), this))
{
    m_ibvList->setObjectName(QStringLiteral("ibvList"));
    m_ibvList->setAccessibleName(qtTrId("Photos"));
    m_ibvList->setIsTip(true);
    m_ibvList->setDataSource(this);
    setRemoveEnabled(false);
    auto *buttons = new QVBoxLayout;
    for (QPushButton *button : {m_btAddPhotos, m_btRemove, m_btRemoveAll})
        buttons->addWidget(button);
    buttons->addStretch();
    auto *row = new QHBoxLayout(this);
    row->addLayout(buttons);
    row->addWidget(m_ibvList, 1);
    connect(&m_thumbnails, &TSThumbnailLoader::thumbnailDidLoad, this, &TSPhotoStripView::showThumbnail);
}

std::set<qint64> TSPhotoStripView::selectionIndexes() const
{
    const int index = m_ibvList->selectedIndex();
    return index < 0 ? std::set<qint64>() : std::set<qint64>{index};
}

void TSPhotoStripView::reloadData()
{
    m_ibvList->reloadData();
}

void TSPhotoStripView::scrollIndexToVisible(qint64 index)
{
    m_ibvList->scrollIndexToVisible(int(index));
}

void TSPhotoStripView::setSelectionIndex(qint64 index)
{
    // A photo may have taken the place of the one that was selected there.
    if (m_ibvList->selectedIndex() == int(index))
        Q_EMIT m_ibvList->selectionDidChange(int(index));
    else
        m_ibvList->setSelectedIndex(int(index));
}

bool TSPhotoStripView::isRemoveEnabled() const
{
    return m_btRemove->isEnabled();
}

void TSPhotoStripView::setRemoveEnabled(bool enabled)
{
    m_btRemove->setEnabled(enabled);
    m_btRemoveAll->setEnabled(enabled);
}

void TSPhotoStripView::updateStartView()
{
    Q_EMIT startViewShouldUpdate();
}

void TSPhotoStripView::cancelCacheImages()
{
    Q_EMIT cacheImagesWasCancelled();
}

int TSPhotoStripView::numberOfItemsInImageBrowser() const
{
    return int(TSDataManager::dataManager()->photoCount());
}

QString TSPhotoStripView::imageTitle(int index) const
{
    const auto item = TSDataManager::dataManager()->itemAtIndex(index);
    return item ? item->imageTitle() : QString();
}

QString TSPhotoStripView::imageDescription(int index) const
{
    const auto item = TSDataManager::dataManager()->itemAtIndex(index);
    return item ? item->description() : QString();
}

QString TSPhotoStripView::resourcePath(int index) const
{
    const auto item = TSDataManager::dataManager()->itemAtIndex(index);
    return item ? item->resourePath : QString();
}

QImage TSPhotoStripView::thumbnail(int index, const QSize &pixels)
{
    const auto item = TSDataManager::dataManager()->itemAtIndex(index);
    return item ? m_thumbnails.thumbnail(item, std::max(pixels.width(), pixels.height())) : QImage();
}

void TSPhotoStripView::showThumbnail(const QString &imageKey)
{
    const TSDataManager *data = TSDataManager::dataManager();
    for (qint64 index = 0; index < data->photoCount(); ++index) {
        const auto item = data->itemAtIndex(index);
        if (item && item->imageKey() == imageKey)
            return m_ibvList->thumbnailDidChange(int(index));
    }
}
