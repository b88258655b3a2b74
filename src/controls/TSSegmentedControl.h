#pragma once

#include "controls/TSIcon.h"

#include <QWidget>

class QAbstractButton;
class QButtonGroup;
class QHBoxLayout;

/// Joined buttons in a row: one of them on, or each on or off for itself. Each segment is a button to the
/// keyboard and to accessibility; the arrows move within a row of which one is on.
class TSSegmentedControl : public QWidget {
    Q_OBJECT

public:
    enum class Selection { One, Any };

    explicit TSSegmentedControl(Selection selection, QWidget *parent = nullptr);

    /// Answers the segment's position.
    int addSegment(const QString &title);
    /// The title is the tooltip and the accessible name.
    int addSegment(TSIcon::Name picture, const QString &title);
    int segmentCount() const;

    /// The one that is on, or -1.
    int selectedSegment() const;
    bool isSelected(int segment) const;
    /// Reports nothing. A position that does not exist changes nothing.
    void setSelected(int segment, bool isSelected = true);
    void setSegmentEnabled(int segment, bool isEnabled);
    QAbstractButton *segment(int segment) const;

Q_SIGNALS:
    /// The user pressed a segment; in a row of which one is on, only when that was another one.
    void segmentChanged(int segment, bool isSelected);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int add(QAbstractButton *button, const QString &title);
    void report(int segment);

    QHBoxLayout *m_layout;
    QButtonGroup *m_group;
};
