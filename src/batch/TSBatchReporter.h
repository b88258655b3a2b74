#pragma once

#include "export/TSExportHost.h"
#include "export/TSOutputComposer.h"

#include <cstdio>
#include <optional>
#include <QElapsedTimer>
#include <QString>

/// Tells of a batch as it goes: a line of JSON for each photo, or a progress line on a terminal, or plain
/// lines. What could not be written is named on standard error, whatever the form.
class TSBatchReporter {
public:
    enum class Form { Json, Terminal, Plain };

    explicit TSBatchReporter(Form form);

    /// Before the first photo; how many there will be.
    void begin(qint64 count) { m_count = count; }
    /// Photos in list order. The places of the marks are those of a dry run.
    void photo(const QString &source, const TSExportOutcome &outcome,
               const std::optional<std::vector<TSMarkPlacement>> &marks = std::nullopt);
    /// A photo that the run did not come to. The form that lists every photo lists it; it has no warning of
    /// its own.
    void untouched(const QString &source, const TSExportOutcome &outcome);
    void warning(const QString &text);
    void end();

    /// Whether every photo so far was written, or would have been, and all of it was told.
    bool isComplete() const { return m_unwritten == 0 && !m_isReportLost; }

private:
    void count(const TSExportOutcome &outcome);
    void jsonLine(const QString &source, const TSExportOutcome &outcome,
                  const std::optional<std::vector<TSMarkPlacement>> &marks);
    void tell(const QString &line);
    void progressLine();
    void clearProgressLine();
    QString summary() const;

    Form m_form;
    QElapsedTimer m_timer;
    qint64 m_count = 0;
    qint64 m_written = 0;
    qint64 m_skipped = 0;
    qint64 m_failed = 0;
    qint64 m_unwritten = 0;
    bool m_isReportLost = false;
};
