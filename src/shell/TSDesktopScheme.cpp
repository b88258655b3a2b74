#include "shell/TSDesktopScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString object = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString colorScheme = QStringLiteral("color-scheme");

/// The portal is asked before the first window is there, and must not keep it.
constexpr int patience = 250;

/// Older portals wrap the value twice.
uint numberIn(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toUInt();
}

} // namespace

TSDesktopScheme::TSDesktopScheme() : m_paletteScheme(TSTheme::systemScheme()), m_scheme(m_paletteScheme)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QDBusMessage question = QDBusMessage::createMethodCall(service, object, settings, QStringLiteral("Read"));
    question << appearance << colorScheme;
    const QDBusMessage answer = bus.call(question, QDBus::Block, patience);
    if (answer.type() == QDBusMessage::ReplyMessage)
        take(answer.arguments().value(0));
    bus.connect(service, object, settings, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
}

void TSDesktopScheme::settingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    const TSTheme::Scheme before = m_scheme;
    if (group == appearance && key == colorScheme)
        take(value.variant());
    if (m_scheme != before)
        Q_EMIT schemeDidChange(m_scheme);
}

/// 1 asks for dark, 2 for light; anything else leaves it to the palette.
void TSDesktopScheme::take(const QVariant &value)
{
    const uint wanted = numberIn(value);
    if (wanted == 1)
        m_scheme = TSTheme::Scheme::Dark;
    else if (wanted == 2)
        m_scheme = TSTheme::Scheme::Light;
    else
        m_scheme = m_paletteScheme;
}
