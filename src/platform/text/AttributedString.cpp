#include "platform/text/AttributedString.h"

#include <algorithm>

namespace platform {

AttributedString::AttributedString(const QString &text, const TextAttributes &attributes) : m_text(text)
{
    if (!text.isEmpty())
        m_runs.push_back({text.size(), attributes});
}

AttributedString AttributedString::fromRuns(const QString &text, std::vector<Run> runs)
{
    AttributedString result;
    result.m_text = text;
    qsizetype rest = text.size();
    for (Run &run : runs) {
        run.length = std::clamp<qsizetype>(run.length, 0, rest);
        rest -= run.length;
    }
    if (rest > 0) {
        if (runs.empty())
            runs.emplace_back();
        runs.back().length += rest;
    }
    result.m_runs = std::move(runs);
    result.joinEqualRuns();
    return result;
}

TextAttributes AttributedString::attributesAt(qsizetype position) const
{
    if (position < 0)
        return {};
    for (const Run &run : m_runs) {
        if (position < run.length)
            return run.attributes;
        position -= run.length;
    }
    return {};
}

void AttributedString::addAttributes(const TextAttributes &attributes)
{
    addAttributes(attributes, 0, length());
}

void AttributedString::addAttributes(const TextAttributes &attributes, qsizetype location, qsizetype length)
{
    const qsizetype begin = std::clamp<qsizetype>(location, 0, m_text.size());
    const qsizetype end = std::clamp<qsizetype>(begin + std::max<qsizetype>(length, 0), begin, m_text.size());
    std::vector<Run> runs;
    qsizetype position = 0;
    for (const Run &run : m_runs) {
        const qsizetype runEnd = position + run.length;
        const qsizetype cuts[] = {position, std::clamp(begin, position, runEnd),
                                  std::clamp(end, position, runEnd), runEnd};
        for (int piece = 0; piece < 3; ++piece) {
            Run part{cuts[piece + 1] - cuts[piece], run.attributes};
            if (piece == 1)
                part.attributes.merge(attributes);
            runs.push_back(std::move(part));
        }
        position = runEnd;
    }
    m_runs = std::move(runs);
    joinEqualRuns();
}

void AttributedString::joinEqualRuns()
{
    std::vector<Run> joined;
    for (Run &run : m_runs) {
        if (run.length == 0)
            continue;
        if (!joined.empty() && joined.back().attributes == run.attributes)
            joined.back().length += run.length;
        else
            joined.push_back(std::move(run));
    }
    m_runs = std::move(joined);
}

} // namespace platform
