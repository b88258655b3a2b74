#include "naming/TSToken.h"

#include "platform/archive/KeyedArchiver.h"
#include "platform/archive/KeyedUnarchiver.h"

namespace {

/// The variants' menu as archives know it. Readers build the menu afresh, so only its shell is written.
class ArchivedMenu : public platform::Archivable {
public:
    QStringList classChain() const override { return {QStringLiteral("NSMenu")}; }
    void encodeWithCoder(platform::KeyedArchiver &coder) const override
    {
        coder.encodeObject(u"NSTitle", QString());
        coder.encodeObject(u"NSMenuItems", platform::ArchiveValue::Array());
    }
};

} // namespace

TSToken::TSToken(const QString &name, const QString &showName) : m_name(name), m_showName(showName) {}

TSToken::TSToken(platform::KeyedUnarchiver &coder)
    : m_usingLocal(int(coder.decodeInteger(u"CodingTokenUsingLocal")))
    , m_name(coder.decodeObject(u"codingName").toString())
    , m_showName(coder.decodeObject(u"CodingShowName").toString())
{
}

void TSToken::encodeWithCoder(platform::KeyedArchiver &coder) const
{
    coder.encodeObject(u"codingName", m_name);
    coder.encodeObject(u"CodingShowName", m_showName);
    coder.encodeObject(u"CodingMenu", std::make_shared<ArchivedMenu>());
    coder.encodeInteger(u"CodingTokenUsingLocal", m_usingLocal);
}
