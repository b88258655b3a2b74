#pragma once

#include "naming/TSTokenValue.h"

#include <vector>

/// Reads text in which placeholders stand in braces, "{Name}_{Number:001}", as the command line gives it. A
/// colon sets a variant apart, and a doubled brace is a brace. Placeholders and variants are told by their
/// exact names. Pure: nothing is told to the session.
class TSPatternParser {
public:
    struct Result {
        std::vector<TSTokenValue> values;
        /// A sentence for the user; empty when the text could be read.
        QString error;
    };

    /// For names of files: {Name}, {Name:lower}, {Name:UPPER}, {Number} with a width such as {Number:000} or
    /// {Number:001}, {Created} and {Modified}, each with one of the date formats.
    static Result namePattern(QStringView text);
    /// For the words of a text: {NAME}, {COUNTER}, {MODEL}, {EXPOSURE}, {FNUMBER}, {ISO}, {FOCAL}, {C_DATE},
    /// {M_DATE}, {DATE} and {TIME}, the last four with one of their formats.
    static Result words(QStringView text);
};
