#pragma once

#include "session/TSDataManager.h"
#include "session/TSPhotoIntakeHost.h"
#include "session/TSPhotoListEditorHost.h"
#include "session/TSPhotoStrip.h"

#include <functional>
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QStringList>
#include <QThread>

/// Stands for all views of the photo list: notes what they are told, in order, and keeps a selection.
class PhotoListViews : public TSPhotoStrip, public TSPhotoIntakeHost, public TSPhotoListEditorHost {
public:
    QStringList log;
    std::set<qint64> selection;
    bool canRemove = false;
    bool answer = true;
    std::function<void(const QString &)> onTitle;

    void note(const QString &text)
    {
        EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread()) << text.toStdString();
        log.append(text);
    }
    QStringList takeLog() { return std::exchange(log, {}); }

    std::set<qint64> selectionIndexes() const override { return selection; }
    void reloadData() override { note(QStringLiteral("reload")); }
    void scrollIndexToVisible(qint64 index) override { note(QStringLiteral("scroll %1").arg(index)); }
    void setSelectionIndex(qint64 index) override
    {
        EXPECT_LT(index, TSDataManager::dataManager()->photoCount());
        selection = {index};
        note(QStringLiteral("select %1").arg(index));
    }
    bool isRemoveEnabled() const override { return canRemove; }
    void setRemoveEnabled(bool enabled) override
    {
        canRemove = enabled;
        note(enabled ? QStringLiteral("remove on") : QStringLiteral("remove off"));
    }
    void updateStartView() override { note(QStringLiteral("start view")); }
    void cancelCacheImages() override { note(QStringLiteral("no filling")); }

    void showProcessingView(bool isShown, const QString &title, bool canCancel) override
    {
        note(isShown ? QStringLiteral("sheet %1 %2").arg(title).arg(canCancel) : QStringLiteral("no sheet"));
    }
    void setProcessTitle(const QString &title) override
    {
        note(title.section(u'/', 0, 0) + title.section(u'/', -1));
        if (onTitle)
            onTitle(title);
    }
    void showAlert(const QString &message, const QString &informative) override
    {
        note(QStringLiteral("alert %1, %2").arg(message, informative));
    }
    void fileWasRefused(const QString &path, const QString &) override
    {
        note(QStringLiteral("refused ") + path.section(u'/', -1));
    }

    bool confirm(const QString &message, const QString &informative) override
    {
        note(QStringLiteral("confirm %1, %2").arg(message, informative));
        return answer;
    }
    void releaseShownPhoto() override { note(QStringLiteral("release")); }
    void emptyEditingOverlaysArray() override { note(QStringLiteral("no selection")); }
    void clearEditingOverlay() override { note(QStringLiteral("no editing")); }
    void hideOverlayList() override { note(QStringLiteral("hide list")); }
    void updateOverlayListViewUI() override { note(QStringLiteral("update list")); }
    void selectOverlays() override { note(QStringLiteral("select rows")); }
};

inline QStringList lines(const char *list)
{
    return QString::fromUtf8(list).split(u'|', Qt::SkipEmptyParts);
}
