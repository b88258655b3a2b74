#pragma once

#include "naming/TSOutputSettings.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QSlider;
class QSpinBox;
class QStackedWidget;

/// The sheet with the output settings. Every control acts at once; OK only decides whether the export goes
/// on.
class TSFormatWindowController : public QDialog {
    Q_OBJECT

public:
    TSFormatWindowController(TSOutputSettings &settings, QWidget *parent);

private:
    QWidget *newQualityRow();
    QWidget *newSizeRow(std::initializer_list<std::pair<TSSizeField, const char *>> fields);
    QWidget *newNameRow();
    void formatChanged(int index);
    void qualityChanged(int percent);
    void resizeWayChanged(int index);
    void textChanged(const QString &pattern);
    void showExample();

    TSOutputSettings &m_settings;
    QComboBox *m_pubFormat;
    QComboBox *m_pubResizeWay;
    QSlider *m_slQuality;
    QSpinBox *m_tfQuality;
    QStackedWidget *m_vwBaseView;
    QLineEdit *m_tfInput;
    QLabel *m_tfExample;
    QPushButton *m_btOK = nullptr;
};
