#include "naming/TSPatternParser.h"
#include "overlays/TSGroup.h"
#include "overlays/TSImage.h"
#include "overlays/TSOverlayClasses.h"
#include "overlays/TSPackedColor.h"
#include "overlays/TSText.h"
#include "overlays/TSWildcards.h"
#include "platform/archive/KeyedArchive.h"
#include "platform/archive/KeyedArchiver.h"
#include "platform/system/Folders.h"
#include "support/Session.h"

namespace {

class OverlayArchiveTest : public SessionTest {
protected:
    OverlayArchiveTest() { session.setCanvas({0, 0, 800, 600}); }
};

/// A text as other programs may have written it: numbers and lists among its words, and tokens of no kind.
struct MixedText : TSText {
    MixedText() : TSText("x") {}
    void encodeWithCoder(platform::KeyedArchiver &coder) const override
    {
        using Array = platform::ArchiveValue::Array;
        TSText::encodeWithCoder(coder);
        coder.encodeObject(u"textArray", Array{QString("a"), qint64(5), QString("b"),
                                               std::make_shared<TSToken>(), Array{true}});
    }
};

/// What comes back from an archive of the object.
template <typename T>
std::shared_ptr<T> passOn(const std::shared_ptr<T> &object)
{
    const auto value = platform::unarchive(platform::archiveRootObject(object), TSOverlayClasses());
    return value ? value->template toObject<T>() : nullptr;
}

} // namespace

TEST_F(OverlayArchiveTest, PlaceComesBackNarrowedAndOnTheCanvasOfTheDay)
{
    auto overlay = std::make_shared<TSOverlay>();
    overlay->setFrame({590, 10, 200, 100});
    overlay->updateAlignmentAndRatio();
    overlay->setXPixel(-10.1);
    overlay->setAngle(0.1);
    overlay->setOpacity(0.3);
    overlay->setWmUnionAlignment(3);
    overlay->setOffsetAlignment(5);
    overlay->setCenterRatioOfFrame({0.1, 0.2, 0.3, 0.4});
    overlay->setOldRatioOfFrameByAlignment({0.5, 0.6, 0.7, 0.8});
    session.addPhotos(2);
    session.setCanvas({0, 0, 400, 300});
    const auto back = passOn(overlay);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->angle(), double(0.1f));
    EXPECT_EQ(back->opacity(), double(0.3f));
    EXPECT_EQ(back->xPixel(), double(-10.1f));
    EXPECT_EQ(back->wmAlignment(), 2u);
    EXPECT_EQ(back->wmUnionAlignment(), 9u);
    EXPECT_EQ(back->offsetAlignment(), 9u);
    expectRect(back->centerRatioOfFrame(), 0.1, 0.2, 0.3, 0.4);
    expectRect(back->oldRatioOfFrameByAlignment(), 0.5, 0.6, 0.7, 0.8);
    expectRect(back->frame(), 295, 5, 100, 50);
    ASSERT_EQ(back->rows().count(), 2);
    expectRect(back->rows().at(1)->ratioOfFrameByAlignment, overlay->ratioOfFrameByAlignment());
    EXPECT_EQ(valuesOf(*back, &TSRow::xPixel), (std::vector<float>{-10.1f, -10.1f}));
    EXPECT_EQ(valuesOf(*back, &TSRow::wmAlignment), (std::vector<unsigned>{2, 2}));
    EXPECT_EQ(valuesOf(*back, &TSRow::angle), (std::vector<float>{0.1f, 0.1f}));
}

TEST_F(OverlayArchiveTest, TextComesBackWithItsTokensAndLook)
{
    auto text = std::make_shared<TSText>("x");
    text->updateText("two\nlines");
    text->updateTextFrame();
    text->setTextArray(TSPatternParser::words(u"by {MODEL}").values);
    text->setIsStrokeEnable(true);
    text->setIsShadowEnable(true);
    text->setStrokeWidth(0.1);
    text->setStrokeColor({1, 0.5, 0, 0.5});
    text->setGlowColor({0, 0, 1, 1});
    text->setGlowBlur(3.3);
    text->setTextType(TSTextType::Script);
    text->setTileHeight(60.7);
    text->setScriptOrigin({0.25, -0.75});
    text->setLimitRectRatio({0.1, 0.2, 0.3, 0.4});
    text->setTextAlignment(platform::TextAlignment::Right);
    session.addPhotos(3);
    const auto back = passOn(text);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->textStorage(), text->textStorage());
    EXPECT_EQ(back->fontDic(), text->fontDic());
    EXPECT_EQ(back->textAlignment(), platform::TextAlignment::Right);
    ASSERT_EQ(back->textArray().size(), 2u);
    EXPECT_EQ(std::get<QString>(back->textArray()[0]), "by ");
    EXPECT_EQ(std::get<1>(back->textArray()[1])->name(), "MODEL");
    EXPECT_TRUE(back->isStrokeEnable() && back->isShadowEnable() && !back->isGlowEnable());
    EXPECT_EQ(back->strokeWidth(), double(0.1f));
    EXPECT_EQ(back->strokeColor(), (platform::Color{1, double(127 / 255.0f), 0, double(127 / 255.0f)}));
    EXPECT_EQ(back->glowColor(), (platform::Color{0, 0, 1, 1}));
    EXPECT_EQ(back->glowBlur(), double(3.3f));
    EXPECT_EQ(back->tileHeight(), double(60.7f));
    EXPECT_TRUE(back->isScript());
    EXPECT_EQ(valuesOf(*back, &TSRow::scriptOrigin), std::vector<QPointF>(3, {0.25, -0.75}));
    expectRect(back->limitRectRatio(), 0.1, 0.2, 0.3, 0.4);
    EXPECT_EQ(back->lineCounts(), 2);
    back->setTextType(TSTextType::Plain);
    back->setFrame({0, 0, 10, 60});
    back->updateText("one");
    back->updateTextFrame();
    EXPECT_DOUBLE_EQ(back->frame().height(), 30) << "the line count of the last fitting is kept";
}

TEST_F(OverlayArchiveTest, WhatIsNoTextRepeatsTheWordsBefore)
{
    const auto back = passOn<TSText>(std::make_shared<MixedText>());
    ASSERT_TRUE(back);
    EXPECT_EQ(TSTextForTokenValues({}, back->textArray(), false), "aabbb");
}

TEST_F(OverlayArchiveTest, ScriptTextGetsTheCanvasFromTheNextRebuildOnly)
{
    auto text = std::make_shared<TSText>("tile");
    text->setTextType(TSTextType::Script);
    text->setFrame({0, 0, 200, 100});
    text->setRatioOfFrameByAlignment({0, 0, 1, 1});
    text->setWmAlignment(0);
    const auto back = passOn(text);
    ASSERT_TRUE(back);
    expectRect(back->frame(), 0, 0, 1200, 600);
    back->updateFrameByAlignmentRatio(false);
    expectRect(back->frame(), 0, 0, 800, 600);
}

TEST_F(OverlayArchiveTest, ColoursArePackedInTwoWays)
{
    const std::tuple<std::optional<platform::Color>, qint64> cases[] = {
        {std::nullopt, 0},
        {platform::Color{0, 0, 0, 1}, 0xFF000000},
        {platform::Color{1, 0.5, 0.25, 0.5}, 0x7FFF7F3F},
        {platform::Color{0.999, 0, 0, 0}, 0x00FE0000},
    };
    for (const auto &[color, packed] : cases)
        EXPECT_EQ(TSPackColor(color), packed);
    EXPECT_EQ(TSUnpackColor(0x7FFF0033), (platform::Color{1, 0, double(51 / 255.0f), double(127 / 255.0f)}));

    const auto shadow =
        passOn(std::make_shared<TSShadow>(platform::Color{1, 0.5, 0.25, 0.3}, 4.5f, 359.9f, -10.7f));
    ASSERT_TRUE(shadow);
    EXPECT_EQ(shadow->color(), (platform::Color{1, double(127 / 255.0f), double(63 / 255.0f), double(0.3f)}));
    EXPECT_EQ(shadow->blur(), 4.0f);
    EXPECT_EQ(shadow->angle(), 359.0f);
    EXPECT_EQ(shadow->offset(), -10.0f);
}

TEST_F(OverlayArchiveTest, PicturesAreFoundWhereTheyLieNow)
{
    const QString profiles = platform::applicationSupportFolder() + QStringLiteral("/Tessaro/My Profiles/");
    auto image = std::make_shared<TSImage>("/Applications/Elsewhere/Stickers/star.png");
    image->setIsFromFinder(false);
    image->setOldPath("/old.png");
    EXPECT_EQ(passOn(image)->imagePath(), platform::resourceFolder() + QStringLiteral("/Stickers/star.png"));
    EXPECT_EQ(passOn(image)->oldPath(), "/old.png");
    image->setIsFromFinder(true);
    image->setImageName("/elsewhere/My Profiles/Mine 1.tspf/Stickers/Stickers_0.png");
    EXPECT_EQ(passOn(image)->imagePath(), profiles + QStringLiteral("Mine 1.tspf/Stickers/Stickers_0.png"));
    EXPECT_EQ(passOn(image)->imageName(), image->imageName());
    EXPECT_TRUE(passOn(image)->isFromFinder());
}

TEST_F(OverlayArchiveTest, ManagerComesBackWithItsOrderAndStaysAside)
{
    const auto inner = std::make_shared<TSImage>("a.png");
    inner->setFrame({10, 20, 30, 40});
    const auto text = std::make_shared<TSText>("member");
    auto manager = std::make_shared<TSOverlayManager>();
    manager->addOverlay(TSGroup::groupOverlayWithOverlays({inner, text}));
    manager->addOverlay(std::make_shared<TSImage>("top.png"));
    const QByteArray archive = platform::archiveRootObject(manager);
    manager.reset();
    const auto value = platform::unarchive(archive, TSOverlayClasses());
    const auto back = value ? value->toObject<TSOverlayManager>() : nullptr;
    ASSERT_TRUE(back);
    EXPECT_EQ(TSOverlayManager::overlayManager(), &session.overlays);
    ASSERT_EQ(back->overlayCount(), 2);
    EXPECT_TRUE(std::dynamic_pointer_cast<TSImage>(back->overlayAtIndex(0)));
    const auto group = std::dynamic_pointer_cast<TSGroup>(back->overlayAtIndex(1));
    ASSERT_TRUE(group);
    ASSERT_EQ(group->overlaysOfGroup().size(), 2u);
    expectRect(group->overlaysOfGroup()[0]->centerRatioOfFrame(), inner->centerRatioOfFrame());
    group->updateOverlayFrameOfGroup();
    const QRectF frame = group->overlaysOfGroup()[0]->frame();
    expectNear(frame.topLeft(), {10, 20});
    expectNear(frame.bottomRight(), {40, 60});
    EXPECT_TRUE(std::dynamic_pointer_cast<TSText>(group->overlaysOfGroup()[1]));
}
