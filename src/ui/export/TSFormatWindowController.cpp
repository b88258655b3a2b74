#include "ui/export/TSFormatWindowController.h"

#include "controls/TSNumberField.h"
#include "controls/TSStepper.h"
#include "controls/TSTheme.h"
#include "controls/TSValueTrio.h"
#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"
#include "ui/export/TSNamePatternView.h"
#include "ui/export/TSSizeView.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int bestQuality = 100;
constexpr int sheetWidth = 580;

QComboBox *newPopUp(const char *name, const QString &accessibleName, QWidget *parent)
{
    auto *popUp = new QComboBox(parent);
    popUp->setObjectName(QLatin1String(name));
    popUp->setAccessibleName(accessibleName);
    popUp->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return popUp;
}

QLabel *newLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

} // namespace

TSFormatWindowController::TSFormatWindowController(TSOutputSettings &settings, QWidget *parent)
    : TSSheet(parent)
    , m_settings(settings)
    , m_tfTitle(new QLabel(this))
    , m_pubFormat(newPopUp("pubFormat", qtTrId("Format"), this))
    , m_lbFormat(newLabel(qtTrId("BmpHoldsTiff"), this))
    , m_lbQuality(newLabel(qtTrId("Quality"), this))
    , m_quality(
          new TSValueTrio(QStringLiteral("Quality"), qtTrId("Quality"), TSValueTrio::Parts::WithSlider, this))
    , m_pubResizeWay(newPopUp("pubResizeWay", qtTrId("Resize"), this))
    , m_vwBaseView(new TSSizeView(settings, this))
    , m_pattern(new TSNamePatternView(settings.namePattern(), this))
    , m_rest(new QSpacerItem(0, 0))
{
    setObjectName(QStringLiteral("FormatWindow"));
    m_tfTitle->setFont(TSTheme::titleFont());
    m_lbFormat->setObjectName(QStringLiteral("lbFormat"));
    m_lbQuality->setObjectName(QStringLiteral("lbQuality"));
    m_quality->setRange(1, bestQuality);
    m_quality->setValue(settings.quality());
    m_pubFormat->addItems(TSOutputSettings::formatTitles());
    m_pubFormat->setCurrentIndex(int(settings.pubFormat()));
    for (const QString &title : TSOutputSettings::resizeWayTitles())
        m_pubResizeWay->addItem(qtTrId(title.toUtf8().constData()));
    m_pubResizeWay->setCurrentIndex(int(settings.pubResizeWay()));
    makeLayout();
    connect(m_pubFormat, &QComboBox::currentIndexChanged, this, &TSFormatWindowController::formatChanged);
    connect(m_pubResizeWay, &QComboBox::currentIndexChanged, this,
            &TSFormatWindowController::resizeWayChanged);
    connect(m_quality, &TSValueTrio::valueChanged, this,
            [this](int percent) { m_settings.qualityChanged(percent); });
    connect(TSNotificationCenter::defaultCenter(), &TSNotificationCenter::TSWindowWillResizeOrZooming, this,
            &TSFormatWindowController::windowChanged);
    formatChanged(m_pubFormat->currentIndex());
    updateBigViewRect();
}

void TSFormatWindowController::showEvent(QShowEvent *event)
{
    TSSheet::showEvent(event);
    m_pubFormat->setFocus();
}

void TSFormatWindowController::makeLayout()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(TSTheme::margin);
    grid->setVerticalSpacing(TSTheme::spacing);
    grid->setColumnStretch(1, 1);
    addRow(*grid, newLabel(qtTrId("Format"), this), m_pubFormat);
    // Beside the pop-up, in what it leaves of the row.
    grid->addWidget(m_lbFormat, 0, 1, Qt::AlignRight);
    addRow(*grid, m_lbQuality, m_quality);
    addRow(*grid, newLabel(qtTrId("Resize"), this), m_pubResizeWay);
    // One column of labels through the sheet.
    const int labelWidth = qMax(grid->itemAtPosition(0, 0)->sizeHint().width(), m_vwBaseView->labelWidth());
    grid->setColumnMinimumWidth(0, labelWidth);
    m_vwBaseView->setLabelWidth(labelWidth);
    m_pattern->setLabelWidth(labelWidth);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, TSTheme::margin);
    column->setSpacing(TSTheme::spacing);
    column->addWidget(m_tfTitle);
    column->addSpacing(TSTheme::spacing);
    column->addLayout(grid);
    column->addWidget(newBigView());
    column->addSpacing(TSTheme::spacing);
    column->addLayout(newButtons());
    column->setSizeConstraint(QLayout::SetFixedSize);
    m_tfTitle->setMinimumWidth(sheetWidth - 40);
}

void TSFormatWindowController::addRow(QGridLayout &grid, QLabel *label, QWidget *control)
{
    const int row = grid.rowCount() - (grid.count() == 0 ? 1 : 0);
    label->setBuddy(control);
    grid.addWidget(label, row, 0);
    grid.addWidget(control, row, 1,
                   control->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed ? Qt::AlignLeft
                                                                                  : Qt::Alignment());
}

/// The box that moves with the way of resizing: with fewer size rows its other rows stand higher, and the
/// sheet keeps its height.
QWidget *TSFormatWindowController::newBigView()
{
    m_vwBigView = new QWidget(this);
    m_vwBigView->setObjectName(QStringLiteral("vwBigView"));
    auto *column = new QVBoxLayout(m_vwBigView);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(TSTheme::spacing);
    column->addWidget(m_vwBaseView);
    column->addWidget(m_pattern);
    column->addSpacerItem(m_rest);
    return m_vwBigView;
}

QLayout *TSFormatWindowController::newButtons()
{
    QPushButton *btCancel = newButton("btCancel", qtTrId("Cancel"));
    QPushButton *btOK = newButton("btOK", qtTrId("MenuExport"));
    btOK->setDefault(true);
    connect(btCancel, &QPushButton::clicked, this, &TSFormatWindowController::clickCancel);
    connect(btOK, &QPushButton::clicked, this, &TSFormatWindowController::clickOK);
    btOK->setEnabled(m_pattern->isPossible());
    connect(m_pattern, &TSNamePatternView::isPossibleChanged, btOK, &QPushButton::setEnabled);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(TSTheme::spacing);
    buttons->addStretch();
    buttons->addWidget(btCancel);
    buttons->addWidget(btOK);
    return buttons;
}

void TSFormatWindowController::setPhotoCount(qint64 count)
{
    m_tfTitle->setText(qtTrId("ExportTitle", int(count)));
    setAccessibleName(m_tfTitle->text());
}

void TSFormatWindowController::clickOK()
{
    if (!m_pattern->isPossible())
        return;
    m_isSavePhotos = true;
    done(Accepted);
    Q_EMIT TSNotificationCenter::defaultCenter()->TSOpenSavePanel();
}

void TSFormatWindowController::clickCancel()
{
    m_isSavePhotos = false;
    done(Rejected);
}

void TSFormatWindowController::updateBigViewRect()
{
    // In this order: showing a row lays the sheet out at once, and its height is to stay.
    m_rest->changeSize(0, m_vwBaseView->missingHeight());
    m_vwBigView->layout()->invalidate();
    m_vwBaseView->showWay();
}

void TSFormatWindowController::formatChanged(int index)
{
    m_settings.formatChanged(index);
    for (QWidget *part : {static_cast<QWidget *>(m_lbQuality), static_cast<QWidget *>(m_quality)})
        part->setEnabled(m_settings.isQualityEnabled());
    m_lbFormat->setVisible(TSDataManager::dataManager()->type == TSFileType::BMP);
}

void TSFormatWindowController::resizeWayChanged()
{
    m_settings.resizeWayChanged(m_pubResizeWay->currentIndex());
    updateBigViewRect();
}

void TSFormatWindowController::windowChanged()
{
    resizeWayChanged();
    formatChanged(m_pubFormat->currentIndex());
}
