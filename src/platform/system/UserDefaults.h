#pragma once

#include <memory>
#include <mutex>
#include <QSettings>
#include <QVariantHash>

namespace platform {

/// The user's settings. Reading what was never set gives 0, false or nothing. May be used from any thread.
class UserDefaults {
public:
    /// The settings in an INI file.
    explicit UserDefaults(const QString &path);
    /// Settings that begin empty and are gone with the object.
    static std::unique_ptr<UserDefaults> inMemory();

    UserDefaults(const UserDefaults &) = delete;
    UserDefaults &operator=(const UserDefaults &) = delete;
    ~UserDefaults();

    /// The current instance: the one made last that still lives, or else the user's own file in the
    /// configuration folder. Main thread only, but for reading it once an instance exists.
    static UserDefaults &standard();

    bool boolForKey(const QString &key) const;
    qint64 integerForKey(const QString &key) const;
    float floatForKey(const QString &key) const;
    QString stringForKey(const QString &key) const;

    void setBool(const QString &key, bool value);
    void setInteger(const QString &key, qint64 value);
    void setFloat(const QString &key, float value);
    void setString(const QString &key, const QString &value);

    /// Writes what has changed to the file; without this it happens in its own time.
    void synchronize();

private:
    explicit UserDefaults(std::unique_ptr<QSettings> file);

    QVariant value(const QString &key) const;
    void setValue(const QString &key, const QVariant &value);

    mutable std::mutex m_lock;
    std::unique_ptr<QSettings> m_file;
    QVariantHash m_memory;
};

} // namespace platform
