#pragma once

#include "overlays/TSGroup.h"

/// Visits every overlay of a list, first to last, each group before its members, down through nested ones.
template <typename Visit>
void TSForEachOverlay(const std::vector<std::shared_ptr<TSOverlay>> &overlays, const Visit &visit)
{
    for (const auto &overlay : overlays) {
        visit(*overlay);
        if (const auto *group = dynamic_cast<const TSGroup *>(overlay.get()))
            TSForEachOverlay(group->overlaysOfGroup(), visit);
    }
}
