#pragma once

#include <mutex>
#include <QString>

namespace platform {

/// What a decoder has to say of the one picture that it reads: the library's own messages are kept for the
/// whole process, where those of several pictures mix. Any thread.
class DecodingReport {
public:
    /// The first failure stands; those that follow come of it.
    void fail(const QString &message);
    QString failure() const;
    /// Why a file of a known format is not read at all, in a sentence for the user.
    void refuse(const QString &sentence);
    QString refusal() const;
    /// The picture is whole, and the mark behind it that would say so is missing.
    void missEnd();
    bool lacksEnd() const;

private:
    mutable std::mutex m_mutex;
    QString m_failure;
    QString m_refusal;
    bool m_lacksEnd = false;
};

} // namespace platform
