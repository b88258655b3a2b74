#include "batch/TSJsonLine.h"

#include <QJsonArray>
#include <QJsonDocument>

TSJsonLine &TSJsonLine::put(const char *name, const QString &text)
{
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return putRaw(name, QString::fromUtf8(list.mid(1, list.size() - 2)));
}

TSJsonLine &TSJsonLine::put(const char *name, const QStringList &texts)
{
    const QByteArray list = QJsonDocument(QJsonArray::fromStringList(texts)).toJson(QJsonDocument::Compact);
    return putRaw(name, QString::fromUtf8(list));
}

TSJsonLine &TSJsonLine::put(const char *name, qint64 number)
{
    return putRaw(name, QString::number(number));
}

TSJsonLine &TSJsonLine::put(const char *name, double number)
{
    constexpr int digits = 10;
    // JSON has no word for what is not finite.
    return putRaw(name, qIsFinite(number) ? QString::number(number, 'g', digits) : QStringLiteral("null"));
}

TSJsonLine &TSJsonLine::putRaw(const char *name, const QString &json)
{
    if (!m_members.isEmpty())
        m_members += u',';
    m_members += QStringLiteral("\"%1\":%2").arg(QLatin1String(name), json);
    return *this;
}
