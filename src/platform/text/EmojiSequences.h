#pragma once

#include <QString>
#include <vector>

namespace platform {

/// Characters that are one emoji together. Positions count UTF-16 units.
struct EmojiSequence {
    qsizetype from = 0;
    qsizetype length = 0;
    /// A digit or sign in a key's frame, which is text by itself.
    bool isKeycap = false;
};

/// Those sequences of a text that their characters do not tell by themselves: keycaps, what a selector asks
/// to be shown in colour, and persons or things that are joined.
std::vector<EmojiSequence> emojiSequencesIn(const QString &text);

} // namespace platform
