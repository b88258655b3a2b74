#pragma once

#include <memory>
#include <QAccessible>

class TSOverlay;
class TSPreviewScrollView;

/// A mark as assistive technology is told of it: its words or its file, its kind, where it stands on the
/// screen and on the photo, whether it is selected.
class TSMarkAccessible : public QAccessibleInterface {
public:
    TSMarkAccessible(TSPreviewScrollView &view, const std::shared_ptr<TSOverlay> &overlay)
        : m_view(view), m_overlay(overlay)
    {
    }

    bool isValid() const override { return !m_overlay.expired(); }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

private:
    TSPreviewScrollView &m_view;
    std::weak_ptr<TSOverlay> m_overlay;
};
