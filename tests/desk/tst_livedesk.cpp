#include "testsupport.h"
#include "xserver.h"

#include <nocturne/DarkFusionStyle>
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

#include <QtCore/QFile>
#include <QtCore/QMimeData>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QAbstractButton>

#include <algorithm>
#include <memory>
#include <vector>

// The small real host, driven through its work on a real X server: each gesture is one step of the
// history, and all of them undone give back what there was.
//
// With NOCTURNE_SOAK=<minutes> the work goes on for that long, and memory and the time of every
// event are measured.

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
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * 4;
}

/// How much \a values grow from one to the next, by linear regression.
double slope(const std::vector<double> &values)
{
    const double n = double(values.size());
    double sumX = 0, sumY = 0, sumXY = 0, sumXX = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        sumX += double(i);
        sumY += values[i];
        sumXY += double(i) * values[i];
        sumXX += double(i) * double(i);
    }
    return (n * sumXY - sumX * sumY) / (n * sumXX - sumX * sumX);
}

/// Measures how long each event takes that is delivered from the event loop, in milliseconds.
class TimedApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (m_depth > 0)
            return QApplication::notify(receiver, event);
        ++m_depth;
        QElapsedTimer timer;
        timer.start();
        const bool result = QApplication::notify(receiver, event);
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
        --m_depth;
        return result;
    }

    std::vector<double> times;

private:
    int m_depth = 0;
};

} // namespace

class TestLiveDesk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<DeskWindow>(m_folder.filePath("desk.json"));
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_steps = 0;
    }

    void cleanup()
    {
        m_window.reset();
        QFile::remove(m_folder.filePath("desk.json"));
    }

    void work()
    {
        const DeskState start = m_window->desk()->state();
        for (int i = 0; i < 3 && !QTest::currentTestFailed(); ++i)
            workRound();
        const DeskState end = m_window->desk()->state();
        while (m_window->desk()->history()->canUndo())
            m_window->desk()->history()->undo();
        QVERIFY(m_window->desk()->state() == start);
        while (m_window->desk()->history()->canRedo())
            m_window->desk()->history()->redo();
        QVERIFY(m_window->desk()->state() == end);
    }

    void picture()
    {
        drop({QUrl::fromLocalFile("/clips/bars.mov")});
        const auto pixel = [this](int x) {
            return find<Monitor>("preview")->picture().pixelColor(x, 100);
        };
        QCOMPARE(pixel(100), QColor(Qt::yellow));
        Desk *desk = m_window->desk();
        desk->edit("Position", true, [](DeskState &state) { state.look.x = 80; });
        QCOMPARE(pixel(40), QColor(Qt::black));
        QCOMPARE(pixel(180), QColor(Qt::yellow));
        desk->edit("Grade", true, [](DeskState &state) {
            state.look.x = 0;
            state.look.amount = 100;
            state.look.ramp = {{0.0, Qt::red}, {1.0, Qt::blue}};
        });
        QCOMPARE(pixel(20), QColor(Qt::blue)); // white
        QCOMPARE(pixel(620), QColor(Qt::red)); // black
        desk->edit("Levels", true, [](DeskState &state) {
            state.look.amount = 0;
            state.look.black = 254;
            state.look.white = 255;
        });
        QCOMPARE(pixel(100), QColor(Qt::yellow));
        QCOMPARE(find<Monitor>("preview")->picture().pixelColor(30, 350), QColor(Qt::black));
    }

    void midiControl()
    {
        ControlPanel *controls = m_window->controls();
        controls->takeMidi(controlChange(7, 127));
        expectSteps(0, "a message that nothing is bound to");
        QTest::mouseClick(find<QWidget>("learn"), Qt::LeftButton);
        controls->takeMidi(controlChange(7, 0));
        QCOMPARE(controls->binding().key(), 7);
        find<QWidget>("play")->setFocus();
        find<QWidget>("learn")->clearFocus();
        for (int value : {10, 60, 127})
            controls->takeMidi(controlChange(7, value));
        controls->takeMidi(controlChange(8, 3));
        expectSteps(1, "a fader that is moved");
        QCOMPARE(m_window->desk()->state().look.amount, 100);
        QTest::qWait(600);
        controls->takeMidi(controlChange(7, 0));
        expectSteps(1, "a fader that had rested");
    }

    void settings()
    {
        workRound();
        m_window->controls()->setBinding(controlChange(21, 0));
        m_window->setLanguage("de_DE");
        const DeskState state = m_window->desk()->state();
        m_window->close();
        m_window = std::make_unique<DeskWindow>(m_folder.filePath("desk.json"));
        QVERIFY(m_window->desk()->state() == state);
        QCOMPARE(m_window->controls()->binding().key(), 21);
        QCOMPARE(m_window->desk()->history()->count(), 0);
    }

    void damagedSettings()
    {
        const QString path = m_folder.filePath("desk.json");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{ \"clips\": [ {\"length\": 1e300, \"in\": -7, \"out\": \"x\"}, 3 ], "
                   "\"current\": 99, \"look\": { \"black\": 400, \"ramp\": [[2, \"#ff0000\"]] } }");
        file.close();
        m_window = std::make_unique<DeskWindow>(path);
        const DeskState state = m_window->desk()->state();
        QCOMPARE(state.clips.size(), 2);
        QCOMPARE(state.current, 1);
        QCOMPARE(state.clips.first().out, state.clips.first().length - 1);
        QCOMPARE(state.look.black, 254);
        QCOMPARE(state.look.ramp.size(), 2);

        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("not a desk");
        file.close();
        QTest::ignoreMessage(
            QtWarningMsg, QRegularExpression(QStringLiteral("^cannot read the settings, kept as .*"
                                                            "desk\\.json\\.unreadable: ")));
        m_window = std::make_unique<DeskWindow>(path);
        QVERIFY(!QFile::exists(path));
        QVERIFY(QFile::exists(path + ".unreadable"));
    }

    void soak()
    {
        const double minutes = qEnvironmentVariable("NOCTURNE_SOAK").toDouble();
        if (minutes <= 0)
            QSKIP("runs with NOCTURNE_SOAK=<minutes>");
        const DeskState start = m_window->desk()->state();
        QElapsedTimer clock;
        clock.start();
        std::vector<double> memory;
        int rounds = 0;
        while (static_cast<double>(clock.elapsed()) < minutes * 60000.0) {
            workRound();
            QVERIFY(!QTest::currentTestFailed());
            if (++rounds % 10 == 0) {
                while (m_window->desk()->history()->canUndo())
                    m_window->desk()->history()->undo();
                QVERIFY(m_window->desk()->state() == start);
                m_window->desk()->history()->clear();
                m_steps = 0;
                memory.push_back(residentMemory());
            }
        }
        memory.erase(memory.begin(), memory.begin() + int(memory.size() / 5)); // warming up
        std::vector<double> times = static_cast<TimedApplication *>(qApp)->times;
        std::sort(times.begin(), times.end());
        std::printf(
            "%d rounds, %zu events, memory %+.2f KiB a sample over %zu samples at %.0f KiB, "
            "99.9 %% of events within %.2f ms\n",
            rounds, times.size(), slope(memory), memory.size(), memory.back(),
            times.at(times.size() * 999 / 1000));
    }

private:
    template <typename Widget>
    Widget *find(const char *name)
    {
        return m_window->findChild<Widget *>(name);
    }

    void drop(const QList<QUrl> &urls)
    {
        QMimeData data;
        data.setUrls(urls);
        QWidget *viewport = find<ListWidget>("bin")->viewport();
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &enter);
        QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &drop);
    }

    /// With the left button; like a real one, the pointer's events go to whoever grabs it.
    void drag(QWidget *widget, const QPoint &from, const QPoint &to, int moves = 5)
    {
        QCursor::setPos(widget->mapToGlobal(from));
        QCoreApplication::processEvents();
        QTest::mousePress(widget, Qt::LeftButton, {}, from);
        QWidget *receiver = QWidget::mouseGrabber() ? QWidget::mouseGrabber() : widget;
        for (int i = 1; i <= moves; ++i) {
            const QPoint place = widget->mapTo(m_window.get(), from + (to - from) * i / moves);
            QMouseEvent move(QEvent::MouseMove, receiver->mapFrom(m_window.get(), place),
                             m_window->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(receiver, &move);
        }
        QTest::mouseRelease(receiver, Qt::LeftButton, {},
                            receiver->mapFrom(m_window.get(), widget->mapTo(m_window.get(), to)));
        QCoreApplication::processEvents();
    }

    void expectSteps(int steps, const char *what)
    {
        m_steps += steps;
        const int seen = m_window->desk()->history()->count();
        QVERIFY2(seen == m_steps, qPrintable(QString("%1: %2 steps").arg(what).arg(seen)));
    }

    /// One stretch of work with every kind of gesture.
    void workRound()
    {
        Desk *desk = m_window->desk();
        const auto state = [desk] { return desk->state(); };
        drop({QUrl::fromLocalFile("/clips/opening.mov"), QUrl::fromLocalFile("/clips/stage.mov")});
        expectSteps(1, "a drop of two files");
        if (QTest::currentTestFailed())
            return;

        auto *trim = find<RangeSlider>("trim");
        const int middle = trim->height() / 2;
        const Clip before = *state().currentClip();
        trim->setMainPosition(before.length / 2); // out of the way of the others
        QCoreApplication::processEvents();
        const int end = 7 + before.out * (trim->width() - 14) / (before.length - 1);
        drag(trim, {end, middle}, {end - 12, middle});
        expectSteps(1, "a trim");
        QVERIFY(state().currentClip()->out < before.out);

        auto *levels = find<SpanSlider>("levels");
        const int levelsMiddle = levels->height() / 2;
        const int start = state().look.black * (levels->width() - 14) / 255 + 7;
        drag(levels, {start, levelsMiddle}, {start + 8, levelsMiddle});
        expectSteps(1, "a drag of the black level");

        auto *amount = find<Slider>("amount");
        const int x = state().look.amount > 50 ? 10 : amount->width() - 10;
        drag(amount, {amount->width() / 2, amount->height() / 2}, {x, amount->height() / 2});
        expectSteps(1, "a drag of the amount");

        auto *ramp = find<GradientTool>("ramp");
        const int stops = state().look.ramp.size();
        drag(ramp, {ramp->width() / 2, 15}, {ramp->width() / 3, 15});
        expectSteps(1, "a new stop that is dragged on");
        QCOMPARE(state().look.ramp.size(), stops + 1);

        auto *position = find<SpinBox>("x");
        const int left = state().look.x;
        auto *field = position->findChild<QWidget *>("qt_spinbox_lineedit");
        drag(field, {20, 8}, {32, 8}, 12);
        expectSteps(1, "a drag of the position");
        QVERIFY(state().look.x > left);

        QTest::mouseClick(find<QAbstractButton>("cut"), Qt::LeftButton);
        QVERIFY(m_window->player()->isOnAir());
        QTest::mouseClick(find<QAbstractButton>("play"), Qt::LeftButton);
        const int playHead = m_window->player()->playHead();
        QTRY_VERIFY(m_window->player()->playHead() != playHead);
        QTest::mouseClick(find<QAbstractButton>("play"), Qt::LeftButton);
        QTest::mouseClick(find<QAbstractButton>("render"), Qt::LeftButton);
        QTest::mouseClick(find<QAbstractButton>("render"), Qt::LeftButton);
        m_window->setLanguage(m_steps % 2 ? "de_DE" : QString());
        QCoreApplication::processEvents();
        expectSteps(0, "playing, rendering and another language");
    }

    QTemporaryDir m_folder;
    std::unique_ptr<DeskWindow> m_window;
    int m_steps = 0;
};

int main(int argc, char *argv[])
{
    XServer server;
    if (server.start()) {
        qputenv("DISPLAY", server.display().toLocal8Bit());
        qputenv("QT_QPA_PLATFORM", "xcb");
    } else {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QT_FONT_DPI", "96");
    TimedApplication app(argc, argv);
    DarkUX theme;
    app.setStyle(theme.style());
    app.setPalette(theme.palette());
    TestLiveDesk test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_livedesk.moc"
