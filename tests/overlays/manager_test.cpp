#include "naming/TSPatternParser.h"
#include "overlays/TSGroup.h"
#include "overlays/TSImage.h"
#include "overlays/TSOverlaySynchronisation.h"
#include "overlays/TSText.h"
#include "support/Session.h"

#include <numbers>

namespace {

constexpr double kRightAngle = std::numbers::pi / 2;

class ManagerTest : public SessionTest {
protected:
    using Overlays = TSOverlayManager::Overlays;

    ManagerTest() { session.setCanvas({0, 0, 800, 600}); }

    /// Named overlays, the first on top.
    void fill(const char *names)
    {
        session.overlays.removeAllOverlay();
        m_named.clear();
        for (const char *name = names; *name; ++name) {
            m_named[*name] = std::make_shared<TSImage>(QString(QLatin1Char(*name)));
            session.overlays.insertOverlay(m_named[*name], session.overlays.overlayCount());
        }
    }
    Overlays chosen(const char *names) const
    {
        Overlays list;
        for (const char *name = names; *name; ++name)
            list.push_back(m_named.at(*name));
        return list;
    }
    std::string order() const
    {
        std::string names;
        for (const auto &image : session.overlays.images())
            names += image->imagePath().toStdString();
        return names;
    }
    std::shared_ptr<TSOverlay> put(const QRectF &frame)
    {
        auto overlay = std::make_shared<TSOverlay>();
        overlay->setFrame(frame);
        session.overlays.insertOverlay(overlay, session.overlays.overlayCount());
        return overlay;
    }

    std::map<char, std::shared_ptr<TSImage>> m_named;
    TSOverlaySynchronisation m_walks;
};

std::shared_ptr<TSOverlay> boxAt(const QRectF &frame, double angle = 0)
{
    auto overlay = std::make_shared<TSOverlay>();
    overlay->setFrame(frame);
    overlay->setAngle(angle);
    return overlay;
}

} // namespace

TEST_F(ManagerTest, HierarchyChanges)
{
    const std::tuple<const char *, const char *, int, const char *> cases[] = {
        {"ABC", "B", -1, "BAC"},
        {"ABC", "B", 1, "ACB"},
        {"ABCD", "AC", 1, "BACD"},
        {"ABCD", "CA", 1, "BADC"},
        {"ABCD", "BD", -1, "BDAC"},
        {"ABC", "", 1, "ABC"},
        // Out of the list there is no place.
        {"ABC", "A", -1, "ABC"},
        {"ABC", "C", 1, "ABC"},
        {"ABCD", "CD", 1, "ABCD"},
        {"ABCD", "DC", 1, "ABCD"},
        // Neighbours, in whatever order they were chosen.
        {"ABC", "BC", -1, "BCA"},
        {"ABC", "CB", -1, "BCA"},
        {"ABCD", "AB", 1, "CABD"},
        {"ABCDE", "BCD", 1, "AEBCD"},
    };
    for (const auto &[list, selection, d, result] : cases) {
        fill(list);
        if (d < 0)
            session.overlays.upOverlay(chosen(selection));
        else
            session.overlays.downOverlay(chosen(selection));
        EXPECT_EQ(order(), result) << list << ' ' << selection << ' ' << d;
    }
}

TEST_F(ManagerTest, GroupEnclosesItsTurnedMembersAndPlacesThem)
{
    const auto plain = boxAt({100, 100, 40, 20});
    const auto turned = boxAt({200, 200, 100, 100}, kRightAngle / 2);
    const auto group = TSGroup::groupOverlayWithOverlays({plain, turned});
    const double reach = 50 * std::numbers::sqrt2;
    EXPECT_NEAR(group->frame().left(), 100, 1e-9);
    EXPECT_NEAR(group->frame().right(), 250 + reach, 1e-9);
    EXPECT_NEAR(group->frame().bottom(), 250 + reach, 1e-9);
    EXPECT_EQ(group->angle(), 0);
    EXPECT_EQ(group->wmAlignment(), 7u);
    EXPECT_DOUBLE_EQ(group->xPixel(), 100);

    group->setFrame({0, 0, 400, 400});
    plain->setCenterRatioOfFrame({-0.25, 0.25, 0.1, 0.2});
    group->updateOverlayFrameOfGroup();
    expectRect(plain->frame(), 80, 260, 40, 80);
    group->updateOverlayFrameRatioOfGroup();
    expectRect(plain->centerRatioOfFrame(), -0.25, 0.25, 0.1, 0.2);
    group->updateOverlayOpacityOfGroup(0.25);
    EXPECT_EQ(turned->opacity(), 0.25);
}

TEST_F(ManagerTest, GroupedTextStaysInItsBox)
{
    const auto text = std::make_shared<TSText>(QStringLiteral("name"));
    text->setTextArray(TSPatternParser::words(u"{NAME}").values);
    text->setFrame({100, 100, 60, 20});
    const auto inner = TSGroup::groupOverlayWithOverlays({text, boxAt({100, 150, 100, 50})});
    const auto group = TSGroup::groupOverlayWithOverlays({inner, boxAt({300, 300, 10, 10})});
    TSPhoto photo;
    for (const char16_t *name : {u"/a very long name of a photo.jpg", u"/b.jpg"}) {
        photo.path = QString::fromUtf16(name);
        session.overlays.removeAllOverlay();
        session.overlays.addOverlay(group);
        m_walks.updateTextContentsAndImageFrameOfGroup(false, false, photo);
        const QRectF &frame = text->frame();
        const QSizeF natural = text->naturalSize();
        EXPECT_EQ(text->textStorage().string(), photo.path.mid(1).chopped(4));
        EXPECT_NEAR(frame.width() / frame.height(), natural.width() / natural.height(), 1e-5);
        EXPECT_NEAR(frame.center().x(), 130, 1e-9);
        EXPECT_NEAR(frame.center().y(), 110, 1e-9);
        const bool isWide = natural.width() / natural.height() > 3;
        EXPECT_NEAR(isWide ? frame.width() : frame.height(), isWide ? 60 : 20, 1e-5);
        EXPECT_NEAR(text->centerRatioOfFrame().height(), frame.height() / inner->frame().height(), 1e-9);
        expectRect(text->limitRectRatio(), -0.2, -0.4, 0.6, 0.2);
    }
}

TEST_F(ManagerTest, DissolvedMembersStayWhereTheyAreSeen)
{
    const auto deep = boxAt({100, 100, 20, 10}, 0.1);
    const auto inner = TSGroup::groupOverlayWithOverlays({deep, boxAt({160, 100, 20, 10})});
    const auto outer = boxAt({100, 300, 20, 10});
    const auto group = TSGroup::groupOverlayWithOverlays({inner, outer});
    group->setAngle(kRightAngle);
    inner->setAngle(kRightAngle);
    const QPointF deepSeen =
        group->convertPointToPreview(inner->convertPointToPreview(deep->frame().center()));
    const QPointF outerSeen = group->convertPointToPreview(outer->frame().center());
    Overlays freed;
    group->unGroupOverlaysOfGroup(group->angle(), [&](const auto &overlay) { freed.push_back(overlay); });
    ASSERT_EQ(freed.size(), 3u);
    EXPECT_EQ(freed[0], deep);
    EXPECT_EQ(freed[2], outer);
    EXPECT_NEAR(deep->angle(), 0.1 + 2 * kRightAngle, 1e-12);
    EXPECT_NEAR(outer->angle(), kRightAngle, 1e-12);
    EXPECT_NEAR(deep->frame().center().x(), deepSeen.x(), 1e-9);
    EXPECT_NEAR(deep->frame().center().y(), deepSeen.y(), 1e-9);
    EXPECT_NEAR(outer->frame().center().x(), outerSeen.x(), 1e-9);
    EXPECT_EQ(outer->frame().size(), QSizeF(20, 10));
    EXPECT_NE(outer->wmAlignment(), 9u);
}

TEST_F(ManagerTest, SelectionMovesToAnAnchorAsOneBlock)
{
    const auto a = put({100, 100, 100, 50});
    const auto b = put({250, 200, 50, 50});
    session.data.watermarkAlignmenWay = 9;
    m_walks.updateOverlaysFrameByAlignment({a, b});
    expectRect(a->frame(), 100, 100, 100, 50);
    session.data.watermarkAlignmenWay = 4;
    m_walks.updateOverlaysFrameByAlignment({a, b});
    expectRect(a->frame(), 600, 450, 100, 50);
    expectRect(b->frame(), 750, 550, 50, 50);
    EXPECT_EQ(a->wmAlignment(), 4u);
    EXPECT_EQ(a->offsetAlignment(), 4u);
    EXPECT_DOUBLE_EQ(a->xPixel(), -100);

    const auto member = boxAt({10, 10, 20, 20});
    const auto group = TSGroup::groupOverlayWithOverlays({member, boxAt({90, 90, 20, 20})});
    session.data.watermarkAlignmenWay = 8;
    m_walks.updateOverlaysFrameByAlignment({group});
    expectRect(group->frame(), 350, 250, 100, 100);
    EXPECT_NEAR(member->frame().x(), 350, 1e-9);
    m_walks.updateOverlaysFrameByAlignment({});
}

TEST_F(ManagerTest, SeveralSelectedShareTheAnchorOfTheirUnion)
{
    EXPECT_EQ(session.data.unionFrameAlignment, 0u);
    const auto a = put({10, 500, 100, 50});
    const auto b = put({400, 540, 100, 50});
    a->setWmUnionAlignment(7);
    m_walks.updateUnionFrameAlignment({a});
    EXPECT_EQ(session.data.unionFrameAlignment, 9u);
    EXPECT_EQ(a->wmUnionAlignment(), 7u);
    m_walks.updateUnionFrameAlignment({a, b});
    EXPECT_EQ(session.data.unionFrameAlignment, 6u);
    for (const auto &overlay : {a, b}) {
        EXPECT_EQ(overlay->wmUnionAlignment(), 6u);
        EXPECT_EQ(overlay->offsetAlignment(), 6u);
    }
    expectRect(TSOverlaySynchronisation::unionFrame({a, b}), 10, 500, 490, 90);
    EXPECT_TRUE(TSOverlaySynchronisation::unionFrame({}).isNull());
}
