#include "naming/TSPatternParser.h"
#include "Target.h"

/// Either values or a sentence, never both and never a value without an end.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(bytesOf(data, size));
    for (const auto &result : {TSPatternParser::namePattern(text), TSPatternParser::words(text)})
        require(result.error.isEmpty() || result.values.empty());
    return 0;
}
