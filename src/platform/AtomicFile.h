#pragma once

#include <functional>
#include <QByteArray>
#include <QString>

class QIODevice;

namespace platform {

/// Writes a file that appears whole or not at all: the bytes go to a temporary one beside it, which then
/// takes its name. Answers an empty text when it worked, else a sentence for the user. Any thread.
QString writeFileAtomically(const QString &path, const QByteArray &bytes);
/// The same with a writer of the bytes, which answers whether it has written all of them. `length` is about
/// how many there will be.
QString writeFileAtomically(const QString &path, qsizetype length,
                            const std::function<bool(QIODevice &)> &write);

} // namespace platform
