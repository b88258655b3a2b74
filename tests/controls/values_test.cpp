#include "controls/TSBusyBar.h"
#include "controls/TSNumberField.h"
#include "controls/TSSegmentedControl.h"
#include "controls/TSStepper.h"
#include "controls/TSValueTrio.h"

#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QApplication>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

namespace {

class TrioTest : public testing::Test {
protected:
    TrioTest()
    {
        trio.resize(320, 30);
        trio.show();
        QApplication::setActiveWindow(&trio);
    }

    /// Types into the emptied field and answers what it shows then.
    std::string typed(const char *text)
    {
        trio.field()->clear();
        QTest::keyClicks(trio.field(), QString::fromLatin1(text));
        return trio.field()->text().toStdString();
    }

    TSValueTrio trio{QStringLiteral("Opacity"), QStringLiteral("Opacity"), TSValueTrio::Parts::WithSlider};
    QSignalSpy changes{&trio, &TSValueTrio::valueChanged};
};

} // namespace

TEST_F(TrioTest, CorrectsTheFieldWithEachKey)
{
    const std::tuple<int, int, const char *, const char *, int> rows[] = {
        {1, 9999, "12a", "12", 12},
        {1, 9999, "a", "1", 1},
        {1, 9999, "99999", "9999", 9999},
        {1, 1000, "1001", "1000", 1000},
        {1, 100, "0", "1", 1},
        {1, 100, "-5", "15", 15},
        {0, 100, "007", "7", 7},
        {-5000, 5000, "-", "-", 42},
        {-5000, 5000, "-12", "-12", -12},
        {-5000, 5000, "-9999", "-5000", -5000},
        {0, 100, "99999999999999", "100", 100},
        {0, 100, "", "", 42},
    };
    for (const auto &[minimum, maximum, keys, text, value] : rows) {
        trio.setRange(minimum, maximum);
        trio.setValue(42);
        EXPECT_EQ(typed(keys), text) << keys;
        EXPECT_EQ(trio.value(), value) << keys;
        EXPECT_EQ(trio.slider()->value(), value) << keys;
        EXPECT_EQ(trio.field()->value(), value) << keys;
    }
}

TEST_F(TrioTest, ReportsEveryChangeOnce)
{
    trio.setValue(10);
    trio.setRange(5, 50);
    EXPECT_EQ(changes.count(), 0) << "only the user's changes are news";
    QTest::keyClick(trio.slider(), Qt::Key_Right);
    QTest::keyClick(trio.stepper(), Qt::Key_Up);
    QTest::keyClick(trio.field(), Qt::Key_Down);
    QTest::mouseClick(trio.stepper(), Qt::LeftButton, {}, {8, 4});
    QTest::mouseClick(trio.stepper(), Qt::LeftButton, {}, {8, 24});
    QList<int> values;
    for (const QVariantList &change : changes)
        values += change[0].toInt();
    EXPECT_EQ(values, (QList<int>{11, 12, 11, 12, 11}));
    EXPECT_EQ(trio.field()->text(), QStringLiteral("11"));
    trio.setValue(50);
    QTest::keyClick(trio.stepper(), Qt::Key_Up);
    QTest::keyClick(trio.field(), Qt::Key_Up);
    EXPECT_EQ(changes.count(), 5) << "nothing is above the top";
    EXPECT_EQ(trio.value(), 50);
}

TEST_F(TrioTest, GoesRoundWhereAnglesDo)
{
    trio.setRange(0, 359);
    trio.setCircular(true);
    trio.setValue(0);
    QTest::keyClick(trio.stepper(), Qt::Key_Down);
    EXPECT_EQ(trio.value(), 359);
    QTest::keyClick(trio.stepper(), Qt::Key_Up);
    EXPECT_EQ(trio.value(), 0);
    EXPECT_EQ(typed("360"), "0") << "not 359: settled";
}

TEST_F(TrioTest, StepsOnWhileHeld)
{
    QTest::mousePress(trio.stepper(), Qt::LeftButton, {}, {8, 4});
    EXPECT_TRUE(QTest::qWaitFor([this] { return trio.value() >= 3; }, 120000));
    QTest::mouseRelease(trio.stepper(), Qt::LeftButton, {}, {8, 4});
    const int held = trio.value();
    QTest::qWait(150);
    EXPECT_EQ(trio.value(), held);
}

TEST(Segments, OneIsOnAndTheArrowsMoveIt)
{
    TSSegmentedControl control(TSSegmentedControl::Selection::One);
    for (const char *title : {"Batch", "Adjust", "Other"})
        control.addSegment(QString::fromLatin1(title));
    const QSignalSpy changes(&control, &TSSegmentedControl::segmentChanged);
    control.setSelected(0);
    EXPECT_EQ(changes.count(), 0);
    control.show();
    QApplication::setActiveWindow(&control);
    QTest::mouseClick(control.segment(1), Qt::LeftButton);
    QTest::mouseClick(control.segment(1), Qt::LeftButton);
    control.segment(1)->setFocus();
    QTest::keyClick(control.segment(1), Qt::Key_Right);
    EXPECT_EQ(control.selectedSegment(), 2);
    EXPECT_EQ(changes.count(), 2);
    control.setSegmentEnabled(0, false);
    QTest::mouseClick(control.segment(0), Qt::LeftButton);
    EXPECT_EQ(control.selectedSegment(), 2);
}

TEST(Segments, AnyMayBeOn)
{
    TSSegmentedControl control(TSSegmentedControl::Selection::Any);
    control.addSegment(TSIcon::Name::Bold, QStringLiteral("Bold"));
    control.addSegment(TSIcon::Name::Italic, QStringLiteral("Italic"));
    const QSignalSpy changes(&control, &TSSegmentedControl::segmentChanged);
    for (const int segment : {0, 1, 0})
        QTest::mouseClick(control.segment(segment), Qt::LeftButton);
    EXPECT_FALSE(control.isSelected(0));
    EXPECT_TRUE(control.isSelected(1));
    EXPECT_EQ(changes.last(), (QVariantList{0, false}));
    EXPECT_EQ(control.segment(1)->accessibleName(), QStringLiteral("Italic"));
}

/// How far things are nobody can tell, and so the bar never looks as if all were done.
TEST(BusyBarTest, BeginsEmptyAndIsNeverFull)
{
    TSBusyBar bar;
    bar.setRange(0, 0);
    bar.resize(200, 8);
    const auto filled = [&bar] {
        const QImage shown = bar.grab().toImage();
        int count = 0;
        for (int x = 0; x < shown.width(); ++x)
            count += shown.pixelColor(x, shown.height() / 2) == bar.palette().color(QPalette::Highlight);
        return double(count) / shown.width();
    };
    EXPECT_EQ(filled(), 0);
    bar.show();
    double most = 0;
    for (int look = 0; look < 20; ++look) {
        QTest::qWait(30);
        most = std::max(most, filled());
    }
    EXPECT_GT(most, 0.1);
    EXPECT_LT(most, 0.4);
}
