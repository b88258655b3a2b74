#pragma once

#include <QImage>

namespace samples {

/// Each answers a finished picture, always the same.
QImage eveningLake();
QImage hillsInFog();
QImage dunes();
QImage cityAtDusk();
/// With transparency around and through the glow.
QImage moon();
/// A white mark on transparent ground.
QImage logo();

} // namespace samples
