#pragma once

#include <memory>
#include <QAccessibleWidget>
#include <vector>

class TSMarkAccessible;
class TSOverlay;
class TSPreviewScrollView;

/// The canvas for assistive technology: its children are the marks, the topmost first.
class TSPreviewAccessible : public QAccessibleWidget {
public:
    explicit TSPreviewAccessible(TSPreviewScrollView &view);
    ~TSPreviewAccessible() override;

    /// Has the views told of in this way. Once is enough, and more does no harm.
    static void install();

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    /// Of the selected marks the one that was selected last.
    QAccessibleInterface *focusChild() const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

private:
    struct Child {
        std::weak_ptr<TSOverlay> overlay;
        QAccessible::Id id = 0;
    };

    TSPreviewScrollView &m_view;
    /// Made when they are asked for, and kept, since others hold on to them.
    mutable std::vector<Child> m_children;
};
