#pragma once

#include "naming/TSToken.h"
#include "platform/system/DateFormatter.h"

#include <optional>

/// What the date and time tokens share: the variants are formats, their titles the moment of the token's
/// making.
class TSDateTimeToken : public TSToken {
public:
    /// The position of the chosen variant.
    qint64 index() const { return m_index; }
    void setIndex(qint64 index) { m_index = index; }
    /// The titles again, from which a choice takes the `showName`; a decoded token has none.
    QStringList dateArray() const { return m_hasDateArray ? tokenMenu() : QStringList(); }

    QStringList classChain() const override { return {m_className, QStringLiteral("TSToken")}; }
    QStringList tokenMenu() const override;
    void editCellAction(int itemIndex) override;
    void encodeWithCoder(platform::KeyedArchiver &coder) const override;

    /// What writes dates in the chosen variant; nothing if `index` is no variant. Making one costs far more
    /// than using it.
    std::optional<platform::DateFormatter>
    formatter(const QTimeZone &zone = QTimeZone::systemTimeZone()) const;
    /// The date in the chosen variant, empty for an invalid one. Nothing if `index` is no variant.
    std::optional<QString> text(const QDateTime &date,
                                const QTimeZone &zone = QTimeZone::systemTimeZone()) const;
    /// The variants' patterns in menu order; an empty one is the user's medium date style.
    const QStringList &formats() const { return m_formats; }

    static const QStringList &dateFormats();
    static const QStringList &timeFormats();

protected:
    TSDateTimeToken(const QString &className, const QString &name, const QStringList &formats);
    /// Archives hold no `dateArray`: a choice in a decoded token's menu leaves `showName` empty. Older ones
    /// hold no `index` either, and give the first variant.
    TSDateTimeToken(const QString &className, platform::KeyedUnarchiver &coder, const QStringList &formats);

private:
    QString m_className;
    QStringList m_formats;
    /// The titles are rendered when they are asked for: an archive may hold any number of tokens whose menu
    /// nobody opens.
    QDateTime m_made = QDateTime::currentDateTime();
    bool m_hasDateArray = false;
    qint64 m_index = 0;
};
