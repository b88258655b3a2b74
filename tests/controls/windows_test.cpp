#include "controls/TSCheckBoxAlert.h"
#include "controls/TSPopover.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QCheckBox>
#include <QMainWindow>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

class WindowsTest : public testing::Test {
protected:
    WindowsTest()
    {
        window.setCentralWidget(new QWidget);
        window.addToolBar(QString())->setFixedHeight(50);
        window.setGeometry(40, 30, 600, 400);
        window.show();
        QApplication::processEvents();
    }

    TSCheckBoxAlert *alert(const char *alternate, const char *other)
    {
        auto *alert = TSCheckBoxAlert::alertWithMessageText(
            QStringLiteral("Sure?"), QStringLiteral("OK"), QString::fromLatin1(alternate),
            QString::fromLatin1(other), QStringLiteral("It cannot be undone."), &window);
        alert->open();
        QApplication::processEvents();
        return alert;
    }

    QMainWindow window;
};

} // namespace

TEST_F(WindowsTest, ASheetHangsFromItsWindowAndGoesWithIt)
{
    TSSheet sheet(&window);
    sheet.resize(300, 100);
    sheet.open();
    EXPECT_TRUE(sheet.isModal());
    EXPECT_EQ(sheet.pos(), window.mapToGlobal(QPoint(150, 50)));
    window.move(90, 60);
    window.resize(500, 400);
    QApplication::processEvents();
    EXPECT_EQ(sheet.pos(), window.mapToGlobal(QPoint(100, 50)));
    sheet.resize(200, 100);
    EXPECT_EQ(sheet.pos(), window.mapToGlobal(QPoint(150, 50)));
    const qsizetype children = window.children().size();
    const QSignalSpy rejected(&sheet, &QDialog::rejected);
    QTest::keyClick(&sheet, Qt::Key_Escape);
    EXPECT_EQ(rejected.count(), 1);
    EXPECT_EQ(window.children().size(), children - 1) << "the veil over the window is gone";
    auto shortLived = std::make_unique<TSSheet>(&window);
    shortLived->open();
    shortLived.reset();
    EXPECT_EQ(window.children().size(), children - 1);
}

TEST_F(WindowsTest, AnAlertAnswersByButton)
{
    const std::tuple<const char *, const char *, const char *, Qt::Key, int> rows[] = {
        {"Cancel", "", "defaultButton", Qt::Key_unknown, 1},
        {"Cancel", "", "alternateButton", Qt::Key_unknown, 0},
        {"Cancel", "Stop", "otherButton", Qt::Key_unknown, -1},
        {"Cancel", "", "", Qt::Key_Escape, 0},
        {"", "", "", Qt::Key_Escape, 1},
        {"Cancel", "Stop", "", Qt::Key_Return, 1},
    };
    for (const auto &[alternate, other, button, key, answer] : rows) {
        TSCheckBoxAlert *shown = alert(alternate, other);
        const QSignalSpy finished(shown, &QDialog::finished);
        if (key != Qt::Key_unknown)
            QTest::keyClick(shown, key);
        else
            QTest::mouseClick(shown->findChild<QPushButton *>(QLatin1String(button)), Qt::LeftButton);
        ASSERT_EQ(finished.count(), 1) << button;
        EXPECT_EQ(finished[0][0].toInt(), answer) << button;
        delete shown;
    }
    TSCheckBoxAlert *three = alert("Replace", "Stop");
    QTest::keyClick(three, Qt::Key_Escape);
    EXPECT_TRUE(three->isVisible()) << "nobody has said which of the three gives up";
    three->setEscapeAnswer(TSCheckBoxAlert::OtherReturn);
    QTest::keyClick(three, Qt::Key_Escape);
    EXPECT_EQ(three->result(), -1);
}

TEST_F(WindowsTest, AnAlertsBoxStandsBelowItsTextAndIsThereOnlyIfShown)
{
    TSCheckBoxAlert *shown = alert("Cancel", "");
    shown->setCheckboxState(1);
    EXPECT_EQ(shown->checkboxState(), -1);
    EXPECT_TRUE(shown->checkboxText().isNull());
    const int height = shown->sizeHint().height();
    shown->setShowsCheckbox(true);
    shown->setCheckboxText(QStringLiteral("Not again"));
    QApplication::processEvents();
    const auto *box = shown->findChild<QCheckBox *>();
    const auto *text = shown->findChild<QWidget *>(QStringLiteral("informativeText"));
    EXPECT_EQ(box->geometry().top() - text->geometry().bottom() - 1, 14);
    EXPECT_EQ(box->x(), text->x());
    EXPECT_EQ(shown->sizeHint().height(), height + box->height() + 14);
    EXPECT_EQ(shown->checkboxState(), 0);
    shown->setCheckboxState(1);
    EXPECT_EQ(shown->checkboxState(), 1);
    shown->setShowsCheckbox(false);
    QApplication::processEvents();
    EXPECT_EQ(shown->sizeHint().height(), height);
    EXPECT_EQ(shown->checkboxState(), -1);
}

TEST_F(WindowsTest, APopoverClosesByEscapeAndByAClickElsewhere)
{
    QPushButton anchor(&window);
    anchor.setGeometry(200, 100, 80, 30);
    anchor.show();
    TSPopover popover;
    auto *content = new QWidget;
    content->setFixedSize(150, 80);
    auto *inside = new QPushButton(content);
    popover.setContent(content);
    const QSignalSpy closed(&popover, &TSPopover::popoverDidClose);
    const QSignalSpy clicked(&anchor, &QPushButton::clicked);
    popover.showRelativeTo(&anchor);
    EXPECT_TRUE(popover.isVisible());
    EXPECT_EQ(content->size(), QSize(150, 80));
    EXPECT_EQ(popover.focusWidget(), inside);
    EXPECT_EQ(popover.geometry().center().x(), anchor.mapToGlobal(anchor.rect().center()).x());
    EXPECT_GE(content->mapToGlobal(QPoint()).y(), anchor.mapToGlobal(QPoint(0, 30)).y());
    QTest::keyClick(&popover, Qt::Key_Escape);
    EXPECT_EQ(closed.count(), 1);
    popover.showRelativeTo(&anchor);
    QTest::mouseClick(popover.windowHandle(), Qt::LeftButton, {}, QPoint(-100, -20));
    EXPECT_FALSE(popover.isVisible());
    EXPECT_EQ(closed.count(), 2);
    EXPECT_EQ(clicked.count(), 0);
}
