#pragma once

#include <QInputDialog>

/// Asks for the name of a layout, and stays until it has one that can be had or is cancelled.
class TSSaveProfileWindowController : public QInputDialog {
    Q_OBJECT

public:
    explicit TSSaveProfileWindowController(QWidget *parent);

    QString name() const { return textValue().trimmed(); }
    void accept() override;

private:
    bool isToReplace();
    void tell(const QString &message);
};
