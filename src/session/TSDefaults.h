#pragma once

#include <QtGlobal>

/// Whether a change of place reaches the rows of all photos (Batch) or the selected photo's alone (Adjust).
/// Reading rows never depends on it.
bool TSIsBatchControlOverlay();
void TSSetBatchControlOverlay(bool isBatch);

/// The values of a first launch, told by a width of 0, and those that every launch begins with.
void TSWriteLaunchDefaults();
