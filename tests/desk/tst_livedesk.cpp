#include "gestures.h"
#include "testsupport.h"
#include "xserver.h"

#include <nocturne/ColorBar>
#include <nocturne/DarkUX>
#include <nocturne/GradientTool>
#include <nocturne/ListWidget>
#include <nocturne/RangeSlider>
#include <nocturne/Slider>
#include <nocturne/SpanSlider>
#include <nocturne/SpinBox>

#include <deskwindow.h>
#include <panels.h>
#include <player.h>

#include <QtCore/QMimeData>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QAbstractButton>

#include <algorithm>
#include <memory>
#include <numeric>
#include <utility>
#include <vector>

// The small real host, driven through its work on a real X server: each gesture is one step of the
// history, and all of them undone give back what there was.
//
// With NOCTURNE_SOAK=<minutes> the work goes on for that long, and memory and the time of every
// event are measured. More than five need QTEST_FUNCTION_TIMEOUT=<milliseconds> as well.

namespace {

QMidiMessage controlChange(int key, int value)
{
    QMidiMessage message;
    message.setType(QMidiMessage::ControlChange);
    message.setChannel(1);
    message.setKey(key);
    message.setValue(value);
    return message;
}

/// Resident memory of this process in KiB.
double residentMemory()
{
    QFile file("/proc/self/statm");
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toDouble() * 4 : 0;
}

/// How much \a values grow from one to the next, by linear regression.
double slope(const std::vector<double> &values)
{
    double products = 0, squares = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double distance = double(i) - double(values.size() - 1) / 2;
        products += distance * values[i];
        squares += distance * distance;
    }
    return products / squares;
}

/// Counts the events that are delivered from the event loop by the hundredths of a millisecond they
/// took, so that the record itself does not grow.
class TimedApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        const bool isNested = std::exchange(m_nested, true);
        QElapsedTimer timer;
        timer.start();
        const bool result = QApplication::notify(receiver, event);
        if (!isNested)
            ++m_counts[size_t(qMin<qint64>(timer.nsecsElapsed() / 10000, longest))];
        m_nested = isNested;
        return result;
    }

    /// The time within which all but a thousandth of the events were done, in ms.
    double slowest() const
    {
        qint64 left = std::accumulate(m_counts.begin(), m_counts.end(), qint64(0)) / 1000;
        size_t at = m_counts.size();
        while (at > 0 && left >= 0)
            left -= m_counts[--at];
        return double(at) / 100;
    }

private:
    static constexpr qint64 longest = 99999;
    std::vector<qint64> m_counts = std::vector<qint64>(longest + 1);
    bool m_nested = false;
};

} // namespace

class TestLiveDesk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        openDesk();
        QVERIFY(TestSupport::showActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        QFile::remove(m_settings);
    }

    /// Undone and done again, and kept from one start to the next.
    void work()
    {
        const DeskState start = state();
        for (int i = 0; i < 3 && !QTest::currentTestFailed(); ++i)
            workRound();
        auto *tally = m_window->findChild<ColorBar *>();
        const QImage still = tally->grab().toImage();
        click("auto");
        int steady = 0; // looks in a row, for longer than one half of its flicker
        QTRY_VERIFY((steady = tally->grab().toImage() == still ? steady + 1 : 0) > 20);
        const DeskState end = state();
        history()->setIndex(0);
        QVERIFY(state() == start);
        history()->setIndex(history()->count());
        QVERIFY(state() == end);
        m_window->controls()->setBinding(controlChange(21, 0));
        m_window->setLanguage("de_DE");
        m_window->close();
        openDesk();
        QVERIFY(state() == end);
        QCOMPARE(m_window->controls()->binding().key(), 21);
        QCOMPARE(history()->count(), 0);
    }

    void midiControl()
    {
        ControlPanel *controls = m_window->controls();
        controls->takeMidi(controlChange(7, 127));
        expectStep("a message that nothing is bound to", 0);
        find<QWidget>("learn")->setFocus();
        controls->takeMidi(controlChange(7, 0));
        QCOMPARE(controls->binding().key(), 7);
        find<QWidget>("learn")->clearFocus();
        for (int value : {10, 60, 127})
            controls->takeMidi(controlChange(7, value));
        controls->takeMidi(controlChange(8, 3));
        expectStep("a fader that is moved");
        QCOMPARE(state().look.amount, 100);
        QTest::qWait(600);
        controls->takeMidi(controlChange(7, 0));
        expectStep("a fader that had rested");
    }

    void damagedSettings()
    {
        reopen("{\"clips\": [{\"length\": 1e300, \"in\": -7, \"out\": \"x\"}, 3], \"current\": 99, "
               "\"look\": {\"black\": 400, \"ramp\": [[2, \"#ff0000\"]]}}");
        QCOMPARE(state().clips.size(), 2);
        QCOMPARE(state().current, 1);
        QCOMPARE(state().clips.first().out, state().clips.first().length - 1);
        QCOMPARE(state().look.black, 254);
        QCOMPARE(state().look.ramp.size(), 2);
        QTest::ignoreMessage(
            QtWarningMsg, QRegularExpression("^cannot read the settings, kept as .*unreadable: "));
        reopen("not a desk");
        QVERIFY(!QFile::exists(m_settings) && QFile::exists(m_settings + ".unreadable"));
    }

    void soak()
    {
        const double minutes = qEnvironmentVariable("NOCTURNE_SOAK").toDouble();
        if (minutes <= 0)
            QSKIP("runs with NOCTURNE_SOAK=<minutes>");
        // What the toolkit keeps of pictures is bounded, and full before the measuring begins.
        QPixmapCache::setCacheLimit(2048);
        const DeskState start = state();
        QElapsedTimer clock;
        clock.start();
        std::vector<double> memory;
        int rounds = 0;
        while (static_cast<double>(clock.elapsed()) < minutes * 60000.0) {
            workRound();
            QVERIFY(!QTest::currentTestFailed());
            if (++rounds % 10 == 0) {
                while (history()->canUndo())
                    history()->undo();
                QVERIFY(state() == start);
                history()->clear();
                m_steps = 0;
                memory.push_back(residentMemory());
            }
        }
        memory.erase(memory.begin(), memory.begin() + int(memory.size() / 5)); // warming up
        const auto *application = static_cast<TimedApplication *>(qApp);
        std::printf("%d rounds, memory %+.2f KiB a sample over %zu samples at %.0f KiB, "
                    "99.9 %% of events within %.2f ms\n",
                    rounds, slope(memory), memory.size(), memory.back(), application->slowest());
    }

private:
    void openDesk()
    {
        m_window = std::make_unique<DeskWindow>(m_settings);
        m_steps = 0;
    }

    void reopen(const QByteArray &settings)
    {
        QFile file(m_settings);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(settings) == settings.size());
        file.close();
        openDesk();
    }

    const DeskState &state() const { return m_window->desk()->state(); }
    QUndoStack *history() const { return m_window->desk()->history(); }

    template <typename Widget>
    Widget *find(const char *name) const
    {
        return m_window->findChild<Widget *>(name);
    }

    void drop(const QStringList &files)
    {
        QList<QUrl> urls;
        for (const QString &file : files)
            urls << QUrl::fromLocalFile(file);
        QMimeData data;
        data.setUrls(urls);
        TestSupport::drop(find<ListWidget>("bin")->viewport(), data, {5, 5});
        expectStep("a drop of files");
    }

    /// From one x to another, with the left button and expecting one step; like a real one, the
    /// pointer's events go to whoever grabs it.
    void drag(QWidget *widget, int from, int to, int moves = 5)
    {
        const auto place = [=](int x) { return QPoint(x, widget->height() * 2 / 5); };
        QCursor::setPos(widget->mapToGlobal(place(from)));
        QCoreApplication::processEvents();
        QTest::mousePress(widget, Qt::LeftButton, {}, place(from));
        QWidget *receiver = QWidget::mouseGrabber() ? QWidget::mouseGrabber() : widget;
        const auto seen = [=](int x) {
            return receiver->mapFromGlobal(widget->mapToGlobal(place(x)));
        };
        for (int i = 1; i <= moves; ++i)
            TestSupport::sendDrag(receiver, seen(from + (to - from) * i / moves));
        QTest::mouseRelease(receiver, Qt::LeftButton, {}, seen(to));
        QCoreApplication::processEvents();
        expectStep(qPrintable("a drag of " + widget->objectName()));
    }

    void click(const char *button)
    {
        QTest::mouseClick(find<QAbstractButton>(button), Qt::LeftButton);
    }

    void expectStep(const char *what, int steps = 1)
    {
        m_steps += steps;
        const int seen = history()->count();
        QVERIFY2(seen == m_steps, qPrintable(QString("%1: %2 steps").arg(what).arg(seen)));
    }

    /// One stretch of work with every kind of gesture.
    void workRound()
    {
        drop({"/clips/opening.mov", "/clips/stage.mov"});
        if (QTest::currentTestFailed())
            return;

        auto *trim = find<RangeSlider>("trim");
        const Clip before = *state().currentClip();
        trim->setMainPosition(before.length / 2); // out of the way of the others
        QCoreApplication::processEvents();
        const int end = 7 + before.out * (trim->width() - 14) / (before.length - 1);
        drag(trim, end, end - 12);
        QVERIFY(state().currentClip()->out < before.out);

        auto *levels = find<SpanSlider>("levels");
        const int start = state().look.black * (levels->width() - 14) / 255 + 7;
        drag(levels, start, start + 8);

        auto *amount = find<Slider>("amount");
        drag(amount, amount->width() / 2, state().look.amount > 50 ? 10 : amount->width() - 10);
        QTest::keyClick(amount, state().look.amount > 50 ? Qt::Key_Left : Qt::Key_Right);
        expectStep("a key on the amount");
        QCOMPARE(state().look.amount, amount->value());

        auto *ramp = find<GradientTool>("ramp");
        const int stops = state().look.ramp.size();
        drag(ramp, ramp->width() / 2, ramp->width() / 3);
        QCOMPARE(state().look.ramp.size(), stops + 1);

        const int left = state().look.x;
        drag(find<SpinBox>("x")->findChild<QWidget *>("qt_spinbox_lineedit"), 20, 32, 12);
        QVERIFY(state().look.x > left);

        click("cut");
        QVERIFY(m_window->player()->isOnAir());
        click("play");
        const int playHead = m_window->player()->playHead();
        QTRY_VERIFY(m_window->player()->playHead() != playHead);
        click("play");
        click("render");
        click("render");
        m_window->setLanguage(m_steps % 2 ? "de_DE" : QString());
        QCoreApplication::processEvents();
        expectStep("playing, rendering and another language", 0);
    }

    QTemporaryDir m_folder;
    const QString m_settings = m_folder.filePath("desk.json");
    std::unique_ptr<DeskWindow> m_window;
    int m_steps = 0;
};

int main(int argc, char *argv[])
{
    XServer server;
    qputenv("QT_QPA_PLATFORM", server.start() ? "xcb" : "offscreen");
    qputenv("DISPLAY", server.display().toLocal8Bit());
    qputenv("QT_FONT_DPI", "96");
    TimedApplication app(argc, argv);
    DarkUX theme;
    app.setStyle(theme.style());
    app.setPalette(theme.palette());
    TestLiveDesk test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_livedesk.moc"
