#pragma once

#include <QElapsedTimer>
#include <QProgressBar>
#include <QTimer>

/// A progress bar without words. While nobody can tell how far things are, which is what no range stands for,
/// a short piece runs through it, beginning with an empty bar.
class TSBusyBar : public QProgressBar {
    Q_OBJECT

public:
    explicit TSBusyBar(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    bool isBusy() const { return minimum() == maximum(); }

    QElapsedTimer m_running;
    QTimer m_step;
};
