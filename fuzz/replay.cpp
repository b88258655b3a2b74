#include "Target.h"

#include <cstdio>
#include <QDirIterator>
#include <QFile>

/// Stands in for the fuzzer where there is none: runs the target on every file of the folders given.
int main(int count, char **folders)
{
    int inputs = 0;
    for (int i = 1; i < count; ++i) {
        QDirIterator files(QString::fromLocal8Bit(folders[i]), QDir::Files);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                return EXIT_FAILURE;
            const QByteArray bytes = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                                   std::size_t(bytes.size()));
            ++inputs;
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
