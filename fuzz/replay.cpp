#include "Target.h"

#include <cstdio>
#include <QDirIterator>
#include <QFile>
#include <random>

namespace {

void run(const QByteArray &input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.constData()),
                           std::size_t(input.size()));
}

/// The same ones each time: bytes changed, every third one near the beginning alone, and every second one
/// cut.
QByteArray spoilt(QByteArray input, unsigned round)
{
    std::mt19937 random(round);
    const auto upTo = [&random](qsizetype count) { return qsizetype(random() % unsigned(count)); };
    if (round % 2 == 1)
        input.truncate(upTo(input.size() + 1));
    const qsizetype reach = round % 3 == 0 ? std::min<qsizetype>(input.size(), 64) : input.size();
    for (qsizetype changes = upTo(20); changes > 0 && reach > 0; --changes)
        input[upTo(reach)] = char(random());
    return input;
}

} // namespace

/// Stands in for the fuzzer where there is none: runs the target on every file of the folders given, and on
/// each of them in many spoilt forms.
int main(int count, char **folders)
{
    constexpr unsigned rounds = 2000;
    int inputs = 0;
    for (int i = 1; i < count; ++i) {
        QDirIterator files(QString::fromLocal8Bit(folders[i]), QDir::Files);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                return EXIT_FAILURE;
            const QByteArray bytes = file.readAll();
            run(bytes);
            for (unsigned round = 0; round < rounds; ++round)
                run(spoilt(bytes, round));
            ++inputs;
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
