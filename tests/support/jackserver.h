#ifndef NOCTURNE_JACKSERVER_H
#define NOCTURNE_JACKSERVER_H

#include "qtversion.h"

#include <QtCore/QStandardPaths>

/// A JACK server of the program's own, under a name of its own and without a sound card. This
/// process uses it as its default server until the object ends.
class JackServer
{
public:
    /// Bytes of /dev/shm that a server takes, whatever its ports.
    static constexpr qint64 sharedMemory = qint64(42) * 1024 * 1024;

    ~JackServer() { stop(); }

    static bool isInstalled()
    {
        return !QStandardPaths::findExecutable(QStringLiteral("jackd")).isEmpty();
    }

    /// Starts the server; false when it is not installed or does not come up.
    bool start()
    {
        qputenv("JACK_NO_START_SERVER", "1");
        qputenv("JACK_NO_AUDIO_RESERVATION", "1");
        // JACK has room for eight servers and takes the place of one that crashed only for a server
        // of the same name, so the names recur. One that runs for another program is passed over.
        for (int number = 1; number <= 4; ++number) {
            if (start(QStringLiteral("nocturne-test-%1").arg(number)))
                return true;
        }
        return false;
    }

    void stop()
    {
        m_process.terminate();
        if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(5000))
            kill();
    }

    /// Ends the server as a crash would.
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished(5000);
    }

private:
    bool start(const QString &name)
    {
        qputenv("JACK_DEFAULT_SERVER", name.toLatin1());
        // Few ports, for machines with little shared memory. Synchronous and with a long timeout,
        // because a client that is late in a cycle would lose the messages of that cycle.
        m_process.start(QStringLiteral("jackd"),
                        QStringLiteral("--no-realtime --no-mlock --sync --timeout 5000 "
                                       "--port-max 64 --name %1 -d dummy --period 2048")
                            .arg(name)
                            .split(QLatin1Char(' ')));
        // A server that finds its name taken ends at once; whoever answers then is another's.
        if (!m_process.waitForStarted(5000) || m_process.waitForFinished(500))
            return false;
        QProcess wait; // which prints
        wait.start(QStringLiteral("jack_wait"),
                   {QStringLiteral("--server"), name, QStringLiteral("--wait"),
                    QStringLiteral("--timeout"), QStringLiteral("15")});
        if (wait.waitForFinished(20000) && wait.exitCode() == 0)
            return true;
        stop();
        return false;
    }

    QtVersion::MortalProcess m_process;
};

#endif
