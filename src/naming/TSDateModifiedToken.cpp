#include "naming/TSDateModifiedToken.h"

std::shared_ptr<TSDateModifiedToken> TSDateModifiedToken::createDateModifiedToken()
{
    return std::make_shared<TSDateModifiedToken>();
}

TSDateModifiedToken::TSDateModifiedToken()
    : TSDateTimeToken(QStringLiteral("TSDateModifiedToken"), QStringLiteral("M_DATE"), dateFormats())
{
}

TSDateModifiedToken::TSDateModifiedToken(platform::KeyedUnarchiver &coder)
    : TSDateTimeToken(QStringLiteral("TSDateModifiedToken"), coder, dateFormats())
{
}
