#include "batch/TSBatchListFile.h"
#include "Target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    for (const QString &path : TSBatchListFile::paths(bytesOf(data, size)))
        require(!path.isEmpty() && !path.contains(u'\n'));
    return 0;
}
