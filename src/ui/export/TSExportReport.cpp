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
        if (outcome.isUnmarked)
            tell(photoPath, qtTrId("NoMarkShows"), 1);
        return;
    }
    m_failedCount += outcome.status == Status::Failed;
    ++m_missedCount;
    tell(photoPath, reasonOf(outcome), 1);
}

void TSExportReport::addAll(qint64 photoCount, const QString &reason)
{
    m_failedCount += photoCount;
    m_missedCount += photoCount;
    tell({}, reason, photoCount);
}

void TSExportReport::tell(const QString &photoPath, const QString &reason, qint64 count)
{
    m_toldCount += count;
    const auto known =
        std::find_if(m_told.begin(), m_told.end(), [&](const Told &told) { return told.reason == reason; });
    if (known != m_told.end())
        known->count += count;
    else
        m_told.push_back({reason, photoPath, count});
}

QString TSExportReport::counts() const
{
    return qtTrId("ExportCounts").arg(m_writtenCount).arg(m_failedCount).arg(m_missedCount - m_failedCount);
}

QStringList TSExportReport::photoNames() const
{
    QStringList paths;
    for (const Told &told : m_told)
        paths.append(told.photoPath);
    return TSDistinctNames(paths, mostSentences);
}

QString TSExportReport::sentences() const
{
    QStringList lines;
    qint64 told = 0;
    const QStringList names = photoNames();
    for (size_t i = 0; i < size_t(names.size()); ++i) {
        const Told &group = m_told[i];
        const QString who = group.count == 1 && !group.photoPath.isEmpty()
                                ? names[qsizetype(i)]
                                : qtTrId("PhotoCount", int(group.count));
        lines.append(QStringLiteral("%1: %2").arg(who, group.reason));
        told += group.count;
    }
    if (told < m_toldCount)
        lines.append(qtTrId("AndMorePhotos", int(m_toldCount - told)));
    return lines.join(u'\n');
}
