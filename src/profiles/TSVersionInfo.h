#pragma once

#include "platform/archive/KeyedUnarchiver.h"

/// Who wrote an archive. Written with every layout and never looked at: packages of other versions load
/// alike.
class TSVersionInfo : public platform::Archivable {
public:
    /// What this program writes.
    TSVersionInfo();
    explicit TSVersionInfo(platform::KeyedUnarchiver &coder);

    const QString &productName() const { return m_productName; }
    const QString &version() const { return m_version; }

    QStringList classChain() const override { return {QStringLiteral("TSVersionInfo")}; }
    void encodeWithCoder(platform::KeyedArchiver &coder) const override;

private:
    QString m_productName;
    QString m_company;
    QString m_version;
    qint64 m_projectVersion = 0;
};
