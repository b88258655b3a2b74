#include "vector/TSScanner.h"

#include <limits>

namespace {

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

int hexValue(QChar character)
{
    const char16_t unit = character.unicode();
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    if (unit >= u'a' && unit <= u'f')
        return unit - u'a' + 10;
    return unit >= u'A' && unit <= u'F' ? unit - u'A' + 10 : -1;
}

} // namespace

bool TSScanner::conditionallyIncrement()
{
    if (isAtEnd())
        return false;
    if (currentCharacter() != u'-')
        ++m_location;
    return true;
}

void TSScanner::skipWhiteSpace()
{
    while (!isAtEnd() && currentCharacter().isSpace())
        ++m_location;
}

qsizetype TSScanner::lengthOfNumber(qsizetype from) const
{
    const auto at = [&](qsizetype i) { return i < m_text.size() ? m_text[i] : QChar(); };
    const auto afterDigits = [&](qsizetype i) {
        while (isDigit(at(i)))
            ++i;
        return i;
    };
    qsizetype end = from;
    if (at(end) == u'-' || at(end) == u'+')
        ++end;
    const qsizetype whole = afterDigits(end);
    qsizetype digits = whole - end;
    end = whole;
    if (at(end) == u'.') {
        const qsizetype fraction = afterDigits(end + 1);
        digits += fraction - end - 1;
        end = fraction;
    }
    if (digits == 0)
        return 0;
    if (at(end) == u'e' || at(end) == u'E') {
        const qsizetype power = at(end + 1) == u'-' || at(end + 1) == u'+' ? end + 2 : end + 1;
        if (isDigit(at(power)))
            end = afterDigits(power);
    }
    return end - from;
}

bool TSScanner::scanFloat(float *value)
{
    const qsizetype start = m_location;
    skipWhiteSpace();
    const qsizetype length = lengthOfNumber(m_location);
    if (length == 0) {
        m_location = start;
        return false;
    }
    *value = float(m_text.mid(m_location, length).toDouble());
    m_location += length;
    return true;
}

bool TSScanner::scanString(QStringView string)
{
    const qsizetype start = m_location;
    skipWhiteSpace();
    if (!m_text.mid(m_location).startsWith(string)) {
        m_location = start;
        return false;
    }
    m_location += string.size();
    return true;
}

bool TSScanner::scanHexInt(quint32 *value)
{
    const qsizetype start = m_location;
    skipWhiteSpace();
    const QStringView rest = m_text.mid(m_location);
    const bool hasPrefix =
        rest.startsWith(u"0x", Qt::CaseInsensitive) && rest.size() > 2 && hexValue(rest[2]) >= 0;
    if (hasPrefix)
        m_location += 2;
    const qsizetype digits = m_location;
    quint64 number = 0;
    constexpr quint64 most = std::numeric_limits<quint32>::max();
    for (; hexValue(currentCharacter()) >= 0 && !isAtEnd(); ++m_location)
        number = qMin(most + 1, number * 16 + quint64(hexValue(currentCharacter())));
    if (m_location == digits) {
        m_location = start;
        return false;
    }
    *value = quint32(qMin(number, most));
    return true;
}
