#ifndef NOCTURNE_XSERVER_H
#define NOCTURNE_XSERVER_H

#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtTest/QtTest>

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
    bool start(const QString &screen = QStringLiteral("1600x1200x24"))
    {
        const QString program = QStandardPaths::findExecutable(QStringLiteral("Xvfb"));
        if (program.isEmpty())
            return false;
        m_process.start(program, {QStringLiteral("-displayfd"), QStringLiteral("1"),
                                  QStringLiteral("-screen"), QStringLiteral("0"), screen,
                                  QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                                  QStringLiteral("-noreset")});
        for (int i = 0; i < 100 && !m_process.canReadLine(); ++i)
            m_process.waitForReadyRead(100);
        const QByteArray number = m_process.readLine().trimmed();
        if (number.isEmpty())
            return false;
        m_display = QLatin1Char(':') + QString::fromLatin1(number);
        return true;
    }

    QString display() const { return m_display; }

    /// The environment of a client: its display, the X11 platform, 96 DPI.
    QProcessEnvironment environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), m_display);
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        environment.insert(QStringLiteral("QT_FONT_DPI"), QStringLiteral("96"));
        return environment;
    }

    /// Runs xdotool with \a arguments and returns what it prints, trimmed.
    QString xdotool(const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(QStringLiteral("xdotool"), arguments);
        process.waitForFinished(20000);
        return QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
    }

private:
    QProcess m_process;
    QString m_display;
};

#endif
