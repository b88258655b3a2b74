#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

/// What became of one photo of a run.
struct TSExportOutcome {
    enum class Status { Written, Skipped, Failed };

    Status status = Status::Failed;
    QString targetPath;
    QSize size{0, 0};
    /// Why it was not written, or empty.
    QString reason;
    /// What the user should know of a photo all the same: what did not go along, which marks do not show.
    QStringList warnings;
    /// There are marks, and nothing of them shows on this photo.
    bool isUnmarked = false;
    qint64 milliseconds = 0;
};

/// The answers to the question what to do about a name that is taken, for the rest of a run.
namespace TSConflictChoice {
constexpr int NotAsked = -2;
constexpr int Replace = -1;
constexpr int Stop = 0;
constexpr int Rename = 1;
} // namespace TSConflictChoice

/// Whoever stands around an export run: it answers the three questions, each at most once a run, and is told
/// how the run goes. Everything is called from the thread of the run, which waits for the answers.
class TSExportHost {
public:
    virtual ~TSExportHost() = default;

    /// An output is larger than 20000 by 20000 pixels altogether; whether to go on all the same.
    virtual bool continueWithBiggerPhoto() = 0;
    /// A photo's file has gone. The run goes on whatever is said.
    virtual void sourceIsMissing(const QString &path) = 0;
    /// A file of that name is there already: a `TSConflictChoice`.
    virtual int nameIsTaken(const QString &path) = 0;

    virtual void photoIsDone(qint64 index, const TSExportOutcome &outcome) = 0;
    virtual void setProgressTip(qint64 index) = 0;
    virtual void closeProgressSheet() = 0;
    /// After a run that wrote anything, with the first path that a write was attempted to.
    virtual void successfulSaveToPath(const QString &path) = 0;
};
