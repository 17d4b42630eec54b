// The memory that the gallery holds once it is open, all its pages built, beside the same gallery
// under the toolkit's built-in Fusion style.

#include "benchmark.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QThread>

namespace {

constexpr int pollInterval = 500; // milliseconds
constexpr int mostPolls = 60;
constexpr int steadyPolls = 4; // in which nothing more is taken

struct Memory
{
    long own = -1;   ///< KiB that no other process can share
    long whole = -1; ///< KiB with programs, libraries and fonts
};

long field(const QByteArray &status, const char *name)
{
    const int start = status.indexOf(name);
    return start < 0 ? -1
                     : QString::fromLatin1(status.mid(start).split('\n').first())
                           .section(QLatin1Char(' '), -2, -2)
                           .toLong();
}

Memory memoryOf(qint64 process)
{
    QFile file(QStringLiteral("/proc/%1/status").arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray status = file.readAll();
    return {field(status, "RssAnon:"), field(status, "VmRSS:")};
}

/// What the gallery holds when it takes no more; -1 when it cannot be run.
Memory galleryMemory(const QStringList &arguments)
{
    QProcess gallery;
    gallery.setStandardErrorFile(QProcess::nullDevice());
    gallery.start(QCoreApplication::applicationDirPath() + QStringLiteral("/nocturne-gallery"),
                  arguments);
    Memory memory;
    int steady = 0;
    for (int i = 0; gallery.waitForStarted() && i < mostPolls && steady < steadyPolls; ++i) {
        QThread::msleep(pollInterval);
        const Memory now = memoryOf(gallery.processId());
        steady = now.own == memory.own ? steady + 1 : 0;
        memory = now;
    }
    gallery.kill();
    gallery.waitForFinished();
    return memory;
}

void print(const char *name, long ours, long peer)
{
    std::printf("%-44s %10.1f MiB %10.1f MiB %8.2f\n", name, double(ours) / 1024,
                double(peer) / 1024, double(ours) / double(peer));
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    useOffscreenPlatform();
    const Memory ours = galleryMemory({});
    const Memory peer = galleryMemory({QStringLiteral("--other-style"), QStringLiteral("Fusion")});
    if (ours.own <= 0 || peer.own <= 0) {
        std::fprintf(stderr, "bench_memory: the gallery cannot be run\n");
        return 1;
    }
    std::printf("%-44s %14s %14s %8s\n", "The gallery", "DarkFusion", "Fusion", "ratio");
    print("its own memory", ours.own, peer.own);
    print("with what it shares", ours.whole, peer.whole);
    return 0;
}
