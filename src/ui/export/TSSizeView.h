#pragma once

#include "naming/TSOutputSettings.h"

#include <QWidget>

class QLabel;
class QVBoxLayout;

/// The host of the size controls: no row, one, or two, as the way of resizing asks for.
class TSSizeView : public QWidget {
    Q_OBJECT

public:
    explicit TSSizeView(TSOutputSettings &settings, QWidget *parent = nullptr);

    void setLabelWidth(int width);
    int labelWidth() const;
    /// Shows the rows of the way that is in force.
    void showWay();
    /// What the rows take less than the most that there are.
    int missingHeight() const;

private:
    QWidget *newView(const char *name);
    void addRow(QWidget *view, TSSizeField field, const char *name);
    int rowCount() const;
    int rowPitch() const;

    TSOutputSettings &m_settings;
    QVBoxLayout *m_column;
    QList<QLabel *> m_labels;
    /// By way of resizing; none for the original size.
    std::array<QWidget *, 5> m_views{};
};
