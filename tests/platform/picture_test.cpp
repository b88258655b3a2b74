#include "platform/paint/Picture.h"

#include "platform/system/Folders.h"
#include "support/Folder.h"
#include "support/Pictures.h"

#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <thread>

namespace {

using platform::Picture;

class PictureTest : public testing::Test, protected Folder {
protected:
    std::shared_ptr<Picture> load(const QByteArray &document) const
    {
        return Picture::load(write("drawing", document));
    }
    QString writePdf() const
    {
        QPdfWriter writer(path("page.pdf"));
        writer.setPageSize(QPageSize(QSizeF(200, 100), QPageSize::Point));
        writer.setPageMargins(QMarginsF());
        writer.setResolution(72);
        QPainter(&writer).fillRect(QRect(100, 50, 100, 50), Qt::blue);
        return path("page.pdf");
    }
};

QByteArray svg(const QByteArray &attributes, const QByteArray &body)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' " +
           attributes + '>' + body + "</svg>";
}

const QByteArray blueQuarter = "<rect x='100' y='50' width='100' height='50' fill='#00f'/>";

} // namespace

TEST_F(PictureTest, TakesTheNaturalSizeFromTheDrawing)
{
    const std::pair<const char *, QSizeF> cases[] = {
        {"width='200' height='100'", {200, 100}},
        {"width='2in' height='36pt'", {144, 36}},
        {"viewBox='5 5 200 100'", {200, 100}},
        {"viewBox='0 0 20 10' width='100%' height='100%'", {20, 10}},
        {"", {200, 100}},
    };
    for (const auto &[attributes, size] : cases) {
        const auto picture = load(svg(attributes, blueQuarter));
        ASSERT_TRUE(picture) << attributes;
        EXPECT_EQ(picture->size(), size) << attributes;
    }
}

TEST_F(PictureTest, DrawsShapesSharpAtEverySize)
{
    const QString eps = write("drawing.eps", "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 200 100\n"
                                             "0 0 1 setrgbcolor 100 0 100 50 rectfill\nshowpage\n");
    const QString drawn = write("drawing.svg", svg("width='200' height='100'", blueQuarter));
    // Pages that keep their shape are reduced along one axis, and PostScript is drawn only once.
    const std::pair<QString, int> cases[] = {{drawn, 0}, {writePdf(), 3}, {eps, 3}};
    for (const auto &[file, softness] : cases) {
        const auto picture = Picture::load(file);
        ASSERT_TRUE(picture) << file.toStdString();
        EXPECT_EQ(picture->size().width(), 2 * picture->size().height());
        for (const QSize &size : {QSize(1000, 500), QSize(600, 900), QSize(20, 400), QSize(1900, 8)}) {
            const QImage image = picture->imageOfSize(size);
            ASSERT_EQ(image.size(), size);
            EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
            const QPoint inside = QPoint(size.width(), size.height()) / 2 + QPoint(1, 1) * softness;
            const QPoint outside = inside - QPoint(1, 1) * (2 * softness + 1);
            EXPECT_EQ(image.pixel(inside), qRgb(0, 0, 255)) << file.toStdString();
            EXPECT_EQ(image.pixel(size.width() - 1, size.height() - 1), qRgb(0, 0, 255));
            EXPECT_EQ(image.pixel(outside.x(), size.height() - 1), 0U) << file.toStdString();
            EXPECT_EQ(image.pixel(size.width() - 1, outside.y()), 0U) << file.toStdString();
        }
    }
}

TEST_F(PictureTest, JoinsThePartsOfALongDrawing)
{
    const QByteArray shape = "<rect width='7' height='1' fill-opacity='0.5'/>";
    const QImage image = load(svg("width='10' height='1'", shape))->imageOfSize({40000, 20});
    EXPECT_EQ(boxWhere(image, [](const QColor &color) { return color.alpha() == 128; }),
              QRect(0, 0, 28000, 20));
    for (int x = 0; x < 40000; ++x)
        ASSERT_EQ(qAlpha(image.pixel(x, 10)), x < 28000 ? 128 : 0) << x;
}

TEST_F(PictureTest, TakesNothingFromOutsideADrawing)
{
    const QString secret = write(
        "secret.svg", svg("width='100' height='100'", "<rect id='r' width='100' height='100' fill='#f00'/>"));
    const QByteArray address = "file://" + QFile::encodeName(secret);
    const QByteArray sized = "width='100' height='100'";
    const QByteArray documents[] = {
        svg(sized, "<image xlink:href='" + address + "' width='100' height='100'/>"),
        svg(sized, "<image xlink:href='secret.svg' width='100' height='100'/>"),
        svg(sized, "<use xlink:href='" + address + "#r'/>"),
        svg(sized, "<style>@import url('" + address + "');</style>"),
        svg(sized + " xmlns:xi='http://www.w3.org/2001/XInclude'", "<xi:include href='" + address + "'/>"),
        "<!DOCTYPE svg [<!ENTITY x SYSTEM '" + address + "'>]>" + svg(sized, "&x;"),
    };
    for (const QByteArray &document : documents) {
        const auto picture = load(document);
        const QImage image = picture ? picture->imageOfSize({100, 100}) : QImage();
        EXPECT_TRUE(extentOf(image, Qt::red).isEmpty()) << document.constData();
    }
}

TEST_F(PictureTest, RefusesWhatCannotBeDrawn)
{
    QByteArray laughs = "<!DOCTYPE svg [<!ENTITY a '<g/><g/><g/><g/><g/><g/><g/><g/><g/><g/>'>";
    for (char name = 'b'; name < 'k'; ++name)
        laughs += QByteArray("<!ENTITY ") + name + " '" +
                  QByteArray("&_;").replace('_', name - 1).repeated(10) + "'>";
    laughs += "]>" + svg("width='9' height='9'", "&j;");
    const QByteArray documents[] = {"",
                                    "<svg",
                                    "\x1F\x8B<svg",
                                    "%PDF-1.4\n%%EOF",
                                    "%!PS-Adobe-3.0 EPSF-3.0\n",
                                    "<html><svg/></html>",
                                    svg("width='0' height='10'", blueQuarter),
                                    svg("width='1e9' height='1e9'", blueQuarter),
                                    svg("", ""),
                                    svg("width='200' height='100'", blueQuarter).chopped(4),
                                    laughs};
    for (const QByteArray &document : documents)
        EXPECT_FALSE(load(document)) << document.left(60).constData();
    EXPECT_FALSE(Picture::load(folder.path()));
    EXPECT_FALSE(Picture::load(path("missing.svg")));
}

TEST_F(PictureTest, ServesThreadsAtOnce)
{
    const auto picture = load(svg("width='200' height='100'", blueQuarter));
    std::vector<std::thread> threads;
    for (int n = 1; n <= 4; ++n)
        threads.emplace_back([&, n] {
            for (int i = 0; i < 10; ++i) {
                const QImage image = picture->imageOfSize({20 * n, 10 * n});
                EXPECT_EQ(extentOf(image, Qt::blue), QRect(10 * n, 5 * n, 10 * n, 5 * n));
            }
        });
    for (std::thread &thread : threads)
        thread.join();
}

/// Full pictures and thumbnails are paired by their place in the listings.
TEST_F(PictureTest, FindsEveryStickerWithItsThumbnail)
{
    const QDir stickers(platform::resourceFolder() + "/Stickers");
    const QDir list(platform::resourceFolder() + "/StickerList");
    const QStringList drawings = stickers.entryList(QDir::Files, QDir::Name);
    const QStringList thumbnails = list.entryList(QDir::Files, QDir::Name);
    ASSERT_EQ(drawings.size(), 48);
    ASSERT_EQ(thumbnails.size(), 48);
    const auto isInk = [](const QColor &color) { return color.alpha() > 127; };
    for (int i = 0; i < 48; ++i) {
        const QString name = QString::asprintf("sticker_%02d", i + 1);
        EXPECT_EQ(drawings[i], name + ".svg");
        EXPECT_EQ(thumbnails[i], name + ".png");
        const auto sticker = Picture::load(stickers.filePath(drawings[i]));
        const auto thumbnail = Picture::load(list.filePath(thumbnails[i]));
        ASSERT_TRUE(sticker && thumbnail) << i;
        const QSize size = sticker->size().scaled(172, 172, Qt::KeepAspectRatio).toSize();
        const QRect ink = boxWhere(sticker->imageOfSize(size), isInk);
        const QRect shown = boxWhere(thumbnail->imageOfSize({200, 200}), isInk);
        const QPoint off =
            shown.center() - QPoint(100, 100) - ink.center() + QPoint(size.width(), size.height()) / 2;
        EXPECT_LE(off.manhattanLength(), 4) << i;
        EXPECT_LE((shown.size() - ink.size()).width(), 10) << i;
        // Nothing is cut off at the edge.
        EXPECT_TRUE(QRect({0, 0}, size).adjusted(1, 1, -1, -1).contains(ink)) << i;
    }
}
