#pragma once

#include "platform/archive/Archivable.h"

#include <memory>
#include <QString>
#include <QStringList>

namespace platform {
class KeyedUnarchiver;
}

/// A placeholder with a menu of variants. The choice changes what the token expands to, never the `name` that
/// it reads as in its field. Tokens live on the main thread; reading them elsewhere is safe while nobody
/// changes them. A token of no derived class has no text of its own.
class TSToken : public platform::Archivable {
public:
    TSToken() = default;
    explicit TSToken(platform::KeyedUnarchiver &coder);
    /// Of the same class, with a choice of its own.
    virtual std::shared_ptr<TSToken> copy() const { return std::make_shared<TSToken>(*this); }

    /// 0 in the pattern of file names, 1 among the words of a text.
    int usingLocal() const { return m_usingLocal; }
    void setUsingLocal(int usingLocal) { m_usingLocal = usingLocal; }
    /// The token's identity.
    const QString &name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    /// The variant as the example text shows it.
    const QString &showName() const { return m_showName; }
    void setShowName(const QString &showName) { m_showName = showName; }
    /// The titles of the variants, as they were when the token was made.
    virtual QStringList tokenMenu() const { return {}; }

    /// Chooses a variant and tells the session. A position outside the menu changes nothing.
    virtual void editCellAction(int) {}

    QStringList classChain() const override { return {QStringLiteral("TSToken")}; }
    void encodeWithCoder(platform::KeyedArchiver &coder) const override;

protected:
    TSToken(const QString &name, const QString &showName);

private:
    int m_usingLocal = 0;
    QString m_name;
    QString m_showName;
};
