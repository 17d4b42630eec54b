#include "gestures.h"
#include "probes.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/RangeSlider>
#include <nocturne/Slider>
#include <nocturne/SpanSlider>
#include <nocturne/SpinBox>

#include <QtGui/QHelpEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QToolTip>

namespace {

/// Of Fusion's measures, with a drag area of 20 units around a slider.
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
};

/// How a slider can lie.
struct Way
{
    Qt::Orientation orientation;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    bool inverted = false;
};
const QMap<QString, Way> ways = {{"left", {Qt::Horizontal}},
                                 {"right", {Qt::Horizontal, Qt::RightToLeft}},
                                 {"upright", {Qt::Vertical}},
                                 {"inverted", {Qt::Horizontal, Qt::RightToLeft, true}},
                                 {"down", {Qt::Vertical, Qt::LeftToRight, true}}};

/// A slider with places along its groove.
template <typename Base>
class DrivenSlider : public TestSupport::Driven<Base>
{
public:
    explicit DrivenSlider(Qt::Orientation orientation)
        : TestSupport::Driven<Base>(orientation)
    {
        this->resize(isHorizontal() ? QSize(320, 30) : QSize(30, 320));
    }

    bool isHorizontal() const { return this->orientation() == Qt::Horizontal; }
    bool isHeld() const override { return this->isSliderDown(); }
    QPoint grip() const override { return isHorizontal() ? QPoint(2, 0) : QPoint(0, 2); }
    /// The middle of a handle at that position.
    QPoint place(int position) const override
    {
        QStyleOptionSlider option;
        QSlider::initStyleOption(&option);
        option.sliderPosition = option.sliderValue = position;
        return this->style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this)
            .center();
    }
};

/// A slider of 0 to 99.
class TestSlider : public DrivenSlider<Slider>
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
    bool perform(const QString &verb, const QVector<int> &) override
    {
        if (verb != "keyed")
            return false;
        note("keyed")(isKeyPressed());
        return true;
    }
};

/// A span slider that starts at 20 and 60.
class TestSpan : public DrivenSlider<SpanSlider>
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
};

/// A range slider of 0 to 100 that starts at 20, 80 and 50.
class TestRange : public DrivenSlider<RangeSlider>
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

/// A spin box of -100 to 100 whose places are along x.
class TestSpin : public TestSupport::Driven<SpinBox>
{
public:
    explicit TestSpin(QWidget *parent)
        : Driven(parent)
    {
        setRange(-100, 100);
        connect(this, QOverload<double, bool>::of(&SpinBox::valueChanged), this, note("value"));
    }

    QPoint place(int number) const override { return QPoint(number, 10); }
    bool isHeld() const override { return isDragging(); }

    bool perform(const QString &verb, const QVector<int> &numbers) override
    {
        if (verb == "set")
            setValue(numbers[0]);
        else if (verb == "relative")
            setValue(numbers[0], true);
        else if (verb == "absolute")
            setValue(numbers[0], false);
        else if (verb == "cursor") // or -1 where it is nobody's
            note("cursor")(QApplication::overrideCursor() ? QApplication::overrideCursor()->shape()
                                                          : -1);
        else if (verb == "editing")
            note("editing")(!field()->isReadOnly());
        else if (verb == "text") // and what of it is selected
            note(field()->text() + '|' + field()->selectedText())();
        else if (verb == "type")
            QTest::keyClicks(field(), QString::number(numbers[0]));
        else
            return false;
        return true;
    }

    QLineEdit *field() const { return lineEdit(); }
};

/// Two spin boxes in an active window.
class SpinFixture
{
public:
    SpinFixture()
    {
        window.resize(400, 100);
        box->setGeometry(20, 20, 120, 24);
        sibling->setGeometry(200, 20, 120, 24);
        // Focus that a spin box got from the window would start it in edit mode.
        window.setFocusPolicy(Qt::StrongFocus);
        window.setFocus();
        QCursor::setPos(0, 0);
        QVERIFY(TestSupport::showActive(&window));
    }

    QWidget window;
    TestSpin *box = new TestSpin(&window);
    TestSpin *sibling = new TestSpin(&window);
};

/// What the slider of that class notes, in each of the ways.
template <typename Slider>
QString noted(const QString &script, const QString &names)
{
    QStringList logs;
    for (const QString &name : names.split(',')) {
        const Way &way = ways[name];
        SliderStyle style;
        Slider slider(way.orientation);
        slider.setStyle(&style);
        slider.setLayoutDirection(way.direction);
        slider.setInvertedAppearance(way.inverted);
        logs << slider.run(script);
    }
    logs.removeDuplicates();
    return logs.join(" or ");
}

} // namespace

class TestSliders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create("fusion")); }
    void cleanup() { QVERIFY(TestSupport::nothingIsHeld()); }

    void gestures_data() { TestSupport::addScripts("sliders.txt"); }

    void gestures()
    {
        static const QHash<QString, QString> usualWays = {
            {"Slider", "left,right"},
            {"Range", "left,right,upright"},
            {"Span", "left,right,upright,inverted,down"}};
        QFETCH(QString, script);
        const QStringList kind = script.section(": ", 0, 0).split(' ');
        const QString ways = kind.value(1, usualWays[kind[0]]);
        script = script.section(": ", 1);
        QString notes;
        if (kind[0] == "Slider")
            notes = noted<TestSlider>(script, ways);
        else if (kind[0] == "Range")
            notes = noted<TestRange>(script, ways);
        else if (kind[0] == "Span")
            notes = noted<TestSpan>(script, ways);
        else // The press goes on to the parent, as with any spin box.
            notes = SpinFixture().box->run(script).remove("ignored, ");
        QTEST(notes, "log");
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
            TestRange range(orientation);
            TestSpan span(orientation);
            for (bool grabs : {false, true}) {
                QVERIFY(leavesNoTraces(
                    range,
                    {"press 20, move 21", "move 60", "release 60, press 80, move 90, move 70",
                     "release 70, press 50, move 95", "move 5, release 5", "setValues 30 30 30",
                     "setValues 31 31 31", "enableRange 0, press 31, move 52", "move 0, release 0",
                     "enableRange 1, setValues 20 80 50"}));
                for (int mode : {SpanSlider::FreeMovement, SpanSlider::NoCrossing}) {
                    span.run(QString("handleMovementMode %1").arg(mode));
                    QVERIFY(leavesNoTraces(span, {"press 20, move 21", "move 50", "move 90",
                                                  "move 10, release 10", "press 99, move 80",
                                                  "release 80, setSpan 20 60"}));
                }
                // When receivers have them painted elsewhere at each step.
                if (!grabs) {
                    connect(&range, &RangeSlider::mainPositionChanged, &range,
                            [&] { range.grab(); });
                    connect(&span, &SpanSlider::lowerPositionChanged, &span, [&] { span.grab(); });
                    connect(&span, &SpanSlider::lowerValueChanged, &span, [&] { span.grab(); });
                }
            }
        }
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

    void actions()
    {
        TestSpan slider;
        slider.triggerAction(QAbstractSlider::SliderSingleStepAdd, true);
        slider.triggerAction(QAbstractSlider::SliderSingleStepSub, false);
        slider.triggerAction(QAbstractSlider::SliderNoAction, true);
        QTest::ignoreMessage(QtWarningMsg, "SpanSlider::triggerAction: Unknown action");
        slider.triggerAction(QAbstractSlider::SliderPageStepAdd, false);
        QCOMPARE(slider.takeLog(),
                 QString("lower 21, span 21 60, upper 59, span 21 59, lower 0, span 0 59"));
        // To the far end, past the other handle.
        slider.triggerAction(QAbstractSlider::SliderToMaximum, true);
        QCOMPARE(slider.upperValue(), 99);
        QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        QCoreApplication::sendEvent(&slider, &letter);
        QVERIFY(!letter.isAccepted());
    }

    /// Nor does it matter that the whole range is below zero, or ends there.
    void onlyTheBarIsFilled()
    {
        for (const QString name : {"left", "right", "upright"}) {
            TestRange slider(ways[name].orientation);
            slider.setLayoutDirection(ways[name].direction);
            slider.setStyle(m_darkStyle.get());
            slider.setAttribute(Qt::WA_UnderMouse);
            slider.setValues(40, 60, 50);
            const QImage image = TestSupport::render(slider);
            for (int position : {10, 30, 45, 70, 90}) {
                const QColor color = image.pixelColor(slider.place(position));
                QCOMPARE(color.blue() - color.red() > 30, position == 45);
            }
            for (int most : {-200, 0}) {
                slider.setRange(most - 100, most);
                slider.setValues(most - 60, most - 40, most - 50);
                QCOMPARE(TestSupport::render(slider), image);
            }
        }
    }

    void aRealPressOnTheFieldDragsFromThere()
    {
        SpinFixture f;
        QCursor::setPos(f.box->mapToGlobal(QPoint(30, 10)));
        QTest::mousePress(f.box->field(), Qt::LeftButton, {},
                          f.box->field()->mapFrom(f.box, QPoint(30, 10)));
        QVERIFY(f.box->isDragging());
        TestSupport::sendDrag(f.box, QPoint(31, 10));
        QCOMPARE(f.box->run("release 31, exit"), QString("value 1 1"));
    }

    void focusAndHoverChooseTheMode()
    {
        SpinFixture f;
        const auto editing = [&f](SpinBox *focused, Qt::FocusReason reason, bool hovered = false) {
            focused->setFocus(reason);
            QHoverEvent hover(QEvent::HoverMove, QPointF(5, 5), QPointF(4, 5));
            if (hovered)
                QCoreApplication::sendEvent(f.sibling, &hover);
            return !f.box->field()->isReadOnly();
        };
        QCursor::setPos(f.window.mapToGlobal(QPoint(380, 90)));
        QVERIFY(editing(f.box, Qt::TabFocusReason));
        QVERIFY(editing(f.box, Qt::TabFocusReason, true));
        QVERIFY(!editing(f.sibling, Qt::TabFocusReason));
        QVERIFY(editing(f.box, Qt::TabFocusReason));
        QCursor::setPos(f.box->mapToGlobal(QPoint(30, 10)));
        QVERIFY(editing(f.sibling, Qt::OtherFocusReason));
        QVERIFY(!editing(f.sibling, Qt::OtherFocusReason, true));
        f.box->run("exit");
    }

    void valuesAreRoundedAndClamped()
    {
        TestSpin box(nullptr);
        QVector<int> values;
        for (double value : {5.5, -2.5, 1e300, qQNaN()}) {
            box.setValue(value);
            values << box.value();
        }
        QCOMPARE(values, QVector<int>({6, QtVersion::roundedNegativeHalf, 100, 100}));
        QVERIFY(!TestSupport::takesWheel(&box) && !TestSupport::takesWheel(box.field()));
        QCOMPARE(box.value(), 100);
    }

    void theSpinBoxMayBeDeletedInMidDrag()
    {
        SpinFixture f;
        f.box->run("enter, press 30, move 35");
        delete f.box;
        QVERIFY(TestSupport::nothingIsHeld());

        const QPointer<SpinBox> box(f.sibling);
        connect(f.sibling, QOverload<double, bool>::of(&SpinBox::valueChanged), this,
                [&f] { delete f.sibling; });
        f.sibling->run("press 30");
        TestSupport::sendDrag(f.sibling, QPoint(33, 10));
        QVERIFY(!box);
    }

    void restoresOnlyItsOwnCursor()
    {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        SpinFixture().box->run("exit, press 30, move 35, release 500");
        QVERIFY(QApplication::overrideCursor());
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QApplication::restoreOverrideCursor();
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

    /// Whether the screen shows after each script what a fresh painting would. In several styles,
    /// with and without tracking.
    template <typename Slider>
    bool leavesNoTraces(Slider &slider, const QStringList &scripts)
    {
        const std::unique_ptr<QStyle> windows(QStyleFactory::create("windows"));
        for (QStyle *style : {m_darkStyle.get(), QApplication::style(), windows.get()}) {
            slider.setStyle(style);
            for (bool tracking : {true, false}) {
                slider.setTracking(tracking);
                TestSupport::showExposed(&slider);
                for (const QString &script : scripts) {
                    TestSupport::onScreen(slider);
                    slider.run(script);
                    if (TestSupport::onScreen(slider) != TestSupport::freshlyPainted(slider))
                        return false;
                }
            }
        }
        slider.setStyle(nullptr);
        return true;
    }

    DarkUX m_theme;
    const std::unique_ptr<QStyle> m_darkStyle{m_theme.style()};
};

NOCTURNE_TEST_MAIN(TestSliders)

#include "tst_sliders.moc"
