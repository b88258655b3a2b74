#pragma once

#include "controls/TSIcon.h"

#include <optional>
#include <QAbstractButton>

/// One button of a segmented control. The control paints the frame around all of them.
class TSSegment : public QAbstractButton {
    Q_OBJECT

public:
    TSSegment(std::optional<TSIcon::Name> picture, const QString &title, QWidget *parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor surface() const;

    std::optional<TSIcon::Name> m_picture;
};
