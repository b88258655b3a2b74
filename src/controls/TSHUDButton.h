#pragma once

#include "controls/TSIcon.h"

#include <QToolButton>

/// A flat button with a line picture above its title, beside it, or alone. The object name and the tooltip
/// are the caller's; the title is the accessible name, also when only the picture shows.
class TSHUDButton : public QToolButton {
    Q_OBJECT

public:
    TSHUDButton(TSIcon::Name picture, const QString &title, Qt::ToolButtonStyle style,
                QWidget *parent = nullptr);

    void setPicture(TSIcon::Name picture);
    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void tint();

    TSIcon::Name m_picture;
};
