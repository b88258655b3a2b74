#include "controls/TSTokenField.h"
#include "support/ExportSession.h"
#include "ui/export/TSFormatWindowController.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

namespace {

class FormatWindowTest : public ExportTest {
protected:
    FormatWindowTest()
    {
        addPhoto("Alpha.png", {40, 30});
        addPhoto("Beta.png", {40, 30});
        settings.initSettingsView();
        // As the main window does.
        QObject::connect(&session.center, &TSNotificationCenter::TSOutputSizeOrNameChanged, &session.center,
                         &TSNotificationCenter::TSExportImageNames);
        sheet = new TSFormatWindowController(settings, &window);
        window.show();
        sheet->open();
        QApplication::setActiveWindow(sheet);
        Q_EMIT session.center.TSExportImageNames();
    }

    template <typename Widget>
    Widget *child(const char *name)
    {
        return sheet->findChild<Widget *>(QLatin1String(name));
    }
    void click(const char *name) { QTest::mouseClick(child<QWidget>(name), Qt::LeftButton); }
    void chooseWay(int way) { child<QComboBox>("pubResizeWay")->setCurrentIndex(way); }
    /// Moves to the token before the cursor and chooses in its menu.
    void chooseVariant(int item)
    {
        auto *field = child<QWidget>("tfInput");
        QTest::keyClick(field, Qt::Key_Left);
        QTest::keyClick(field, Qt::Key_Down);
        auto *menu = child<QMenu>("tokenMenu");
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions()[item]).center());
        QTest::keyClick(field, Qt::Key_Right);
    }
    std::string names() const { return session.data.exportNames.join(u' ').toStdString(); }
    std::string example() { return child<QLabel>("tfExample")->text().toStdString(); }

    QWidget window;
    TSOutputSettings settings;
    TSFormatWindowController *sheet;
    QSignalSpy resizings{&session.center, &TSNotificationCenter::TSResizingPhotoView};
    QSignalSpy nameChanges{&session.center, &TSNotificationCenter::TSOutputSizeOrNameChanged};
};

} // namespace

TEST_F(FormatWindowTest, FieldsHoldTheirLimitsAndActAtOnce)
{
    struct Row {
        int way;
        const char *field, *typed, *shown;
        double TSDataManager::*result;
        double expected;
        const char *key;
    };
    const Row rows[] = {
        {1, "tfByWidth", "99999", "9999", &TSDataManager::outputWidth, 9999, "ByWidth"},
        {1, "tfByWidth", "12a", "12", &TSDataManager::outputWidth, 12, "ByWidth"},
        {2, "tfByHeight", "x", "1", &TSDataManager::outputHeight, 1, "ByHeight"},
        {3, "tfByPercentage", "1001", "1000", &TSDataManager::percentage, 1000, "ByPercentage"},
        {4, "tfByFitWidthSize", "0", "1", &TSDataManager::outputWidth, 1, "FitSizeWidth"},
        {4, "tfByFitHeightSize", "640", "640", &TSDataManager::outputHeight, 640, "FitSizeHeight"},
        {0, "tfQuality", "101", "100", &TSDataManager::quality, 1, nullptr},
    };
    for (const Row &row : rows) {
        chooseWay(row.way);
        auto *field = child<QLineEdit>(row.field);
        ASSERT_TRUE(field->isVisible()) << row.field;
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(row.typed));
        EXPECT_EQ(field->text(), row.shown) << row.field;
        EXPECT_EQ(session.data.*row.result, row.expected) << row.field;
        if (row.key) {
            EXPECT_EQ(session.defaults->integerForKey(row.key), row.expected) << row.key;
        }
        const qsizetype before = resizings.count();
        child<QComboBox>("pubFormat")->setFocus();
        EXPECT_EQ(resizings.count() - before, row.key ? 1 : 0) << row.field;
    }
    chooseWay(1);
    EXPECT_EQ(session.data.outputWidth, 12) << "the way brings its own width back";
}

TEST_F(FormatWindowTest, AWayShowsItsRowsAndLeavesTheSheetAsHighAsItWas)
{
    const std::pair<const char *, int> views[] = {
        {nullptr, 0}, {"vwByWidth", 1}, {"vwByHeight", 1}, {"vwByPercentage", 1}, {"vwByFit", 2}};
    const int height = sheet->height(), top = child<QWidget>("tfInput")->mapTo(sheet, QPoint()).y();
    const int button = child<QWidget>("btOK")->y();
    int pitch = 0;
    for (int way = 0; way < 5; ++way) {
        chooseWay(way);
        QApplication::processEvents();
        const int moved = child<QWidget>("tfInput")->mapTo(sheet, QPoint()).y() - top;
        pitch = way == 1 ? moved : pitch;
        EXPECT_EQ(moved, views[way].second * pitch) << way;
        EXPECT_EQ(sheet->height(), height) << way;
        EXPECT_EQ(child<QWidget>("btOK")->y(), button) << way;
        for (int other = 1; other < 5; ++other)
            EXPECT_EQ(child<QWidget>(views[other].first)->isVisible(), other == way) << way << other;
        EXPECT_EQ(session.defaults->integerForKey("ResizeStyle"), way);
    }
    EXPECT_GT(pitch, 0);
}

TEST_F(FormatWindowTest, TokensAndTheirVariantsMakeTheNames)
{
    EXPECT_EQ(names(), "Alpha Beta");
    chooseVariant(2);
    EXPECT_EQ(names(), "ALPHA BETA");
    EXPECT_EQ(example(), "NAME");
    QTest::keyClicks(child<QWidget>("tfInput"), "-");
    click("tfNumber");
    chooseVariant(2);
    EXPECT_EQ(names(), "ALPHA-001 BETA-002");
    EXPECT_EQ(example(), "NAME-001");
    child<QWidget>("pubResizeWay")->setFocus();
    child<QWidget>("tfInput")->setFocus(Qt::TabFocusReason);
    QTest::keyClick(child<QWidget>("tfNumber"), Qt::Key_Space);
    EXPECT_EQ(names(), "ALPHA-001001 BETA-002002") << "both come from one token of the palette";
    const qsizetype before = nameChanges.count();
    click("tfName");
    QTest::mouseDClick(child<QWidget>("tfName"), Qt::LeftButton);
    QTest::mouseRelease(child<QWidget>("tfName"), Qt::LeftButton);
    EXPECT_EQ(nameChanges.count(), before + 1) << "a double click is one click";
    EXPECT_EQ(names(), "ALPHA-001001Alpha BETA-002002Beta") << "the palette's Name is another one";
    auto *field = child<TSTokenField>("tfInput");
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    EXPECT_EQ(nameChanges.count(), before + 1);
    EXPECT_EQ(names(), "ALPHA-001001Alpha BETA-002002Beta") << "an emptied field tells nobody";
    Q_EMIT session.center.TSExportImageNames();
    EXPECT_EQ(names(), "");
}

/// Typed or out of a date: told where the name is made, and nothing is begun.
TEST_F(FormatWindowTest, ANameThatNoFileCanHaveKeepsTheExportBack)
{
    const QSignalSpy panels(&session.center, &TSNotificationCenter::TSOpenSavePanel);
    const int height = sheet->height();
    const auto expectRefusal = [&](const char *name) {
        const std::string told =
            name ? "“" + std::string(name) + "” has a slash in it, which no file name can have." : "";
        EXPECT_EQ(child<QLabel>("tfRefusal")->text().toStdString(), told);
        EXPECT_EQ(child<QWidget>("btOK")->isEnabled(), !name);
        if (name)
            sheet->accept();
        EXPECT_EQ(panels.count(), 0);
        QApplication::processEvents();
        EXPECT_EQ(sheet->height(), height);
    };
    expectRefusal(nullptr);
    QTest::keyClicks(child<QWidget>("tfInput"), "/x");
    expectRefusal("Alpha/x");
    QTest::keyClick(child<QWidget>("tfInput"), Qt::Key_Backspace);
    QTest::keyClick(child<QWidget>("tfInput"), Qt::Key_Backspace);
    expectRefusal(nullptr);
    // Of the second photo alone, since the first has no date.
    session.data.itemAtIndex(0)->fileAttributesDic.clear();
    session.data.itemAtIndex(1)->fileAttributesDic.insert(TSFileAttribute::CreationDate.toString(),
                                                          QDateTime(QDate(2026, 3, 5), QTime(12, 0)));
    click("tfDateCreated");
    chooseVariant(3);
    expectRefusal("Beta03/05/2026");
    EXPECT_TRUE(sheet->isVisible());
}

TEST_F(FormatWindowTest, FormatsOtherThanJpgKeepTheQualityAndLockIt)
{
    const std::tuple<const char *, unsigned, bool> formats[] = {
        {"png", 4U, false}, {"bmp", 1U, false}, {"tiff", 0U, false}, {"jpg", 3U, true}};
    QTest::keyClick(child<QWidget>("stQuality"), Qt::Key_Up);
    for (const auto &[extension, type, isEnabled] : formats) {
        const qsizetype before = nameChanges.count();
        child<QComboBox>("pubFormat")->setCurrentText(QString::fromLatin1(extension).toUpper());
        EXPECT_EQ(child<QLabel>("lbFormat")->isHidden(), QByteArray(extension) != "bmp");
        EXPECT_EQ(session.data.exportFormat, extension);
        EXPECT_EQ(session.data.type, type);
        EXPECT_EQ(session.defaults->integerForKey("ExportFormat"),
                  child<QComboBox>("pubFormat")->currentIndex());
        for (const char *part : {"slQuality", "tfQuality", "stQuality", "lbQuality"})
            EXPECT_EQ(child<QWidget>(part)->isEnabled(), isEnabled) << extension << part;
        EXPECT_DOUBLE_EQ(session.data.quality, 0.86);
        EXPECT_EQ(nameChanges.count(), before + 1);
    }
}
