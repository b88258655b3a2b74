#include "platform/image/DecodingReport.h"

namespace platform {

void DecodingReport::fail(const QString &message)
{
    const std::lock_guard lock(m_mutex);
    if (m_failure.isEmpty())
        m_failure = message;
}

QString DecodingReport::failure() const
{
    const std::lock_guard lock(m_mutex);
    return m_failure;
}

void DecodingReport::refuse(const QString &sentence)
{
    const std::lock_guard lock(m_mutex);
    m_refusal = sentence;
}

QString DecodingReport::refusal() const
{
    const std::lock_guard lock(m_mutex);
    return m_refusal;
}

void DecodingReport::missEnd()
{
    const std::lock_guard lock(m_mutex);
    m_lacksEnd = true;
}

bool DecodingReport::lacksEnd() const
{
    const std::lock_guard lock(m_mutex);
    return m_lacksEnd;
}

} // namespace platform
