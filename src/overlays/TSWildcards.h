#pragma once

#include "naming/TSTokenValue.h"

#include <vector>

class TSPhoto;

/// The words that token values stand for on a photo: its name, its place in the list, what its camera noted,
/// its dates. What a photo does not tell is empty, but for the f-number and the focal length, which read 0.
/// With `isTokenName` every wildcard stands as its name in braces.
///
/// The counter is the number of the photo that is selected in the session.
QString TSTextForTokenValues(const TSPhoto &photo, const std::vector<TSTokenValue> &values, bool isTokenName);
