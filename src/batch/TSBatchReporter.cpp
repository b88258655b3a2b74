#include "batch/TSBatchReporter.h"

#include "batch/TSJsonLine.h"

#include <cerrno>
#include <cmath>
#include <QStringList>

using Status = TSExportOutcome::Status;

namespace {

/// Names of files may hold line feeds and what terminals take for commands; each line of ours is to stay one,
/// and to show what it names.
QString visible(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        if (c == u'\n')
            result += QStringLiteral("\\n");
        else if (c.category() == QChar::Other_Control)
            result += QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
        else
            result += c;
    }
    return result;
}

QString nameOf(Status status)
{
    switch (status) {
    case Status::Written:
        return QStringLiteral("written");
    case Status::Skipped:
        return QStringLiteral("skipped");
    default:
        return QStringLiteral("failed");
    }
}

QString toJson(const TSMarkPlacement &mark)
{
    TSJsonLine frame;
    frame.put("x", mark.frame.x())
        .put("y", mark.frame.y())
        .put("w", mark.frame.width())
        .put("h", mark.frame.height());
    // Rows keep angles in single precision, which shows from the seventh digit on.
    const double angle = std::round(mark.angle * 1e4) / 1e4;
    TSJsonLine line;
    line.put("type", mark.type).put("text", mark.text).put("frame", frame);
    return line.put("anchor", qint64(mark.anchor)).put("angle", angle).text();
}

} // namespace

TSBatchReporter::TSBatchReporter(Form form) : m_form(form)
{
    m_timer.start();
}

void TSBatchReporter::photo(const QString &source, const TSExportOutcome &outcome,
                            const std::optional<std::vector<TSMarkPlacement>> &marks)
{
    const bool isPlanned = outcome.status == Status::Skipped && marks.has_value();
    count(outcome);
    if (outcome.status != Status::Written && !isPlanned) {
        ++m_unwritten;
        warning(QStringLiteral("%1: %2: %3").arg(source, nameOf(outcome.status), outcome.reason));
    }
    for (const QString &text : outcome.warnings)
        warning(QStringLiteral("%1: %2").arg(source, text));
    if (m_form == Form::Json)
        jsonLine(source, outcome, marks);
    else if (m_form == Form::Terminal)
        progressLine();
    else if (outcome.status == Status::Written || isPlanned)
        tell(QStringLiteral("%1 -> %2 (%3 x %4)\n")
                 .arg(visible(source), visible(outcome.targetPath), QString::number(outcome.size.width()),
                      QString::number(outcome.size.height())));
}

void TSBatchReporter::untouched(const QString &source, const TSExportOutcome &outcome)
{
    count(outcome);
    ++m_unwritten;
    if (m_form == Form::Json)
        jsonLine(source, outcome, std::nullopt);
}

void TSBatchReporter::count(const TSExportOutcome &outcome)
{
    switch (outcome.status) {
    case Status::Written:
        ++m_written;
        break;
    case Status::Skipped:
        ++m_skipped;
        break;
    case Status::Failed:
        ++m_failed;
    }
}

void TSBatchReporter::jsonLine(const QString &source, const TSExportOutcome &outcome,
                               const std::optional<std::vector<TSMarkPlacement>> &marks)
{
    TSJsonLine line;
    line.put("index", m_written + m_skipped + m_failed - 1)
        .put("source", source)
        .put("target", outcome.targetPath);
    line.put("status", nameOf(outcome.status)).put("reason", outcome.reason);
    line.put("width", qint64(outcome.size.width())).put("height", qint64(outcome.size.height()));
    line.put("ms", outcome.milliseconds);
    line.put("warnings", outcome.warnings);
    if (marks) {
        QStringList list;
        for (const TSMarkPlacement &mark : *marks)
            list.append(toJson(mark));
        line.putRaw("marks", u'[' + list.join(u',') + u']');
    }
    tell(line.text() + u'\n');
}

void TSBatchReporter::progressLine()
{
    const qint64 done = m_written + m_skipped + m_failed;
    const double seconds = std::max(0.001, double(m_timer.elapsed()) / 1000);
    const double rate = double(done) / seconds;
    tell(QStringLiteral("\r\033[K%1 of %2, %3 photos/s, %4 s left")
             .arg(done)
             .arg(m_count)
             .arg(rate, 0, 'f', 1)
             .arg(double(m_count - done) / rate, 0, 'f', 0));
}

/// A reader that has gone away wants no more; one that could not take a line has lost it.
void TSBatchReporter::tell(const QString &line)
{
    errno = 0;
    if ((std::fputs(line.toUtf8().constData(), stdout) == EOF || std::fflush(stdout) == EOF) &&
        errno != EPIPE)
        m_isReportLost = true;
}

void TSBatchReporter::clearProgressLine()
{
    if (m_form == Form::Terminal)
        tell(QStringLiteral("\r\033[K"));
}

void TSBatchReporter::warning(const QString &text)
{
    clearProgressLine();
    std::fputs(QStringLiteral("tessaro-batch: %1\n").arg(visible(text)).toUtf8().constData(), stderr);
}

QString TSBatchReporter::summary() const
{
    return QStringLiteral("%1 written, %2 skipped, %3 failed in %4 s\n")
        .arg(m_written)
        .arg(m_skipped)
        .arg(m_failed)
        .arg(double(m_timer.elapsed()) / 1000, 0, 'f', 1);
}

void TSBatchReporter::end()
{
    clearProgressLine();
    if (m_form != Form::Json) {
        tell(summary());
    } else {
        TSJsonLine line;
        line.put("written", m_written)
            .put("skipped", m_skipped)
            .put("failed", m_failed)
            .put("ms", m_timer.elapsed());
        tell(line.text() + u'\n');
    }
    if (m_isReportLost)
        warning(QStringLiteral("the report could not be written to standard output"));
}
