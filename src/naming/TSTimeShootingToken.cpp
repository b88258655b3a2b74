#include "naming/TSTimeShootingToken.h"

std::shared_ptr<TSTimeShootingToken> TSTimeShootingToken::createTimeShootingToken()
{
    return std::make_shared<TSTimeShootingToken>();
}

TSTimeShootingToken::TSTimeShootingToken()
    : TSDateTimeToken(QStringLiteral("TSTimeShootingToken"), QStringLiteral("TIME"), timeFormats())
{
}

TSTimeShootingToken::TSTimeShootingToken(platform::KeyedUnarchiver &coder)
    : TSDateTimeToken(QStringLiteral("TSTimeShootingToken"), coder, timeFormats())
{
}
