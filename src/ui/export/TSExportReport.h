#pragma once

#include "export/TSExportHost.h"

#include <QString>
#include <vector>

/// What a run could not do, and photos on which no mark shows, in sentences for the user. Filled by the
/// thread of the run, read when that has ended.
class TSExportReport {
public:
    void add(const QString &photoPath, const TSExportOutcome &outcome);
    /// A run that could not even begin.
    void addAll(qint64 photoCount, const QString &reason);

    qint64 writtenCount() const { return m_writtenCount; }
    /// Photos that were looked for, and could not be written.
    qint64 failedCount() const { return m_failedCount; }
    /// These, and the photos whose file had gone.
    qint64 missedCount() const { return m_missedCount; }
    /// How many were written, failed and were passed over.
    QString counts() const;
    /// One sentence a reason, with the photo's name or how many photos it kept from being written; no more
    /// than fit on a sheet. Of photos of one name each is told with its folder.
    QString sentences() const;

    static QString folderReason(const QString &folder);

private:
    QStringList photoNames() const;
    void tell(const QString &photoPath, const QString &reason, qint64 count);

    /// Photos of which there is the same to be told.
    struct Told {
        QString reason;
        QString photoPath;
        qint64 count = 0;
    };

    std::vector<Told> m_told;
    qint64 m_toldCount = 0;
    qint64 m_writtenCount = 0;
    qint64 m_failedCount = 0;
    qint64 m_missedCount = 0;
};
