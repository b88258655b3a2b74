#pragma once

#include "session/TSCurrentInstance.h"

#include <memory>
#include <QList>
#include <QObject>
#include <QSizeF>
#include <QUrl>

class TSOverlay;
class TSText;

/// The messages by which the parts of the program tell each other what has changed. Every signal is delivered
/// at once, on the thread that emits it.
class TSNotificationCenter : public QObject {
    Q_OBJECT

public:
    TSNotificationCenter() : m_current(this) {}

    /// The current instance: the one made last that still lives, or else one made at the first use.
    static TSNotificationCenter *defaultCenter();

Q_SIGNALS:
    void TSDraggingPhotosEnd(const QList<QUrl> &urls);
    void TSWindowWillResizeOrZooming();
    void TSExportImageNames();
    void TSOutputSizeOrNameChanged();
    void TSWildcardWindowResign();
    void TSApplyProfile();
    void TSUpdateRotateAngle();
    void TSUpdateWaterAlignment();
    void TSUpdateOffset();
    void TSResizingPhotoView();
    void TSDeleteProfile();
    void TSUpdateProfile();
    void TSChangeWatermarkPostion();
    void TSOpenSavePanel();
    void TSExampleTextChange();
    void TSWildcardFormat();
    void TSUpdateOverlayListViewUI();
    void TSCirclePositionChanged(const QSizeF &positionRatio);
    void TSHoverTableViewDeleteKeyDown(QObject *tableView);
    void TSTextDidProcessEditing(TSText *text);
    /// `isDragging` lets listeners skip a refresh that the next drag step would undo; `sender` lets one
    /// ignore its own.
    void overlaysChanged(bool isDragging = false, QObject *sender = nullptr);

private:
    TSCurrentInstance<TSNotificationCenter> m_current;
};
