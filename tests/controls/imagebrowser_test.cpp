#include "controls/TSImageBrowserView.h"

#include <gtest/gtest.h>
#include <QAccessible>
#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <set>

namespace {

class Photos : public TSImageBrowserDataSource {
public:
    int numberOfItemsInImageBrowser() const override { return count; }
    QString imageTitle(int index) const override { return QString::number(index); }
    QString imageDescription(int index) const override { return QStringLiteral("photo %1").arg(index); }
    QString resourcePath(int index) const override { return QStringLiteral("/p/%1.jpg").arg(index); }
    QImage thumbnail(int index, const QSize &) override
    {
        asked.insert(index);
        return isDecoded ? picture : QImage();
    }

    int count = 5000;
    bool isDecoded = true;
    std::set<int> asked;
    QImage picture = [] {
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::red);
        return image;
    }();
};

class BrowserTest : public testing::Test {
protected:
    BrowserTest() { show(strip, {730, 150}); }

    void show(TSImageBrowserView &view, const QSize &size)
    {
        view.setDataSource(&photos);
        view.resize(size);
        view.show();
        view.reloadData();
        QApplication::processEvents();
    }
    void wheel(QPoint angle)
    {
        QWheelEvent event(QPointF(5, 5), strip.mapToGlobal(QPointF(5, 5)), {}, angle, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(strip.viewport(), &event);
    }
    Qt::DropAction drop(TSImageBrowserView &view, const QMimeData &data, int x)
    {
        const QPoint point(x, 60);
        QDragEnterEvent enter(point, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(view.viewport(), &enter);
        QDropEvent drop(point, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(view.viewport(), &drop);
        return drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
    }
    QPoint centerOf(TSImageBrowserView &view, int index)
    {
        return view.visualRect(view.model()->index(index, 0)).center();
    }

    Photos photos;
    TSImageBrowserView strip{TSImageBrowserView::Arrangement::Strip};
};

} // namespace

TEST(BrowserCell, PlacesItsParts)
{
    const TSImageBrowserCell cell(QRectF(100, 50, 130, 118));
    EXPECT_EQ(cell.imageContainerFrame(), QRectF(100, 50, 130, 103));
    EXPECT_EQ(cell.imageFrame({}), QRectF(108, 58, 114, 87));
    EXPECT_EQ(cell.imageFrame({600, 300}), QRectF(108, 73, 114, 57));
    EXPECT_EQ(cell.imageFrame({10, 30}), QRectF(150.5, 58, 29, 87));
    EXPECT_EQ(cell.titleFrame().bottomLeft(), QPointF(107, 164));
    EXPECT_EQ(cell.selectionFrame(), QRectF(95, 45, 140, 121));
}

TEST_F(BrowserTest, AsksOnlyForWhatIsSeen)
{
    EXPECT_LE(*photos.asked.rbegin(), 7);
    photos.asked.clear();
    strip.scrollIndexToVisible(4000);
    strip.grab();
    EXPECT_LE(photos.asked.size(), 8u);
    EXPECT_EQ(photos.asked.count(4000), 1u);
    EXPECT_TRUE(strip.viewport()->rect().contains(centerOf(strip, 4000)));
}

TEST_F(BrowserTest, ShowsAPictureThatComesLate)
{
    photos.isDecoded = false;
    strip.reloadData();
    EXPECT_NE(strip.grab().toImage().pixelColor(centerOf(strip, 1) - QPoint(0, 8)), QColor(Qt::red));
    photos.isDecoded = true;
    strip.thumbnailDidChange(1);
    QApplication::processEvents();
    EXPECT_EQ(strip.grab().toImage().pixelColor(centerOf(strip, 1) - QPoint(0, 8)), QColor(Qt::red));
}

TEST_F(BrowserTest, GoesByKeys)
{
    const QSignalSpy removed(&strip, &TSImageBrowserView::removeItemsAtIndex);
    const QSignalSpy changed(&strip, &TSImageBrowserView::selectionDidChange);
    const std::pair<Qt::Key, int> steps[] = {
        {Qt::Key_Left, 0},   {Qt::Key_Right, 1},    {Qt::Key_Down, 2},      {Qt::Key_Up, 1},
        {Qt::Key_End, 4999}, {Qt::Key_Right, 4999}, {Qt::Key_PageUp, 4994}, {Qt::Key_Home, 0},
        {Qt::Key_Delete, 0}, {Qt::Key_Backspace, 0}};
    ASSERT_EQ(strip.selectedIndex(), 0);
    for (const auto &[key, expected] : steps) {
        QTest::keyClick(&strip, key);
        EXPECT_EQ(strip.selectedIndex(), expected) << key;
        EXPECT_TRUE(strip.viewport()->rect().contains(centerOf(strip, expected)));
    }
    EXPECT_EQ(removed.count(), 2);
    EXPECT_EQ(changed.count(), 6);
    EXPECT_EQ(changed.last().first().toInt(), 0);
}

TEST_F(BrowserTest, GoesByRowsInAGrid)
{
    TSImageBrowserView grid(TSImageBrowserView::Arrangement::Grid);
    photos.count = 10;
    grid.setCellSize({100, 100});
    grid.setIntercellSpacing({0, 0});
    show(grid, {430, 320});
    const std::pair<Qt::Key, int> steps[] = {{Qt::Key_Down, 4},  {Qt::Key_Down, 8}, {Qt::Key_Down, 8},
                                             {Qt::Key_Right, 9}, {Qt::Key_Up, 5},   {Qt::Key_Up, 1},
                                             {Qt::Key_Up, 1},    {Qt::Key_End, 9}};
    for (const auto &[key, expected] : steps) {
        QTest::keyClick(&grid, key);
        EXPECT_EQ(grid.selectedIndex(), expected) << key;
    }
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, {250, 150});
    EXPECT_EQ(grid.selectedIndex(), 6);
    grid.setSelectsWithArrows(false);
    QTest::keyClick(&grid, Qt::Key_Left);
    EXPECT_EQ(grid.selectedIndex(), 6);
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_EQ(grid.selectedIndex(), 5);
}

TEST_F(BrowserTest, KeepsOneSelectedUnlessNoneIsAllowed)
{
    strip.setSelectedIndex(2);
    strip.setSelectedIndex(-1);
    QTest::mouseClick(strip.viewport(), Qt::LeftButton, Qt::ControlModifier, centerOf(strip, 2));
    QTest::mouseClick(strip.viewport(), Qt::LeftButton, {}, {2, 2});
    EXPECT_EQ(strip.selectedIndex(), 2);
    QTest::mouseClick(strip.viewport(), Qt::LeftButton, Qt::ShiftModifier, centerOf(strip, 4));
    EXPECT_EQ(strip.selectionModel()->selectedIndexes().size(), 1);
    strip.setAllowsEmptySelection(true);
    strip.setSelectedIndex(-1);
    EXPECT_EQ(strip.selectedIndex(), -1);
}

TEST_F(BrowserTest, ReloadsAroundTheSelection)
{
    strip.setSelectedIndex(7);
    const QSignalSpy changed(&strip, &TSImageBrowserView::selectionDidChange);
    photos.count = 20;
    strip.horizontalScrollBar()->setValue(1500);
    strip.reloadData();
    EXPECT_EQ(strip.horizontalScrollBar()->value(), 1500);
    EXPECT_EQ(strip.selectedIndex(), 7);
    EXPECT_EQ(changed.count(), 0);
    photos.count = 5;
    strip.grab(); // the source has shrunk, and nobody has said so yet
    strip.reloadData();
    EXPECT_EQ(strip.selectedIndex(), 4);
    photos.count = 0;
    strip.reloadData();
    ASSERT_EQ(changed.count(), 2);
    EXPECT_EQ(changed[0][0].toInt(), 4);
    EXPECT_EQ(changed[1][0].toInt(), -1);
}

TEST_F(BrowserTest, TurnsTheWheelIntoStepsOfACell)
{
    QScrollBar *bar = strip.horizontalScrollBar();
    wheel({0, 120});
    EXPECT_EQ(bar->value(), 130);
    wheel({0, 15});
    EXPECT_EQ(bar->value(), 260);
    wheel({0, -120});
    EXPECT_EQ(bar->value(), 130);
}

TEST_F(BrowserTest, TakesFilesAtAPlace)
{
    const QSignalSpy dropped(&strip, &TSImageBrowserView::filesDropped);
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile("/a.jpg"), QUrl::fromLocalFile("/b.jpg")});
    const std::pair<int, int> places[] = {{0, 0}, {70, 0}, {90, 1}, {210, 1}, {230, 2}, {700, 5}};
    for (const auto &[x, index] : places) {
        EXPECT_EQ(drop(strip, files, x), Qt::CopyAction) << "the files stay where they are";
        EXPECT_EQ(dropped.last()[0].value<QList<QUrl>>().size(), 2);
        EXPECT_EQ(dropped.last()[1].toInt(), index) << x;
        EXPECT_EQ(strip.indexAtLocationOfDroppedItem(), index);
    }
    QMimeData text;
    text.setText("no file");
    QDragEnterEvent enter(QPoint(70, 60), Qt::CopyAction, &text, Qt::LeftButton, {});
    QApplication::sendEvent(strip.viewport(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(BrowserTest, MovesAPhotoWithinItselfAndHandsItsFileToOthers)
{
    const QSignalSpy moved(&strip, &TSImageBrowserView::moveItemAtIndex);
    const QSignalSpy dropped(&strip, &TSImageBrowserView::filesDropped);
    const std::unique_ptr<QMimeData> photo(strip.model()->mimeData({strip.model()->index(2, 0)}));
    EXPECT_EQ(photo->urls(), QList<QUrl>{QUrl::fromLocalFile("/p/2.jpg")});
    // Photo 2 lies from 290 to 420: the gaps beside it are its own place.
    for (const int x : {0, 220, 300, 400, 470, 700})
        drop(strip, *photo, x);
    QList<int> targets;
    for (const QVariantList &move : moved) {
        EXPECT_EQ(move[0].toInt(), 2);
        targets += move[1].toInt();
    }
    EXPECT_EQ(targets, (QList<int>{0, 5}));
    EXPECT_EQ(dropped.count(), 0);
    TSImageBrowserView other(TSImageBrowserView::Arrangement::Strip);
    show(other, {730, 150});
    const QSignalSpy taken(&other, &TSImageBrowserView::filesDropped);
    drop(other, *photo, 0);
    EXPECT_EQ(taken.count(), 1) << "for another list it is a file like any other";
}

TEST_F(BrowserTest, IsAListToAssistiveProgramsAndShowsTips)
{
    photos.count = 3;
    strip.reloadData();
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(&strip);
    ASSERT_TRUE(list && list->childCount() == 3);
    EXPECT_EQ(list->child(2)->text(QAccessible::Name), QStringLiteral("2"));
    const QModelIndex index = strip.model()->index(1, 0);
    EXPECT_EQ(index.data(Qt::ToolTipRole).toString(), QStringLiteral("photo 1"));
    strip.setIsTip(false);
    EXPECT_FALSE(index.data(Qt::ToolTipRole).isValid());
}
