#include "platform/image/ImageFile.h"
#include "platform/image/Vips.h"
#include "session/TSPhotoIntake.h"
#include "support/Session.h"

#include <functional>
#include <QElapsedTimer>

namespace {

/// Notes down what an intake tells.
class Notes : public TSPhotoIntakeDelegate {
public:
    void photoWasAdded(const QString &path, qint64 index) override
    {
        added.append(QStringLiteral("%1@%2").arg(path.section(u'/', -1)).arg(index));
        if (onAdded)
            onAdded();
    }
    void fileWasRefused(const QString &, const QString &reason) override { refused.append(reason); }

    QStringList added;
    QStringList refused;
    std::function<void()> onAdded;
};

class PhotoIntakeTest : public SessionTest {
protected:
    QString writePhoto(const QString &name) const { return session.writeJpeg(name, plainImage({16, 8})); }

    static QColor colorOfPage(int page) { return QColor::fromHsv(page * 50 % 360, 255, 255); }
    /// The pages lie one below the other, as libvips wants them.
    QString writePages(const QString &name, int pages) const
    {
        QImage roll = plainImage({20, 10 * pages});
        for (int page = 0; page < pages; ++page)
            QPainter(&roll).fillRect(0, 10 * page, 20, 10, colorOfPage(page));
        const platform::LazyImage lazy = platform::LazyImage::fromImage(roll);
        vips_image_set_int(lazy.vips(), VIPS_META_PAGE_HEIGHT, 10);
        return session.writePixels(name, lazy.vips());
    }
    // Drawings of 200 by 100.
    static QByteArray eps(const QByteArray &body)
    {
        return "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 200 100\n" + body + "\nshowpage\n";
    }
    static QByteArray svg(const QByteArray &body) { return "<svg viewBox='0 0 200 100'>" + body + "</svg>"; }
    /// Without a table of its objects, which readers make up for.
    static QByteArray pdf(const QByteArray &body, const QByteArray &ofPage = {},
                          const QByteArray &ofTrailer = {})
    {
        return "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
               "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
               "3 0 obj<</Type/Page/Parent 2 0 R/Contents 4 0 R" +
               (ofPage.contains("MediaBox") ? QByteArray() : "/MediaBox[0 0 200 100]") + ofPage +
               ">>endobj\n4 0 obj<</Length " + QByteArray::number(body.size()) + ">>stream\n" + body +
               "\nendstream endobj\ntrailer<</Root 1 0 R" + ofTrailer + ">>\n";
    }
    QStringList titles() const
    {
        QStringList list;
        for (qint64 i = 0; i < session.data.photoCount(); ++i)
            list.append(session.data.itemAtIndex(i)->imageTitle());
        return list;
    }

    Notes m_notes;
    TSPhotoIntake m_intake{&session.overlays, &m_notes};
};

} // namespace

TEST_F(PhotoIntakeTest, RefusesWithAReason)
{
    const QString photo = writePhoto(QStringLiteral("a.JPG"));
    const QString other = writePhoto(QStringLiteral("b.jpg"));
    m_intake.addItemsWithURLs({photo, session.folder.path(), photo, session.path(QStringLiteral("none.jpg")),
                               session.write(QStringLiteral("empty.jpg"), {}),
                               session.write(QStringLiteral("words.jpg"), "words"), other, other},
                              false);
    EXPECT_EQ(m_notes.added, (QStringList{QStringLiteral("a.JPG@0"), QStringLiteral("b.jpg@1")}));
    EXPECT_EQ(m_notes.refused,
              (QStringList{QStringLiteral("This is a folder, not a photo."),
                           QStringLiteral("The photo is in the list already."),
                           QStringLiteral("There is no such file."), QStringLiteral("The file is empty."),
                           QStringLiteral("The file is not a picture that can be read."),
                           QStringLiteral("The photo is in the list already.")}));
    EXPECT_EQ(m_intake.repeatedFileNames(), QStringLiteral("a.JPG,b.jpg"));
    m_intake.addItemsWithURLs({}, false);
    EXPECT_EQ(m_intake.repeatedFileNames(), QString()) << "told anew for each intake";
}

TEST_F(PhotoIntakeTest, EveryFrameIsAPhoto)
{
    const std::tuple<const char16_t *, int, QStringList> cases[] = {
        {u"pages.TIF",
         3,
         {QStringLiteral("pages_frame01"), QStringLiteral("pages_frame02"), QStringLiteral("pages_frame03")}},
        {u"one.tif", 1, {QStringLiteral("one")}},
        {u"at%1 %2.gif", 2, {QStringLiteral("at%1 %2_frame01"), QStringLiteral("at%1 %2_frame02")}},
    };
    for (const auto &[name, pages, labels] : cases) {
        session.data.removeAllPhotos();
        const QString path = writePages(QString::fromUtf16(name), pages);
        m_intake.addItemsWithURLs({path}, false);
        EXPECT_EQ(titles(), labels);
        for (int frame = 0; frame < session.data.photoCount(); ++frame) {
            const auto item = session.data.itemAtIndex(frame);
            EXPECT_EQ(item->frameCount, quint64(frame));
            EXPECT_EQ(item->resourePath, path);
            EXPECT_EQ(item->path, path + u'/' + labels[frame]);
            EXPECT_EQ(item->cgimage.size(), QSize(20, 10));
            EXPECT_EQ(extentOf(item->cgimage, colorOfPage(frame)), QRect(0, 0, 20, 10));
            session.data.GetPhotoSize(frame);
            EXPECT_EQ(session.photos.photoAtIndex(frame)->photoSize, QSizeF(20, 10));
        }
        m_intake.addItemsWithURLs({path}, false);
        EXPECT_EQ(session.data.photoCount(), pages);
        EXPECT_EQ(m_intake.repeatedFileNames(), QString::fromUtf16(name));
    }
}

/// A decoder reads some thousands, and does not tell that there are more.
TEST_F(PhotoIntakeTest, FramesThatCannotBeReadAreCounted)
{
    const QByteArray two = bytesOf(writePages(QStringLiteral("two.gif"), 2));
    const qsizetype colors = two[10] & 0x80 ? 3 * (2 << (two[10] & 7)) : 0;
    const qsizetype begin = 13 + colors;
    const QByteArray frames = two.mid(begin, two.size() - begin - 1).repeated(2500);
    m_intake.addItemsWithURLs({session.write(QStringLiteral("many.gif"), two.first(begin) + frames + ';')},
                              false);
    EXPECT_EQ(
        m_notes.refused,
        QStringList(QStringLiteral("The file holds 5000 frames, of which only the first %1 can be read.")
                        .arg(session.data.photoCount())));
    EXPECT_GT(session.data.photoCount(), 1000);
}

TEST_F(PhotoIntakeTest, FramesThatDifferKeepWhatIsTheirs)
{
    QByteArray bytes = bytesOf(writePages(QStringLiteral("two.tif"), 2));
    const qsizetype orientation = bytes.lastIndexOf(QByteArray("\x12\x01\x03\x00\x01\x00\x00\x00", 8));
    ASSERT_GT(orientation, 0);
    bytes[orientation + 8] = 6;
    m_intake.addItemsWithURLs({session.write(QStringLiteral("turned.tif"), bytes)}, false);
    ASSERT_EQ(session.data.photoCount(), 2);
    EXPECT_EQ(session.data.itemAtIndex(0)->cgimage.size(), QSize(20, 10));
    EXPECT_EQ(session.data.itemAtIndex(1)->cgimage.size(), QSize(10, 20));
}

/// Half of the frames could not be completed later: the file would be one that is in the list already.
TEST_F(PhotoIntakeTest, CancellingGivesUpTheFileAtHand)
{
    const auto overlay = std::make_shared<TSOverlay>();
    session.overlays.addOverlay(overlay);
    session.addPhotos(2);
    for (int row = 0; row < 2; ++row)
        overlay->appendRow();
    session.photos.setSelectedPhoto(1);
    const QString pages = writePages(QStringLiteral("a.tif"), 3);
    for (const bool isInsert : {false, true}) {
        m_intake.insertAtIndex = 1;
        m_notes.onAdded = [this] { m_intake.processCanceled = true; };
        m_intake.addItemsWithURLs({pages, writePhoto(QStringLiteral("b.jpg"))}, isInsert);
        EXPECT_EQ(session.data.photoCount(), 2);
        EXPECT_EQ(session.photos.photoCount(), 2);
        EXPECT_EQ(overlay->rows().count(), 2);
        EXPECT_EQ(session.photos.selectedPhoto(), 1);
        EXPECT_EQ(m_intake.insertAtIndex, 1);
    }
    m_notes.onAdded = {};
    m_intake.processCanceled = false;
    m_intake.addItemsWithURLs({pages}, false);
    EXPECT_EQ(session.data.photoCount(), 5);
}

/// A program in a drawing would go on for ten seconds.
TEST_F(PhotoIntakeTest, ACancelEndsADrawing)
{
    QElapsedTimer clock;
    clock.start();
    m_intake.isCancelled = [&clock] { return clock.elapsed() > 300; };
    m_intake.addItemsWithURLs({session.write(QStringLiteral("loop.eps"), eps("{} loop"))}, false);
    EXPECT_LT(clock.elapsed(), 1500);
    EXPECT_EQ(m_notes.refused, QStringList());
}

/// What opening a page costs must not grow with the pages before it and behind it.
TEST_F(PhotoIntakeTest, ManyPagesTakeTheirShare)
{
    const auto millisecondsFor = [this](int pages) {
        const QString path = writePages(QStringLiteral("%1.tif").arg(pages), pages);
        QElapsedTimer clock;
        clock.start();
        m_intake.addItemsWithURLs({path}, false);
        for (qint64 i = 0; i < session.data.photoCount(); ++i) {
            session.data.GetPhotoSize(i);
            platform::readImageHeader(path, nullptr, int(i) % pages);
        }
        session.data.removeAllPhotos();
        return double(clock.elapsed());
    };
    millisecondsFor(50);
    EXPECT_LT(millisecondsFor(1500) / millisecondsFor(150), 25);
}

TEST_F(PhotoIntakeTest, DrawingsTouchABoxOf2000)
{
    // Entities that grow and files that it refers to are left out; what stands before them is drawn.
    const QByteArray entities = "<!DOCTYPE svg [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '" +
                                QByteArray("&a;").repeated(1000) +
                                "'><!ENTITY x SYSTEM 'file:///dev/zero'>]>";
    const QByteArray square = "<rect x='0' y='0' width='100' height='100' fill='#ff0000'/>";
    const std::tuple<const char *, QByteArray, QSize, QColor> cases[] = {
        {"a.eps", eps("1 0 0 setrgbcolor 0 0 100 100 rectfill"), {2000, 1000}, Qt::transparent},
        {"no-blank.eps",
         eps("1 0 0 setrgbcolor 0 0 100 100 rectfill").replace("Box: ", "Box:"),
         {2000, 1000},
         Qt::transparent},
        {"a.svg", svg(square), {2000, 1000}, Qt::transparent},
        {"b.svg", entities + svg(square + "<text>&x;&b;</text>"), {2000, 1000}, Qt::transparent},
        {"a.PDF", pdf("1 0 0 rg 0 0 100 100 re f"), {2000, 1000}, Qt::white},
        {"a.ai", pdf("1 0 0 rg 0 0 100 100 re f", "/Rotate 90"), {1000, 2000}, Qt::white},
    };
    for (const auto &[name, bytes, size, paper] : cases) {
        session.data.removeAllPhotos();
        m_intake.addItemsWithURLs({session.write(QString::fromLatin1(name), bytes)}, false);
        EXPECT_EQ(m_notes.refused, QStringList()) << name;
        ASSERT_EQ(session.data.photoCount(), 1) << name;
        const auto item = session.data.itemAtIndex(0);
        EXPECT_EQ(item->frameSize, QSizeF(size));
        EXPECT_EQ(extentOf(item->cgimage, Qt::red), QRect(0, 0, 1000, 1000)) << name;
        EXPECT_EQ(item->cgimage.pixelColor(size.width() - 5, size.height() - 5), paper) << name;
    }
}

/// Pages whose height is no whole number of pixels are covered to their last row and column.
TEST_F(PhotoIntakeTest, DrawingsFillTheirLastRow)
{
    const QByteArray fill = "1 0 0 rg -9 -9 999 999 re f";
    const std::tuple<const char *, QByteArray, QSize> cases[] = {
        {"a.svg",
         "<svg viewBox='0 0 300 200.06'><rect width='300' height='200.06' fill='#ff0000'/></svg>",
         {2000, 1334}},
        {"a.pdf", pdf(fill, "/MediaBox[0 0 300 199.91]"), {2000, 1333}},
        {"a.ai", pdf(fill, "/MediaBox[0 0 300 199.91]/Rotate 90"), {1333, 2000}},
    };
    for (const auto &[name, bytes, size] : cases) {
        session.data.removeAllPhotos();
        m_intake.addItemsWithURLs({session.write(QString::fromLatin1(name), bytes)}, false);
        ASSERT_EQ(session.data.photoCount(), 1) << name;
        EXPECT_EQ(extentOf(session.data.itemAtIndex(0)->cgimage, Qt::red), QRect({0, 0}, size)) << name;
    }
}

TEST_F(PhotoIntakeTest, HostileDrawingsAreRefusedInTime)
{
    const QString outside = session.path(QStringLiteral("outside"));
    const QByteArray key(32, 'x');
    const char *const damaged = "The file is damaged, or is not what its name says.";
    const std::tuple<const char *, QByteArray, const char *> cases[] = {
        {"empty.ai", "", "The file is empty."},
        {"words.pdf", "words", "The file is not a PDF document."},
        {"head.pdf", "%PDF-1.4\n", damaged},
        {"locked.pdf",
         pdf("", "", "/ID[(a)(a)]/Encrypt<</Filter/Standard/V 1/R 2/P -4/O(" + key + ")/U(" + key + ")>>"),
         "The document is protected by a password."},
        {"none.svg", "<svg/>", "The drawing has no size, or cannot be read."},
        {"none.eps", "%!PS\nshowpage", "The file is not a PostScript drawing with a size."},
        {"write.eps", eps("(" + outside.toUtf8() + ") (w) file closefile"), damaged},
        {"larger-than-told.eps", eps("<< /PageSize [400 400] >> setpagedevice"), damaged},
        {"loop.eps", eps("{} loop"), "Drawing the file takes longer than 10 seconds."},
    };
    for (const auto &[name, bytes, reason] : cases) {
        m_notes.refused.clear();
        m_intake.addItemsWithURLs({session.write(QString::fromLatin1(name), bytes)}, false);
        EXPECT_EQ(session.data.photoCount(), 0) << name;
        EXPECT_EQ(m_notes.refused, QStringList(QString::fromLatin1(reason))) << name;
    }
    EXPECT_FALSE(QFile::exists(outside));
}

TEST_F(PhotoIntakeTest, NewPhotosTakeTheSelectedPhotosRow)
{
    const auto overlay = std::make_shared<TSOverlay>();
    session.overlays.addOverlay(overlay);
    session.addPhotos(3);
    for (int row = 0; row < 3; ++row) {
        overlay->setXPixel(row);
        overlay->appendRow();
    }
    session.photos.setSelectedPhoto(2);
    const auto selected = session.photos.photoAtIndex(2);
    m_intake.addItemsWithURLs({writePhoto(QStringLiteral("end.jpg"))}, false);
    EXPECT_EQ(valuesOf(*overlay, &TSRow::xPixel), (std::vector<float>{0, 1, 2, 2}));

    m_intake.insertAtIndex = 1;
    m_intake.addItemsWithURLs({writePhoto(QStringLiteral("i.jpg")), writePhoto(QStringLiteral("j.jpg"))},
                              true);
    EXPECT_EQ(titles().mid(1, 2), (QStringList{QStringLiteral("i"), QStringLiteral("j")}));
    EXPECT_EQ(m_intake.insertAtIndex, 3);
    EXPECT_EQ(session.photos.photoAtIndex(4), selected);
    EXPECT_EQ(session.photos.selectedPhoto(), 4);
    EXPECT_EQ(overlay->rows().count(), 6);
    EXPECT_EQ(overlay->rows().at(1)->xPixel, 2.0f);
    EXPECT_EQ(overlay->rows().at(2)->xPixel, 2.0f);

    session.data.removePhotoAtIndex(5);
    m_intake.addItemsWithURLs({writePhoto(QStringLiteral("late.jpg"))}, false);
    EXPECT_EQ(overlay->rows().count(), 7) << "stray rows stay where they are";
    EXPECT_EQ(overlay->rows().at(overlay->rows().count() - 1)->xPixel, overlay->rows().at(4)->xPixel);
}
