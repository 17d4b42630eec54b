#include "benchmark.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>

#include <cstdio>
#include <spawn.h>
#include <sys/wait.h>

namespace {

constexpr int rounds = 301;
constexpr double mostAdded = 2000.0; // microseconds

/// Starts a program and returns the microseconds until it has ended, or -1.
double lifeOf(const QByteArray &program)
{
    char *const arguments[] = {const_cast<char *>(program.constData()), nullptr};
    QElapsedTimer timer;
    timer.start();
    pid_t child = 0;
    int status = 0;
    if (posix_spawn(&child, arguments[0], nullptr, nullptr, arguments, environ) != 0
        || waitpid(child, &status, 0) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return -1.0;
    return timer.nsecsElapsed() / 1000.0;
}

} // namespace

/// What loading the library adds to the start of a program: one that does nothing and is linked
/// with it, against one that is linked with the toolkit only.
int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    const QString folder = QCoreApplication::applicationDirPath();
    const QByteArray ours = QFile::encodeName(folder + QStringLiteral("/nocturne-load-nocturne"));
    const QByteArray peer = QFile::encodeName(folder + QStringLiteral("/nocturne-load-widgets"));

    QVector<double> ourTimes;
    QVector<double> peerTimes;
    QVector<double> added;
    for (int i = 0; i < rounds; ++i) {
        const double ourLife = lifeOf(ours);
        const double peerLife = lifeOf(peer);
        if (ourLife < 0.0 || peerLife < 0.0) {
            std::fprintf(stderr, "%s and its peer cannot be run\n", ours.constData());
            return 1;
        }
        ourTimes << ourLife;
        peerTimes << peerLife;
        added << ourLife - peerLife;
    }

    Benchmark benchmark;
    benchmark.add(QStringLiteral("start and end of a process"), Benchmark::median(ourTimes),
                  Benchmark::median(peerTimes));
    benchmark.print("with nocturne", "Qt Widgets");
    const double difference = Benchmark::median(added);
    std::printf("added by the library: %.2f ms, at most %.2f ms allowed\n", difference / 1000.0,
                mostAdded / 1000.0);
    return difference <= mostAdded ? 0 : 1;
}
