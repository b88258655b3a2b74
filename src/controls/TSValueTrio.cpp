#include "controls/TSValueTrio.h"

#include "controls/TSNumberField.h"
#include "controls/TSStepper.h"
#include "controls/TSTheme.h"

#include <QHBoxLayout>
#include <QSlider>

namespace {

void name(QWidget *part, const char *prefix, const QString &name, const QString &label)
{
    part->setObjectName(QLatin1String(prefix) + name);
    part->setAccessibleName(label);
}

} // namespace

TSValueTrio::TSValueTrio(const QString &name, const QString &label, Parts parts, QWidget *parent)
    : QWidget(parent), m_field(new TSNumberField(this)), m_stepper(new TSStepper(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(TSTheme::spacing);
    if (parts == Parts::WithSlider) {
        m_slider = new QSlider(Qt::Horizontal, this);
        m_slider->setMinimumWidth(60);
        ::name(m_slider, "sl", name, label);
        layout->addWidget(m_slider, 1);
        connect(m_slider, &QSlider::valueChanged, this, &TSValueTrio::take);
    }
    auto *pair = new QHBoxLayout;
    pair->setSpacing(2);
    pair->addWidget(m_field);
    pair->addWidget(m_stepper);
    layout->addLayout(pair);
    ::name(m_field, "tf", name, label);
    ::name(m_stepper, "st", name, label);
    setFocusProxy(m_field);
    setTabOrder(m_field, m_stepper);
    if (m_slider)
        setTabOrder(m_slider, m_field);
    setRange(0, 100);
    connect(m_stepper, &TSStepper::valueChanged, this, &TSValueTrio::take);
    connect(m_field, &TSNumberField::valueEdited, this, &TSValueTrio::take);
    connect(m_field, &QLineEdit::editingFinished, this, &TSValueTrio::editingFinished);
}

TSValueTrio::~TSValueTrio()
{
    // A field that dies with the focus says that its editing is finished.
    m_field->disconnect(this);
}

void TSValueTrio::setRange(int minimum, int maximum)
{
    const QSignalBlocker stepper(m_stepper), slider(m_slider);
    m_field->setRange(minimum, maximum);
    m_stepper->setRange(minimum, maximum);
    if (m_slider)
        m_slider->setRange(minimum, maximum);
}

void TSValueTrio::setCircular(bool isCircular)
{
    m_field->setCircular(isCircular);
    m_stepper->setWrapping(isCircular);
}

int TSValueTrio::value() const
{
    return m_stepper->value();
}

void TSValueTrio::setValue(int value)
{
    const QSignalBlocker stepper(m_stepper), slider(m_slider);
    m_stepper->setValue(value);
    m_field->setValue(value);
    if (m_slider)
        m_slider->setValue(value);
}

void TSValueTrio::take(int value)
{
    setValue(value);
    Q_EMIT valueChanged(value);
}
