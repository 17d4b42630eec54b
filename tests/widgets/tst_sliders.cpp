#include "gestures.h"
#include "probes.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/RangeSlider>
#include <nocturne/Slider>
#include <nocturne/SpanSlider>

#include <QtGui/QHelpEvent>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QToolTip>

using Ints = QVector<int>;

namespace {

/// Of Fusion's measures, with a drag area of 20 units around a slider, nothing painted for the
/// groove and a blue handle.
class SliderStyle : public QProxyStyle
{
public:
    SliderStyle()
        : QProxyStyle("fusion")
    {}
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        return metric == PM_MaximumDragDistance ? 20
                                                : QProxyStyle::pixelMetric(metric, option, widget);
    }
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override
    {
        if (option->subControls & SC_SliderHandle)
            painter->fillRect(subControlRect(control, option, SC_SliderHandle, widget), Qt::blue);
    }
};

/// How a slider can lie.
struct Way
{
    Qt::Orientation orientation;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    bool inverted = false;
};
constexpr Way left{Qt::Horizontal};
constexpr Way right{Qt::Horizontal, Qt::RightToLeft};
constexpr Way upright{Qt::Vertical};

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

/// A span slider that starts at 20 and 60.
class TestSpan : public TestSupport::DrivenSlider<SpanSlider>
{
public:
    explicit TestSpan(Qt::Orientation orientation = Qt::Horizontal,
                      HandleMovementMode mode = FreeMovement)
        : DrivenSlider(orientation)
    {
        setHandleMovementMode(mode);
        setSpan(20, 60);
        connect(this, &SpanSlider::lowerValueChanged, this, note("lower"));
        connect(this, &SpanSlider::upperValueChanged, this, note("upper"));
        connect(this, &SpanSlider::lowerPositionChanged, this, note("lowerpos"));
        connect(this, &SpanSlider::upperPositionChanged, this, note("upperpos"));
        connect(this, &SpanSlider::spanChanged, this, note("span"));
    }

    void perform(const QString &verb, int number) override
    {
        if (verb == "tracking")
            setTracking(number);
        else if (verb == "one") // value, nothing to drag
            setRange(number, number);
        else if (verb == "wheel")
            note("wheel")(TestSupport::takesWheel(this));
    }

    Ints span() const { return {lowerValue(), upperValue()}; }
};

/// A range slider of 0 to 100 that starts at 20, 80 and 50.
class TestRange : public TestSupport::DrivenSlider<RangeSlider>
{
public:
    explicit TestRange(Qt::Orientation orientation = Qt::Horizontal, bool range = true)
        : DrivenSlider(orientation)
    {
        setRange(0, 100);
        setEnableRange(range);
        setValues(20, 80, 50);
        connect(this, &RangeSlider::minimumValueChanged, this, note("min"));
        connect(this, &RangeSlider::maximumValueChanged, this, note("max"));
        connect(this, &RangeSlider::mainValueChanged, this, note("main"));
        connect(this, &RangeSlider::minimumPositionChanged, this, note("minpos"));
        connect(this, &RangeSlider::maximumPositionChanged, this, note("maxpos"));
        connect(this, &RangeSlider::mainPositionChanged, this, note("mainpos"));
        connect(this, &RangeSlider::mousePressed, this, note("pressed"));
        connect(this, &RangeSlider::mouseReleased, this, note("released"));
        connect(this, &RangeSlider::valuesChanged, this, note("values"));
        connect(this, &RangeSlider::positionsChanged, this, note("positions"));
        connect(this, &RangeSlider::sliderMoveChanged, this, note("hover"));
    }

    bool isHeld() const override { return isMousePressed() || isSliderDown() || handles(); }
    /// Which of them are held, as bits.
    int handles() const
    {
        return isMinimumSliderDown() + 2 * isMaximumSliderDown() + 4 * isMainSliderDown();
    }

    void perform(const QString &verb, int number) override
    {
        if (verb == "tracking")
            setTracking(number);
        else if (verb == "symmetric")
            setSymmetricMoves(number);
        else if (verb == "range")
            setEnableRange(number);
        else if (verb == "one") // value, nothing to drag
            setRange(number, number);
        else if (verb == "all") // handles on one value
            setValues(number, number, number);
        else if (verb == "handles")
            note("holds")(handles());
        else if (verb == "key")
            QTest::keyPress(this, Qt::Key_Right);
        else if (verb == "keyed")
            note("keyed")(isKeyPressed());
    }

    Ints values() const { return {minimumValue(), maximumValue(), mainValue()}; }
    Ints positions() const { return {minimumPosition(), maximumPosition(), mainPosition()}; }
};

/// What the slider of that class notes, in each of the ways.
template <typename Slider>
QString noted(const QString &script, const QVector<Way> &ways)
{
    QString log;
    for (const Way &way : ways) {
        SliderStyle style;
        Slider slider(way.orientation);
        slider.setStyle(&style);
        slider.setLayoutDirection(way.direction);
        slider.setInvertedAppearance(way.inverted);
        const QString last = std::exchange(log, slider.run(script));
        if (way.orientation != ways[0].orientation || &way != &ways[0])
            log = log == last ? log : "not in each way: " + log;
    }
    return log;
}

} // namespace

class TestSliders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create("fusion")); }
    void cleanup() { QVERIFY(TestSupport::nothingIsHeld()); }

    void gestures_data()
    {
        TestSupport::addScripts({
            {"Slider: press 60, held, move 75, release 75, held, set 20",
             "pressed, value 60 1, held 1, value 75 0, released, held 0"},
            // A click on the value leaves the first change to the drag.
            {"Slider: set 45, press 45, move 50, move 55, release 55",
             "pressed, value 50 1, value 55 0, released"},
            // Two buttons are one gesture, whichever comes up first.
            {"Slider: press 30, right 40, move 50, rightup 50, move 60, release 60, held",
             "pressed, value 30 1, pressed, value 40 0, ignored, value 50 0, value 60 0, released, "
             "held 0"},
            {"Slider: press 30, right 30, release 30, held, move 50, rightup 50, held",
             "pressed, value 30 1, pressed, ignored, held 1, value 50 0, released, held 0"},
            {"Slider: right 40, set 50, rightup 40, set 60, press 30, release 30",
             "pressed, value 40 1, ignored, value 50 0, pressed, value 30 1, released"},
            // Buttons that were not asked for are left alone.
            {"Slider: buttons 1, right 40, held, set 20, rightup 40, is", "ignored, held 0, is 20"},
            {"Slider: buttons 1, press 30, right 40, move 50, release 50, held, move 60, is",
             "pressed, value 30 1, ignored, value 50 0, released, held 0, ignored, is 50"},
            // The host moves the slider without an echo; the first change is still to come.
            {"Slider: set 50, press 50, follow 40, move 60, follow 20, move 70, release 70",
             "pressed, value 60 1, value 70 0, released"},
            {"Slider: disable, press 40, held, set 20, release 40", "held 0"},
            {"Slider: double 40, is", "double, is 0"},
            {"Slider: nojump, press 80, release 80, is", "pressed, value 10 1, is 10"},
            {"Slider: show, key, keyed, hide, keyed", "keyed 1, keyed 0"},
            {"Slider: show, key, disable, keyed", "keyed 0"},
            {"Slider: show, key, modal, keyed", "keyed 0"},
            // The menu of a right click takes its release.
            {"Slider: show, right 40, popup, held, restore, set 70, held",
             "pressed, value 40 1, ignored, held 0, held 0"},
            // The release went elsewhere, and nothing was heard until the next press.
            {"Slider: press 40, lost, press 60, release 60",
             "pressed, value 40 1, released, pressed, value 60 1, released"},
            {"Range: press 20, handles, release 20, held",
             "pressed 1, holds 1, released 1, held 0"},
            {"Range: press 20, move 30, held, release 30",
             "pressed 1, minpos 30, positions 30 80 50, min 30, held 1, released 1, "
             "values 30 80 50"},
            {"Range: press 80, move 70, handles, release 70",
             "pressed 2, maxpos 70, positions 20 70 50, max 70, holds 2, released 2, "
             "values 20 70 50"},
            {"Range: press 50, move 95, release 95, handles",
             "pressed 4, mainpos 95, positions 20 80 95, main 95, released 4, values 20 80 95, "
             "holds 0"},
            {"Range: press 20, move 95, release 95", // The handles stop at each other.
             "pressed 1, minpos 80, positions 80 80 50, min 80, released 1, values 80 80 50"},
            {"Range: press 80, move 5, release 5",
             "pressed 2, maxpos 20, positions 20 20 50, max 20, released 2, values 20 20 50"},
            {"Range: jump 35, handles, release 35", // A press on the groove brings the main handle.
             "pressed 0, main 35, holds 4, released 4, values 20 80 35"},
            {"Range: range 0, jump 20, handles, release 20", // Without a range so does one on a
                                                             // handle.
             "pressed 1, main 20, holds 4, released 4, values 20 80 20"},
            {"Range: tracking 0, press 20, move 25, release 25",
             "pressed 1, minpos 25, positions 25 80 50, released 1"},
            // A second button pressed in the middle is left alone; its release ends the drag.
            {"Range: press 20, right 20, move 22, rightup 22, move 40, release 40, held",
             "pressed 1, minpos 22, positions 22 80 50, min 22, released 1, values 22 80 50, "
             "released 0, held 0"},
            {"Range: right 20, held, move 30, rightup 30, key, keyed",
             "held 0, released 0, keyed 1"},
            {"Range: symmetric 1, press 20, move 15, symmetric 0, move 14, release 14",
             "pressed 1, minpos 15, maxpos 85, positions 15 85 50, min 15, max 85, minpos 14, "
             "positions 14 85 50, min 14, released 1, values 14 85 50"},
            {"Range: symmetric 1, press 80, move 99, release 99",
             "pressed 2, minpos 1, maxpos 99, positions 1 99 50, min 1, max 99, released 2, "
             "values 1 99 50"},
            {"Range: press 20, move 30, leave 30, move 30, release 30", // It snaps back outside.
             "pressed 1, minpos 30, positions 30 80 50, min 30, minpos 20, positions 20 80 50, "
             "min 20, minpos 30, positions 30 80 50, min 30, released 1, values 30 80 50"},
            // The keys' release goes elsewhere, the mouse's does not.
            {"Range: show, key, press 20, deactivate, keyed, move 30, release 30, held",
             "pressed 1, keyed 0, minpos 30, positions 30 80 50, min 30, released 1, "
             "values 30 80 50, held 0"},
            {"Span: press 20, held, move 40, release 40, held",
             "held 1, lowerpos 40, lower 40, span 40 60, held 0"},
            {"Span: press 60, move 90, release 90", "upperpos 90, upper 90, span 20 90"},
            {"Span: tracking 0, press 20, move 30, move 35, release 35",
             "lowerpos 30, lowerpos 35, lower 35, span 35 60"},
            // A second button pressed in the middle is left alone; its release ends the drag.
            {"Span: press 20, right 20, move 25, rightup 25, move 40, release 40, held",
             "ignored, lowerpos 25, lower 25, span 25 60, ignored, held 0"},
            {"Span: right 20, press 20, move 25, rightup 25, release 25",
             "ignored, lowerpos 25, lower 25, span 25 60"},
            // A press between the handles grabs neither.
            {"Span: press 40, held, move 60, release 60", "held 0, ignored"},
            {"Span: press 60, move 70, leave 70, release 70", // It snaps back outside.
             "upperpos 70, upper 70, span 20 70, upperpos 60, upper 60, span 20 60"},
            {"Span: one 7, press 7, held, wheel",
             "lower 7, upper 7, span 7 7, ignored, held 0, wheel 0"},
        });
        TestSupport::addInterruptions("Slider: show, press 30, move 40",
                                      ", set 80, move 50, move 60, is, press 20, release 20",
                                      "pressed, value 30 1, value 40 0, released, held 0, is 80, "
                                      "pressed, value 20 1, released");
        TestSupport::addInterruptions("Range: show, press 20, move 30", ", move 50",
                                      "pressed 1, minpos 30, positions 30 80 50, min 30, "
                                      "released 1, values 30 80 50, held 0");
        TestSupport::addInterruptions("Span: show, tracking 0, press 20, move 30",
                                      ", move 50, press 60, move 70, release 70",
                                      "lowerpos 30, lower 30, span 30 60, held 0, upperpos 70, "
                                      "upper 70, span 30 70");
    }

    void gestures()
    {
        QFETCH(QString, script);
        const QString kind = script.section(": ", 0, 0);
        script = script.section(": ", 1);
        if (kind == "Slider")
            QTEST(noted<TestSlider>(script, {left, right}), "log");
        else if (kind == "Range")
            QTEST(noted<TestRange>(script, {left, right, upright}), "log");
        else
            QTEST(noted<TestSpan>(script, {left,
                                           right,
                                           upright,
                                           {Qt::Horizontal, Qt::LeftToRight, true},
                                           {Qt::Horizontal, Qt::RightToLeft, true},
                                           {Qt::Vertical, Qt::LeftToRight, true}}),
                  "log");
    }

    void verticalSliderJumpsAlongX()
    {
        TestSlider slider(Qt::Vertical);
        slider.send(QEvent::MouseButtonPress, QPoint(30, 20), Qt::LeftButton);
        QCOMPARE(slider.takeLog(), QString("pressed, value 99 1"));
    }

    void hoverReportsEachValueOnce()
    {
        TestSlider slider;
        connect(&slider, &Slider::sliderMoveChanged, &slider, slider.note("hover"));
        for (int x : {0, 1, 2, 4, 5, 160, 161, 318}) // 3.23 pixels for each value
            slider.send(QEvent::MouseMove, QPoint(x, 15), Qt::NoButton);
        QCOMPARE(slider.takeLog(),
                 QString("hover 2 15 1, hover 5 15 2, hover 160 15 50, hover 318 15 98"));
        slider.setEnableDirectJump(false);
        QCOMPARE(slider.run("move 60, is"), QString("is 0"));
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

    void receiversThatTakeASliderAway()
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
    }

    void rangeLeavesNoTraces()
    {
        for (Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            QVERIFY(TestRange(orientation)
                        .leavesNoTraces({"press 20, move 21", "move 60",
                                         "release 60, press 80, move 90, move 70",
                                         "release 70, press 50, move 95", "move 5, release 5",
                                         "all 30", "all 31"}));
            QVERIFY(TestRange(orientation, false).leavesNoTraces({"press 50, move 52", "move 0"}));
        }
        TestRange seen; // elsewhere at each step
        connect(&seen, &RangeSlider::mainPositionChanged, &seen, [&seen] { seen.grab(); });
        QVERIFY(seen.leavesNoTraces({"press 50, move 70", "move 10, release 10"}));
    }

    void rangeSetters()
    {
        const RangeSlider fresh(nullptr);
        QCOMPARE(fresh.maximumValue(), 99);
        QCOMPARE(fresh.mainValue(), 50);

        TestRange slider;
        slider.setValues(80, 20, 50);
        QCOMPARE(slider.takeLog(), QString());
        slider.setValues(-10, 150, 500);
        QCOMPARE(slider.positions(), Ints({0, 100, 500}));
        QCOMPARE(slider.takeLog(), QString("min 0, max 100, main 500"));
        slider.setValues(10, 60, 50);
        slider.setMinimumValue(90);
        QCOMPARE(slider.values(), Ints({90, 90, 50}));
        slider.setMaximumValue(40);
        QCOMPARE(slider.values(), Ints({40, 40, 50}));

        slider.takeLog();
        slider.setMaximumPosition(10);
        QCOMPARE(slider.positions(), Ints({10, 10, 50}));
        QCOMPARE(slider.takeLog(), QString("min 10, max 10"));
        slider.positionChange(70);
        QCOMPARE(slider.mainValue(), 70);
        QVERIFY(slider.takeLog().isEmpty() && !slider.signalsBlocked());
        // Without tracking the values stay behind the positions.
        slider.setTracking(false);
        slider.setMinimumPosition(90);
        QCOMPARE(slider.positions(), Ints({90, 90, 70}));
        QCOMPARE(slider.values(), Ints({10, 10, 70}));
        QCOMPARE(slider.takeLog(), QString());
        // A range that shrinks is obeyed on request.
        slider.setValues(20, 80, 50);
        slider.setRange(0, 50);
        QCOMPARE(slider.maximumValue(), 80);
        QMetaObject::invokeMethod(&slider, "onRangeChanged", Q_ARG(int, 1), Q_ARG(int, 2),
                                  Q_ARG(int, 3));
        QCOMPARE(slider.values(), Ints({20, 50, 50}));
    }

    void rangeSignalOrderWhileDown()
    {
        TestRange slider;
        slider.setSliderDown(true);
        slider.setValues(10, 90, 40);
        QCOMPARE(slider.takeLog(), QString("positions 10 90 40, minpos 10, maxpos 90, mainpos 40, "
                                           "min 10, max 90, main 40"));
        for (const char *expected : {"minpos 11, maxpos 91, mainpos 41, positions 11 91 41, "
                                     "min 11, max 91, main 41",
                                     ""})
        {
            slider.setPositions(11, 91, 41);
            QCOMPARE(slider.takeLog(), QString(expected));
        }
    }

    void handlesOnTopOfEachOther()
    {
        for (Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            TestRange slider(orientation);
            const auto pressedAt = [&slider](const QPoint &point) {
                slider.send(QEvent::MouseButtonPress, point, Qt::LeftButton);
                slider.send(QEvent::MouseButtonRelease, point, Qt::LeftButton);
                return slider.takeLog().section(',', 0, 0);
            };
            slider.run("all 50");
            const QRect handle = slider.handleAt(50);
            const QPoint center = handle.center();
            const bool horizontal = slider.isHorizontal();
            const QPoint nearMinimum = horizontal ? QPoint(handle.left() + 1, center.y())
                                                  : QPoint(center.x(), handle.bottom() - 1);
            const QPoint nearMaximum = horizontal ? QPoint(handle.right() - 1, center.y())
                                                  : QPoint(center.x(), handle.top() + 1);
            QCOMPARE(pressedAt(nearMinimum), QString("pressed 1"));
            QCOMPARE(pressedAt(nearMaximum), QString("pressed 2"));
            QCOMPARE(handle.width() % 2, 1); // The tie is a pixel.
            QCOMPARE(pressedAt(center), QString("pressed 2"));
            slider.setValues(50, 50, 90);
            slider.takeLog();
            QCOMPARE(pressedAt(nearMaximum), QString("pressed 1"));
        }
    }

    void symmetricMovesStayInTheRange()
    {
        const int most = std::numeric_limits<int>::max();
        for (const Ints &values : {Ints{10, 95, 50}, Ints{most / 4, most - 10, most / 2}}) {
            TestRange slider;
            slider.setRange(0, values[2] == 50 ? 100 : most);
            slider.setValues(values[0], values[1], values[2]);
            slider.setSymmetricMoves(true);
            slider.run(QString("press %1, move 0, release 0").arg(values[0]));
            QCOMPARE(slider.values(), Ints({0, slider.maximum(), values[2]}));
        }
    }

    void movesWithoutAHandleReportTheValue()
    {
        const auto move = [](TestRange &slider, const QPoint &point) {
            slider.send(QEvent::MouseMove, point, Qt::NoButton);
        };
        TestRange empty;
        empty.run("one 5");
        QCOMPARE(empty.run("press 5, held"), QString("ignored, held 1"));
        for (int x : {120, 140})
            move(empty, QPoint(x, 15));
        QCOMPARE(empty.run("release 5"), QString("hover 120 15 5, ignored, ignored, released 0"));

        for (bool horizontal : {true, false}) {
            TestRange slider(horizontal ? Qt::Horizontal : Qt::Vertical);
            slider.run("right 20");
            QCOMPARE(slider.run("press 20"), QString("ignored"));
            move(slider, horizontal ? QPoint(80, 12) : QPoint(12, 80));
            // A quarter of the way from the left or from the top, where the maximum is.
            QCOMPARE(slider.takeLog(),
                     QString(horizontal ? "hover 80 12 25, ignored" : "hover 12 80 75, ignored"));
        }
        QVERIFY(!TestSupport::takesWheel(&empty));
    }

    void receiversThatTakeARangeOrSpanAway()
    {
        for (const char *how : {"hide", "popup"}) {
            TestRange slider;
            slider.run("show");
            const auto take = [&slider, how] { slider.run(how); };
            const auto early = connect(&slider, &RangeSlider::mousePressed, &slider, take);
            slider.run("press 20, move 40");
            QVERIFY(!slider.isHeld() && slider.minimumValue() == 20);
            disconnect(early);
            connect(&slider, &QSlider::sliderPressed, &slider, take);
            slider.run("restore, press 20, move 40, restore, press 35, move 40");
            QVERIFY(!slider.isHeld() && slider.minimumValue() == 20);

            TestSpan span;
            span.setSpan(50, 50);
            span.run("show");
            connect(&span, &QSlider::sliderPressed, &span, [&] { span.run(how); });
            QCOMPARE(span.run("press 50, held, move 40"), QString("held 0, ignored"));
        }
        deleteInMidDrag<TestSlider>();
        deleteInMidDrag<TestRange>();
        deleteInMidDrag<TestSpan>();
    }

    void toolTipOfTheRangeHandles()
    {
        TestRange slider;
        slider.show();
        const auto help = [&](int position) {
            const QPoint point = slider.place(position);
            QHelpEvent event(QEvent::ToolTip, point, slider.mapToGlobal(point));
            QCoreApplication::sendEvent(&slider, &event);
            return QToolTip::isVisible() ? QToolTip::text() : QString();
        };
        QCOMPARE(help(20), QString());
        slider.setHandleToolTip("frame %1");
        QCOMPARE(help(20), QString("frame 20"));
        QCOMPARE(help(80), QString("frame 80"));
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(help(50), QString());
    }

    void spanLeavesNoTraces()
    {
        for (Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            for (auto mode : {SpanSlider::FreeMovement, SpanSlider::NoCrossing}) {
                QVERIFY(TestSpan(orientation, mode)
                            .leavesNoTraces({"press 20, move 21", "move 50", "move 90",
                                             "move 10, release 10", "press 99, move 80",
                                             "release 80"}));
            }
        }
        TestSpan seen;
        connect(&seen, &SpanSlider::lowerPositionChanged, &seen, [&seen] { seen.grab(); });
        connect(&seen, &SpanSlider::lowerValueChanged, &seen, [&seen] { seen.grab(); });
        QVERIFY(seen.leavesNoTraces({"press 20, move 40", "move 10, release 10"}));
    }

    void spanSetters()
    {
        TestSpan slider;
        slider.setSpan(70, 10);
        QCOMPARE(slider.takeLog(), QString("lower 10, upper 70, span 10 70"));
        slider.setSpan(70, 10);
        QCOMPARE(slider.takeLog(), QString());
        slider.setSpan(-5, 150);
        QCOMPARE(slider.span(), Ints({0, 99}));
        QCOMPARE(slider.lowerPosition(), 0);
        QCOMPARE(slider.upperPosition(), 99);
        slider.setLowerValue(30);
        slider.setUpperValue(20);
        QCOMPARE(slider.span(), Ints({20, 30}));
        slider.takeLog();
        slider.setRange(25, 50);
        QCOMPARE(slider.takeLog(), QString("lower 25, span 25 30"));
        slider.setLowerPosition(28);
        QCOMPARE(slider.takeLog(), QString("lower 28, span 28 30"));
    }

    void handlesThatMeet()
    {
        // What is left of the span a to b when what is pressed at c is dragged to d.
        const auto spanAfter = [](int mode, int a, int b, int c, int d) {
            TestSpan slider(Qt::Horizontal, static_cast<SpanSlider::HandleMovementMode>(mode));
            slider.setSpan(a, b);
            slider.run(QString("press %1, move %1").arg(c));
            for (int position = c; position != d; position += c < d ? 1 : -1)
                slider.run(QString("move %1").arg(position));
            slider.run(QString("move %1, release %1").arg(d));
            return slider.span();
        };
        // Free handles pass and swap their roles.
        QCOMPARE(spanAfter(SpanSlider::FreeMovement, 20, 60, 20, 80), Ints({60, 80}));
        QCOMPARE(spanAfter(SpanSlider::FreeMovement, 20, 60, 60, 10), Ints({10, 20}));
        QCOMPARE(spanAfter(SpanSlider::NoCrossing, 20, 60, 20, 80), Ints({60, 60}));
        QCOMPARE(spanAfter(SpanSlider::NoOverlapping, 20, 60, 20, 80), Ints({59, 60}));
        QCOMPARE(spanAfter(SpanSlider::NoOverlapping, 20, 60, 60, 5), Ints({20, 21}));
        // Handles on one value part in either direction.
        for (int mode : {SpanSlider::FreeMovement, SpanSlider::NoCrossing}) {
            QCOMPARE(spanAfter(mode, 50, 50, 50, 40), Ints({40, 50}));
            QCOMPARE(spanAfter(mode, 50, 50, 50, 70), Ints({50, 70}));
        }
    }

    void keysAndActions()
    {
        // Before and after the handles have swapped their roles.
        const auto spansAfter = [](Qt::Key key, Qt::Orientation orientation,
                                   bool inverted = false) {
            TestSpan slider(orientation);
            slider.setInvertedAppearance(inverted);
            slider.setInvertedControls(inverted);
            QTest::keyClick(&slider, key);
            const Ints first = slider.span();
            slider.setSpan(20, 60);
            slider.run("press 20, move 59, move 60, move 61, move 70, release 70");
            slider.setSpan(20, 60);
            QTest::keyClick(&slider, key);
            return first + slider.span();
        };
        QCOMPARE(spansAfter(Qt::Key_Home, Qt::Horizontal), Ints({0, 60, 0, 60}));
        QCOMPARE(spansAfter(Qt::Key_End, Qt::Horizontal), Ints({20, 99, 20, 99}));
        QCOMPARE(spansAfter(Qt::Key_Left, Qt::Horizontal), Ints({19, 60, 20, 59}));
        QCOMPARE(spansAfter(Qt::Key_Right, Qt::Horizontal), Ints({21, 60, 20, 61}));
        QCOMPARE(spansAfter(Qt::Key_Up, Qt::Horizontal), Ints({20, 61, 21, 60}));
        QCOMPARE(spansAfter(Qt::Key_Down, Qt::Vertical), Ints({19, 60, 20, 59}));
        QCOMPARE(spansAfter(Qt::Key_Left, Qt::Horizontal, true), Ints({21, 60, 20, 61}));
        QCOMPARE(spansAfter(Qt::Key_Up, Qt::Horizontal, true), Ints({20, 59, 19, 60}));

        TestSpan slider;
        slider.triggerAction(QAbstractSlider::SliderSingleStepAdd, true);
        slider.triggerAction(QAbstractSlider::SliderSingleStepSub, false);
        slider.triggerAction(QAbstractSlider::SliderNoAction, true);
        QCOMPARE(slider.span(), Ints({21, 59}));
        QTest::ignoreMessage(QtWarningMsg, "SpanSlider::triggerAction: Unknown action");
        slider.triggerAction(QAbstractSlider::SliderPageStepAdd, false);
        QCOMPARE(slider.span(), Ints({0, 59}));
        // To the far end, past the other handle.
        slider.triggerAction(QAbstractSlider::SliderToMaximum, true);
        QCOMPARE(slider.upperValue(), 99);
        QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        QCoreApplication::sendEvent(&slider, &letter);
        QVERIFY(!letter.isAccepted());
    }

    /// What lies on a line of nine pixels across the slider: nothing, the outline or the fill of
    /// what is between the handles, a handle.
    void painting()
    {
        const QMap<QString, QChar> names = {
            {"#00000000", '.'}, {"#ff0b0b0b", '#'}, {"#c8419cf9", 'f'}, {"#ff00ff00", 'g'},
            {"#ff0000ff", 'h'}, {"#ff256c98", '#'}, {"#ff205d84", '#'}, {"#ff2d83b9", '1'},
            {"#ff2f89c1", '2'}, {"#ff318fca", '3'}};
        SliderStyle style;
        const auto across = [&](auto &slider, const QVector<int> &positions) {
            slider.setStyle(&style);
            const QImage image = TestSupport::render(slider);
            QString lines;
            for (int position : positions) {
                for (int i = -4; i < 5; ++i) {
                    const QPoint step = slider.isHorizontal() ? QPoint(0, i) : QPoint(i, 0);
                    lines += names.value(
                        image.pixelColor(slider.place(position) + step).name(QColor::HexArgb), '?');
                }
                lines += ' ';
            }
            return lines.trimmed();
        };
        TestRange range(Qt::Horizontal);
        QCOMPARE(across(range, {10, 20, 35, 50, 65, 80, 90}),
                 QString("......... ggggggggg ...#ffff# hhhhhhhhh ...#ffff# ggggggggg ........."));
        TestRange uprightRange(Qt::Vertical);
        QCOMPARE(across(uprightRange, {10, 20, 35, 50, 90}),
                 QString("......... ..?ggg?.. ..#fff#.. hhhhhhhhh ........."));
        TestRange alone(Qt::Horizontal, false);
        QCOMPARE(across(alone, {20, 50, 80}), QString("...#ffff# hhhhhhhhh ...#ffff#"));
        TestSpan span(Qt::Horizontal);
        QCOMPARE(across(span, {10, 20, 35, 60, 70}),
                 QString("......... hhhhhhhhh ..#123#.. hhhhhhhhh ........."));
        TestSpan uprightSpan(Qt::Vertical);
        QCOMPARE(across(uprightSpan, {10, 35, 70}), QString("......... ..#123#.. ........."));
    }

    void onlyTheBarIsFilled()
    {
        for (const Way &way : {left, right, upright}) {
            for (QStyle *style : {m_darkStyle.get(), QApplication::style()}) {
                TestRange slider(way.orientation);
                slider.setLayoutDirection(way.direction);
                slider.setStyle(style);
                slider.setValues(40, 60, 50);
                slider.setAttribute(Qt::WA_UnderMouse);
                const QImage image = TestSupport::render(slider);
                const auto blueness = [&](int position) {
                    const QPoint on(way.orientation == Qt::Horizontal ? QPoint(0, 1) : QPoint());
                    const QColor color = image.pixelColor(slider.place(position) + on);
                    return color.blue() - color.red();
                };
                QCOMPARE(blueness(45), 249 - 65);
                for (int position : {10, 30, 70, 90})
                    QVERIFY(blueness(position) < 30);
                // Nor is it when the whole range is below zero, or ends there.
                for (int most : {-200, 0}) {
                    slider.setRange(most - 100, most);
                    slider.setValues(most - 60, most - 40, most - 50);
                    QCOMPARE(TestSupport::render(slider), image);
                }
            }
        }
    }

private:
    template <typename Slider>
    static void deleteInMidDrag()
    {
        auto doomed = std::make_unique<Slider>();
        doomed->run("show, press 20, move 25");
        doomed.reset();
        QCoreApplication::processEvents();
    }

    DarkUX m_theme;
    const std::unique_ptr<QStyle> m_darkStyle{m_theme.style()};
};

NOCTURNE_TEST_MAIN(TestSliders)

#include "tst_sliders.moc"
