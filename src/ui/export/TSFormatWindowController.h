#pragma once

#include "controls/TSSheet.h"
#include "naming/TSOutputSettings.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QSpacerItem;
class TSNamePatternView;
class TSSizeView;
class TSValueTrio;

/// The sheet with the output settings. Every control acts at once; OK only decides whether the export goes
/// on. One instance, which keeps what stands in its fields.
class TSFormatWindowController : public TSSheet {
    Q_OBJECT

public:
    TSFormatWindowController(TSOutputSettings &settings, QWidget *parent);

    /// The sheet ended with OK, and the choice of a folder has not ended yet.
    bool isSavePhotos() const { return m_isSavePhotos; }
    void setIsSavePhotos(bool isSavePhotos) { m_isSavePhotos = isSavePhotos; }
    void setPhotoCount(qint64 count);

    void clickOK();
    void clickCancel();
    /// Escape cancels.
    void reject() override { clickCancel(); }
    void accept() override { clickOK(); }

protected:
    /// However it was left, it is gone through from the top.
    void showEvent(QShowEvent *event) override;

private:
    void makeLayout();
    void addRow(QGridLayout &grid, QLabel *label, QWidget *control);
    QWidget *newBigView();
    QLayout *newButtons();
    void updateBigViewRect();
    void formatChanged(int index);
    void resizeWayChanged();
    void windowChanged();

    TSOutputSettings &m_settings;
    QLabel *m_tfTitle;
    QComboBox *m_pubFormat;
    QLabel *m_lbFormat;
    QLabel *m_lbQuality;
    TSValueTrio *m_quality;
    QComboBox *m_pubResizeWay;
    TSSizeView *m_vwBaseView;
    TSNamePatternView *m_pattern;
    QWidget *m_vwBigView = nullptr;
    /// Below the name: what the size rows leave of their room.
    QSpacerItem *m_rest;
    bool m_isSavePhotos = false;
};
