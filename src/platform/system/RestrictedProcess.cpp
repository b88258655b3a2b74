#include "platform/system/RestrictedProcess.h"

#include <csignal>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace platform {

namespace {

constexpr int cpuSeconds = 10;
/// On the clock, with some of the 10 seconds left for what stands around the run.
constexpr qint64 timeLimit = 9500;
constexpr rlim_t memoryLimit = rlim_t(1) << 30;
constexpr qint64 spaceLimit = qint64(256) << 20;

// A program of ours that is built with a sanitizer maps terabytes before it begins.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool limitsMemory = false;
#else
constexpr bool limitsMemory = true;
#endif

void limit(int resource, rlim_t value)
{
    const rlimit both{value, value};
    setrlimit(__rlimit_resource_t(resource), &both);
}

/// Between fork and exec.
void limitThisProcess()
{
    if (limitsMemory)
        limit(RLIMIT_AS, memoryLimit);
    limit(RLIMIT_CPU, cpuSeconds);
    limit(RLIMIT_FSIZE, rlim_t(spaceLimit));
    std::signal(SIGXFSZ, SIG_DFL);
    limit(RLIMIT_CORE, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
}

} // namespace

RestrictedProcess::Outcome RestrictedProcess::run(const QString &program, const QStringList &arguments,
                                                  const std::function<bool()> &isCancelled)
{
    if (!m_folder.isValid())
        return Outcome::Failed;
    QProcess process;
    confine(process);
    QElapsedTimer clock;
    clock.start();
    process.start(program, arguments);
    if (!process.waitForStarted())
        return Outcome::IsMissing;
    constexpr int patience = 100;
    while (!process.waitForFinished(patience) && process.state() != QProcess::NotRunning) {
        const bool isLate = clock.elapsed() > timeLimit;
        const bool isGivenUp = isCancelled && isCancelled();
        if (!isGivenUp && !isLate && !isFolderFull())
            continue;
        process.kill();
        process.waitForFinished();
        if (isGivenUp)
            return Outcome::Cancelled;
        return isLate ? Outcome::TookTooLong : Outcome::TookTooMuchSpace;
    }
    const bool isDone = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return isDone ? Outcome::Done : Outcome::Failed;
}

void RestrictedProcess::confine(QProcess &process) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &name : {QStringLiteral("TMPDIR"), QStringLiteral("TEMP"), QStringLiteral("TMP")})
        environment.insert(name, m_folder.path());
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder.path());
    process.setChildProcessModifier(limitThisProcess);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardOutputFile(path(QStringLiteral("messages")));
}

/// The limit on one file does not keep it from writing many.
bool RestrictedProcess::isFolderFull() const
{
    qint64 size = 0;
    for (QDirIterator walk(m_folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         walk.hasNext() && size <= spaceLimit;) {
        walk.next();
        size += walk.fileInfo().size();
    }
    return size > spaceLimit;
}

QByteArray RestrictedProcess::messages() const
{
    constexpr qint64 enough = 4096;
    QFile file(path(QStringLiteral("messages")));
    return file.open(QIODevice::ReadOnly) ? file.read(enough) : QByteArray();
}

} // namespace platform
