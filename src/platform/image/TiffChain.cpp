#include "platform/image/TiffChain.h"

#include "platform/image/TiffFile.h"

#include <mutex>
#include <QDateTime>
#include <QFileInfo>
#include <QtEndian>
#include <set>

namespace platform {

namespace {

constexpr qint64 firstLink = 4;

QString stateOf(const QString &path)
{
    const QFileInfo info(path);
    return QStringLiteral("%1:%2:%3")
        .arg(info.absoluteFilePath())
        .arg(info.size())
        .arg(info.lastModified().toMSecsSinceEpoch());
}

QByteArray numberBytes(quint32 number, bool isBigEndian)
{
    QByteArray bytes(4, Qt::Uninitialized);
    if (isBigEndian)
        qToBigEndian(number, bytes.data());
    else
        qToLittleEndian(number, bytes.data());
    return bytes;
}

} // namespace

TiffChain TiffChain::ofFile(const QString &path)
{
    static std::mutex lock;
    static QString knownState;
    static TiffChain known;
    const std::lock_guard guard(lock);
    const QString state = stateOf(path);
    if (state == knownState)
        return known;
    TiffChain chain;
    if (std::optional<TiffFile> tiff = TiffFile::open(path)) {
        chain.m_isBigEndian = tiff->isBigEndian();
        chain.m_links = std::make_shared<const Links>(read(*tiff));
    }
    known = chain;
    knownState = state;
    return chain;
}

/// Up to what cannot be read, or leads back to where it was already.
TiffChain::Links TiffChain::read(TiffFile &tiff)
{
    Links links;
    std::set<quint32> seen;
    for (quint32 at = tiff.firstDirectory(); at && seen.insert(at).second;) {
        const auto link = tiff.linkAt(at);
        if (!link)
            break;
        links.push_back({at, link->position});
        at = link->next;
    }
    return links;
}

std::vector<FilePatch> TiffChain::only(int first, int pages) const
{
    const Link &last = m_links->at(size_t(first + pages - 1));
    return {{firstLink, numberBytes(m_links->at(size_t(first)).directory, m_isBigEndian)},
            {last.next, numberBytes(0, m_isBigEndian)}};
}

} // namespace platform
