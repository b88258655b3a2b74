#pragma once

#include <QString>

/// A sentence for the user about a photo whose pixels could not be read, from the decoder's own words.
QString TSDecodingFailureText(const QString &decoderText);
