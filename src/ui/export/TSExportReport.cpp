#include "ui/export/TSExportReport.h"

#include "session/TSFileUtility.h"

#include <QFileInfo>

using Status = TSExportOutcome::Status;

namespace {

constexpr qsizetype mostSentences = 5;

QString reasonOf(const TSExportOutcome &outcome)
{
    if (outcome.targetPath.isEmpty())
        return outcome.status == Status::Skipped ? qtTrId("SourceIsGone") : outcome.reason;
    const QString ofFolder = TSExportReport::folderReason(QFileInfo(outcome.targetPath).path());
    return ofFolder.isEmpty() ? outcome.reason : ofFolder;
}

} // namespace

QString TSExportReport::folderReason(const QString &folder)
{
    const QFileInfo info(folder);
    if (!info.isDir())
        return qtTrId("FolderIsGone").arg(folder);
    return info.isWritable() ? QString() : qtTrId("FolderIsReadOnly").arg(folder);
}

void TSExportReport::add(const QString &photoPath, const TSExportOutcome &outcome)
{
    if (outcome.status == Status::Written) {
        ++m_writtenCount;
        return;
    }
    m_failedCount += outcome.status == Status::Failed;
    miss(photoPath, reasonOf(outcome), 1);
}

void TSExportReport::addAll(qint64 photoCount, const QString &reason)
{
    m_failedCount += photoCount;
    miss({}, reason, photoCount);
}

void TSExportReport::miss(const QString &photoPath, const QString &reason, qint64 count)
{
    m_missedCount += count;
    const auto known = std::find_if(m_missed.begin(), m_missed.end(),
                                    [&](const Missed &missed) { return missed.reason == reason; });
    if (known != m_missed.end())
        known->count += count;
    else
        m_missed.push_back({reason, photoPath, count});
}

QString TSExportReport::counts() const
{
    return qtTrId("ExportCounts").arg(m_writtenCount).arg(m_failedCount).arg(m_missedCount - m_failedCount);
}

QStringList TSExportReport::photoNames() const
{
    QStringList paths;
    for (const Missed &missed : m_missed)
        paths.append(missed.photoPath);
    return TSDistinctNames(paths, mostSentences);
}

QString TSExportReport::sentences() const
{
    QStringList lines;
    qint64 told = 0;
    const QStringList names = photoNames();
    for (size_t i = 0; i < size_t(names.size()); ++i) {
        const Missed &missed = m_missed[i];
        const QString who = missed.count == 1 && !missed.photoPath.isEmpty()
                                ? names[qsizetype(i)]
                                : qtTrId("PhotoCount", int(missed.count));
        lines.append(QStringLiteral("%1: %2").arg(who, missed.reason));
        told += missed.count;
    }
    if (told < m_missedCount)
        lines.append(qtTrId("AndMorePhotos", int(m_missedCount - told)));
    return lines.join(u'\n');
}
