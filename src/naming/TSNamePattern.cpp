#include "naming/TSNamePattern.h"

#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"
#include "session/TSPhotoManager.h"

#include <functional>
#include <QLocale>

namespace {

/// Ends at the first dot: "a.b.jpg" gives "a", and a name that begins with a dot gives nothing.
QString baseName(const QString &path)
{
    return path.section(u'/', -1).section(u'.', 0, 0);
}

QString expandName(const TSNameToken &token, const QString &base)
{
    if (token.showName() == u"NAME")
        return QLocale::system().toUpper(base);
    if (token.showName() == u"name")
        return QLocale::system().toLower(base);
    return base;
}

/// Only the four widths of the menu expand.
QString expandNumber(const TSNumberToken &token, qint64 number)
{
    static const QStringList widths{QStringLiteral("1"), QStringLiteral("01"), QStringLiteral("001"),
                                    QStringLiteral("0001")};
    const qsizetype width = widths.indexOf(token.showName()) + 1;
    return width > 0 ? QString::number(number).rightJustified(width, u'0') : QString();
}

/// Gives the text of one element of a pattern for the item at an index. Made once for a pass, as a date's
/// formatter is dear.
using Expander = std::function<QString(qint64 index, const TSImageBrowserItem &item)>;

Expander dateExpander(const TSDateTimeToken &token, QStringView attribute, qint64 &tally)
{
    auto formatter = std::make_shared<std::optional<platform::DateFormatter>>(token.formatter());
    return [formatter, key = attribute.toString(), &tally](qint64, const TSImageBrowserItem &item) {
        ++tally;
        const QDateTime date = item.fileAttributesDic.value(key).toDateTime();
        return *formatter ? (*formatter)->string(date) : QString();
    };
}

Expander tokenExpander(const TSToken *token, TSDataManager &session)
{
    if (const auto *name = dynamic_cast<const TSNameToken *>(token)) {
        return [name, &session](qint64, const TSImageBrowserItem &item) {
            ++session.nameToken;
            return expandName(*name, baseName(item.path));
        };
    }
    if (const auto *number = dynamic_cast<const TSNumberToken *>(token)) {
        return [number, &session](qint64 index, const TSImageBrowserItem &) {
            ++session.numberToken;
            return expandNumber(*number, index + 1);
        };
    }
    if (const auto *created = dynamic_cast<const TSDateCreatedToken *>(token))
        return dateExpander(*created, TSFileAttribute::CreationDate, session.createdDateToken);
    if (const auto *modified = dynamic_cast<const TSDateModifiedToken *>(token))
        return dateExpander(*modified, TSFileAttribute::ModificationDate, session.modifiedDateToken);
    return [](qint64, const TSImageBrowserItem &) { return QString(); };
}

Expander expander(const TSTokenValue &value, TSDataManager &session)
{
    if (const auto *text = std::get_if<QString>(&value))
        return [text](qint64, const TSImageBrowserItem &) { return *text; };
    return tokenExpander(std::get<std::shared_ptr<TSToken>>(value).get(), session);
}

} // namespace

TSNamePattern::TSNamePattern() : m_objectValue{TSNameToken::createNameToken()}
{
    m_tfDateCreated->setName(QStringLiteral("Date Created"));
    m_tfDateModified->setName(QStringLiteral("Date Modified"));
}

void TSNamePattern::initObserver()
{
    const auto *center = TSNotificationCenter::defaultCenter();
    connect(center, &TSNotificationCenter::TSExampleTextChange, this, &TSNamePattern::textChanged,
            Qt::DirectConnection);
    connect(center, &TSNotificationCenter::TSExportImageNames, this, &TSNamePattern::exportImageNames,
            Qt::DirectConnection);
}

void TSNamePattern::exportImageNames()
{
    TSDataManager &session = *TSDataManager::dataManager();
    session.exportNames.clear();
    if (m_objectValue.empty())
        return;
    session.nameToken = session.numberToken = session.createdDateToken = session.modifiedDateToken = 0;
    updateExampleText();
    std::vector<Expander> expanders;
    for (const TSTokenValue &value : m_objectValue)
        expanders.push_back(expander(value, session));
    const qint64 count = TSPhotoManager::photoManager()->photoCount();
    for (qint64 i = 0; i < count; ++i) {
        const auto item = session.itemAtIndex(i);
        QString name;
        for (const Expander &expand : expanders)
            name += item ? expand(i, *item) : QString();
        session.exportNames.append(name);
    }
}

void TSNamePattern::updateExampleText()
{
    m_tfExample.clear();
    for (const TSTokenValue &value : m_objectValue) {
        const auto *token = std::get_if<std::shared_ptr<TSToken>>(&value);
        m_tfExample += token ? (*token)->showName() : std::get<QString>(value);
    }
}

void TSNamePattern::textChanged()
{
    if (TSPhotoManager::photoManager()->photoCount() == 0)
        return;
    updateExampleText();
    Q_EMIT TSNotificationCenter::defaultCenter()->TSOutputSizeOrNameChanged();
}
