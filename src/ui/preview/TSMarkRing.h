#pragma once

class QPainter;
class QPalette;
class TSOverlay;

/// Shows a mark as what the keys act on, for whoever works without a mouse.
void TSDrawMarkRing(QPainter &painter, const TSOverlay &overlay, const QPalette &palette);
