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
constexpr Way inverted{Qt::Horizontal, Qt::RightToLeft, true};
constexpr Way invertedUpright{Qt::Vertical, Qt::LeftToRight, true};

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
    bool perform(const QString &verb, const QVector<int> &numbers) override
    {
        if (verb == "buttons")
            setJumpButtons(Qt::MouseButtons(numbers[0]));
        else if (verb == "keyed")
            note("keyed")(isKeyPressed());
        else
            return false;
        return true;
    }
};

/// A span slider that starts at 20 and 60.
class TestSpan : public TestSupport::DrivenSlider<SpanSlider>
{
public:
    explicit TestSpan(Qt::Orientation orientation = Qt::Horizontal)
        : DrivenSlider(orientation)
    {
        setSpan(20, 60);
        connect(this, &SpanSlider::lowerValueChanged, this, note("lower"));
        connect(this, &SpanSlider::upperValueChanged, this, note("upper"));
        connect(this, &SpanSlider::lowerPositionChanged, this, note("lowerpos"));
        connect(this, &SpanSlider::upperPositionChanged, this, note("upperpos"));
        connect(this, &SpanSlider::spanChanged, this, note("span"));
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

    /// Which handles are held, as bits.
    int handles() const
    {
        return isMinimumSliderDown() + 2 * isMaximumSliderDown() + 4 * isMainSliderDown();
    }
    bool isHeld() const override { return isMousePressed() || isSliderDown() || handles(); }
    bool perform(const QString &verb, const QVector<int> &numbers) override
    {
        if (verb == "handles")
            note("holds")(handles());
        else if (verb == "setPositions")
            setPositions(numbers[0], numbers[1], numbers[2]);
        else if (verb == "are")
            note("are")(minimumValue(), maximumValue(), mainValue());
        else if (verb == "at")
            note("at")(minimumPosition(), maximumPosition(), mainPosition());
        else if (verb == "keyed")
            note("keyed")(isKeyPressed());
        else
            return false;
        return true;
    }
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
        if (&way != &ways[0] && log != last)
            log.prepend("not in each way: ");
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
            {"Slider: press 60, held, move 75, release 75, held, value 20",
             "pressed, value 60 1, held 1, value 75 0, released, held 0"},
            // A click on the value leaves the first change to the drag.
            {"Slider: value 45, drag 45 50 55", "pressed, value 50 1, value 55 0, released"},
            // Two buttons are one gesture, whichever comes up first.
            {"Slider: press 30, right 40, move 50, rightup 50, move 60, release 60, held",
             "pressed, value 30 1, pressed, value 40 0, ignored, value 50 0, value 60 0, released, "
             "held 0"},
            {"Slider: press 30, right 30, release 30, held, move 50, rightup 50, held",
             "pressed, value 30 1, pressed, ignored, held 1, value 50 0, released, held 0"},
            {"Slider: right 40, value 50, rightup 40, value 60, drag 30",
             "pressed, value 40 1, ignored, value 50 0, pressed, value 30 1, released"},
            // Buttons that were not asked for are left alone.
            {"Slider: buttons 1, right 40, held, value 20, rightup 40, press 30, right 40, "
             "move 50, release 50, held, move 60, value?",
             "ignored, held 0, pressed, value 30 1, ignored, value 50 0, released, held 0, "
             "ignored, value 50"},
            // The host moves the slider without an echo; the first change is still to come.
            {"Slider: value 50, press 50, positionChange 40, move 60, positionChange 20, move 70",
             "pressed, value 60 1, value 70 0"},
            {"Slider: disable, press 40, held, value 20, release 40", "held 0"},
            {"Slider: double 40, value?, directJump 0, drag 80, value?, move 60, value?",
             "double, value 0, pressed, value 10 1, value 10, value 10"},
            {"Slider: show, key Shift, keyed, hide, keyed, show, key Shift, disable, keyed, "
             "restore, key Shift, modal, keyed",
             "keyed 1, keyed 0, keyed 0, keyed 0"},
            // The menu of a right click takes its release.
            {"Slider: show, right 40, popup, held, restore, value 70, held",
             "pressed, value 40 1, ignored, held 0, held 0"},
            // The release went elsewhere, and nothing was heard until the next press.
            {"Slider: press 40, lost, drag 60",
             "pressed, value 40 1, released, pressed, value 60 1, released"},
            {"Range: press 20, handles, move 30, held, release 30, held",
             "pressed 1, holds 1, minpos 30, positions 30 80 50, min 30, held 1, released 1, "
             "values 30 80 50, held 0"},
            {"Range: press 80, move 70, handles, release 70",
             "pressed 2, maxpos 70, positions 20 70 50, max 70, holds 2, released 2, "
             "values 20 70 50"},
            {"Range: drag 50 95, handles",
             "pressed 4, mainpos 95, positions 20 80 95, main 95, released 4, values 20 80 95, "
             "holds 0"},
            {"Range: drag 20 95", // The handles stop at each other.
             "pressed 1, minpos 80, positions 80 80 50, min 80, released 1, values 80 80 50"},
            {"Range: drag 80 5",
             "pressed 2, maxpos 20, positions 20 20 50, max 20, released 2, values 20 20 50"},
            {"Range: jump 35, handles, release 35", // A press on the groove brings the main handle.
             "pressed 0, main 35, holds 4, released 4, values 20 80 35"},
            // Without a range so does one on a handle.
            {"Range: enableRange 0, jump 20, handles, release 20",
             "pressed 1, main 20, holds 4, released 4, values 20 80 20"},
            {"Range: tracking 0, drag 20 25",
             "pressed 1, minpos 25, positions 25 80 50, released 1"},
            // A second button pressed in the middle is left alone; its release ends the drag.
            {"Range: press 20, right 20, move 22, rightup 22, move 40, release 40, held",
             "pressed 1, minpos 22, positions 22 80 50, min 22, released 1, values 22 80 50, "
             "released 0, held 0"},
            {"Range: right 20, held, move 30, rightup 30, key Right, keyed",
             "held 0, released 0, keyed 1"},
            {"Range: symmetricMoves 1, press 20, move 15, symmetricMoves 0, move 14, release 14",
             "pressed 1, minpos 15, maxpos 85, positions 15 85 50, min 15, max 85, minpos 14, "
             "positions 14 85 50, min 14, released 1, values 14 85 50"},
            {"Range: symmetricMoves 1, drag 80 99, setValues 10 95 50, drag 10 0, are",
             "pressed 2, minpos 1, maxpos 99, positions 1 99 50, min 1, max 99, released 2, "
             "values 1 99 50, min 10, max 95, pressed 1, minpos 0, maxpos 100, positions 0 100 50, "
             "min 0, max 100, released 1, values 0 100 50, are 0 100 50"},
            {"Range: setRange 0 2147483647, symmetricMoves 1, tracking 0, "
             "setValues 536870911 2147483637 1, drag 536870911 0",
             "min 536870911, max 2147483637, main 1, pressed 1, minpos 0, maxpos 2147483647, "
             "positions 0 2147483647 1, released 1"},
            {"Range: press 20, move 30, leave 30, move 30, release 30", // It snaps back outside.
             "pressed 1, minpos 30, positions 30 80 50, min 30, minpos 20, positions 20 80 50, "
             "min 20, minpos 30, positions 30 80 50, min 30, released 1, values 30 80 50"},
            // The keys' release goes elsewhere, the mouse's does not.
            {"Range: show, key Shift, press 20, deactivate, keyed, move 30, release 30, held",
             "pressed 1, keyed 0, minpos 30, positions 30 80 50, min 30, released 1, "
             "values 30 80 50, held 0"},
            {"Range: setValues 80 20 50, setValues -10 150 500, at, setValues 10 60 50, "
             "minimumValue 90, maximumValue 40, maximumPosition 10, positionChange 70, at",
             "min 0, max 100, main 500, at 0 100 500, min 10, max 60, main 50, min 90, max 90, "
             "min 40, max 40, min 10, max 10, at 10 10 70"},
            // Without tracking the values stay behind the positions.
            {"Range: tracking 0, minimumPosition 90, at, are", "at 90 90 50, are 20 80 50"},
            // A range that shrinks is obeyed on request.
            {"Range: setRange 0 50, are, onRangeChanged 1 2 3, are",
             "are 20 80 50, max 50, are 20 50 50"},
            {"Range: sliderDown 1, setValues 10 90 40, setPositions 11 91 41, "
             "setPositions 11 91 41",
             "positions 10 90 40, minpos 10, maxpos 90, mainpos 40, min 10, max 90, main 40, "
             "minpos 11, maxpos 91, mainpos 41, positions 11 91 41, min 11, max 91, main 41"},
            {"Span: press 20, held, move 40, release 40, held",
             "held 1, lowerpos 40, lower 40, span 40 60, held 0"},
            {"Span: drag 60 90", "upperpos 90, upper 90, span 20 90"},
            {"Span: tracking 0, drag 20 30 35", "lowerpos 30, lowerpos 35, lower 35, span 35 60"},
            // A second button pressed in the middle is left alone; its release ends the drag.
            {"Span: press 20, right 20, move 25, rightup 25, move 40, release 40, held",
             "ignored, lowerpos 25, lower 25, span 25 60, ignored, held 0"},
            {"Span: right 20, press 20, move 25, rightup 25, release 25",
             "ignored, lowerpos 25, lower 25, span 25 60"},
            // A press between the handles grabs neither.
            {"Span: press 40, held, move 60, release 60", "held 0, ignored"},
            {"Span: press 60, move 70, leave 70, release 70", // It snaps back outside.
             "upperpos 70, upper 70, span 20 70, upperpos 60, upper 60, span 20 60"},
            {"Span: setRange 7 7, press 7, held", "lower 7, upper 7, span 7 7, ignored, held 0"},
            {"Span: setSpan 70 10, setSpan 70 10, setSpan -5 150, lowerValue 30, upperValue 20, "
             "setRange 25 50, lowerPosition 28",
             "lower 10, upper 70, span 10 70, lower 0, upper 99, span 0 99, lower 30, span 30 99, "
             "lower 20, upper 30, span 20 30, lower 25, span 25 30, lower 28, span 28 30"},
            // Deleted in mid-drag.
            {"Slider: show, press 20, move 25", "pressed, value 20 1, value 25 0"},
            {"Span: show, press 20, move 25", "lowerpos 25, lower 25, span 25 60"},
        });
        TestSupport::addInterruptions("Slider: show, press 30, move 40",
                                      ", value 80, move 50, move 60, value?, drag 20",
                                      "pressed, value 30 1, value 40 0, released, held 0, "
                                      "value 80, pressed, value 20 1, released");
        TestSupport::addInterruptions("Range: show, press 20, move 30", ", move 50",
                                      "pressed 1, minpos 30, positions 30 80 50, min 30, "
                                      "released 1, values 30 80 50, held 0");
        TestSupport::addInterruptions("Span: show, tracking 0, press 20, move 30",
                                      ", move 50, drag 60 70",
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
            QTEST(noted<TestSpan>(script, {left, right, upright, inverted, invertedUpright}),
                  "log");
    }

    void sliderOverItsWholeWidth()
    {
        TestSlider vertical(Qt::Vertical);
        vertical.send(QEvent::MouseButtonPress, QPoint(30, 20), Qt::LeftButton);
        QCOMPARE(vertical.takeLog(), QString("pressed, value 99 1"));

        TestSlider slider;
        connect(&slider, &Slider::sliderMoveChanged, &slider, slider.note("hover"));
        for (int x : {0, 1, 2, 4, 5, 160, 161, 318}) // 3.23 pixels for each value
            slider.send(QEvent::MouseMove, QPoint(x, 15), Qt::NoButton);
        QCOMPARE(slider.takeLog(),
                 QString("hover 2 15 1, hover 5 15 2, hover 160 15 50, hover 318 15 98"));
        // Whoever listens to the plain signal hears of keys, and not of calls.
        connect(&slider, &QSlider::valueChanged, &slider, slider.note("plain"));
        QCOMPARE(slider.run("positionChange 30, value?, key Right, keyed"),
                 QString("value 30, plain 31, keyed 1"));
        QTest::keyRelease(&slider, Qt::Key_Right);
        QVERIFY(!slider.isKeyPressed() && !TestSupport::takesWheel(&slider));
        QCOMPARE(slider.run("value?"), QString("value 31"));
    }

    void movesWithoutAHandleReportTheValue()
    {
        for (Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            TestRange slider(orientation);
            const bool horizontal = slider.isHorizontal();
            QCOMPARE(slider.run("right 20, press 20"), QString("ignored"));
            // A quarter of the way from the left or from the top, where the maximum is.
            slider.send(QEvent::MouseMove, horizontal ? QPoint(80, 12) : QPoint(12, 80),
                        Qt::NoButton);
            QCOMPARE(slider.takeLog(),
                     QString(horizontal ? "hover 80 12 25, ignored" : "hover 12 80 75, ignored"));
            // Nothing to drag.
            QCOMPARE(slider.run("rightup 20, release 20, setRange 5 5, press 5, held, release 5"),
                     QString("released 0, released 0, ignored, held 1, released 0"));
            QVERIFY(!TestSupport::takesWheel(&slider));
        }
    }

    void handlesOnTopOfEachOther()
    {
        for (Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            TestRange slider(orientation);
            const auto pressedAt = [&slider](const QString &values, int along) {
                slider.run("setValues " + values);
                const QPoint point =
                    slider.handleAt(50).center()
                    + (slider.isHorizontal() ? QPoint(along, 0) : QPoint(0, -along));
                for (auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
                    slider.send(type, point, Qt::LeftButton);
                return slider.takeLog().section(',', 0, 0);
            };
            QCOMPARE(pressedAt("50 50 50", -4), QString("pressed 1"));
            QCOMPARE(pressedAt("50 50 50", 4), QString("pressed 2"));
            QCOMPARE(pressedAt("50 50 50", 0), QString("pressed 2"));
            QCOMPARE(pressedAt("50 50 90", 4), QString("pressed 1"));
        }
    }

    void handlesThatMeet()
    {
        // What is left of the span a to b when what is pressed at c is dragged to d.
        const auto spanAfter = [](int mode, int a, int b, int c, int d) {
            TestSpan slider;
            slider.setHandleMovementMode(SpanSlider::HandleMovementMode(mode));
            slider.setSpan(a, b);
            QString drag = QString("drag %1").arg(c);
            for (int position = c; position != d; position += c < d ? 1 : -1)
                drag += QString(" %1").arg(position);
            slider.run(drag + QString(" %1").arg(d));
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

    void receiversThatTakeASliderAway()
    {
        const QString press = "show, press 60, lost, held, restore, move 80, value?";
        QCOMPARE(after<TestSlider>(&Slider::mousePressed, "popup", press),
                 QString("held 0, value 0"));
        QCOMPARE(after<TestSlider>(&QSlider::sliderPressed, "popup", press),
                 QString("held 0, value 60"));
        for (const QString how : {"hide", "popup"}) {
            const QString grab = "show, press 20, move 40, held, restore, press 35, held, are";
            QCOMPARE(after<TestRange>(&RangeSlider::mousePressed, how, grab),
                     QString("held 0, are 20 80 50"));
            QCOMPARE(after<TestRange>(&QSlider::sliderPressed, how, grab),
                     QString("held 0, are 20 80 36"));
            QCOMPARE(after<TestSpan>(&QSlider::sliderPressed, how,
                                     "show, setSpan 50 50, press 50, held, move 40"),
                     QString("held 0, ignored"));
        }
    }

    void leaveNoTraces()
    {
        for (Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            QVERIFY(TestRange(orientation)
                        .leavesNoTraces({"press 20, move 21", "move 60",
                                         "release 60, press 80, move 90, move 70",
                                         "release 70, press 50, move 95", "move 5, release 5",
                                         "setValues 30 30 30", "setValues 31 31 31"}));
            QVERIFY(TestRange(orientation, false).leavesNoTraces({"press 50, move 52", "move 0"}));
            for (auto mode : {SpanSlider::FreeMovement, SpanSlider::NoCrossing}) {
                TestSpan span(orientation);
                span.setHandleMovementMode(mode);
                QVERIFY(span.leavesNoTraces({"press 20, move 21", "move 50", "move 90",
                                             "move 10, release 10", "press 99, move 80",
                                             "release 80"}));
            }
        }
        // When receivers have them painted elsewhere at each step.
        TestRange range;
        connect(&range, &RangeSlider::mainPositionChanged, &range, [&range] { range.grab(); });
        QVERIFY(range.leavesNoTraces({"press 50, move 70", "move 10, release 10"}));
        TestSpan span;
        connect(&span, &SpanSlider::lowerPositionChanged, &span, [&span] { span.grab(); });
        connect(&span, &SpanSlider::lowerValueChanged, &span, [&span] { span.grab(); });
        QVERIFY(span.leavesNoTraces({"press 20, move 40", "move 10, release 10"}));
    }

    void toolTipOfTheRangeHandles()
    {
        TestRange slider;
        slider.show();
        const auto help = [&slider](int position) {
            const QPoint point = slider.place(position);
            QHelpEvent event(QEvent::ToolTip, point, slider.mapToGlobal(point));
            QCoreApplication::sendEvent(&slider, &event);
            return QToolTip::isVisible() ? QToolTip::text() : QString();
        };
        QCOMPARE(help(20), QString());
        slider.setHandleToolTip("frame %1");
        QCOMPARE(help(20) + help(80), QString("frame 20frame 80"));
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(help(50), QString());
    }

    void keysAndActions()
    {
        // Before and after the handles have swapped their roles.
        const auto spansAfter = [](const QString &key, Qt::Orientation orientation,
                                   const QString &first = {}) {
            TestSpan slider(orientation);
            slider.run(first + "key " + key);
            const Ints span = slider.span();
            slider.run("setSpan 20 60, drag 20 59 60 61 70, setSpan 20 60, key " + key);
            return span + slider.span();
        };
        const QString turned = "invertedAppearance 1, invertedControls 1, ";
        QCOMPARE(spansAfter("Home", Qt::Horizontal), Ints({0, 60, 0, 60}));
        QCOMPARE(spansAfter("End", Qt::Horizontal), Ints({20, 99, 20, 99}));
        QCOMPARE(spansAfter("Left", Qt::Horizontal), Ints({19, 60, 20, 59}));
        QCOMPARE(spansAfter("Right", Qt::Horizontal), Ints({21, 60, 20, 61}));
        QCOMPARE(spansAfter("Up", Qt::Horizontal), Ints({20, 61, 21, 60}));
        QCOMPARE(spansAfter("Down", Qt::Vertical), Ints({19, 60, 20, 59}));
        QCOMPARE(spansAfter("Left", Qt::Horizontal, turned), Ints({21, 60, 20, 61}));
        QCOMPARE(spansAfter("Up", Qt::Horizontal, turned), Ints({20, 59, 19, 60}));

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
        const auto across = [&](auto &&slider, const Ints &positions) {
            slider.setStyle(&style);
            const QImage image = TestSupport::render(slider);
            QString line;
            for (int position : positions) {
                for (int i = -4; i < 5; ++i) {
                    const QPoint step = slider.isHorizontal() ? QPoint(0, i) : QPoint(i, 0);
                    const QColor color = image.pixelColor(slider.place(position) + step);
                    line += names.value(color.name(QColor::HexArgb), '?');
                }
                line += ' ';
            }
            return line;
        };
        QCOMPARE(across(TestRange(), {10, 20, 35, 50, 65, 80, 90}),
                 QString("......... ggggggggg ...#ffff# hhhhhhhhh ...#ffff# ggggggggg ......... "));
        QCOMPARE(across(TestRange(Qt::Vertical), {10, 20, 35, 50, 90}),
                 QString("......... ..?ggg?.. ..#fff#.. hhhhhhhhh ......... "));
        QCOMPARE(across(TestRange(Qt::Horizontal, false), {20, 50, 80}),
                 QString("...#ffff# hhhhhhhhh ...#ffff# "));
        QCOMPARE(across(TestSpan(), {10, 20, 35, 60, 70}),
                 QString("......... hhhhhhhhh ..#123#.. hhhhhhhhh ......... "));
        QCOMPARE(across(TestSpan(Qt::Vertical), {10, 35, 70}),
                 QString("......... ..#123#.. ......... "));
    }

    void onlyTheBarIsFilled()
    {
        for (const Way &way : {left, right, upright}) {
            for (QStyle *style : {m_darkStyle.get(), QApplication::style()}) {
                TestRange slider(way.orientation);
                slider.setLayoutDirection(way.direction);
                slider.setStyle(style);
                slider.setAttribute(Qt::WA_UnderMouse);
                slider.setValues(40, 60, 50);
                const QImage image = TestSupport::render(slider);
                const QPoint on = slider.isHorizontal() ? QPoint(0, 1) : QPoint();
                for (int position : {10, 30, 45, 70, 90}) {
                    const QColor color = image.pixelColor(slider.place(position) + on);
                    QCOMPARE(color.blue() - color.red() > 30, position == 45);
                }
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
    /// What is noted at last when a receiver of \a signal takes \a step.
    template <typename Slider, typename Signal>
    static QString after(Signal signal, const QString &step, const QString &script)
    {
        Slider slider;
        connect(&slider, signal, &slider, [&slider, step] { slider.run(step); });
        return slider.run(script);
    }

    DarkUX m_theme;
    const std::unique_ptr<QStyle> m_darkStyle{m_theme.style()};
};

NOCTURNE_TEST_MAIN(TestSliders)

#include "tst_sliders.moc"
