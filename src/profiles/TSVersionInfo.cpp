#include "profiles/TSVersionInfo.h"

#include "platform/archive/KeyedArchiver.h"

#include <QCoreApplication>

namespace {

/// Raised when what is archived changes its form.
constexpr qint64 formVersion = 1;

} // namespace

TSVersionInfo::TSVersionInfo()
    : m_productName(QStringLiteral("Tessaro"))
    , m_company(QStringLiteral("Korvane Technology"))
    , m_version(QCoreApplication::applicationVersion())
    , m_projectVersion(formVersion)
{
}

TSVersionInfo::TSVersionInfo(platform::KeyedUnarchiver &coder)
    : m_productName(coder.decodeObject(u"productName").toString())
    , m_company(coder.decodeObject(u"company").toString())
    , m_version(coder.decodeObject(u"version").toString())
    , m_projectVersion(coder.decodeInteger(u"projectVersion"))
{
}

void TSVersionInfo::encodeWithCoder(platform::KeyedArchiver &coder) const
{
    coder.encodeObject(u"productName", m_productName);
    coder.encodeObject(u"company", m_company);
    coder.encodeObject(u"version", m_version);
    coder.encodeInteger(u"projectVersion", m_projectVersion);
}
