#include "naming/TSPatternParser.h"
#include "overlays/TSWildcards.h"
#include "session/TSPhoto.h"
#include "Target.h"

#include <QDateTime>

namespace {

/// A photo that tells of itself what stands in the input: a line for each key, "key=value", as text and,
/// where it can be read as one, as a number.
TSPhoto photoFrom(const QStringList &lines)
{
    TSPhoto photo;
    photo.path = photo.resourcePath = lines.value(1, QStringLiteral("/photos/a.jpg"));
    for (qsizetype i = 2; i < lines.size(); ++i) {
        const QStringList key = lines[i].section(u'=', 0, 0).split(u'/');
        const QString text = lines[i].section(u'=', 1);
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        const QVariant value = isNumber ? QVariant(number) : QVariant(text);
        QVariantMap group = photo.propertiesDic.value(key.first()).toMap();
        group.insert(key.value(1), value);
        photo.propertiesDic.insert(key.first(), group);
    }
    return photo;
}

} // namespace

/// The first line is the text with its wildcards, the second the photo's path, the rest what its camera
/// noted.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QStringList lines = QString::fromUtf8(bytesOf(data, size)).split(u'\n');
    const TSPatternParser::Result words = TSPatternParser::words(lines.first());
    const TSPhoto photo = photoFrom(lines);
    for (const bool isTokenName : {true, false})
        TSTextForTokenValues(photo, words.values, isTokenName);
    return 0;
}
