#include "naming/TSDateShootingToken.h"
#include "naming/TSNamePattern.h"
#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"
#include "session/TSPhoto.h"
#include "session/TSPhotoManager.h"

#include <gtest/gtest.h>

namespace {

class NamePatternTest : public testing::Test {
protected:
    NamePatternTest()
    {
        QObject::connect(&m_center, &TSNotificationCenter::TSOutputSizeOrNameChanged,
                         [this] { ++m_changes; });
    }

    void addPhoto(const char *path)
    {
        auto item = std::make_shared<TSImageBrowserItem>();
        item->path = QString::fromUtf8(path);
        item->fileAttributesDic = {
            {TSFileAttribute::CreationDate.toString(), QDateTime(QDate(2023, 12, 31), QTime(9, 0))},
            {TSFileAttribute::ModificationDate.toString(), QDateTime(QDate(2024, 2, 29), QTime(9, 0))}};
        m_session.addItem(item);
        auto photo = std::make_shared<TSPhoto>();
        photo->index = m_session.photoCount() - 1;
        photo->path = item->path;
        m_photos.addPhoto(photo);
    }

    QString names(const std::vector<TSTokenValue> &pattern)
    {
        m_pattern.setObjectValue(pattern);
        m_pattern.exportImageNames();
        return m_session.exportNames.join(u'|');
    }

    TSNotificationCenter m_center;
    TSDataManager m_session;
    TSPhotoManager m_photos;
    TSNamePattern m_pattern;
    int m_changes = 0;
};

} // namespace

TEST_F(NamePatternTest, ExpandsEveryTokenForEveryPhoto)
{
    for (const char *path : {"/p/b.jpg", "/p/Photo.1.JPG", "/p/.hidden", "/p.q/straße"})
        addPhoto(path);
    auto name = TSNameToken::createNameToken();
    auto number = TSNumberToken::createNumberToken();
    auto created = TSDateCreatedToken::createDateCreatedToken();
    auto modified = TSDateModifiedToken::createDateModifiedToken();
    const auto reads = [](auto &token, const char *showName) {
        token->setShowName(showName);
        return token;
    };
    EXPECT_EQ(names({name}), "b|Photo||straße");
    EXPECT_EQ(names({reads(name, "NAME")}), "B|PHOTO||STRASSE");
    EXPECT_EQ(names({reads(name, "naMe"), "/", reads(number, "01")}), "b/01|Photo/02|/03|straße/04");
    EXPECT_EQ(names({reads(number, "11"), "x"}), "x|x|x|x");
    EXPECT_EQ(m_session.numberToken, 4) << "counted though it expands to nothing";
    created->setIndex(3);
    modified->setIndex(2);
    EXPECT_EQ(names({created, modified, TSDateShootingToken::createDateShootingToken()}).section(u'|', 0, 0),
              "12/31/202302-29-2024");
    created->setIndex(4);
    EXPECT_EQ(names({created, name, name}).section(u'|', 0, 0), "bb");
    EXPECT_EQ(m_session.createdDateToken, 4);
    EXPECT_EQ(m_session.nameToken, 8);
    EXPECT_EQ(m_session.modifiedDateToken, 0);
}

TEST_F(NamePatternTest, NeverCutsANumber)
{
    for (int i = 0; i < 101; ++i)
        addPhoto("/p/a.jpg");
    auto number = TSNumberToken::createNumberToken();
    number->editCellAction(1);
    names({number});
    EXPECT_EQ(m_session.exportNames.first(), "01");
    EXPECT_EQ(m_session.exportNames.last(), "101");
}

TEST_F(NamePatternTest, FollowsMenuChoicesOncePhotosAreThere)
{
    m_pattern.initObserver();
    m_pattern.setObjectValue({m_pattern.tfName(), "-", m_pattern.tfNumber(), m_pattern.tfNumber()});
    m_pattern.tfNumber()->editCellAction(1);
    EXPECT_EQ(m_pattern.tfExample(), QString());
    EXPECT_EQ(m_changes, 0);
    addPhoto("/p/a.jpg");
    m_pattern.tfName()->editCellAction(2);
    EXPECT_EQ(m_pattern.tfExample(), "NAME-0101");
    EXPECT_EQ(m_changes, 1);
    EXPECT_TRUE(m_session.exportNames.isEmpty()) << "names follow only when they are asked for";
    Q_EMIT m_center.TSExportImageNames();
    EXPECT_EQ(m_session.exportNames, QStringList("A-0101"));
}
