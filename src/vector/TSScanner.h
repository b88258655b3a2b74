#pragma once

#include <QString>

/// Reads numbers and words from a text from left to right, the way the platform's scanners do: white space
/// ahead of what is asked for is skipped, and a scan that fails leaves the place where it was. Pure.
class TSScanner {
public:
    explicit TSScanner(QStringView text) : m_text(text) {}

    bool isAtEnd() const { return m_location >= m_text.size(); }
    QChar initialCharacter() const { return m_text.isEmpty() ? QChar() : m_text.front(); }
    QChar currentCharacter() const { return isAtEnd() ? QChar() : m_text[m_location]; }
    /// Steps over one character unless it is a minus sign; false at the end of the text.
    bool conditionallyIncrement();
    /// An optional sign, digits with a point among them, an exponent; in single precision.
    bool scanFloat(float *value);
    bool scanString(QStringView string);
    /// Hexadecimal digits, an "0x" before them or not; the greatest number for more than 32 bits.
    bool scanHexInt(quint32 *value);

private:
    void skipWhiteSpace();
    qsizetype lengthOfNumber(qsizetype from) const;

    QStringView m_text;
    qsizetype m_location = 0;
};
