#include "naming/TSDateShootingToken.h"

std::shared_ptr<TSDateShootingToken> TSDateShootingToken::createDateShootingToken()
{
    return std::make_shared<TSDateShootingToken>();
}

TSDateShootingToken::TSDateShootingToken()
    : TSDateTimeToken(QStringLiteral("TSDateShootingToken"), QStringLiteral("DATE"), dateFormats())
{
}

TSDateShootingToken::TSDateShootingToken(platform::KeyedUnarchiver &coder)
    : TSDateTimeToken(QStringLiteral("TSDateShootingToken"), coder, dateFormats())
{
}
