#include "naming/TSDateTimeToken.h"

#include "platform/archive/KeyedArchiver.h"
#include "platform/archive/KeyedUnarchiver.h"
#include "session/TSNotificationCenter.h"

namespace {

platform::DateFormatter formatterFor(const QString &format, const QTimeZone &zone)
{
    using platform::DateFormatter;
    return format.isEmpty() ? DateFormatter::mediumDate(zone) : DateFormatter::withPattern(format, zone);
}

/// An addition to what archives of tokens hold. Who does not know it passes over it.
constexpr QStringView indexKey = u"TessaroTokenIndex";

} // namespace

TSDateTimeToken::TSDateTimeToken(const QString &className, const QString &name, const QStringList &formats)
    : TSToken(name, QString()), m_className(className), m_formats(formats), m_hasDateArray(true)
{
    setShowName(formatterFor(formats.first(), QTimeZone::systemTimeZone()).string(m_made));
}

TSDateTimeToken::TSDateTimeToken(const QString &className, platform::KeyedUnarchiver &coder,
                                 const QStringList &formats)
    : TSToken(coder), m_className(className), m_formats(formats)
{
    const qint64 index = coder.decodeInteger(indexKey);
    m_index = index >= 0 && index < formats.size() ? index : 0;
}

void TSDateTimeToken::encodeWithCoder(platform::KeyedArchiver &coder) const
{
    TSToken::encodeWithCoder(coder);
    if (m_index != 0)
        coder.encodeInteger(indexKey, m_index);
}

QStringList TSDateTimeToken::tokenMenu() const
{
    QStringList titles;
    for (const QString &format : m_formats)
        titles.append(formatterFor(format, QTimeZone::systemTimeZone()).string(m_made));
    return titles;
}

void TSDateTimeToken::editCellAction(int itemIndex)
{
    if (itemIndex < 0 || itemIndex >= m_formats.size())
        return;
    setShowName(dateArray().value(itemIndex));
    m_index = itemIndex;
    if (usingLocal() == 0)
        Q_EMIT TSNotificationCenter::defaultCenter()->TSExampleTextChange();
    else if (usingLocal() == 1)
        Q_EMIT TSNotificationCenter::defaultCenter()->TSWildcardFormat();
}

std::optional<platform::DateFormatter> TSDateTimeToken::formatter(const QTimeZone &zone) const
{
    if (m_index < 0 || m_index >= m_formats.size())
        return std::nullopt;
    return formatterFor(m_formats[m_index], zone);
}

std::optional<QString> TSDateTimeToken::text(const QDateTime &date, const QTimeZone &zone) const
{
    const auto writer = formatter(zone);
    return writer ? std::optional(writer->string(date)) : std::nullopt;
}

const QStringList &TSDateTimeToken::dateFormats()
{
    static const QStringList formats{QString(), QStringLiteral("MM dd"), QStringLiteral("MM-dd-yyyy"),
                                     QStringLiteral("MM/dd/yyyy")};
    return formats;
}

const QStringList &TSDateTimeToken::timeFormats()
{
    static const QStringList formats{QStringLiteral("HH:mm:ss"), QStringLiteral("HH mm"),
                                     QStringLiteral("HH-mm-ss"), QStringLiteral("HH/mm/ss")};
    return formats;
}
