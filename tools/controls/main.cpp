// Usage: tessaro-gallery light|dark FOLDER
//
// Paints every control into pictures, to be looked at. QT_SCALE_FACTOR=2 gives them at twice the scale, and
// QT_QPA_PLATFORM=offscreen needs no screen.
#include "controls/TSCheckBoxAlert.h"
#include "controls/TSHUDButton.h"
#include "controls/TSImageBrowserView.h"
#include "controls/TSNumberField.h"
#include "controls/TSPopover.h"
#include "controls/TSSegmentedControl.h"
#include "controls/TSStepper.h"
#include "controls/TSStyle.h"
#include "controls/TSTokenField.h"
#include "controls/TSTokenPill.h"
#include "controls/TSValueTrio.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

namespace {

using Name = TSIcon::Name;

/// Pictures of several shapes and colours; every ninth has not come yet.
class Photos : public TSImageBrowserDataSource {
public:
    explicit Photos(int count, bool hasPlaceholders = true) : m_count(count), m_holds(hasPlaceholders) {}

    int numberOfItemsInImageBrowser() const override { return m_count; }
    QString imageTitle(int index) const override
    {
        return index == 3 ? QStringLiteral("A very long name of a photograph 0042.jpg")
                          : QStringLiteral("IMG_%1.jpg").arg(4000 + index);
    }
    QString imageDescription(int index) const override { return imageTitle(index); }
    QString resourcePath(int) const override { return {}; }
    QImage thumbnail(int index, const QSize &) override
    {
        if (m_holds && index % 9 == 4)
            return {};
        const QSize size = index % 3 == 1   ? QSize(200, 300)
                           : index % 5 == 2 ? QSize(480, 180)
                                            : QSize(300, 200);
        QImage image(size, QImage::Format_RGB32);
        QLinearGradient sky(0, 0, 0, size.height());
        sky.setColorAt(0, QColor::fromHsv(index * 47 % 360, 110, 230));
        sky.setColorAt(0.65, QColor::fromHsv((index * 47 + 40) % 360, 60, 245));
        sky.setColorAt(0.66, QColor::fromHsv((index * 31 + 90) % 360, 140, 90));
        QPainter(&image).fillRect(image.rect(), sky);
        return image;
    }

private:
    int m_count;
    bool m_holds;
};

TSFieldToken token(const char *title)
{
    return {QString::fromLatin1(title), {QStringLiteral("0"), QStringLiteral("00")}, 0};
}

QWidget *row(std::initializer_list<QWidget *> widgets)
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    layout->addStretch();
    return row;
}

template <class Widget>
Widget *disabled(Widget *widget)
{
    widget->setEnabled(false);
    return widget;
}

QPushButton *defaultButton()
{
    auto *button = new QPushButton(QStringLiteral("Export"));
    button->setDefault(true);
    return button;
}

TSSegmentedControl *titles()
{
    auto *control = new TSSegmentedControl(TSSegmentedControl::Selection::One);
    control->addSegment(QStringLiteral("Batch"));
    control->addSegment(QStringLiteral("Adjust"));
    control->setSelected(0);
    return control;
}

TSSegmentedControl *styles()
{
    auto *control = new TSSegmentedControl(TSSegmentedControl::Selection::Any);
    for (const Name name : {Name::Bold, Name::Italic, Name::Underline, Name::Strikethrough, Name::Outline})
        control->addSegment(name, QStringLiteral("Style"));
    control->setSelected(1);
    control->setSelected(4);
    control->setSegmentEnabled(0, false);
    return control;
}

TSSegmentedControl *alignment()
{
    auto *control = new TSSegmentedControl(TSSegmentedControl::Selection::One);
    for (const Name name : {Name::AlignLeft, Name::AlignCenter, Name::AlignRight})
        control->addSegment(name, QStringLiteral("Alignment"));
    control->setSelected(2);
    return control;
}

TSValueTrio *trio(int value, TSValueTrio::Parts parts = TSValueTrio::Parts::WithSlider)
{
    auto *trio = new TSValueTrio(QStringLiteral("Value"), QStringLiteral("Value"), parts);
    trio->setValue(value);
    trio->setMinimumWidth(parts == TSValueTrio::Parts::WithSlider ? 260 : 0);
    return trio;
}

TSTokenField *tokens(bool isSelected)
{
    auto *field = new TSTokenField;
    field->setMinimumWidth(380);
    field->setParts({token("Name"), QStringLiteral("_edited "), token("Number"), QStringLiteral(" of 2024")});
    QTextCursor cursor = field->textCursor();
    cursor.setPosition(isSelected ? 9 : 0);
    cursor.setPosition(isSelected ? 10 : 0, QTextCursor::KeepAnchor);
    field->setTextCursor(cursor);
    return field;
}

QComboBox *combo(std::initializer_list<const char *> items)
{
    auto *combo = new QComboBox;
    for (const char *item : items)
        combo->addItem(QString::fromLatin1(item));
    return combo;
}

template <class Button>
Button *checked(Button *button)
{
    button->setChecked(true);
    return button;
}

QWidget *toolbar()
{
    const std::pair<Name, const char *> buttons[] = {
        {Name::Text, "Add Text"},          {Name::Sticker, "Sticker"}, {Name::Layers, "Watermark Manager"},
        {Name::SaveLayout, "Save Layout"}, {Name::Fit, "Fit"},         {Name::Export, "Export"}};
    auto *bar = row({});
    for (const auto &[name, title] : buttons) {
        auto *button = new TSHUDButton(name, QString::fromLatin1(title), Qt::ToolButtonTextUnderIcon);
        button->setCheckable(true);
        button->setChecked(name == Name::Layers);
        button->setEnabled(name != Name::Export);
        bar->layout()->addWidget(button);
    }
    return bar;
}

QWidget *controls()
{
    auto *page = new QWidget;
    auto *form = new QFormLayout(page);
    form->setContentsMargins(24, 20, 24, 20);
    form->setVerticalSpacing(14);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->addRow(toolbar());
    form->addRow(QStringLiteral("Buttons"),
                 row({defaultButton(), new QPushButton(QStringLiteral("Cancel")),
                      disabled(new QPushButton(QStringLiteral("Remove"))),
                      new TSHUDButton(Name::Add, QStringLiteral("Add"), Qt::ToolButtonTextBesideIcon),
                      new TSHUDButton(Name::Trash, QStringLiteral("Remove"), Qt::ToolButtonIconOnly)}));
    form->addRow(QStringLiteral("Segments"), row({titles(), styles(), alignment(), disabled(titles())}));
    form->addRow(QStringLiteral("Opacity"), row({trio(64), trio(100, TSValueTrio::Parts::WithoutSlider)}));
    form->addRow(QStringLiteral("Angle"), disabled(trio(30)));
    form->addRow(QStringLiteral("Format"),
                 row({combo({"JPG", "PNG"}), combo({"Keep Original Size"}), disabled(combo({"Arial"}))}));
    form->addRow(QStringLiteral("Choices"), row({checked(new QCheckBox(QStringLiteral("Show again"))),
                                                 new QCheckBox(QStringLiteral("Off")),
                                                 disabled(checked(new QCheckBox(QStringLiteral("Disabled")))),
                                                 checked(new QRadioButton(QStringLiteral("Percentage"))),
                                                 new QRadioButton(QStringLiteral("Pixel"))}));
    form->addRow(QStringLiteral("Name"), tokens(false));
    form->addRow(QStringLiteral("Selected"), tokens(true));
    form->addRow(QString(), row({new TSTokenPill(token("Name")), new TSTokenPill(token("Number")),
                                 new TSTokenPill(token("Date Created"))}));
    auto *progress = new QProgressBar;
    progress->setValue(60);
    progress->setTextVisible(false);
    form->addRow(QStringLiteral("Progress"), progress);
    return page;
}

/// The same controls in a column, each with the focus in turn, since only one can have it at a time.
QImage focused(QWidget *widget, QWidget *part)
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    layout->addWidget(widget);
    window.show();
    QApplication::setActiveWindow(&window);
    part->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    return window.grab().toImage();
}

QImage below(const std::vector<QImage> &images)
{
    QSize size;
    for (const QImage &image : images)
        size = {qMax(size.width(), image.width()), size.height() + image.height()};
    QImage all(size, QImage::Format_RGB32);
    all.fill(QApplication::palette().color(QPalette::Window));
    QPainter painter(&all);
    int y = 0;
    for (QImage image : images) {
        image.setDevicePixelRatio(1);
        painter.drawImage(0, y, image);
        y += image.height();
    }
    return all;
}

QImage rings()
{
    std::vector<QImage> images;
    const auto add = [&](QWidget *widget) { images.push_back(focused(widget, widget)); };
    add(defaultButton());
    add(new QPushButton(QStringLiteral("Cancel")));
    add(new QCheckBox(QStringLiteral("Do not show this again")));
    add(combo({"Keep Original Size"}));
    add(tokens(true));
    add(new TSTokenPill(token("Number")));
    add(new TSHUDButton(Name::Text, QStringLiteral("Add Text"), Qt::ToolButtonTextUnderIcon));
    auto *slider = trio(40);
    images.push_back(focused(slider, slider->slider()));
    auto *field = trio(40);
    images.push_back(focused(field, field->field()));
    auto *stepper = trio(40);
    images.push_back(focused(stepper, stepper->stepper()));
    auto *segments = titles();
    images.push_back(focused(segments, segments->segment(0)));
    return below(images);
}

QWidget *icons()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(24, 20, 24, 20);
    for (int i = 0; i <= int(Name::Warning); ++i) {
        grid->addWidget(new TSHUDButton(Name(i), QString::number(i), Qt::ToolButtonTextUnderIcon), i / 9,
                        i % 9);
        auto *large = new TSHUDButton(Name(i), QString(), Qt::ToolButtonIconOnly);
        large->setIconSize({40, 40});
        grid->addWidget(large, 5 + i / 9, i % 9);
    }
    return page;
}

QImage strip()
{
    Photos photos(40);
    TSImageBrowserView view(TSImageBrowserView::Arrangement::Strip);
    view.setDataSource(&photos);
    view.reloadData();
    view.resize(1024, view.minimumSizeHint().height());
    view.setSelectedIndex(1);
    view.show();
    QApplication::processEvents();
    const QImage plain = view.grab().toImage();
    QApplication::setActiveWindow(&view);
    view.setFocus();
    view.scrollIndexToVisible(30);
    view.setSelectedIndex(26);
    QApplication::processEvents();
    return below({plain, view.grab().toImage()});
}

QImage popover()
{
    auto *photos = new Photos(18, false);
    auto *grid = new TSImageBrowserView(TSImageBrowserView::Arrangement::Grid);
    grid->setShowsTitles(false);
    grid->setAllowsEmptySelection(true);
    grid->setIntercellSpacing({0, 0});
    grid->setCellSize({100, 100});
    grid->setBackgroundColor(QColor(241, 241, 241));
    grid->setDataSource(photos);
    grid->setFixedSize(416, 300);
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(grid);
    layout->addWidget(row({new QPushButton(QStringLiteral("From file…"))}));
    TSPopover popover;
    popover.setContent(content);
    QWidget anchor;
    anchor.setGeometry(300, 20, 60, 40);
    anchor.show();
    popover.showRelativeTo(&anchor);
    QApplication::processEvents();
    const QPixmap bubble = popover.grab();
    QImage image = QImage(bubble.size(), QImage::Format_RGB32);
    image.fill(TSTheme::mixed(QApplication::palette().color(QPalette::Window), Qt::gray, 0.3));
    image.setDevicePixelRatio(bubble.devicePixelRatio());
    QPainter(&image).drawPixmap(0, 0, bubble);
    return image;
}

QImage menu()
{
    QMenu menu;
    for (const char *title : {"No Change", "lowercase", "UPPERCASE"})
        menu.addAction(QString::fromLatin1(title))->setCheckable(true);
    menu.actions()[1]->setChecked(true);
    menu.addSeparator();
    menu.addAction(QStringLiteral("Not now"))->setEnabled(false);
    menu.popup({50, 50});
    menu.setActiveAction(menu.actions()[0]);
    QApplication::processEvents();
    return menu.grab().toImage();
}

QImage alert()
{
    QWidget window;
    window.resize(640, 300);
    window.show();
    auto *alert = TSCheckBoxAlert::alertWithMessageText(
        QStringLiteral("Do you want to replace the watermarks?"), QStringLiteral("OK"),
        QStringLiteral("Cancel"), QStringLiteral("Save Layout…"),
        QStringLiteral(
            "The layout takes the place of the watermarks that stand on the photos now. This cannot be "
            "undone."),
        &window);
    alert->setShowsCheckbox(true);
    alert->setCheckboxText(QStringLiteral("Do not show this again"));
    alert->open();
    QApplication::processEvents();
    QImage image = window.grab().toImage();
    const QPixmap sheet = alert->grab();
    QPainter(&image).drawPixmap(window.mapFromGlobal(alert->pos()), sheet);
    return image;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        qWarning("Usage: tessaro-gallery light|dark FOLDER");
        return 2;
    }
    const bool isDark = arguments[1] == QLatin1String("dark");
    TSStyle::apply(isDark ? TSTheme::Scheme::Dark : TSTheme::Scheme::Light);
    const QString scale = QString::number(application.devicePixelRatio());
    const auto save = [&](const char *name, const QImage &image) {
        const QString file =
            QStringLiteral("%1-%2-%3x.png").arg(QString::fromLatin1(name), arguments[1], scale);
        QDir().mkpath(arguments[2]);
        if (!image.save(QDir(arguments[2]).filePath(file)))
            qWarning("Could not write %s", qPrintable(file));
    };
    save("controls", controls()->grab().toImage());
    save("rings", rings());
    save("icons", icons()->grab().toImage());
    save("strip", strip());
    save("popover", popover());
    save("alert", alert());
    save("menu", menu());
    return 0;
}
