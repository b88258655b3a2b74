#include "session/TSPhotoIntakeController.h"
#include "support/PhotoListViews.h"
#include "support/Session.h"

#include <QDeadlineTimer>
#include <QEventLoop>

namespace {

constexpr const char *repeatedAlert = "alert can'tAddRepeatedly imagesFiltered";

class IntakeControllerTest : public SessionTest {
protected:
    /// Written by the main thread alone, unlike by the encoders of the platform, which start threads.
    QString photo(int number) const
    {
        const QString path = session.path(QStringLiteral("p%1.jpg").arg(number));
        EXPECT_TRUE(plainImage({16, 8}).save(path, "JPG"));
        return path;
    }
    static QList<QUrl> urls(const QStringList &paths)
    {
        QList<QUrl> list;
        for (const QString &path : paths)
            list.append(QUrl::fromLocalFile(path));
        return list;
    }
    /// Serves the main thread until the views have noted a line so many times.
    void serveUntil(const QString &line, int times = 1)
    {
        QDeadlineTimer deadline(120000);
        while (m_views.log.count(line) < times && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
        EXPECT_EQ(m_views.log.count(line), times) << m_views.log.join(u'|').toStdString();
    }

    PhotoListViews m_views;
    TSPhotoIntakeController m_controller{&session.overlays, m_views, m_views};
};

} // namespace

TEST_F(IntakeControllerTest, TheFrameOfAnIntake)
{
    const QString words = session.write(QStringLiteral("words.txt"), "words");
    // Of a place, −1 appends.
    const std::tuple<QStringList, qint64, const char *> cases[] = {
        {{words}, -1, "sheet Loading... true|refused words.txt|no sheet|no filling"},
        {{photo(0), photo(1)},
         -1,
         "sheet Loading... true|title LoadingPhoto:p0.jpg|remove true|title LoadingPhoto:p1.jpg|no sheet|no "
         "filling|"
         "reload|scroll 1|select 1|start view"},
        {{photo(1)}, -1, "sheet Loading... true|refused p1.jpg|no sheet|no filling|repeated"},
        {{photo(0), words},
         -1,
         "sheet Loading... true|refused p0.jpg|refused words.txt|no sheet|no filling|"
         "reload|scroll 1|select 1|start view|repeated"},
        {{photo(2), photo(3)},
         1,
         "sheet Loading... true|title LoadingPhoto:p2.jpg|title LoadingPhoto:p3.jpg|no sheet|no filling|"
         "reload|scroll 2|select 2|start view"},
        {{words},
         2,
         "sheet Loading... true|refused words.txt|no sheet|no filling|reload|scroll 1|select 1|start view"},
        {{words}, 0, "sheet Loading... true|refused words.txt|no sheet|no filling|reload|start view"},
        {{}, -1, "sheet Loading... true|no sheet|no filling"},
    };
    for (const auto &[paths, insertAt, log] : cases) {
        session.data.isRemoveAllPhotos = true;
        session.data.isSelectedPhotoChanged = false;
        m_controller.addItemsFromURLs(paths, insertAt >= 0, insertAt);
        EXPECT_EQ(m_views.takeLog(), lines(log).replaceInStrings(QStringLiteral("repeated"),
                                                                 QString::fromLatin1(repeatedAlert)));
        EXPECT_FALSE(session.data.isRemoveAllPhotos);
        EXPECT_TRUE(session.data.isSelectedPhotoChanged);
    }
}

TEST_F(IntakeControllerTest, DropsComeInOffTheMainThreadOneAfterTheOther)
{
    session.addPhotos(2);
    session.photos.setSelectedPhoto(1);
    const auto selected = session.photos.photoAtIndex(1);
    Q_EMIT session.center.TSDraggingPhotosEnd(urls({photo(0), photo(1), session.folder.path()}));
    m_controller.addPhotosFromBrowserViewDragging(urls({photo(2)}), 0);
    m_controller.loadPhotos({QUrl(QStringLiteral("http://nowhere.invalid/a.jpg"))});
    EXPECT_TRUE(m_views.log.isEmpty()) << "nothing happens before the main thread is free";
    serveUntil(QStringLiteral("start view"), 3);
    EXPECT_EQ(session.data.photoCount(), 5);
    EXPECT_EQ(m_views.log.filter(QStringLiteral("select")), lines("select 3|select 0|select 4"));
    EXPECT_EQ(session.photos.photoAtIndex(2), selected);
    EXPECT_EQ(session.photos.selectedPhoto(), 2);
}

TEST_F(IntakeControllerTest, ACancelIsSeenAtTheNextFileAndMayTellTwice)
{
    const QStringList paths = {photo(0), photo(1), photo(2), photo(3)};
    m_controller.addItemsFromURLs(paths.first(1), false, 0);
    m_views.takeLog();
    m_views.onTitle = [&](const QString &title) {
        if (title.endsWith(u"p2.jpg"))
            m_controller.cancelProcessAction();
    };
    m_controller.addPhotosFromDragging(urls(paths));
    serveUntil(QString::fromLatin1(repeatedAlert), 2);
    EXPECT_EQ(session.data.photoCount(), 3);
    EXPECT_EQ(m_views.log.filter(QStringLiteral("select")), lines("select 2"));
    m_controller.addItemsFromURLs(paths.last(1), false, 0);
    EXPECT_EQ(session.data.photoCount(), 4) << "the next intake is not cancelled";
}

TEST_F(IntakeControllerTest, LeavingWaitsForTheFileAtHand)
{
    // So many that the main thread cannot have served them all by the time it leaves.
    const QStringList paths = QStringList(3000, photo(0)) + QStringList{photo(1)};
    PhotoListViews views;
    {
        TSPhotoIntakeController leaving(&session.overlays, views, views);
        leaving.addPhotosFromDragging(urls(paths));
        leaving.addPhotosFromDragging(urls({photo(99)}));
        QEventLoop loop;
        views.onTitle = [&loop](const QString &) { loop.quit(); };
        loop.exec();
        views.takeLog();
    }
    EXPECT_TRUE(views.log.isEmpty());
    EXPECT_EQ(session.data.photoCount(), 1) << "neither the file behind them nor the next drop came in";
    EXPECT_EQ(session.photos.photoCount(), 1);
}
