#include "naming/TSNameToken.h"

#include "session/TSNotificationCenter.h"

#include <QLocale>

std::shared_ptr<TSNameToken> TSNameToken::createNameToken()
{
    return std::make_shared<TSNameToken>();
}

TSNameToken::TSNameToken() : TSToken(QStringLiteral("Name"), QStringLiteral("Name")) {}

TSNameToken::TSNameToken(platform::KeyedUnarchiver &coder) : TSToken(coder) {}

QStringList TSNameToken::classChain() const
{
    return {QStringLiteral("TSNameToken"), QStringLiteral("TSToken")};
}

QStringList TSNameToken::tokenMenu() const
{
    return {QStringLiteral("No Change"), QStringLiteral("lowercase"), QStringLiteral("UPPERCASE")};
}

void TSNameToken::editCellAction(int itemIndex)
{
    switch (itemIndex) {
    case 0:
        setShowName(name());
        break;
    case 1:
        setShowName(QLocale::system().toLower(showName()));
        break;
    case 2:
        setShowName(QLocale::system().toUpper(showName()));
        break;
    default:
        return;
    }
    Q_EMIT TSNotificationCenter::defaultCenter()->TSExampleTextChange();
}
