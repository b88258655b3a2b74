#include "shell/TSWindowActions.h"

#include "controls/TSSegmentedControl.h"
#include "overlays/TSOverlayManager.h"
#include "platform/system/UserDefaults.h"
#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"
#include "shell/TSMainWindow.h"
#include "ui/preview/TSPreviewScrollView.h"

#include <QComboBox>

namespace {

const QString auxiliaryLineKey = QStringLiteral("WatermarkAuxiliaryLine");

} // namespace

TSPreview &TSWindowActions::preview()
{
    return m_window.preview->preview();
}

void TSWindowActions::bind()
{
    bindMarks();
    bindView();
    const auto *center = TSNotificationCenter::defaultCenter();
    connect(center, &TSNotificationCenter::overlaysChanged, this, &TSWindowActions::validate);
    connect(center, &TSNotificationCenter::TSUpdateOverlayListViewUI, this, &TSWindowActions::validate);
}

void TSWindowActions::bindMarks()
{
    TSPreviewScrollView *view = m_window.preview;
    const auto bind = [this](QAction *action, auto operation) {
        connect(action, &QAction::triggered, this, operation);
    };
    bind(m_window.addTextAction, [this] { preview().creation().createNewText(); });
    bind(m_window.selectAll, [this] { preview().selection().selectAllOverlays(); });
    bind(m_window.deleteOverlay, [this] { preview().creation().deleteEditingOverlay(); });
    bind(m_window.upOverlay, [this] { preview().selection().up(); });
    bind(m_window.downOverlay, [this] { preview().selection().down(); });
    bind(m_window.turnLeft, [view] { view->turnSelection(-1); });
    bind(m_window.turnRight, [view] { view->turnSelection(1); });
    bind(m_window.makeLarger, [view] { view->resizeSelection(1); });
    bind(m_window.makeSmaller, [view] { view->resizeSelection(-1); });
}

void TSWindowActions::bindView()
{
    TSPreviewScrollView *view = m_window.preview;
    connect(m_window.zoomIn, &QAction::triggered, this, [view] { view->zoom(1); });
    connect(m_window.zoomOut, &QAction::triggered, this, [view] { view->zoom(-1); });
    bindSnapping(m_window.itemAutoSnap, "WatermarkAutoSnap");
    bindSnapping(m_window.itemAutoSnapToPhoto, "WatermarkAutoSnapToPhoto");
    bindSnapping(m_window.itemAutoSnapToObjects, "WatermarkAutoSnapToObjects");
    connect(m_window.itemAuxiliaryLine, &QAction::triggered, this, &TSWindowActions::auxiliaryLine);
    updateAuxiliaryLineTitle();
}

void TSWindowActions::bindSnapping(QAction *action, const char *key)
{
    const QString name = QLatin1String(key);
    action->setChecked(platform::UserDefaults::standard().boolForKey(name));
    connect(action, &QAction::toggled, this,
            [name](bool isOn) { platform::UserDefaults::standard().setBool(name, isOn); });
}

void TSWindowActions::auxiliaryLine()
{
    platform::UserDefaults &defaults = platform::UserDefaults::standard();
    defaults.setBool(auxiliaryLineKey, !defaults.boolForKey(auxiliaryLineKey));
    updateAuxiliaryLineTitle();
    m_window.preview->viewport()->update();
}

void TSWindowActions::updateAuxiliaryLineTitle()
{
    const bool isShown = platform::UserDefaults::standard().boolForKey(auxiliaryLineKey);
    m_window.itemAuxiliaryLine->setText(isShown ? QStringLiteral("Hide Auxiliary Line")
                                                : QStringLiteral("Show Auxiliary Line"));
}

void TSWindowActions::validate()
{
    const bool hasPhotos = TSDataManager::dataManager()->photoCount() > 0;
    const bool hasOverlays = TSOverlayManager::overlayManager()->overlayCount() > 0;
    for (QAction *action : {m_window.exportPhotos, m_window.addTextAction, m_window.addStickerAction,
                            m_window.openProfileAction, m_window.removePhotoAction,
                            m_window.removeAllPhotosAction, m_window.zoomIn, m_window.zoomOut})
        action->setEnabled(hasPhotos);
    for (QAction *action : m_window.menuItems)
        action->setEnabled(hasPhotos);
    m_window.scBatchAdjust->setEnabled(hasPhotos);
    m_window.pubZooming->setEnabled(hasPhotos);
    m_window.openSaveProfile->setEnabled(hasPhotos && hasOverlays);
    m_window.selectAll->setEnabled(hasOverlays);
    validateSelection();
}

void TSWindowActions::validateSelection()
{
    const TSSelection &selection = preview().selection();
    const bool isSelected = !selection.editingOverlaysArray().empty();
    for (QAction *action : {m_window.deleteOverlay, m_window.turnLeft, m_window.turnRight})
        action->setEnabled(isSelected);
    for (QAction *action : {m_window.makeLarger, m_window.makeSmaller})
        action->setEnabled(isSelected && !selection.isContainScriptObject());
    m_window.upOverlay->setEnabled(selection.isUpEnabled());
    m_window.downOverlay->setEnabled(selection.isDownEnabled());
}
