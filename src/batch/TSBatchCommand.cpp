#include "batch/TSBatchCommand.h"

#include "batch/TSBatchMarkBuilder.h"
#include "batch/TSBatchOptionParser.h"
#include "batch/TSBatchSignals.h"
#include "naming/TSNamePattern.h"
#include "naming/TSNameRefusal.h"
#include "overlays/TSOverlayManager.h"
#include "overlays/TSOverlayWalk.h"
#include "overlays/TSText.h"
#include "platform/system/UserDefaults.h"
#include "platform/text/FontChoice.h"
#include "profiles/TSProfileLibrary.h"
#include "profiles/TSProfileSaver.h"
#include "session/TSDataManager.h"
#include "session/TSDefaults.h"
#include "session/TSFileUtility.h"
#include "session/TSPhotoManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <unistd.h>

using Status = TSExportOutcome::Status;

namespace {

TSBatchReporter::Form formFor(const TSBatchOptions &options)
{
    if (options.isJson)
        return TSBatchReporter::Form::Json;
    return isatty(STDOUT_FILENO) ? TSBatchReporter::Form::Terminal : TSBatchReporter::Form::Plain;
}

int tellUsage(const TSBatchOptionParser::Result &parsed)
{
    std::fputs(
        QStringLiteral("tessaro-batch: %1\nusage: %2\n").arg(parsed.error, parsed.usage).toUtf8().constData(),
        stderr);
    return TSBatchStatus::WrongUsage;
}

int tell(const QString &text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    return TSBatchStatus::AllWritten;
}

QSet<QString> fontsInUse()
{
    QSet<QString> families;
    TSForEachOverlay(TSOverlayManager::overlayManager()->overlays(), [&families](const TSOverlay &overlay) {
        const auto *text = dynamic_cast<const TSText *>(&overlay);
        if (text && text->fontDic().font)
            families.insert(text->fontDic().font->family);
    });
    return families;
}

void collectPictures(const std::vector<TSBatchMark> &marks, QStringList &paths)
{
    for (const TSBatchMark &mark : marks) {
        if (mark.kind == TSBatchMark::Kind::Image)
            paths.append(mark.imagePath);
        collectPictures(mark.members, paths);
    }
}

int tellProfiles()
{
    QString text;
    for (const TSProfileEntry &profile : TSProfileLibrary::profiles())
        text += profile.title() + u'\n';
    return tell(text);
}

} // namespace

int TSBatchCommand::run(const QStringList &arguments)
{
    const TSBatchOptionParser::Result parsed = TSBatchOptionParser::parse(arguments);
    if (!parsed.error.isEmpty())
        return tellUsage(parsed);
    if (parsed.options.wantsHelp)
        return tell(TSBatchOptionParser::help());
    if (parsed.options.wantsVersion)
        return tell(QStringLiteral("tessaro-batch %1\n").arg(QCoreApplication::applicationVersion()));
    if (parsed.options.wantsProfiles)
        return tellProfiles();
    // The command has settings of its own and leaves the user's alone.
    const auto defaults = platform::UserDefaults::inMemory();
    TSWriteLaunchDefaults();
    TSBatchReporter reporter(formFor(parsed.options));
    return TSBatchCommand(parsed.options, reporter).exportAll();
}

TSBatchCommand::TSBatchCommand(const TSBatchOptions &options, TSBatchReporter &reporter)
    : m_options(options), m_reporter(reporter), m_run(*this)
{
    m_run.isDryRun = options.isDryRun;
    m_run.isStrict = options.isStrict;
    m_run.jobs = options.jobs;
    // There is nobody to ask, and few mean it.
    m_run.largestOutput = TSExportRun::biggestWithoutAsking;
    // A photo that could not be taken in is an original all the same.
    m_run.keptFiles = options.photos;
    collectPictures(options.marks, m_run.keptFiles);
    m_run.placed = [this](qint64, const std::vector<TSMarkPlacement> &marks) { m_placements = marks; };
}

int TSBatchCommand::exportAll()
{
    const TSBatchSignals signals(m_run.isCancelled);
    takePhotosIn();
    QStringList missing;
    const QString unreadable =
        publishCanvas() ? TSBatchMarkBuilder::build(m_options.marks, missing) : QString();
    warnOfPictures(missing);
    if (!unreadable.isEmpty()) {
        m_reporter.warning(QStringLiteral("the profile %1 holds no marks that can be read").arg(unreadable));
        return TSBatchStatus::WrongUsage;
    }
    if (!warnOfFonts())
        return TSBatchStatus::WrongUsage;
    if (!isExportWanted())
        warnOfRefusals();
    if (const QString refusal = nameOutputs(); isExportWanted() && !refusal.isEmpty()) {
        m_reporter.warning(refusal);
        return TSBatchStatus::WrongUsage;
    }
    const bool isSaved = saveProfile();
    const bool isComplete = !isExportWanted() || writePhotos();
    if (m_run.isCancelled)
        return TSBatchStatus::Interrupted;
    return isSaved && isComplete ? TSBatchStatus::AllWritten : TSBatchStatus::SomeNotWritten;
}

/// A command that saves the layout and names no folder wants that alone.
bool TSBatchCommand::isExportWanted() const
{
    return !m_options.output.isEmpty() || m_options.isDryRun;
}

bool TSBatchCommand::writePhotos()
{
    m_reporter.begin(qint64(m_entries.size()));
    requestOutput();
    m_run.savePhotos(outputFolder());
    tellRest();
    m_reporter.end();
    return m_reporter.isComplete();
}

bool TSBatchCommand::saveProfile()
{
    if (m_options.savedProfile.isEmpty() || m_options.isDryRun || m_run.isCancelled)
        return true;
    QStringList missing;
    const QString failure = TSProfileSaver::saveProfile(m_options.savedProfile, &missing);
    warnOfPictures(missing);
    if (!failure.isEmpty())
        m_reporter.warning(
            QStringLiteral("the profile %1 was not saved: %2").arg(m_options.savedProfile, failure));
    return failure.isEmpty();
}

/// Answers whether texts can be drawn at all, if there are any.
bool TSBatchCommand::warnOfFonts()
{
    const QSet<QString> families = fontsInUse();
    if (!families.isEmpty() && !platform::hasAnyFont()) {
        m_reporter.warning(QStringLiteral("no font is installed, so that texts cannot be drawn"));
        return false;
    }
    for (const QString &family : families)
        if (!platform::isFontFamilyAvailable(family))
            m_reporter.warning(
                QStringLiteral("the font %1 is not installed; another one stands in for it").arg(family));
    return true;
}

void TSBatchCommand::warnOfPictures(const QStringList &missing)
{
    for (const QString &picture : missing)
        m_reporter.warning(QStringLiteral("the picture %1 of the profile is missing").arg(picture));
}

/// An export tells of them in their place among the photos.
void TSBatchCommand::warnOfRefusals()
{
    for (const Entry &entry : m_entries)
        if (entry.refusal)
            m_reporter.warning(QStringLiteral("%1: %2").arg(entry.source, entry.refusal->reason));
}

void TSBatchCommand::takePhotosIn()
{
    TSPhotoIntake intake(TSOverlayManager::overlayManager(), this);
    intake.isCancelled = [this] { return m_run.isCancelled.load(); };
    for (const QString &path : m_options.photos) {
        if (m_run.isCancelled) {
            m_entries.push_back({path});
            continue;
        }
        m_givenPath = path;
        const QFileInfo info(path);
        intake.addItemsWithURLs({QDir::cleanPath(info.absoluteFilePath())}, false);
    }
}

void TSBatchCommand::photoWasAdded(const QString &, qint64 index)
{
    m_entries.push_back({m_givenPath, index});
}

void TSBatchCommand::fileWasGivenUp(const QString &)
{
    while (!m_entries.empty() && m_entries.back().source == m_givenPath && !m_entries.back().refusal)
        m_entries.pop_back();
    m_entries.push_back({m_givenPath});
}

void TSBatchCommand::fileWasRefused(const QString &path, const QString &reason)
{
    TSExportOutcome outcome;
    const bool isRepeated = TSDataManager::dataManager()->isHasItem(path);
    outcome.status = isRepeated ? Status::Skipped : Status::Failed;
    outcome.reason = reason;
    m_entries.push_back({m_givenPath, -1, outcome});
}

/// A dry run can do without a folder.
QString TSBatchCommand::outputFolder() const
{
    return m_options.output.isEmpty() ? QDir::currentPath() : m_options.output;
}

/// The first photo whose size can be told stands on the canvas, at one point a pixel.
bool TSBatchCommand::publishCanvas()
{
    TSDataManager *data = TSDataManager::dataManager();
    TSPhotoManager *photos = TSPhotoManager::photoManager();
    bool isPublished = false;
    for (const auto &photo : photos->photos()) {
        if (m_run.isCancelled)
            break;
        data->GetPhotoSize(photo->index);
        if (isPublished || photo->photoSize.isEmpty())
            continue;
        photos->setSelectedPhoto(photo->index);
        data->canvasFrame = QRectF(QPointF(0, 0), photo->photoSize);
        data->previewFrame = data->canvasFrame;
        data->photoRatioOfSize = 1;
        isPublished = true;
    }
    return isPublished;
}

void TSBatchCommand::requestOutput()
{
    TSDataManager *data = TSDataManager::dataManager();
    data->type = m_options.type;
    data->exportFormat = m_options.exportFormat;
    data->quality = double(m_options.quality) / 100;
    data->resizeWay = m_options.resizeWay;
    data->outputWidth = m_options.outputWidth;
    data->outputHeight = m_options.outputHeight;
    data->percentage = m_options.percentage;
}

/// Answers why a name among them can be no file's.
QString TSBatchCommand::nameOutputs()
{
    TSNamePattern pattern;
    pattern.setObjectValue(m_options.name);
    pattern.exportImageNames();
    return TSNameRefusal(TSDataManager::dataManager()->exportNames);
}

void TSBatchCommand::photoIsDone(qint64 index, const TSExportOutcome &outcome)
{
    tellEntriesBefore(index);
    m_reporter.photo(m_entries[m_told].source, outcome, m_placements);
    m_placements.reset();
    ++m_told;
}

/// Files that gave no photo are told of in their place among the photos.
void TSBatchCommand::tellEntriesBefore(qint64 photo)
{
    for (; m_told < m_entries.size() && m_entries[m_told].photo != photo; ++m_told)
        m_reporter.photo(m_entries[m_told].source, m_entries[m_told].refusal.value_or(TSExportOutcome()));
}

/// Why the run came to an end before all photos had their turn.
TSExportOutcome TSBatchCommand::outcomeOfRest() const
{
    TSExportOutcome outcome;
    outcome.status = Status::Skipped;
    if (m_run.isCancelled) {
        outcome.reason = QStringLiteral("The export was cancelled.");
    } else if (TSIsDirectory(outputFolder())) {
        outcome.reason = QStringLiteral("The run was stopped before this photo.");
    } else {
        outcome.status = Status::Failed;
        outcome.reason = TSFileExists(outputFolder()) ? QStringLiteral("%1 is not a folder.")
                                                      : QStringLiteral("The folder %1 does not exist.");
        outcome.reason = outcome.reason.arg(outputFolder());
    }
    return outcome;
}

void TSBatchCommand::tellRest()
{
    const TSExportOutcome outcome = outcomeOfRest();
    qint64 count = 0;
    for (; m_told < m_entries.size(); ++m_told) {
        const Entry &entry = m_entries[m_told];
        if (entry.refusal || outcome.status == Status::Failed) {
            m_reporter.photo(entry.source, entry.refusal.value_or(outcome));
            continue;
        }
        m_reporter.untouched(entry.source, outcome);
        ++count;
    }
    // One by one, a list that was cancelled early would bury what else there is to say.
    if (count > 0)
        m_reporter.warning(QStringLiteral("%1 not begun: %2").arg(count).arg(outcome.reason));
}
