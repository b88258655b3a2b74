#pragma once

#include "overlays/TSOverlaySynchronisation.h"
#include "overlays/TSText.h"

class TSPreviewView;
struct TSGesture;
struct TSTrackerState;

/// Which overlays are being edited. They belong to the working list; whoever takes one out of it takes it
/// out of here too. A Script text is selected alone, but for the selection of everything. Main thread.
class TSSelection {
public:
    using Overlays = TSOverlayManager::Overlays;

    TSSelection(TSPreviewView &view, TSTrackerState &trackerState, TSGesture &gesture)
        : m_view(view), m_trackerState(trackerState), m_gesture(gesture)
    {
    }

    /// In the order of selecting.
    const Overlays &editingOverlaysArray() const { return m_editingOverlaysArray; }
    void setEditingOverlaysArray(Overlays overlays) { m_editingOverlaysArray = std::move(overlays); }
    /// Nothing is selected any more, and the mouse is on no node. For whoever empties the selection without
    /// the mouse; announces nothing.
    void clear();
    /// Adds nothing twice.
    void editingOverlaysArrayAddobject(const std::shared_ptr<TSOverlay> &overlay);
    bool contains(const std::shared_ptr<TSOverlay> &overlay) const;
    /// The working overlays that are not selected, in the order of their list.
    Overlays otherOverlays() const;
    /// The Script text that is selected alone.
    std::shared_ptr<TSText> scriptObject() const;
    bool isContainScriptObject() const { return scriptObject() != nullptr; }

    // The overlay when exactly one is selected, and the same as a text.
    const std::shared_ptr<TSOverlay> &editingOverlay() const { return m_editingOverlay; }
    void setEditingOverlay(std::shared_ptr<TSOverlay> overlay) { m_editingOverlay = std::move(overlay); }
    const std::shared_ptr<TSText> &editingText() const { return m_editingText; }
    void setEditingText(std::shared_ptr<TSText> text) { m_editingText = std::move(text); }
    /// The selected overlay under the mouse. It alone snaps, and the others follow it.
    const std::shared_ptr<TSOverlay> &guideOverlay() const { return m_guideOverlay; }
    void setGuideOverlay(std::shared_ptr<TSOverlay> overlay) { m_guideOverlay = std::move(overlay); }

    /// Announces a changed selection. The flag is for overlays that have just been made and have no place
    /// yet.
    void setEditingOverlays(bool isNew);
    void updateEditingTextAndEditingOverlay();
    /// That one alone, or nothing.
    void selectOverlay(const std::shared_ptr<TSOverlay> &overlay);
    void selectAllOverlays();

    // The order of the stack. Script texts lie below all others and move among themselves.
    bool isUpEnabled() const;
    bool isDownEnabled() const;
    void up();
    void down();

private:
    bool containsIndex(qint64 index) const;
    void orderDidChange();

    TSPreviewView &m_view;
    TSTrackerState &m_trackerState;
    TSGesture &m_gesture;
    TSOverlaySynchronisation m_synchronisation;
    Overlays m_editingOverlaysArray;
    std::shared_ptr<TSOverlay> m_editingOverlay;
    std::shared_ptr<TSText> m_editingText;
    std::shared_ptr<TSOverlay> m_guideOverlay;
};
