#pragma once

#include <QString>
#include <QStringList>

/// One JSON object on one line, its members in the order they are put, numbers without the noise of binary
/// fractions.
class TSJsonLine {
public:
    TSJsonLine &put(const char *name, const QString &text);
    TSJsonLine &put(const char *name, const QStringList &texts);
    TSJsonLine &put(const char *name, qint64 number);
    TSJsonLine &put(const char *name, double number);
    TSJsonLine &put(const char *name, const TSJsonLine &object) { return putRaw(name, object.text()); }
    /// A member whose value is JSON already.
    TSJsonLine &putRaw(const char *name, const QString &json);

    QString text() const { return u'{' + m_members + u'}'; }

private:
    QString m_members;
};
