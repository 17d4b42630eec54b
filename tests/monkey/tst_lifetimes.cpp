#include "subjects.h"
#include "testsupport.h"

#include <nocturne-headers.h>

#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QStyleFactory>

#include <malloc.h>
#include <memory>

namespace {

/// Runs a program to its end; what it had to say when it failed or said anything.
QString complaint(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(250000))
        return QStringLiteral("does not end");
    QString said = QString::fromLocal8Bit(process.readAll());
    // Of the platform without a screen, and of ports without a MIDI service.
    said.remove(QRegularExpression("(^|\n)((This plugin does not|QStandardPaths|There is no MIDI|"
                                   "Midi(In|Out)(Alsa|Jack))[^\n]*)?(?=\n|$)"));
    const bool failed = process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
    return failed ? QStringLiteral("exit code %1: %2").arg(process.exitCode()).arg(said) : said;
}

struct Everything : QWidget
{
    Everything()
    {
        auto *layout = new QFormLayout(this);
        for (const Subject &subject : subjects())
            layout->addRow(subject.create());
    }
};

/// What is alive when the application ends: on the stack after it, and owned by nobody.
int quitInTheMiddle(int argc, char *argv[])
{
    QApplication app(argc, argv);
    auto *theme = new DarkUX;
    QApplication::setStyle(theme->style());
    Everything window;
    window.show();

    QMidiIn input;
    QMidiOut output;
    auto *dialog = new QMessageBoxEx(&window);
    dialog->open();
    auto *menu = new Menu(&window);
    menu->addAction(QStringLiteral("Entry"));
    QTimer::singleShot(0, &app, [&] {
        menu->popup({10, 10});
        QBalloonTip::showBalloon(QSystemTrayIcon::Information, QStringLiteral("Title"),
                                 QStringLiteral("Text"), nullptr, {20, 20}, 60000);
        auto *slider = window.findChild<Slider *>();
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(slider, &press);
        QTimer::singleShot(50, &app, &QCoreApplication::quit);
    });
    return QApplication::exec();
}

} // namespace

class TestLifetimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadedAThousandTimes()
    {
        QCOMPARE(complaint(QStringLiteral(NOCTURNE_BUILD_DIR) + "/bin/nocturne-loadprobe",
                           {NOCTURNE_LIBRARY, NOCTURNE_STYLE_PLUGIN}),
                 QString());
    }

    void quitsWithEverythingAlive()
    {
        QCOMPARE(complaint(QCoreApplication::applicationFilePath(), {"quit"}), QString());
    }

    void switchedAThousandTimes()
    {
        DarkUX theme;
        const std::unique_ptr<QStyle> unused(theme.style());
        Everything window;
        window.resize(800, 1600);
        window.show();
        std::size_t settled = 0;
        for (int round = 1; round <= 1000; ++round) {
            QApplication::setStyle(round % 2 ? new DarkFusionStyle
                                             : QStyleFactory::create(QStringLiteral("fusion")));
            QCoreApplication::sendPostedEvents();
            if (round % 50 < 2)
                QCoreApplication::processEvents(); // is painted as well
            if (round == 600)
                settled = mallinfo2().uordblks;
        }
        const double grown = double(mallinfo2().uordblks) - double(settled);
        QVERIFY2(grown < 128 * 1024, qPrintable(QString("%1 bytes").arg(grown)));
    }
};

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    if (argc == 2 && qstrcmp(argv[1], "quit") == 0)
        return quitInTheMiddle(argc, argv);
    QApplication app(argc, argv);
    TestLifetimes test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_lifetimes.moc"
