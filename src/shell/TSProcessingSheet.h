#pragma once

#include "controls/TSSheet.h"

#include <QElapsedTimer>
#include <QList>

class QLabel;
class QPushButton;
class TSBusyBar;

/// The sheet that keeps the user from the photo list while files are taken in, and what there is to tell of
/// them afterwards. One instance serves all intakes.
class TSProcessingSheet : public TSSheet {
    Q_OBJECT

public:
    explicit TSProcessingSheet(QWidget *parent);

    void begin(const QString &title, bool canCancel);
    /// The sheet goes; the refusals stay.
    void end();
    /// The file at hand. Shown no more often than anybody reads.
    void setTitle(const QString &title);

    /// A file that gave no photo.
    void addRefusal(const QString &path, const QString &reason);
    qsizetype refusalCount() const { return m_refusals.size(); }
    /// A line a file, as many as can be read, and forgets them all.
    QString takeRefusals();

    /// Escape cancels like the button.
    void reject() override;

Q_SIGNALS:
    void processWasCancelled();

private:
    struct Refusal {
        QString path;
        QString reason;
    };

    QLabel *m_tfProcessTitle;
    TSBusyBar *m_progessIndicator;
    QPushButton *m_btCancelProess;
    QElapsedTimer m_titleTimer;
    QList<Refusal> m_refusals;
};
