#pragma once

#include "profiles/TSProfileApplier.h"

#include <QObject>

class QWidget;
class TSPreview;

/// Saving the marks as a layout, and applying one.
class TSLayoutController : public QObject, private TSProfileApplierDelegate {
    Q_OBJECT

public:
    TSLayoutController(QWidget &window, TSPreview &preview) : m_window(window), m_preview(preview) {}

    void openProfileAction();
    void openSaveProfile();

Q_SIGNALS:
    void profileDidApply();

private:
    void tell(const QString &message);
    void tellMissing(const QStringList &pictures);
    Answer askToCoverWatermarks() override;
    void clearSelection() override;
    void profileWasApplied() override;
    void recordProfileData(const QString &, const QString &) override {}

    QWidget &m_window;
    TSPreview &m_preview;
};
