#include "ui/export/TSFormatWindowController.h"

#include "controls/TSTheme.h"
#include "naming/TSPatternParser.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>

namespace {

constexpr int bestQuality = 100;

template <typename Widget>
Widget *named(Widget *widget, const char *name, const QString &accessibleName)
{
    widget->setObjectName(QLatin1String(name));
    widget->setAccessibleName(accessibleName);
    return widget;
}

QComboBox *newPopUp(const char *name, const QString &accessibleName, const QStringList &titles, qint64 index)
{
    QComboBox *popUp = named(new QComboBox, name, accessibleName);
    popUp->addItems(titles);
    popUp->setCurrentIndex(int(index));
    return popUp;
}

} // namespace

TSFormatWindowController::TSFormatWindowController(TSOutputSettings &settings, QWidget *parent)
    : QDialog(parent)
    , m_settings(settings)
    , m_pubFormat(
          newPopUp("pubFormat", qtTrId("Format"), TSOutputSettings::formatTitles(), settings.pubFormat()))
    , m_pubResizeWay(newPopUp("pubResizeWay", qtTrId("Resize"), TSOutputSettings::resizeWayTitles(),
                              settings.pubResizeWay()))
    , m_slQuality(named(new QSlider(Qt::Horizontal), "slQuality", qtTrId("Quality")))
    , m_tfQuality(named(new QSpinBox, "tfQuality", qtTrId("Quality")))
    , m_vwBaseView(new QStackedWidget)
    , m_tfInput(named(new QLineEdit, "tfInput", qtTrId("OutputName")))
    , m_tfExample(new QLabel)
{
    setObjectName(QStringLiteral("FormatWindow"));
    setWindowModality(Qt::WindowModal);
    m_vwBaseView->addWidget(new QWidget);
    m_vwBaseView->addWidget(newSizeRow({{TSSizeField::ByWidth, "tfByWidth"}}));
    m_vwBaseView->addWidget(newSizeRow({{TSSizeField::ByHeight, "tfByHeight"}}));
    m_vwBaseView->addWidget(newSizeRow({{TSSizeField::ByPercentage, "tfByPercentage"}}));
    m_vwBaseView->addWidget(newSizeRow({{TSSizeField::FitSizeWidth, "tfByFitWidthSize"},
                                        {TSSizeField::FitSizeHeight, "tfByFitHeightSize"}}));
    auto *form = new QFormLayout(this);
    form->setContentsMargins(TSTheme::margin, TSTheme::margin, TSTheme::margin, TSTheme::margin);
    form->addRow(qtTrId("Format"), m_pubFormat);
    form->addRow(qtTrId("Quality"), newQualityRow());
    form->addRow(qtTrId("Resize"), m_pubResizeWay);
    form->addRow(QString(), m_vwBaseView);
    form->addRow(qtTrId("OutputName"), newNameRow());
    form->addRow(qtTrId("Example"), m_tfExample);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_btOK = buttons->button(QDialogButtonBox::Ok);
    m_btOK->setText(qtTrId("MenuExport"));
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_pubFormat, &QComboBox::currentIndexChanged, this, &TSFormatWindowController::formatChanged);
    connect(m_pubResizeWay, &QComboBox::currentIndexChanged, this,
            &TSFormatWindowController::resizeWayChanged);
    connect(m_tfInput, &QLineEdit::textEdited, this, &TSFormatWindowController::textChanged);
    formatChanged(m_pubFormat->currentIndex());
    resizeWayChanged(m_pubResizeWay->currentIndex());
    showExample();
    setMinimumWidth(520);
}

QWidget *TSFormatWindowController::newQualityRow()
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_slQuality->setRange(1, bestQuality);
    m_tfQuality->setRange(1, bestQuality);
    m_slQuality->setValue(m_settings.quality());
    m_tfQuality->setValue(m_settings.quality());
    layout->addWidget(m_slQuality, 1);
    layout->addWidget(m_tfQuality);
    connect(m_slQuality, &QSlider::valueChanged, this, &TSFormatWindowController::qualityChanged);
    connect(m_tfQuality, &QSpinBox::valueChanged, this, &TSFormatWindowController::qualityChanged);
    return row;
}

QWidget *
TSFormatWindowController::newSizeRow(std::initializer_list<std::pair<TSSizeField, const char *>> fields)
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const auto &[size, name] : fields) {
        QSpinBox *field = named(new QSpinBox, name, qtTrId(name));
        const TSSizeField which = size;
        field->setRange(1, TSOutputSettings::top(which));
        field->setSuffix(which == TSSizeField::ByPercentage ? QStringLiteral(" %") : QStringLiteral(" px"));
        field->setValue(m_settings.size(which));
        layout->addWidget(field);
        connect(field, &QSpinBox::valueChanged, this,
                [this, which](int value) { m_settings.sizeChanged(which, value); });
        connect(field, &QSpinBox::editingFinished, this, [this] { m_settings.sizeDidEndEditing(); });
    }
    layout->addStretch();
    return row;
}

QWidget *TSFormatWindowController::newNameRow()
{
    auto *row = new QWidget;
    auto *column = new QVBoxLayout(row);
    column->setContentsMargins(0, 0, 0, 0);
    // What the pattern begins with.
    m_tfInput->setText(QStringLiteral("{Name}"));
    auto *palette = new QHBoxLayout;
    for (const char *token : {"{Name}", "{Number:001}", "{Created}", "{Modified}"}) {
        const QString text = QLatin1String(token);
        auto *button = new QPushButton(text.mid(1).section(u':', 0, 0).remove(u'}'));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, text] {
            m_tfInput->insert(text);
            textChanged(m_tfInput->text());
        });
        palette->addWidget(button);
    }
    palette->addStretch();
    column->addWidget(m_tfInput);
    column->addLayout(palette);
    return row;
}

void TSFormatWindowController::formatChanged(int index)
{
    m_settings.formatChanged(index);
    m_slQuality->setEnabled(m_settings.isQualityEnabled());
    m_tfQuality->setEnabled(m_settings.isQualityEnabled());
}

void TSFormatWindowController::qualityChanged(int percent)
{
    const QSignalBlocker slider(m_slQuality), field(m_tfQuality);
    m_slQuality->setValue(percent);
    m_tfQuality->setValue(percent);
    m_settings.qualityChanged(percent);
}

void TSFormatWindowController::resizeWayChanged(int index)
{
    m_settings.resizeWayChanged(index);
    m_vwBaseView->setCurrentIndex(index);
}

void TSFormatWindowController::textChanged(const QString &pattern)
{
    const TSPatternParser::Result parsed = TSPatternParser::namePattern(pattern);
    m_btOK->setEnabled(parsed.error.isEmpty() && !parsed.values.empty());
    if (!parsed.error.isEmpty()) {
        m_tfExample->setText(parsed.error);
        return;
    }
    m_settings.namePattern().setObjectValue(parsed.values);
    m_settings.namePattern().textChanged();
    showExample();
}

void TSFormatWindowController::showExample()
{
    m_settings.namePattern().updateExampleText();
    m_tfExample->setText(m_settings.namePattern().tfExample());
}
