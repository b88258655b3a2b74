#pragma once

#include <functional>
#include <QStringList>
#include <QTemporaryDir>

class QProcess;

namespace platform {

/// One run of a program on a file that nobody vouches for. It gets 10 seconds, 1 GB of address space, no
/// shell, and a folder of its own for whatever it writes, which is gone with this object. Any thread; blocks.
class RestrictedProcess {
public:
    enum class Outcome { Done, Failed, TookTooLong, TookTooMuchSpace, IsMissing, Cancelled };

    /// A file in the folder.
    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Ended as soon as the test, asked again and again, answers true.
    Outcome run(const QString &program, const QStringList &arguments,
                const std::function<bool()> &isCancelled = {});
    /// What it wrote to its outputs, as far as a reason may stand in it.
    QByteArray messages() const;

private:
    void confine(QProcess &process) const;
    bool isFolderFull() const;

    QTemporaryDir m_folder;
};

} // namespace platform
