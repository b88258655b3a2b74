#pragma once

#include "batch/TSBatchOptions.h"

#include <QStringList>

/// Reads the command line. It looks at no photo, but at list files and at whether pictures for marks can be
/// read, so that whatever is wrong with a command is told before any work.
class TSBatchOptionParser {
public:
    struct Result {
        TSBatchOptions options;
        /// What is wrong, in a sentence, and the usage line that tells how it is right; empty when nothing
        /// is.
        QString error;
        QString usage;
    };

    /// The arguments without the program's name.
    static Result parse(const QStringList &arguments);
    /// The whole help text.
    static QString help();
};
