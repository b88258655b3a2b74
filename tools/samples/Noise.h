#pragma once

#include <cstdint>

namespace samples {

/// The same numbers on every machine and in every run: all shapes of the samples come from these.

/// A number from 0 to 1 for a cell of a grid.
float randomOf(int x, int y, std::uint32_t seed);
/// Smooth noise, about -1 to 1, one hill or hollow a unit.
float noise(float x, float y, std::uint32_t seed);
/// Octaves of noise, each twice as fine and half as strong; about -1 to 1.
float clouds(float x, float y, int octaves, std::uint32_t seed);
/// Octaves of noise folded into crests; 0 to about 1.
float ridges(float x, float y, int octaves, std::uint32_t seed);

} // namespace samples
