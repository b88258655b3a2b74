#include "batch/TSBatchCommand.h"

#include <malloc.h>
#include <QGuiApplication>

namespace {

/// Standard error belongs to what the command itself has to say; the toolkit's remarks on the environment do
/// not concern whoever reads it.
void discardRemark(QtMsgType, const QMessageLogContext &, const QString &) {}

/// Pictures come and go by the megabyte. Left to itself the allocator learns to keep such blocks, and a long
/// run grows by what lies unused between them; the smaller ones it would take from the system and give back
/// with every photo, from each thread's own store.
void adviseAllocator()
{
    mallopt(M_MMAP_THRESHOLD, 1 << 22);
    mallopt(M_TRIM_THRESHOLD, 1 << 26);
    mallopt(M_ARENA_MAX, 1);
}

} // namespace

int main(int argc, char **argv)
{
    // Fonts need an application object; this platform serves them without a screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    adviseAllocator();
    qInstallMessageHandler(discardRemark);
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("Tessaro"));
    QGuiApplication::setApplicationVersion(QStringLiteral(TESSARO_VERSION));
    return TSBatchCommand::run(QGuiApplication::arguments().mid(1));
}
