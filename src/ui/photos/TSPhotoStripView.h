#pragma once

#include "controls/TSImageBrowserDataSource.h"
#include "controls/TSImageBrowserView.h"
#include "session/TSPhotoStrip.h"
#include "ui/photos/TSThumbnailLoader.h"

class QPushButton;

/// The strip below the preview: the photos of the session, and the buttons that add and remove them.
class TSPhotoStripView : public QWidget, public TSPhotoStrip, private TSImageBrowserDataSource {
    Q_OBJECT

public:
    explicit TSPhotoStripView(QWidget *parent = nullptr);

    TSImageBrowserView *ibvList() const { return m_ibvList; }
    QPushButton *btAddPhotos() const { return m_btAddPhotos; }
    QPushButton *btRemove() const { return m_btRemove; }
    QPushButton *btRemoveAll() const { return m_btRemoveAll; }

    std::set<qint64> selectionIndexes() const override;
    void reloadData() override;
    void scrollIndexToVisible(qint64 index) override;
    void setSelectionIndex(qint64 index) override;
    bool isRemoveEnabled() const override;
    void setRemoveEnabled(bool enabled) override;
    void updateStartView() override;
    void cancelCacheImages() override;

Q_SIGNALS:
    void startViewShouldUpdate();
    void cacheImagesWasCancelled();

private:
    int numberOfItemsInImageBrowser() const override;
    QString imageTitle(int index) const override;
    QString imageDescription(int index) const override;
    QString resourcePath(int index) const override;
    QImage thumbnail(int index, const QSize &pixels) override;
    void showThumbnail(const QString &imageKey);

    TSThumbnailLoader m_thumbnails;
    TSImageBrowserView *m_ibvList;
    QPushButton *m_btAddPhotos;
    QPushButton *m_btRemove;
    QPushButton *m_btRemoveAll;
};
