#pragma once

#include "preview/TSCursor.h"

#include <QCursor>

/// The pointer for a shape, the last of them being drawn here.
QCursor TSPreviewCursor(TSCursor cursor);
