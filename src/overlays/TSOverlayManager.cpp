#include "overlays/TSOverlayManager.h"

#include "overlays/TSGroup.h"
#include "overlays/TSImage.h"
#include "overlays/TSText.h"
#include "platform/archive/KeyedArchiver.h"
#include "platform/archive/KeyedUnarchiver.h"

#include <algorithm>

namespace {

using Overlays = TSOverlayManager::Overlays;

/// How many texts of the list satisfy a test.
template <typename Test>
qint64 countTexts(const Overlays &overlays, Test test)
{
    return std::count_if(overlays.begin(), overlays.end(), [&](const auto &overlay) {
        const auto *text = dynamic_cast<const TSText *>(overlay.get());
        return text && test(*text);
    });
}

} // namespace

TSOverlayManager::TSOverlayManager(platform::KeyedUnarchiver &coder)
{
    for (const platform::ArchiveValue &value : coder.decodeObject(u"overlays").toArray())
        if (auto overlay = value.toObject<TSOverlay>())
            m_overlays.push_back(std::move(overlay));
}

TSOverlayManager::TSOverlayManager(const TSOverlayManager &other)
{
    m_overlays.reserve(other.m_overlays.size());
    for (const auto &overlay : other.m_overlays)
        m_overlays.push_back(overlay->copy());
}

TSOverlayManager *TSOverlayManager::overlayManager()
{
    return TSCurrentInstance<TSOverlayManager>::get();
}

void TSOverlayManager::addOverlay(const std::shared_ptr<TSOverlay> &overlay)
{
    insertOverlay(overlay, 0);
}

void TSOverlayManager::removeOverlay(const std::shared_ptr<TSOverlay> &overlay)
{
    std::erase(m_overlays, overlay);
}

std::shared_ptr<TSOverlay> TSOverlayManager::overlayAtIndex(qint64 index) const
{
    return index >= 0 && index < overlayCount() ? m_overlays[size_t(index)] : nullptr;
}

qint64 TSOverlayManager::indexOfOverlay(const std::shared_ptr<TSOverlay> &overlay) const
{
    const auto found = std::find(m_overlays.begin(), m_overlays.end(), overlay);
    return found == m_overlays.end() ? -1 : found - m_overlays.begin();
}

void TSOverlayManager::insertOverlay(const std::shared_ptr<TSOverlay> &overlay, qint64 index)
{
    m_overlays.insert(m_overlays.begin() + std::clamp<qint64>(index, 0, overlayCount()), overlay);
}

void TSOverlayManager::moveScript(const std::shared_ptr<TSOverlay> &overlay, qint64 index)
{
    removeOverlay(overlay);
    insertOverlay(overlay, index);
}

void TSOverlayManager::ChangeHierarchy(qint64 d, const Overlays &selection)
{
    if (moveInOrder(d, selection))
        return;
    // Neighbours that were chosen from the top down count themselves into one place; from the bottom up
    // nobody does.
    Overlays upward = selection;
    std::sort(upward.begin(), upward.end(), [this](const auto &one, const auto &other) {
        return indexOfOverlay(one) > indexOfOverlay(other);
    });
    moveInOrder(d, upward);
}

/// False, and nothing is moved, when two come to the same place or one out of the list.
bool TSOverlayManager::moveInOrder(qint64 d, const Overlays &selection)
{
    Overlays rest = m_overlays;
    Overlays moved(m_overlays.size());
    for (const auto &overlay : selection) {
        // Selected overlays that have gone before are out of the count.
        const auto found = std::find(rest.begin(), rest.end(), overlay);
        const qint64 place = found - rest.begin() + d;
        if (found == rest.end() || place < 0 || place >= overlayCount() || moved[size_t(place)])
            return false;
        moved[size_t(place)] = overlay;
        rest.erase(found);
    }
    auto next = rest.begin();
    for (auto &place : moved)
        if (!place)
            place = *next++;
    m_overlays = moved;
    return true;
}

qint64 TSOverlayManager::notScriptsCount() const
{
    return overlayCount() - scriptCount();
}

qint64 TSOverlayManager::textCount() const
{
    return countTexts(m_overlays, [](const TSText &text) { return text.textType() == TSTextType::Plain; });
}

qint64 TSOverlayManager::scriptCount() const
{
    return countTexts(m_overlays, [](const TSText &text) { return text.isScript(); });
}

qint64 TSOverlayManager::imageCount() const
{
    return qint64(images().size());
}

std::vector<std::shared_ptr<TSImage>> TSOverlayManager::images() const
{
    std::vector<std::shared_ptr<TSImage>> list;
    for (const auto &overlay : m_overlays)
        if (auto image = std::dynamic_pointer_cast<TSImage>(overlay))
            list.push_back(std::move(image));
    return list;
}

qint64 TSOverlayManager::wildcardCount() const
{
    qint64 count = 0;
    countTexts(m_overlays, [&](const TSText &text) {
        count +=
            std::count_if(text.textArray().begin(), text.textArray().end(), [](const TSTokenValue &value) {
                return std::holds_alternative<std::shared_ptr<TSToken>>(value);
            });
        return true;
    });
    return count;
}

bool TSOverlayManager::hasGroupObject() const
{
    return std::any_of(m_overlays.begin(), m_overlays.end(),
                       [](const auto &overlay) { return dynamic_cast<const TSGroup *>(overlay.get()); });
}

bool TSOverlayManager::hasStrokeEffect() const
{
    return countTexts(m_overlays, [](const TSText &text) { return text.isStrokeEnable(); }) > 0;
}

bool TSOverlayManager::hasGlowEffect() const
{
    return countTexts(m_overlays, [](const TSText &text) { return text.isGlowEnable(); }) > 0;
}

bool TSOverlayManager::hasShadowEffect() const
{
    return countTexts(m_overlays, [](const TSText &text) { return text.isShadowEnable(); }) > 0;
}

void TSOverlayManager::photoWillJoin(qint64 position, qint64 selectedPhoto)
{
    for (const auto &overlay : m_overlays)
        overlay->rows().insertCopy(position, selectedPhoto);
}

void TSOverlayManager::photoWasRemoved(qint64 position)
{
    for (const auto &overlay : m_overlays)
        overlay->rows().remove(position);
}

void TSOverlayManager::photoWasMoved(qint64 from, qint64 to)
{
    for (const auto &overlay : m_overlays)
        overlay->rows().move(from, to);
}

void TSOverlayManager::allPhotosWereRemoved()
{
    removeAllOverlay();
}

void TSOverlayManager::encodeWithCoder(platform::KeyedArchiver &coder) const
{
    platform::ArchiveValue::Array list;
    for (const auto &overlay : m_overlays)
        list.append(overlay);
    coder.encodeObject(u"overlays", list);
}
