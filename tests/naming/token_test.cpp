#include "naming/TSDateCreatedToken.h"
#include "naming/TSDateModifiedToken.h"
#include "naming/TSDateShootingToken.h"
#include "naming/TSNameToken.h"
#include "naming/TSNumberToken.h"
#include "naming/TSTimeShootingToken.h"
#include "naming/TSTokenClasses.h"
#include "platform/archive/KeyedArchive.h"
#include "session/TSNotificationCenter.h"

#include <gtest/gtest.h>

namespace {

/// Counts what tokens tell the session.
class TokenTest : public testing::Test {
protected:
    TokenTest()
    {
        QObject::connect(&m_center, &TSNotificationCenter::TSExampleTextChange,
                         [this] { ++m_exampleChanges; });
        QObject::connect(&m_center, &TSNotificationCenter::TSWildcardFormat, [this] { ++m_wildcardChanges; });
    }

    TSNotificationCenter m_center;
    int m_exampleChanges = 0;
    int m_wildcardChanges = 0;
};

std::shared_ptr<TSToken> passOn(const std::shared_ptr<TSToken> &token)
{
    const QByteArray archive = platform::archiveRootObject(token);
    const auto value = platform::unarchive(archive, tokenClasses());
    return value ? value->toObject<TSToken>() : nullptr;
}

const QDateTime kMoment(QDate(2024, 3, 31), QTime(1, 5, 9), QTimeZone::utc());

} // namespace

TEST_F(TokenTest, NameChangesAddUpAndGoBack)
{
    TSNameToken token;
    const std::pair<int, const char16_t *> choices[] = {
        {1, u"name"}, {2, u"NAME"}, {7, u"NAME"}, {0, u"Model"}, {2, u"MODEL"}};
    for (const auto &[item, showName] : choices) {
        if (item == 0)
            token.setName(QStringLiteral("Model"));
        token.editCellAction(item);
        EXPECT_EQ(token.showName(), QString::fromUtf16(showName));
    }
    EXPECT_EQ(m_exampleChanges, 4);
    token.setUsingLocal(1);
    token.editCellAction(0);
    EXPECT_EQ(m_exampleChanges, 5) << "the pattern is told of it even from among the words of a text";
    EXPECT_EQ(m_wildcardChanges, 0);
}

TEST_F(TokenTest, DatesReadAsExamplesAndExpandByIndex)
{
    const auto expansions = [](TSDateTimeToken &token) {
        QStringList list;
        for (int item = 0; item < token.tokenMenu().size(); ++item) {
            token.editCellAction(item);
            EXPECT_EQ(token.showName(), token.tokenMenu()[item]);
            list += token.text(kMoment, QTimeZone::utc()).value_or(QStringLiteral("nothing"));
        }
        return list.join(u'|');
    };
    TSDateCreatedToken created;
    TSDateModifiedToken modified;
    TSDateShootingToken shot;
    TSTimeShootingToken time;
    for (TSDateTimeToken *token : std::initializer_list<TSDateTimeToken *>{&created, &modified, &shot})
        EXPECT_EQ(expansions(*token), QStringLiteral("Mar 31, 2024|03 31|03-31-2024|03/31/2024"))
            << token->name().toStdString();
    EXPECT_EQ(expansions(time), QStringLiteral("01:05:09|01 05|01-05-09|01/05/09"));
    EXPECT_EQ(time.text(QDateTime()), QString());
    for (const qint64 index : {qint64(-1), qint64(4)}) {
        time.setIndex(index);
        EXPECT_FALSE(time.text(kMoment));
    }
    EXPECT_EQ(m_exampleChanges, 16);
    created.setUsingLocal(1);
    created.editCellAction(1);
    EXPECT_EQ(m_wildcardChanges, 1);
    created.setUsingLocal(2);
    created.editCellAction(1);
    EXPECT_EQ(m_exampleChanges + m_wildcardChanges, 17) << "elsewhere nobody is told";
}

TEST_F(TokenTest, ArchivesKeepEveryClassAndName)
{
    const std::pair<std::shared_ptr<TSToken>, const char *> tokens[] = {
        {TSNameToken::createNameToken(), "TSNameToken Name"},
        {TSNumberToken::createNumberToken(), "TSNumberToken Number"},
        {TSDateCreatedToken::createDateCreatedToken(), "TSDateCreatedToken C_DATE"},
        {TSDateModifiedToken::createDateModifiedToken(), "TSDateModifiedToken M_DATE"},
        {TSDateShootingToken::createDateShootingToken(), "TSDateShootingToken DATE"},
        {TSTimeShootingToken::createTimeShootingToken(), "TSTimeShootingToken TIME"}};
    for (const auto &[token, identity] : tokens) {
        token->setUsingLocal(1);
        token->setShowName(QStringLiteral("shown"));
        const auto copy = passOn(token);
        ASSERT_TRUE(copy) << identity;
        EXPECT_EQ(copy->classChain(), token->classChain());
        EXPECT_EQ(copy->classChain().first() + u' ' + copy->name(), QString::fromLatin1(identity));
        EXPECT_EQ(copy->showName(), QStringLiteral("shown"));
        EXPECT_EQ(copy->usingLocal(), 1);
        // The entries show the time of day, which may move on between the two.
        EXPECT_EQ(copy->tokenMenu().size(), token->tokenMenu().size())
            << "made afresh, whatever the archive holds";
    }
}

TEST_F(TokenTest, ArchivesKeepTheVariantOfADate)
{
    auto token = TSDateShootingToken::createDateShootingToken();
    // An archive of the first variant holds what all archives once held.
    for (const auto &[archived, read] : {std::pair<qint64, qint64>(2, 2), {0, 0}, {7, 0}, {-1, 0}}) {
        token->setIndex(archived);
        const auto copy = std::dynamic_pointer_cast<TSDateTimeToken>(passOn(token));
        ASSERT_TRUE(copy);
        EXPECT_EQ(copy->index(), read) << archived;
        EXPECT_EQ(copy->showName(), token->showName());
        EXPECT_TRUE(copy->dateArray().isEmpty());
        copy->editCellAction(3);
        EXPECT_EQ(copy->showName(), QString()) << "the renderings are gone";
        EXPECT_EQ(copy->text(kMoment, QTimeZone::utc()), QStringLiteral("03/31/2024"));
    }
}
