#pragma once

#include <memory>
#include <QByteArray>
#include <QIODevice>
#include <QSaveFile>
#include <QString>

namespace platform {

/// A file that appears whole or not at all: the bytes go to a temporary one beside it, which takes its name
/// at the end. Gone without a trace when it is not committed. Any thread, one at a time.
class AtomicFile {
public:
    explicit AtomicFile(const QString &path);

    bool open();
    /// For writing, from any place of it.
    QIODevice &device() { return m_file; }
    bool hasFailed() const { return !m_file.isOpen() || !m_file.error.isEmpty(); }
    /// What has been written so far.
    std::unique_ptr<QIODevice> reader();
    /// Answers an empty text when it worked, else a sentence for the user.
    QString commit();
    /// Why it did not work, in a sentence for the user. `length` is about how many bytes there will be.
    QString failure(qsizetype length) const;

private:
    /// The toolkit forgets why a write failed with the next change of place.
    struct File : QSaveFile {
        using QSaveFile::QSaveFile;
        qint64 writeData(const char *bytes, qint64 length) override;
        QString error;
    };

    QString m_path;
    File m_file;
};

/// Answers an empty text when it worked, else a sentence for the user. Any thread.
QString writeFileAtomically(const QString &path, const QByteArray &bytes);

} // namespace platform
