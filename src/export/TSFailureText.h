#pragma once

#include <QString>

/// A sentence for the user about a photo whose pixels could not be read, from the decoder's own words.
QString TSDecodingFailureText(const QString &decoderText);

/// Whether the remarks of a decoder that came through all the same tell of pixels that were lost. A few stray
/// bytes between the blocks of a file, which some cameras leave, are no damage.
bool TSTellsOfDamage(const QString &decoderText);
