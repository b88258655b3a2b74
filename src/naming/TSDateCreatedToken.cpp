#include "naming/TSDateCreatedToken.h"

std::shared_ptr<TSDateCreatedToken> TSDateCreatedToken::createDateCreatedToken()
{
    return std::make_shared<TSDateCreatedToken>();
}

TSDateCreatedToken::TSDateCreatedToken()
    : TSDateTimeToken(QStringLiteral("TSDateCreatedToken"), QStringLiteral("C_DATE"), dateFormats())
{
}

TSDateCreatedToken::TSDateCreatedToken(platform::KeyedUnarchiver &coder)
    : TSDateTimeToken(QStringLiteral("TSDateCreatedToken"), coder, dateFormats())
{
}
