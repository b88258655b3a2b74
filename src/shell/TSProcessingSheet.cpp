#include "shell/TSProcessingSheet.h"

#include "controls/TSBusyBar.h"
#include "controls/TSTheme.h"
#include "session/TSFileUtility.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

namespace {

/// As many as a message can hold and still be read.
constexpr qsizetype longestList = 8;
constexpr int titleWidth = 420;

} // namespace

TSProcessingSheet::TSProcessingSheet(QWidget *parent)
    : TSSheet(parent)
    , m_tfProcessTitle(new QLabel(this))
    , m_progessIndicator(new TSBusyBar(this))
    , m_btCancelProess(newButton("btCancelProess", qtTrId("Cancel")))
{
    setObjectName(QStringLiteral("processingWindow"));
    setAccessibleName(qtTrId("Loading..."));
    m_tfProcessTitle->setObjectName(QStringLiteral("tfProcessTitle"));
    m_tfProcessTitle->setTextFormat(Qt::PlainText);
    m_progessIndicator->setObjectName(QStringLiteral("progessIndicator"));
    m_progessIndicator->setAccessibleName(qtTrId("Loading..."));
    m_progessIndicator->setRange(0, 0);
    connect(m_btCancelProess, &QPushButton::clicked, this, &TSProcessingSheet::reject);
    auto *row = new QHBoxLayout;
    row->setSpacing(TSTheme::margin);
    row->addWidget(m_progessIndicator, 1);
    row->addWidget(m_btCancelProess);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, TSTheme::margin);
    column->setSpacing(TSTheme::spacing);
    column->addWidget(m_tfProcessTitle);
    column->addLayout(row);
    setFixedWidth(titleWidth + 40);
}

void TSProcessingSheet::begin(const QString &title, bool canCancel)
{
    if (isVisible() && !isLeaving())
        return;
    m_btCancelProess->setVisible(canCancel);
    m_tfProcessTitle->setText(title);
    open();
}

void TSProcessingSheet::end()
{
    leave();
}

void TSProcessingSheet::setTitle(const QString &title)
{
    constexpr qint64 readable = 60;
    if (!isVisible() || (m_titleTimer.isValid() && m_titleTimer.elapsed() < readable))
        return;
    m_titleTimer.start();
    m_tfProcessTitle->setText(m_tfProcessTitle->fontMetrics().elidedText(title, Qt::ElideMiddle, titleWidth));
}

void TSProcessingSheet::addRefusal(const QString &path, const QString &reason)
{
    m_refusals.append({path, reason});
}

QString TSProcessingSheet::takeRefusals()
{
    const QList<Refusal> refusals = std::exchange(m_refusals, {});
    QStringList paths;
    for (const Refusal &refusal : refusals)
        paths.append(refusal.path);
    const QStringList names = TSDistinctNames(paths, longestList);
    QStringList lines;
    for (qsizetype i = 0; i < names.size(); ++i)
        lines.append(QStringLiteral("%1: %2").arg(names[i], refusals[i].reason));
    if (refusals.size() > longestList)
        lines.append(QStringLiteral("…"));
    return lines.join(u'\n');
}

void TSProcessingSheet::reject()
{
    if (m_btCancelProess->isVisibleTo(this) && !isLeaving())
        Q_EMIT processWasCancelled();
}
