#include "controls/TSTokenField.h"
#include "controls/TSTokenMimeData.h"
#include "controls/TSTokenPill.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

namespace {

TSFieldToken token(const char *title, int object = 1)
{
    return {QString::fromLatin1(title), {QStringLiteral("0"), QStringLiteral("00")}, object};
}

class TokenFieldTest : public testing::Test {
protected:
    TokenFieldTest()
    {
        field.resize(400, 28);
        field.show();
        QApplication::setActiveWindow(&field);
        field.setFocus();
        field.setParts({token("Name"), QStringLiteral("_x")});
        QApplication::processEvents();
    }

    /// The content with tokens in brackets, parts divided by bars.
    static std::string told(const TSTokenField &field)
    {
        QStringList pieces;
        for (const TSFieldPart &part : field.parts()) {
            const auto *token = std::get_if<TSFieldToken>(&part);
            pieces += token ? QStringLiteral("[%1]").arg(token->title) : std::get<QString>(part);
        }
        return pieces.join(u'|').toStdString();
    }
    QMenu *menu() { return field.findChild<QMenu *>(QStringLiteral("tokenMenu")); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&field, key, modifiers); }

    TSTokenField field;
    QSignalSpy changes{&field, &TSTokenField::partsChanged};
    QSignalSpy choices{&field, &TSTokenField::tokenMenuChosen};
};

} // namespace

TEST_F(TokenFieldTest, ReadsBackWhatWasSetAndSaysNothing)
{
    const std::pair<TSFieldParts, const char *> table[] = {
        {{}, ""},
        {{token("A"), token("B")}, "[A]|[B]"},
        {{QStringLiteral("a"), QString(), QStringLiteral("b"), token("C")}, "ab|[C]"},
        {{QStringLiteral("two\nlines"), token("C"), QStringLiteral(", ©")}, "two\nlines|[C]|, ©"},
        {{QStringLiteral("a\uFFFCb")}, "ab"},
    };
    for (const auto &[parts, expected] : table) {
        field.setParts(parts);
        EXPECT_EQ(told(field), expected);
    }
    EXPECT_EQ(changes.count(), 0);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(told(field), "ab") << "there is nothing to undo";
}

TEST_F(TokenFieldTest, TakesTextOnEitherSideOfAToken)
{
    key(Qt::Key_Home);
    QTest::keyClicks(&field, "a");
    EXPECT_EQ(told(field), "a|[Name]|_x");
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    QTest::keyClicks(&field, "b,c");
    EXPECT_EQ(told(field), "a|[Name]|b,c_x");
    EXPECT_EQ(changes.count(), 4) << "one for each key";
    field.setParts({token("Name")});
    QTest::keyClicks(&field, "behind");
    EXPECT_EQ(told(field), "[Name]|behind");
}

TEST_F(TokenFieldTest, SelectsAndDeletesTokensWhole)
{
    key(Qt::Key_Home);
    key(Qt::Key_Right);
    EXPECT_EQ(field.textCursor().selectionEnd() - field.textCursor().selectionStart(), 1);
    key(Qt::Key_Backspace);
    EXPECT_EQ(told(field), "_x");
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(told(field), "[Name]|_x");
    EXPECT_EQ(changes.count(), 2);
    field.setParts({QStringLiteral("a"), token("Name")});
    key(Qt::Key_Backspace);
    EXPECT_EQ(told(field), "a");
}

TEST_F(TokenFieldTest, OpensTheMenuOfASelectedToken)
{
    for (const Qt::Key opener : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Down}) {
        field.setParts({token("Name", 7), QStringLiteral("_x")});
        key(Qt::Key_Home);
        key(Qt::Key_Right);
        key(opener);
        ASSERT_TRUE(menu() && menu()->isVisible()) << opener;
        QTest::keyClick(menu(), Qt::Key_Down);
        QTest::keyClick(menu(), Qt::Key_Down);
        QTest::keyClick(menu(), Qt::Key_Return);
        ASSERT_FALSE(choices.isEmpty());
        EXPECT_EQ(choices.takeFirst(), (QVariantList{7, 1}));
        EXPECT_EQ(told(field), "[Name]|_x") << "the choice never shows in the field";
    }
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(TokenFieldTest, OpensTheMenuByAClick)
{
    QTest::mouseClick(field.viewport(), Qt::LeftButton, {}, {20, 14});
    ASSERT_TRUE(menu() && menu()->isVisible());
    QTest::mouseClick(menu(), Qt::LeftButton, {}, menu()->actionGeometry(menu()->actions()[0]).center());
    ASSERT_EQ(choices.count(), 1);
    EXPECT_EQ(choices[0], (QVariantList{1, 0}));
    QTest::mouseClick(field.viewport(), Qt::LeftButton, {}, {300, 14});
    EXPECT_FALSE(menu()->isVisible());
    field.setParts({TSFieldToken{QStringLiteral("Plain"), {}, 3}});
    QTest::mouseClick(field.viewport(), Qt::LeftButton, {}, {20, 14});
    EXPECT_FALSE(menu()->isVisible()) << "this token offers nothing";
}

TEST_F(TokenFieldTest, CopiesTokensWithinTheProgramAndTextToOthers)
{
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Name_x"));
    key(Qt::Key_End);
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(told(field), "[Name]|_x|[Name]|_x");
    QApplication::clipboard()->setText(QStringLiteral("p\r\nq"));
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(told(field), "[Name]|_x|[Name]|_xp\nq");
    EXPECT_EQ(field.document()->blockCount(), 1);
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(TokenFieldTest, TakesTokensFromAPalette)
{
    const TSTokenMimeData dragged({token("Number", 9)});
    QDragEnterEvent enter({200, 14}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QApplication::sendEvent(field.viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(field.cursorRect().right() + 50, 14), Qt::CopyAction, &dragged, Qt::LeftButton,
                    {});
    QApplication::sendEvent(field.viewport(), &drop);
    EXPECT_EQ(told(field), "[Name]|_x|[Number]");
    TSTokenPill pill(token("Date", 4));
    QObject::connect(&pill, &TSTokenPill::activated, &field,
                     [&](const TSFieldToken &token) { field.insertParts({token}); });
    QTest::mouseClick(&pill, Qt::LeftButton);
    QTest::mouseDClick(&pill, Qt::LeftButton);
    QTest::mouseRelease(&pill, Qt::LeftButton);
    EXPECT_EQ(told(field), "[Name]|_x|[Number]|[Date]");
    EXPECT_EQ(std::get<TSFieldToken>(field.parts().back()).object, QVariant(4));
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(TokenFieldTest, KeepsLettersOnOneLineWithTokens)
{
    const auto heightOf = [&](const TSFieldParts &parts) {
        field.setParts(parts);
        return field.document()->size().height();
    };
    EXPECT_EQ(heightOf({QStringLiteral("Text")}), heightOf({token("Name"), QStringLiteral("Text")}));
    EXPECT_LE(field.document()->size().height(), field.viewport()->height());
    // A token stands where it stands, whatever follows it.
    const auto pictureOfToken = [&](const TSFieldParts &parts) {
        field.setParts(parts);
        return field.grab({0, 0, 40, field.height()}).toImage();
    };
    EXPECT_EQ(pictureOfToken({token("Name")}), pictureOfToken({token("Name"), QStringLiteral("g")}));
}
