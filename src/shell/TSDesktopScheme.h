#pragma once

#include "controls/TSTheme.h"

#include <QDBusVariant>
#include <QObject>

/// Whether the desktop is light or dark, as its settings portal tells, or else its palette; and the changes
/// of it while the program runs.
class TSDesktopScheme : public QObject {
    Q_OBJECT

public:
    /// Looks at the palette, so that it is to be made before the program sets its own.
    TSDesktopScheme();

    TSTheme::Scheme scheme() const { return m_scheme; }

Q_SIGNALS:
    void schemeDidChange(TSTheme::Scheme scheme);

private Q_SLOTS:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void take(const QVariant &value);

    TSTheme::Scheme m_paletteScheme;
    TSTheme::Scheme m_scheme;
};
