#include "platform/system/UserDefaults.h"

#include <vector>

namespace platform {

namespace {

std::vector<UserDefaults *> &instances()
{
    static std::vector<UserDefaults *> list;
    return list;
}

} // namespace

UserDefaults::UserDefaults(const QString &path)
    : UserDefaults(std::make_unique<QSettings>(path, QSettings::IniFormat))
{
}

UserDefaults::UserDefaults(std::unique_ptr<QSettings> file) : m_file(std::move(file))
{
    instances().push_back(this);
}

UserDefaults::~UserDefaults()
{
    std::erase(instances(), this);
}

std::unique_ptr<UserDefaults> UserDefaults::inMemory()
{
    return std::unique_ptr<UserDefaults>(new UserDefaults(std::unique_ptr<QSettings>()));
}

UserDefaults &UserDefaults::standard()
{
    if (instances().empty()) {
        const QString name = QStringLiteral("Tessaro");
        static const std::unique_ptr<UserDefaults> userFile(new UserDefaults(
            std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, name, name)));
    }
    return *instances().back();
}

bool UserDefaults::boolForKey(const QString &key) const
{
    return value(key).toBool();
}

qint64 UserDefaults::integerForKey(const QString &key) const
{
    return value(key).toLongLong();
}

float UserDefaults::floatForKey(const QString &key) const
{
    return value(key).toFloat();
}

QString UserDefaults::stringForKey(const QString &key) const
{
    return value(key).toString();
}

void UserDefaults::setBool(const QString &key, bool value)
{
    setValue(key, value);
}

void UserDefaults::setInteger(const QString &key, qint64 value)
{
    setValue(key, value);
}

void UserDefaults::setFloat(const QString &key, float value)
{
    setValue(key, value);
}

void UserDefaults::setString(const QString &key, const QString &value)
{
    setValue(key, value);
}

void UserDefaults::synchronize()
{
    const std::lock_guard guard(m_lock);
    if (m_file)
        m_file->sync();
}

QVariant UserDefaults::value(const QString &key) const
{
    const std::lock_guard guard(m_lock);
    return m_file ? m_file->value(key) : m_memory.value(key);
}

void UserDefaults::setValue(const QString &key, const QVariant &value)
{
    const std::lock_guard guard(m_lock);
    if (m_file)
        m_file->setValue(key, value);
    else
        m_memory.insert(key, value);
}

} // namespace platform
