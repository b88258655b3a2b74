#pragma once

#include "preview/TSCursor.h"

#include <QCursor>

/// The pointer for a shape, the last of them being drawn here, for a screen of so many pixels to a point.
QCursor TSPreviewCursor(TSCursor cursor, double scale);
