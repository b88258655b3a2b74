#include "export/TSFailureText.h"

#include <algorithm>

namespace {

bool holdsOneOf(const QString &text, std::initializer_list<const char *> words)
{
    return std::any_of(words.begin(), words.end(), [&](const char *word) {
        return text.contains(QLatin1String(word), Qt::CaseInsensitive);
    });
}

} // namespace

QString TSDecodingFailureText(const QString &decoderText)
{
    if (decoderText.isEmpty())
        return qtTrId("The photo could not be decoded.");
    if (holdsOneOf(decoderText, {"corrupt", "inconsistent"}))
        return qtTrId("The file is damaged (%1).").arg(decoderText);
    if (holdsOneOf(decoderText, {"premature", "truncated", "end of file"}))
        return qtTrId("The file is damaged: it breaks off before its end (%1).").arg(decoderText);
    return qtTrId("The photo could not be decoded (%1).").arg(decoderText);
}
