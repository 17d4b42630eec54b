#include "gestures.h"

#include <nocturne/SpanSlider>

using Ints = QVector<int>;

namespace {

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

} // namespace

class TestSpanSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create("fusion")); }
    void cleanup() { QVERIFY(TestSupport::nothingIsHeld()); }

    void movesLeaveNoTraces()
    {
        for (Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            for (auto mode : {SpanSlider::FreeMovement, SpanSlider::NoCrossing}) {
                QVERIFY(TestSpan(orientation, mode)
                            .leavesNoTraces({"press 20, move 21", "move 50", "move 90",
                                             "move 10, release 10", "press 99, move 80",
                                             "release 80"}));
            }
        }
    }

    void setters()
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

    void gestures_data()
    {
        TestSupport::addScripts({
            {"press 20, held, move 40, release 40, held",
             "held 1, lowerpos 40, lower 40, span 40 60, held 0"},
            {"press 60, move 90, release 90", "upperpos 90, upper 90, span 20 90"},
            {"tracking 0, press 20, move 30, move 35, release 35",
             "lowerpos 30, lowerpos 35, lower 35, span 35 60"},
            // A second button pressed in the middle is left alone; its release ends the drag.
            {"press 20, right 20, move 25, rightup 25, move 40, release 40, held",
             "ignored, lowerpos 25, lower 25, span 25 60, ignored, held 0"},
            {"right 20, press 20, move 25, rightup 25, release 25",
             "ignored, lowerpos 25, lower 25, span 25 60"},
            // A press between the handles grabs neither.
            {"press 40, held, move 60, release 60", "held 0, ignored"},
            {"press 60, move 70, leave 70, release 70", // It snaps back outside.
             "upperpos 70, upper 70, span 20 70, upperpos 60, upper 60, span 20 60"},
            {"one 7, press 7, held, wheel", "lower 7, upper 7, span 7 7, ignored, held 0, wheel 0"},
        });
        TestSupport::addInterruptions("show, tracking 0, press 20, move 30",
                                      ", move 50, press 60, move 70, release 70",
                                      "lowerpos 30, lower 30, span 30 60, held 0, upperpos 70, "
                                      "upper 70, span 30 70");
    }

    void gestures()
    {
        QFETCH(QString, script);
        QFETCH(QString, log);
        TestSupport::LimitedDragStyle style;
        for (int way = 0; way < 6; ++way) {
            TestSpan slider(way < 4 ? Qt::Horizontal : Qt::Vertical);
            const bool mirrored = way & 1;
            const bool inverted = way & 2;
            slider.setStyle(&style);
            slider.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
            slider.setInvertedAppearance(inverted);
            const bool startsFirst = slider.pick(slider.place(0)) < slider.pick(slider.place(99));
            QCOMPARE(startsFirst, slider.isHorizontal() ? mirrored == inverted : inverted);
            QCOMPARE(slider.run(script), log);
        }
    }

    void handlesThatMeet_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<Ints>("drag"); // lower and upper value, from and to
        QTest::addColumn<Ints>("span");
        const auto row = [](int mode, const Ints &drag, const Ints &span) {
            QTest::addRow("mode %d, from %d to %d", mode, drag[2], drag[3]) << mode << drag << span;
        };
        // Free handles pass and swap their roles.
        row(SpanSlider::FreeMovement, {20, 60, 20, 80}, {60, 80});
        row(SpanSlider::FreeMovement, {20, 60, 60, 10}, {10, 20});
        row(SpanSlider::NoCrossing, {20, 60, 20, 80}, {60, 60});
        row(SpanSlider::NoOverlapping, {20, 60, 20, 80}, {59, 60});
        row(SpanSlider::NoOverlapping, {20, 60, 60, 5}, {20, 21});
        // Handles on one value part in either direction.
        for (int mode : {SpanSlider::FreeMovement, SpanSlider::NoCrossing}) {
            row(mode, {50, 50, 50, 40}, {40, 50});
            row(mode, {50, 50, 50, 70}, {50, 70});
        }
    }

    void handlesThatMeet()
    {
        QFETCH(int, mode);
        QFETCH(Ints, drag);
        QFETCH(Ints, span);
        TestSpan slider(Qt::Horizontal, static_cast<SpanSlider::HandleMovementMode>(mode));
        slider.setSpan(drag[0], drag[1]);
        slider.run(QString("press %1, move %1").arg(drag[2]));
        for (int position = drag[2]; position != drag[3]; position += drag[2] < drag[3] ? 1 : -1)
            slider.run(QString("move %1").arg(position));
        slider.run(QString("move %1, release %1").arg(drag[3]));
        QCOMPARE(slider.span(), span);
        QVERIFY(slider.lowerPosition() <= slider.upperPosition());
    }

    void keys_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Ints>("span");
        QTest::addColumn<Ints>("spanOfOtherMain"); // after the handles have swapped their roles
        const Qt::Orientation across = Qt::Horizontal;
        QTest::newRow("home") << across << Qt::Key_Home << Ints{0, 60} << Ints{0, 60};
        QTest::newRow("end") << across << Qt::Key_End << Ints{20, 99} << Ints{20, 99};
        QTest::newRow("left") << across << Qt::Key_Left << Ints{19, 60} << Ints{20, 59};
        QTest::newRow("right") << across << Qt::Key_Right << Ints{21, 60} << Ints{20, 61};
        QTest::newRow("up") << across << Qt::Key_Up << Ints{20, 61} << Ints{21, 60};
        QTest::newRow("down") << Qt::Vertical << Qt::Key_Down << Ints{19, 60} << Ints{20, 59};
    }

    void keys()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(Qt::Key, key);
        QFETCH(Ints, span);
        QFETCH(Ints, spanOfOtherMain);
        TestSpan slider(orientation);
        QTest::keyClick(&slider, key);
        QCOMPARE(slider.span(), span);
        slider.setSpan(20, 60);
        slider.run("press 20, move 59, move 60, move 61, move 70, release 70");
        slider.setSpan(20, 60);
        QTest::keyClick(&slider, key);
        QCOMPARE(slider.span(), spanOfOtherMain);
    }

    void keysInverted()
    {
        TestSpan slider;
        slider.setInvertedAppearance(true);
        slider.setInvertedControls(true);
        QTest::keyClick(&slider, Qt::Key_Left);
        QTest::keyClick(&slider, Qt::Key_Up);
        QCOMPARE(slider.span(), Ints({21, 59}));
        QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        QCoreApplication::sendEvent(&slider, &letter);
        QVERIFY(!letter.isAccepted());
    }

    void actions()
    {
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
    }

    void receiversThatTakeTheSliderAway()
    {
        for (const char *how : {"hide", "popup"}) {
            TestSpan slider;
            slider.setSpan(50, 50);
            slider.run("show");
            connect(&slider, &QSlider::sliderPressed, &slider, [&] { slider.run(how); });
            QCOMPARE(slider.run("press 50, held, move 40"), QString("held 0, ignored"));
        }
        auto doomed = std::make_unique<TestSpan>();
        doomed->run("show, press 20, move 25");
        doomed.reset();
        QCoreApplication::processEvents();
    }

    /// Paints groove, span and handles piece by piece and compares every pixel.
    void painting()
    {
        for (Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            TestSpan slider(orientation);
            for (const Ints &span : {Ints{20, 60}, Ints{50, 50}, Ints{0, 99}}) {
                slider.setSpan(span[0], span[1]);
                QVERIFY(slider.paintsLike(
                    [&](QPainter *painter) { paintByHand(painter, slider, span); }));
            }
        }
    }

private:
    static void paintByHand(QPainter *painter, const TestSpan &slider, const Ints &span)
    {
        const QStyle *style = slider.style();
        const bool horizontal = slider.orientation() == Qt::Horizontal;
        QStyleOptionSlider option = slider.optionAt(0);
        option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderTickmarks;
        style->drawComplexControl(QStyle::CC_Slider, &option, painter, &slider);

        const QRect groove = slider.rectOf(QStyle::SC_SliderGroove)
                                 .adjusted(0, 0, horizontal ? -1 : 0, horizontal ? 0 : -1);
        const QPoint a = slider.place(span[0]);
        const QPoint b = slider.place(span[1]);
        const QRect box = horizontal ? QRect(QPoint(a.x(), a.y() - 2), QPoint(b.x(), a.y() + 1))
                                     : QRect(QPoint(a.x() - 2, b.y()), QPoint(a.x() + 1, a.y()));
        const QColor highlight = slider.palette().color(QPalette::Highlight);
        QLinearGradient gradient(groove.topLeft(),
                                 horizontal ? groove.bottomLeft() : groove.topRight());
        gradient.setColorAt(0, highlight.darker(120));
        gradient.setColorAt(1, highlight.lighter(108));
        painter->setBrush(gradient);
        painter->setPen(QPen(highlight.darker(horizontal ? 130 : 150), 0));
        painter->drawRect(box.intersected(groove));

        for (SpanSlider::SpanHandle handle : {SpanSlider::LowerHandle, SpanSlider::UpperHandle}) {
            slider.initStyleOption(&option, handle);
            option.subControls = QStyle::SC_SliderHandle;
            style->drawComplexControl(QStyle::CC_Slider, &option, painter, &slider);
        }
    }
};

NOCTURNE_TEST_MAIN(TestSpanSlider)

#include "tst_spanslider.moc"
