#include "export/TSExportTargets.h"

#include "platform/system/FileIdentity.h"
#include "session/TSDataManager.h"
#include "session/TSFileUtility.h"

namespace {

QString folded(const QString &path)
{
    return path.normalized(QString::NormalizationForm_KC).toCaseFolded();
}

} // namespace

void TSExportTargets::begin(const QString &folder, const QStringList &keptFiles)
{
    m_folder = folder;
    m_planned.clear();
    m_originals.clear();
    const TSDataManager *data = TSDataManager::dataManager();
    for (qint64 index = 0; index < data->photoCount(); ++index)
        m_originals.insert(platform::fileIdentity(data->itemAtIndex(index)->sourcePath()));
    for (const QString &path : keptFiles)
        m_originals.insert(platform::fileIdentity(path));
    m_originals.remove(QString());
}

QString TSExportTargets::path(const QString &name) const
{
    return QStringLiteral("%1/%2.%3").arg(m_folder, name, TSDataManager::dataManager()->exportFormat);
}

QString TSExportTargets::uniquePath(const QString &name) const
{
    return TSUniquePath(m_folder, name, TSDataManager::dataManager()->exportFormat,
                        [this](const QString &path) { return isTaken(path); });
}

std::function<QString()> TSExportTargets::nextPath(const QString &name) const
{
    return [folder = m_folder, name, extension = TSDataManager::dataManager()->exportFormat] {
        return TSUniquePath(folder, name, extension);
    };
}

bool TSExportTargets::isTaken(const QString &path) const
{
    return m_planned.contains(path) || TSIsNameTaken(path);
}

bool TSExportTargets::isOriginal(const QString &path) const
{
    return m_originals.contains(platform::fileIdentity(path));
}

bool TSExportTargets::mayMeet(const QString &name, const QString &path) const
{
    return folded(path).startsWith(folded(QStringLiteral("%1/%2").arg(m_folder, name)));
}
