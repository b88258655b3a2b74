#pragma once

#include "session/TSPhotoIntakeHost.h"
#include "session/TSPhotoListEditorHost.h"
#include "session/TSPhotoStrip.h"

#include <functional>
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QStringList>
#include <QThread>
#include <QVariant>

/// Stands for all views of the photo list: notes what they are told, in order, and keeps a selection.
class PhotoListViews : public TSPhotoStrip, public TSPhotoIntakeHost, public TSPhotoListEditorHost {
public:
    QStringList log;
    std::set<qint64> selection;
    bool canRemove = false;
    bool answer = true;
    std::function<void(const QString &)> onTitle;

    void note(const char *what, const QVariant &first = {}, const QVariant &second = {})
    {
        EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread()) << what;
        log.append(QStringLiteral("%1 %2 %3")
                       .arg(QLatin1String(what), first.toString(), second.toString())
                       .trimmed());
    }
    QStringList takeLog() { return std::exchange(log, {}); }

    std::set<qint64> selectionIndexes() const override { return selection; }
    void reloadData() override { note("reload"); }
    void scrollIndexToVisible(qint64 index) override { note("scroll", index); }
    void setSelectionIndex(qint64 index) override { note("select", *(selection = {index}).begin()); }
    bool isRemoveEnabled() const override { return canRemove; }
    void setRemoveEnabled(bool enabled) override { note("remove", canRemove = enabled); }
    void updateStartView() override { note("start view"); }
    void cancelCacheImages() override { note("no filling"); }

    void showProcessingView(bool isShown, const QString &title, bool canCancel) override
    {
        isShown ? note("sheet", title, canCancel) : note("no sheet");
    }
    void setProcessTitle(const QString &title) override
    {
        note("title", title.section(u'/', 0, 0) + title.section(u'/', -1));
        if (onTitle)
            onTitle(title);
    }
    void showAlert(const QString &message, const QString &text) override { note("alert", message, text); }
    void fileWasRefused(const QString &path, const QString &) override
    {
        note("refused", path.section(u'/', -1));
    }

    bool confirm(const QString &message, const QString &text) override
    {
        note("confirm", message, text);
        return answer;
    }
    void releaseShownPhoto() override { note("release"); }
    void emptyEditingOverlaysArray() override { note("no selection"); }
    void clearEditingOverlay() override { note("no editing"); }
    void hideOverlayList() override { note("hide list"); }
    void updateOverlayListViewUI() override { note("update list"); }
    void selectOverlays() override { note("select rows"); }
};

inline QStringList lines(const char *list)
{
    return QString::fromUtf8(list).split(u'|', Qt::SkipEmptyParts);
}
