#include "gestures.h"

#include <nocturne/Slider>

namespace {

/// A slider of 0 to 99.
class TestSlider : public TestSupport::DrivenSlider<Slider>
{
public:
    explicit TestSlider(Qt::Orientation orientation = Qt::Horizontal)
        : DrivenSlider(orientation)
    {
        connect(this, &Slider::valueChanged, this, note("value"));
        connect(this, &Slider::mousePressed, this, note("pressed"));
        connect(this, &Slider::mouseDoubleClick, this, note("double"));
        connect(this, &QSlider::sliderReleased, this, note("released"));
    }

    QPoint grip() const override { return {}; } // The handle jumps under the pointer.
    bool isHeld() const override { return isMousePressed() || isSliderDown(); }

    void perform(const QString &verb, int number) override
    {
        if (verb == "set")
            setValue(number);
        else if (verb == "follow")
            positionChange(number);
        else if (verb == "buttons")
            setJumpButtons(Qt::MouseButtons(number));
        else if (verb == "nojump")
            setEnableDirectJump(false);
        else if (verb == "key")
            QTest::keyPress(this, Qt::Key_Shift);
        else if (verb == "is")
            note("is")(value());
        else if (verb == "keyed")
            note("keyed")(isKeyPressed());
    }
};

} // namespace

class TestSliderClass : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create("fusion")); }
    void cleanup() { QVERIFY(TestSupport::nothingIsHeld()); }

    void gestures_data()
    {
        TestSupport::addScripts({
            {"press 60, held, move 75, release 75, held, set 20",
             "pressed, value 60 1, held 1, value 75 0, released, held 0"},
            // A click on the value leaves the first change to the drag.
            {"set 45, press 45, move 50, move 55, release 55",
             "pressed, value 50 1, value 55 0, released"},
            // Two buttons are one gesture, whichever comes up first.
            {"press 30, right 40, move 50, rightup 50, move 60, release 60, held",
             "pressed, value 30 1, pressed, value 40 0, ignored, value 50 0, value 60 0, released, "
             "held 0"},
            {"press 30, right 30, release 30, held, move 50, rightup 50, held",
             "pressed, value 30 1, pressed, ignored, held 1, value 50 0, released, held 0"},
            {"right 40, set 50, rightup 40, set 60, press 30, release 30",
             "pressed, value 40 1, ignored, value 50 0, pressed, value 30 1, released"},
            // Buttons that were not asked for are left alone.
            {"buttons 1, right 40, held, set 20, rightup 40, is", "ignored, held 0, is 20"},
            {"buttons 1, press 30, right 40, move 50, release 50, held, move 60, is",
             "pressed, value 30 1, ignored, value 50 0, released, held 0, ignored, is 50"},
            // The host moves the slider without an echo; the first change is still to come.
            {"set 50, press 50, follow 40, move 60, follow 20, move 70, release 70",
             "pressed, value 60 1, value 70 0, released"},
            {"disable, press 40, held, set 20, release 40", "held 0"},
            {"double 40, is", "double, is 0"},
            {"nojump, press 80, release 80, is", "pressed, value 10 1, is 10"},
            {"show, key, keyed, hide, keyed", "keyed 1, keyed 0"},
            {"show, key, disable, keyed", "keyed 0"},
            {"show, key, modal, keyed", "keyed 0"},
            // The menu of a right click takes its release.
            {"show, right 40, popup, held, restore, set 70, held",
             "pressed, value 40 1, ignored, held 0, held 0"},
            // The release went elsewhere, and nothing was heard until the next press.
            {"press 40, lost, press 60, release 60",
             "pressed, value 40 1, released, pressed, value 60 1, released"},
        });
        TestSupport::addInterruptions("show, press 30, move 40",
                                      ", set 80, move 50, move 60, is, press 20, release 20",
                                      "pressed, value 30 1, value 40 0, released, held 0, is 80, "
                                      "pressed, value 20 1, released");
    }

    void gestures()
    {
        QFETCH(QString, script);
        QFETCH(QString, log);
        for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            TestSlider slider;
            slider.setLayoutDirection(direction);
            QCOMPARE(slider.run(script), log);
        }
    }

    void verticalSliderJumpsAlongX()
    {
        TestSlider slider(Qt::Vertical);
        slider.send(QEvent::MouseButtonPress, QPoint(30, 20), Qt::LeftButton);
        const int length = slider.handleAt(0).width();
        const QRect groove = slider.rectOf(QStyle::SC_SliderGroove);
        const int jump = QStyle::sliderValueFromPosition(0, 99, 30 - length / 2 - groove.x(),
                                                         groove.width() - length, true);
        QVERIFY(slider.takeLog().startsWith(QString("pressed, value %1 1").arg(jump)));
    }

    void hoverReportsEachValueOnce()
    {
        TestSlider slider;
        connect(&slider, &Slider::sliderMoveChanged, &slider, slider.note("hover"));
        QVERIFY(slider.hasMouseTracking());
        QStringList expected;
        int last = 0;
        const auto hoverAlong = [&slider](auto visit) {
            for (int x = 0; x < slider.width(); ++x) {
                slider.send(QEvent::MouseMove, QPoint(x, 15), Qt::NoButton);
                visit(x);
            }
        };
        hoverAlong([&](int x) {
            const int value = QStyle::sliderValueFromPosition(0, 99, x, slider.width(), false);
            if (std::exchange(last, value) != value)
                expected << QString("hover %1 15 %2").arg(x).arg(value);
        });
        QCOMPARE(slider.takeLog(), expected.join(", "));
        slider.setEnableDirectJump(false);
        hoverAlong([](int) {});
        QCOMPARE(slider.run("is"), QString("is 0"));
    }

    void callsKeysAndWheel()
    {
        TestSlider slider;
        QSignalSpy plain(&slider, &QSlider::valueChanged);
        QCOMPARE(slider.run("follow 30, is"), QString("is 30"));
        QCOMPARE(plain.count(), 0);
        QTest::keyPress(&slider, Qt::Key_Right);
        QVERIFY(slider.isKeyPressed());
        QTest::keyRelease(&slider, Qt::Key_Right);
        QVERIFY(!slider.isKeyPressed() && !TestSupport::takesWheel(&slider));
        QCOMPARE(plain.count(), 1);
        QCOMPARE(slider.run("is"), QString("is 31"));
    }

    void receiversThatTakeTheSliderAway()
    {
        for (bool early : {true, false}) {
            TestSlider slider;
            const auto open = [&slider] { slider.run("popup"); };
            const auto opening = early ? connect(&slider, &Slider::mousePressed, &slider, open)
                                       : connect(&slider, &QSlider::sliderPressed, &slider, open);
            slider.run("show, press 60, lost");
            disconnect(opening);
            QVERIFY(!slider.isHeld());
            QCOMPARE(slider.value(), early ? 0 : 60);
            slider.run("restore, move 80");
            QVERIFY(slider.value() != 80);
        }
        auto doomed = std::make_unique<TestSlider>();
        doomed->run("show, press 30, move 50");
        doomed.reset();
        QCoreApplication::processEvents();
    }
};

NOCTURNE_TEST_MAIN(TestSliderClass)

#include "tst_slider.moc"
