#ifndef NOCTURNE_XSERVER_H
#define NOCTURNE_XSERVER_H

#include <QtCore/QProcess>

/// A virtual X server of the test's own, on a display number that is free, for programs that a
/// real pointer is driven over. Ends with the object.
class XServer
{
public:
    ~XServer()
    {
        m_process.terminate();
        if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(5000))
            m_process.kill();
        m_process.waitForFinished(1000);
    }

    /// Starts the server; false when it is not installed or does not come up.
    bool start()
    {
        const QString arguments = "-displayfd 1 -screen 0 1600x1200x24 -nolisten tcp -noreset";
        m_process.start("Xvfb", arguments.split(' '));
        for (int i = 0; i < 100 && !m_process.canReadLine(); ++i)
            m_process.waitForReadyRead(100);
        m_display = ':' + QString(m_process.readLine().trimmed());
        return m_display != ":";
    }

    QString display() const { return m_display; }

private:
    QProcess m_process;
    QString m_display;
};

#endif
