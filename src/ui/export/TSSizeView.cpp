#include "ui/export/TSSizeView.h"

#include "controls/TSNumberField.h"
#include "controls/TSStepper.h"
#include "controls/TSTheme.h"
#include "controls/TSValueTrio.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int mostRows = 2;

} // namespace

TSSizeView::TSSizeView(TSOutputSettings &settings, QWidget *parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_column(new QVBoxLayout(this))
    , m_views{nullptr, newView("vwByWidth"), newView("vwByHeight"), newView("vwByPercentage"),
              newView("vwByFit")}
{
    setObjectName(QStringLiteral("vwBaseView"));
    m_column->setContentsMargins(0, 0, 0, 0);
    addRow(m_views[1], TSSizeField::ByWidth, "ByWidth");
    addRow(m_views[2], TSSizeField::ByHeight, "ByHeight");
    addRow(m_views[3], TSSizeField::ByPercentage, "ByPercentage");
    addRow(m_views[4], TSSizeField::FitSizeWidth, "ByFitWidthSize");
    addRow(m_views[4], TSSizeField::FitSizeHeight, "ByFitHeightSize");
}

QWidget *TSSizeView::newView(const char *name)
{
    auto *view = new QWidget(this);
    view->setObjectName(QLatin1String(name));
    auto *rows = new QVBoxLayout(view);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(TSTheme::spacing);
    m_column->addWidget(view);
    return view;
}

void TSSizeView::addRow(QWidget *view, TSSizeField field, const char *name)
{
    const QString title = qtTrId((QByteArray("tf") + name).constData());
    auto *trio = new TSValueTrio(QLatin1String(name), title, TSValueTrio::Parts::WithoutSlider, view);
    trio->setRange(1, TSOutputSettings::top(field));
    trio->setValue(m_settings.size(field));
    auto *label = new QLabel(title, view);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setBuddy(trio->field());
    m_labels.append(label);
    auto *row = new QHBoxLayout;
    row->setSpacing(TSTheme::margin);
    row->addWidget(label);
    row->addWidget(trio);
    row->addWidget(
        new QLabel(field == TSSizeField::ByPercentage ? QStringLiteral("%") : qtTrId("Pixels"), view));
    row->addStretch();
    static_cast<QVBoxLayout *>(view->layout())->addLayout(row);
    connect(trio->field(), &TSNumberField::valueEdited, this,
            [this, field](int value) { m_settings.sizeTyped(field, value); });
    connect(trio->stepper(), &TSStepper::valueChanged, this,
            [this, field](int value) { m_settings.sizeChanged(field, value); });
    connect(trio, &TSValueTrio::editingFinished, this, [this] { m_settings.sizeDidEndEditing(); });
}

int TSSizeView::labelWidth() const
{
    int width = 0;
    for (const QLabel *label : m_labels)
        width = qMax(width, label->sizeHint().width());
    return width;
}

void TSSizeView::setLabelWidth(int width)
{
    for (QLabel *label : m_labels)
        label->setFixedWidth(width);
}

void TSSizeView::showWay()
{
    QWidget *shown = m_views[size_t(m_settings.pubResizeWay())];
    for (QWidget *view : m_views)
        if (view && view != shown)
            view->hide();
    if (shown)
        shown->show();
    setVisible(shown);
}

int TSSizeView::rowCount() const
{
    const QWidget *shown = m_views[size_t(m_settings.pubResizeWay())];
    return shown ? shown->layout()->count() : 0;
}

int TSSizeView::rowPitch() const
{
    return m_views[1]->sizeHint().height() + TSTheme::spacing;
}

int TSSizeView::missingHeight() const
{
    return (mostRows - rowCount()) * rowPitch();
}
