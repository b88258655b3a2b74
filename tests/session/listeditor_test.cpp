#include "overlays/TSText.h"
#include "session/TSPhotoListEditor.h"
#include "support/PhotoListViews.h"
#include "support/Session.h"

namespace {

class ListEditorTest : public SessionTest {
protected:
    /// Photos whose numbers are their rows in a plain text and a Script text.
    void begin(int count)
    {
        session.data.removeAllPhotos();
        session.overlays.removeAllOverlay();
        session.setCanvas({0, 0, 100, 100});
        session.addPhotos(count);
        m_text = std::make_shared<TSText>(QStringLiteral("text"));
        m_script = std::make_shared<TSText>(QStringLiteral("script"));
        m_script->setTextType(TSTextType::Script);
        for (const auto &text : {m_text, m_script}) {
            session.overlays.addOverlay(text);
            for (int row = 0; row < count; ++row) {
                text->setXPixel(row);
                text->setYPixel(row);
                text->setAngle(row);
                text->setWmAlignment(unsigned(row));
                text->setRatioOfFrameByAlignment(QRectF(row, 0, 1, 1));
                text->setScriptOrigin(QPointF(row, 0));
                text->appendRow();
                text->rows().change(
                    row, [row](TSRow &last) { last.oldRatioOfFrameByAlignment = QRectF(row, 0, 1, 1); });
            }
        }
    }
    /// The numbers of the rows, in which both texts and every value agree.
    std::string rows() const
    {
        std::string told;
        for (qint64 i = 0; i < m_text->rows().count(); ++i) {
            const TSRow &row = *m_text->rows().at(i);
            const auto number = unsigned(row.wmAlignment);
            told += char('0' + number);
            const QRectF ratio(number, 0, 1, 1);
            EXPECT_EQ(row, (TSRow{ratio, ratio, float(number), float(number), number, float(number),
                                  QPointF(number, 0)}));
            EXPECT_EQ(row, *m_script->rows().at(i));
        }
        EXPECT_EQ(m_script->rows().count(), m_text->rows().count());
        return told;
    }

    std::shared_ptr<TSText> m_text;
    std::shared_ptr<TSText> m_script;
    PhotoListViews m_views;
    TSPhotoListEditor m_editor{session.overlays, m_views, m_views};
};

constexpr const char *confirmation = "confirm RemoveAllPhotosTitle RemoveAllPhotos|";

} // namespace

TEST_F(ListEditorTest, RemovalTakesThePhotoAndItsRow)
{
    const std::tuple<std::set<qint64>, const char *, const char *, const char *> cases[] = {
        {{1}, "023", "023", "reload|select 1|"},
        {{3}, "012", "012", "reload|select 2|"},
        {{}, "0123", "0123", ""},
        {{1, 2}, "03", "023", "reload|select 1|"}};
    for (const auto &[selection, left, rowsLeft, select] : cases) {
        begin(4);
        m_views.selection = selection;
        session.data.isSelectedPhotoChanged = false;
        int changes = 0;
        const auto heard = QObject::connect(&session.center, &TSNotificationCenter::overlaysChanged,
                                            [&changes] { ++changes; });
        m_editor.removePhotoAction();
        QObject::disconnect(heard);
        EXPECT_EQ(session.order(), left);
        EXPECT_EQ(rows(), rowsLeft);
        EXPECT_EQ(m_views.takeLog(), lines(select) + lines("no filling|start view|select rows"));
        EXPECT_TRUE(session.data.isSelectedPhotoChanged);
        EXPECT_EQ(changes, 1);
    }
}

TEST_F(ListEditorTest, RowsJoinAtTheirPhotosPlaceAndStrayNumbersChangeNothing)
{
    using Change = std::function<void(TSOverlayManager &)>;
    const std::pair<Change, const char *> cases[] = {
        {[](auto &overlays) { overlays.photoWillJoin(TSPhotoListObserver::atEnd, 2); }, "012342"},
        {[](auto &overlays) { overlays.photoWillJoin(0, 2); }, "201234"},
        {[](auto &overlays) { overlays.photoWillJoin(3, 2); }, "012234"},
        {[](auto &overlays) { overlays.photoWillJoin(5, -1); }, "01234"},
        {[](auto &overlays) { overlays.photoWasRemoved(5); }, "01234"},
        {[](auto &overlays) { overlays.photoWasMoved(4, 5); }, "01234"},
    };
    for (const auto &[change, expected] : cases) {
        begin(5);
        change(session.overlays);
        EXPECT_EQ(rows(), expected);
    }
}

TEST_F(ListEditorTest, TheOverlaysGoWithTheLastPhoto)
{
    begin(1);
    m_views.selection = {0};
    m_views.answer = false;
    m_editor.removePhotoAction();
    m_editor.removeAllPhotosAction();
    EXPECT_EQ(m_views.takeLog(), lines(confirmation) + lines(confirmation));
    EXPECT_EQ(session.order(), "0");
    EXPECT_EQ(session.overlays.overlayCount(), 2);

    m_views.answer = true;
    m_editor.removePhotoAction();
    EXPECT_EQ(m_views.takeLog(),
              lines(confirmation) + lines("reload|remove false|hide list|no selection|reload|no editing|"
                                          "update list|no filling|start view|select rows"));
    EXPECT_EQ(session.data.photoCount() + session.photos.photoCount() + session.overlays.overlayCount(), 0);
    EXPECT_FALSE(session.data.isRemoveAllPhotos);

    begin(3);
    m_editor.removeAllPhotosAction();
    EXPECT_EQ(m_views.takeLog(),
              lines(confirmation) + lines("no filling|no selection|reload|remove false|no editing|hide list|"
                                          "update list|start view"));
    EXPECT_EQ(session.data.photoCount() + session.photos.photoCount() + session.overlays.overlayCount(), 0);
    EXPECT_TRUE(session.data.isRemoveAllPhotos);
}

TEST_F(ListEditorTest, MovesCountPlacesBeforeTheMove)
{
    const std::tuple<std::set<qint64>, qint64, const char *> cases[] = {
        {{0}, 3, "12034"}, {{0}, 5, "12340"}, {{3}, 1, "03124"}, {{4}, 0, "40123"},
        {{2}, 2, "01234"}, {{2}, 3, "01234"}, {{9}, 1, "01234"}, {{}, 1, "01234"}};
    for (const auto &[from, to, order] : cases) {
        begin(5);
        session.photos.setSelectedPhoto(2);
        EXPECT_TRUE(m_editor.moveItemsAtIndexes(from, to));
        EXPECT_EQ(session.order(), order);
        EXPECT_EQ(rows(), order);
        EXPECT_EQ(session.photos.selectedPhoto(), 2) << "the strip's selection tells it";
    }
    begin(5);
    m_editor.moveItemsAtIndexes({1, 3}, 5);
    EXPECT_EQ(session.order(), "02413");
    EXPECT_EQ(m_editor.writeItemsAtIndexes({0, 4, 9}), lines("/photos/0.jpg|/photos/3.jpg"));
}

TEST_F(ListEditorTest, PhotosWithoutTheirFilesGoAndTheirRowsStay)
{
    const char *const alert = "alert Source don't exist delete no source file image";
    begin(4);
    for (qint64 i = 0; i < session.data.photoCount(); ++i)
        session.data.itemAtIndex(i)->path = session.photos.photoAtIndex(i)->path =
            session.write(QStringLiteral("%1.jpg").arg(i), "x");
    m_views.selection = {2};
    m_editor.removeItemsWithoutSource();
    EXPECT_EQ(m_views.takeLog(), QStringList());
    for (const char *const name : {"0.jpg", "2.jpg"})
        QFile::remove(session.path(QString::fromLatin1(name)));
    m_views.selection.clear();
    m_editor.removeItemsWithoutSource();
    EXPECT_EQ(session.order(), "0123") << "without a selection nothing is looked for";
    m_views.selection = {2};
    m_editor.removeItemsWithoutSource();
    EXPECT_EQ(session.order(), "13");
    EXPECT_EQ(rows(), "0123");
    EXPECT_EQ(m_views.takeLog(), lines("release|reload|select 1") + QStringList(QString::fromLatin1(alert)));

    QDir(session.folder.path()).removeRecursively();
    m_views.answer = false;
    m_editor.removeItemsWithoutSource();
    EXPECT_EQ(session.order(), "");
    EXPECT_EQ(session.overlays.overlayCount(), 2);
    EXPECT_EQ(m_views.takeLog(),
              lines("release") + lines(confirmation) + QStringList(QString::fromLatin1(alert)));
}
