#include "naming/TSTokenClasses.h"

#include "naming/TSDateCreatedToken.h"
#include "naming/TSDateModifiedToken.h"
#include "naming/TSDateShootingToken.h"
#include "naming/TSNameToken.h"
#include "naming/TSNumberToken.h"
#include "naming/TSTimeShootingToken.h"

platform::ArchiveClasses tokenClasses()
{
    using platform::archiveFactory;
    return {{QStringLiteral("TSToken"), archiveFactory<TSToken>()},
            {QStringLiteral("TSNameToken"), archiveFactory<TSNameToken>()},
            {QStringLiteral("TSNumberToken"), archiveFactory<TSNumberToken>()},
            {QStringLiteral("TSDateCreatedToken"), archiveFactory<TSDateCreatedToken>()},
            {QStringLiteral("TSDateModifiedToken"), archiveFactory<TSDateModifiedToken>()},
            {QStringLiteral("TSDateShootingToken"), archiveFactory<TSDateShootingToken>()},
            {QStringLiteral("TSTimeShootingToken"), archiveFactory<TSTimeShootingToken>()}};
}
