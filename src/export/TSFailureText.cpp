#include "export/TSFailureText.h"

QString TSDecodingFailureText(const QString &decoderText)
{
    if (decoderText.isEmpty())
        return qtTrId("The photo could not be decoded.");
    if (TSTellsOfDamage(decoderText))
        return qtTrId("The file is damaged (%1).").arg(decoderText);
    if (decoderText.contains(u"premature", Qt::CaseInsensitive) ||
        decoderText.contains(u"truncated", Qt::CaseInsensitive) ||
        decoderText.contains(u"end of file", Qt::CaseInsensitive))
        return qtTrId("The file is damaged: it breaks off before its end (%1).").arg(decoderText);
    return qtTrId("The photo could not be decoded (%1).").arg(decoderText);
}

bool TSTellsOfDamage(const QString &decoderText)
{
    return decoderText.contains(u"Corrupt JPEG data") && !decoderText.contains(u"extraneous bytes");
}
