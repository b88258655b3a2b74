#pragma once

#include "platform/text/TextAttributes.h"

#include <QString>
#include <vector>

namespace platform {

/// A text with runs of attributes. Lengths and positions count UTF-16 units; the runs cover the text without
/// gaps, and neighbours with equal attributes are one run.
class AttributedString {
public:
    struct Run {
        qsizetype length = 0;
        TextAttributes attributes;

        bool operator==(const Run &) const = default;
    };

    AttributedString() = default;
    AttributedString(const QString &text, const TextAttributes &attributes);
    /// Answers the string with the runs cut, or the last one stretched, to the text's length.
    static AttributedString fromRuns(const QString &text, std::vector<Run> runs);

    const QString &string() const { return m_text; }
    qsizetype length() const { return m_text.size(); }
    const std::vector<Run> &runs() const { return m_runs; }

    /// The attributes of the character at a position; empty ones outside the text.
    TextAttributes attributesAt(qsizetype position) const;
    /// Merges the attributes over the whole text.
    void addAttributes(const TextAttributes &attributes);
    /// Merges the attributes over a range, which is cut to the text.
    void addAttributes(const TextAttributes &attributes, qsizetype location, qsizetype length);

    bool operator==(const AttributedString &) const = default;

private:
    void joinEqualRuns();

    QString m_text;
    std::vector<Run> m_runs;
};

} // namespace platform
