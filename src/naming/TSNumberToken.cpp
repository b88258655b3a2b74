#include "naming/TSNumberToken.h"

#include "session/TSNotificationCenter.h"

std::shared_ptr<TSNumberToken> TSNumberToken::createNumberToken()
{
    return std::make_shared<TSNumberToken>();
}

TSNumberToken::TSNumberToken() : TSToken(QStringLiteral("Number"), QStringLiteral("1")) {}

TSNumberToken::TSNumberToken(platform::KeyedUnarchiver &coder) : TSToken(coder) {}

QStringList TSNumberToken::classChain() const
{
    return {QStringLiteral("TSNumberToken"), QStringLiteral("TSToken")};
}

QStringList TSNumberToken::tokenMenu() const
{
    return {QStringLiteral("0"), QStringLiteral("00"), QStringLiteral("000"), QStringLiteral("0000")};
}

void TSNumberToken::editCellAction(int itemIndex)
{
    if (itemIndex < 0 || itemIndex >= tokenMenu().size())
        return;
    setShowName(QStringLiteral("1").rightJustified(itemIndex + 1, u'0'));
    Q_EMIT TSNotificationCenter::defaultCenter()->TSExampleTextChange();
}
