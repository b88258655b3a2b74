#include "ui/preview/TSPreviewAccessible.h"

#include "overlays/TSOverlayManager.h"
#include "ui/preview/TSMarkAccessible.h"
#include "ui/preview/TSPreviewScrollView.h"

#include <algorithm>

namespace {

QAccessibleInterface *accessibleFor(const QString &, QObject *object)
{
    auto *view = qobject_cast<TSPreviewScrollView *>(object);
    return view ? new TSPreviewAccessible(*view) : nullptr;
}

} // namespace

TSPreviewAccessible::TSPreviewAccessible(TSPreviewScrollView &view)
    : QAccessibleWidget(&view, QAccessible::Canvas), m_view(view)
{
}

TSPreviewAccessible::~TSPreviewAccessible()
{
    for (const Child &child : m_children)
        QAccessible::deleteAccessibleInterface(child.id);
}

void TSPreviewAccessible::install()
{
    QAccessible::installFactory(accessibleFor);
}

int TSPreviewAccessible::childCount() const
{
    return int(TSOverlayManager::overlayManager()->overlayCount());
}

QAccessibleInterface *TSPreviewAccessible::child(int index) const
{
    const auto overlay = TSOverlayManager::overlayManager()->overlayAtIndex(index);
    if (!overlay)
        return nullptr;
    const auto known = std::find_if(m_children.begin(), m_children.end(),
                                    [&](const Child &child) { return child.overlay.lock() == overlay; });
    if (known != m_children.end())
        return QAccessible::accessibleInterface(known->id);
    auto *made = new TSMarkAccessible(m_view, overlay);
    m_children.push_back({overlay, QAccessible::registerAccessibleInterface(made)});
    return made;
}

QAccessibleInterface *TSPreviewAccessible::focusChild() const
{
    const auto &selected = m_view.preview().selection().editingOverlaysArray();
    if (selected.empty() || !m_view.hasFocus())
        return QAccessibleWidget::focusChild();
    return child(int(TSOverlayManager::overlayManager()->indexOfOverlay(selected.back())));
}

QAccessibleInterface *TSPreviewAccessible::childAt(int x, int y) const
{
    for (int index = 0; index < childCount(); ++index)
        if (child(index)->rect().contains(x, y))
            return child(index);
    return nullptr;
}

int TSPreviewAccessible::indexOfChild(const QAccessibleInterface *wanted) const
{
    for (int index = 0; index < childCount(); ++index)
        if (child(index) == wanted)
            return index;
    return -1;
}
