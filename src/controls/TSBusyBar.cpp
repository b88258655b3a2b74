#include "controls/TSBusyBar.h"

#include "controls/TSBarPainter.h"

#include <QPainter>
#include <QStyleOptionProgressBar>

namespace {

// In milliseconds.
constexpr int stepTime = 33;
constexpr qint64 roundTime = 1600;
constexpr int barHeight = 8;

} // namespace

TSBusyBar::TSBusyBar(QWidget *parent) : QProgressBar(parent)
{
    setTextVisible(false);
    setFixedHeight(barHeight);
    m_step.setInterval(stepTime);
    connect(&m_step, &QTimer::timeout, this, [this] {
        if (isBusy())
            update();
    });
}

void TSBusyBar::showEvent(QShowEvent *event)
{
    QProgressBar::showEvent(event);
    m_running.start();
    m_step.start();
}

void TSBusyBar::hideEvent(QHideEvent *event)
{
    QProgressBar::hideEvent(event);
    m_step.stop();
}

void TSBusyBar::paintEvent(QPaintEvent *event)
{
    if (!isBusy()) {
        QProgressBar::paintEvent(event);
        return;
    }
    QStyleOptionProgressBar option;
    initStyleOption(&option);
    QPainter painter(this);
    const qint64 time = m_running.isValid() ? m_running.elapsed() : 0;
    TSBarPainter::drawBusy(&option, &painter, double(time % roundTime) / roundTime);
}
