#include "platform/text/EmojiSequences.h"

#include <QRegularExpression>

namespace platform {

std::vector<EmojiSequence> emojiSequencesIn(const QString &text)
{
    static const QRegularExpression expression(
        QStringLiteral("([0-9#*]\\x{FE0F}?\\x{20E3})|"
                       "(?<sign>[\\x{A9}\\x{AE}\\x{203C}-\\x{2BFF}\\x{3030}\\x{303D}\\x{3297}\\x{3299}\\x{"
                       "1F000}-\\x{1FAFF}])"
                       "(?<look>\\x{FE0F}|[\\x{1F3FB}-\\x{1F3FF}])?(?:\\x{200D}(?&sign)(?&look)?)*"));
    std::vector<EmojiSequence> sequences;
    for (auto matches = expression.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch found = matches.next();
        const QString part = found.captured();
        const bool isKeycap = found.capturedLength(1) > 0;
        if (isKeycap || part.contains(QChar(0xFE0F)) || part.contains(QChar(0x200D)))
            sequences.push_back({found.capturedStart(), found.capturedLength(), isKeycap});
    }
    return sequences;
}

} // namespace platform
