#pragma once

#include <functional>
#include <memory>
#include <QByteArray>
#include <QIODevice>
#include <QSaveFile>
#include <QString>

namespace platform {

/// A file that appears whole or not at all: the bytes go to a temporary one beside it, which takes its name
/// at the end. Gone without a trace when it is not committed. Any thread, one at a time.
///
/// A link under the name is a file like any other: it is replaced itself, and what it leads to left alone.
class AtomicFile {
public:
    explicit AtomicFile(const QString &path);
    ~AtomicFile();

    bool open();
    /// For writing, from any place of it.
    QIODevice &device() { return m_file; }
    bool hasFailed() const { return !m_file.isOpen() || !m_file.error.isEmpty(); }
    /// What has been written so far.
    std::unique_ptr<QIODevice> reader();
    /// Replaces what stands under the name. Answers an empty text when it worked, else a sentence for the
    /// user.
    QString commit();
    /// Replaces nothing, whoever else is writing there: when the name is taken, the file takes the first that
    /// is not of those that `next` answers. Without such, it may be committed later.
    QString commitNew(const std::function<QString()> &next = {});
    /// Whether the last `commitNew` met a name that is taken.
    bool isNameTaken() const { return m_isNameTaken; }
    /// The name that it has, or is to have.
    const QString &path() const { return m_path; }
    /// Why it did not work, in a sentence for the user. `length` is about how many bytes there will be.
    QString failure(qsizetype length) const;

private:
    /// The toolkit forgets why a write failed with the next change of place.
    struct File : QSaveFile {
        using QSaveFile::QSaveFile;
        qint64 writeData(const char *bytes, qint64 length) override;
        QString error;
    };

    bool finish();
    bool takeName();
    bool takeFreeName();

    QString m_path;
    File m_file;
    /// Complete, but under a name of no meaning.
    bool m_isFinished = false;
    bool m_isNameTaken = false;
};

/// Answers an empty text when it worked, else a sentence for the user. Any thread.
QString writeFileAtomically(const QString &path, const QByteArray &bytes);

} // namespace platform
