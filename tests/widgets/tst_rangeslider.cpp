#include "gestures.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/RangeSlider>

#include <QtGui/QHelpEvent>
#include <QtWidgets/QToolTip>

using Ints = QVector<int>;

namespace {

const QVector<QPair<Qt::Orientation, Qt::LayoutDirection>> ways = {
    {Qt::Horizontal, Qt::LeftToRight},
    {Qt::Horizontal, Qt::RightToLeft},
    {Qt::Vertical, Qt::LeftToRight},
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

} // namespace

class TestRangeSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create("fusion")); }
    void cleanup() { QVERIFY(TestSupport::nothingIsHeld()); }

    void movesLeaveNoTraces()
    {
        for (Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            QVERIFY(TestRange(orientation)
                        .leavesNoTraces({"press 20, move 21", "move 60",
                                         "release 60, press 80, move 90, move 70",
                                         "release 70, press 50, move 95", "move 5, release 5",
                                         "all 30", "all 31"}));
            QVERIFY(TestRange(orientation, false).leavesNoTraces({"press 50, move 52", "move 0"}));
        }
    }

    void setters()
    {
        const RangeSlider fresh(nullptr);
        QCOMPARE(fresh.maximumValue(), 99);
        QCOMPARE(fresh.mainValue(), 50);
        QCOMPARE(fresh.frameRate(), 25.0);

        TestRange slider;
        slider.setValues(80, 20, 50);
        QCOMPARE(slider.takeLog(), QString());
        slider.setValues(-10, 150, 500);
        QCOMPARE(slider.values(), Ints({0, 100, 500}));
        QCOMPARE(slider.positions(), Ints({0, 100, 500}));
        QCOMPARE(slider.takeLog(), QString("min 0, max 100, main 500"));
        slider.setValues(10, 60, 50);
        slider.setMinimumValue(90);
        QCOMPARE(slider.values(), Ints({90, 90, 50}));
        slider.setMaximumValue(40);
        QCOMPARE(slider.values(), Ints({40, 40, 50}));

        slider.setValues(30, 60, 50);
        slider.takeLog();
        slider.setMaximumPosition(10);
        QCOMPARE(slider.positions(), Ints({10, 10, 50}));
        QCOMPARE(slider.values(), Ints({10, 10, 50}));
        QCOMPARE(slider.takeLog(), QString("min 10, max 10"));
        slider.positionChange(70);
        QCOMPARE(slider.mainValue(), 70);
        QCOMPARE(slider.takeLog(), QString());
        QVERIFY(!slider.signalsBlocked());

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

    void signalOrderWhileDown()
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

    void gestures_data()
    {
        TestSupport::addScripts({
            {"press 20, handles, release 20, held", "pressed 1, holds 1, released 1, held 0"},
            {"press 20, move 30, held, release 30",
             "pressed 1, minpos 30, positions 30 80 50, min 30, held 1, released 1, "
             "values 30 80 50"},
            {"press 80, move 70, handles, release 70",
             "pressed 2, maxpos 70, positions 20 70 50, max 70, holds 2, released 2, "
             "values 20 70 50"},
            {"press 50, move 95, release 95, handles",
             "pressed 4, mainpos 95, positions 20 80 95, main 95, released 4, values 20 80 95, "
             "holds 0"},
            {"press 20, move 95, release 95", // The handles stop at each other.
             "pressed 1, minpos 80, positions 80 80 50, min 80, released 1, values 80 80 50"},
            {"press 80, move 5, release 5",
             "pressed 2, maxpos 20, positions 20 20 50, max 20, released 2, values 20 20 50"},
            {"jump 35, handles, release 35", // A press on the groove brings the main handle.
             "pressed 0, main 35, holds 4, released 4, values 20 80 35"},
            {"range 0, jump 20, handles, release 20", // Without a range so does one on a handle.
             "pressed 1, main 20, holds 4, released 4, values 20 80 20"},
            {"tracking 0, press 20, move 25, release 25",
             "pressed 1, minpos 25, positions 25 80 50, released 1"},
            // A second button pressed in the middle is left alone; its release ends the drag.
            {"press 20, right 20, move 22, rightup 22, move 40, release 40, held",
             "pressed 1, minpos 22, positions 22 80 50, min 22, released 1, values 22 80 50, "
             "released 0, held 0"},
            {"right 20, held, move 30, rightup 30, key, keyed", "held 0, released 0, keyed 1"},
            {"symmetric 1, press 20, move 15, symmetric 0, move 14, release 14",
             "pressed 1, minpos 15, maxpos 85, positions 15 85 50, min 15, max 85, minpos 14, "
             "positions 14 85 50, min 14, released 1, values 14 85 50"},
            {"symmetric 1, press 80, move 99, release 99",
             "pressed 2, minpos 1, maxpos 99, positions 1 99 50, min 1, max 99, released 2, "
             "values 1 99 50"},
            {"press 20, move 30, leave 30, move 30, release 30", // It snaps back outside.
             "pressed 1, minpos 30, positions 30 80 50, min 30, minpos 20, positions 20 80 50, "
             "min 20, minpos 30, positions 30 80 50, min 30, released 1, values 30 80 50"},
            // The keys' release goes elsewhere, the mouse's does not.
            {"show, key, press 20, deactivate, keyed, move 30, release 30, held",
             "pressed 1, keyed 0, minpos 30, positions 30 80 50, min 30, released 1, "
             "values 30 80 50, held 0"},
        });
        TestSupport::addInterruptions("show, press 20, move 30", ", move 50",
                                      "pressed 1, minpos 30, positions 30 80 50, min 30, "
                                      "released 1, values 30 80 50, held 0");
    }

    void gestures()
    {
        QFETCH(QString, script);
        QFETCH(QString, log);
        TestSupport::LimitedDragStyle style;
        for (const auto &way : ways) {
            TestRange slider(way.first);
            slider.setStyle(&style);
            slider.setLayoutDirection(way.second);
            QCOMPARE(slider.run(script), log);
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

    void receiversThatTakeTheSliderAway()
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
        }
        auto doomed = std::make_unique<TestRange>();
        doomed->run("show, press 20, move 25");
        doomed.reset();
        QCoreApplication::processEvents();
    }

    void toolTipOfTheRangeHandles()
    {
        TestRange slider;
        slider.show();
        const auto help = [&](int position) {
            QToolTip::hideText();
            if (!QTest::qWaitFor([] { return !QToolTip::isVisible(); }))
                return QString("a tool tip that stays");
            const QPoint point = slider.place(position);
            QHelpEvent event(QEvent::ToolTip, point, slider.mapToGlobal(point));
            QCoreApplication::sendEvent(&slider, &event);
            return QToolTip::isVisible() ? QToolTip::text() : QString();
        };
        QCOMPARE(help(20), QString());
        slider.setHandleToolTip("frame %1");
        QCOMPARE(help(20), QString("frame 20"));
        QCOMPARE(help(80), QString("frame 80"));
        QCOMPARE(help(50), QString());
    }

    /// Paints groove, bar and handles piece by piece and compares every pixel.
    void painting()
    {
        // A long bar, one too short to have a middle, and the main handle in different places.
        for (const Ints &values : {Ints{20, 80, 50}, Ints{40, 41, 10}, Ints{0, 100, 100}}) {
            for (int state = 0; state < 4; ++state) {
                const bool range = state & 1;
                TestRange slider(state & 2 ? Qt::Horizontal : Qt::Vertical, range);
                slider.setValues(values[0], values[1], values[2]);
                QVERIFY(slider.paintsLike(
                    [&](QPainter *painter) { paintByHand(painter, slider, values, range); }));
            }
        }
    }

    void onlyTheBarIsFilled()
    {
        for (const auto &way : ways) {
            TestRange slider(way.first);
            slider.setLayoutDirection(way.second);
            slider.setStyle(m_theme.style());
            slider.setValues(40, 60, 50);
            slider.setAttribute(Qt::WA_UnderMouse);
            const QImage image = TestSupport::render(slider);
            const QPoint inside = slider.place(45) + QPoint(0, way.first == Qt::Horizontal);
            COMPARE_PIXEL(image, inside.x(), inside.y(), QColor(65, 155, 249));
            for (int position : {10, 30, 70, 90})
                QVERIFY(image.pixelColor(slider.place(position)).blue() < 50);
            // Nor is it when the whole range is below zero, or ends there.
            for (int most : {-200, 0}) {
                slider.setRange(most - 100, most);
                slider.setValues(most - 60, most - 40, most - 50);
                QCOMPARE(TestSupport::render(slider), image);
            }
        }
    }

private:
    static void paintByHand(QPainter *painter, const TestRange &slider, const Ints &values,
                            bool range)
    {
        const QStyle *style = slider.style();
        QStyleOptionSlider option = slider.optionAt(-100);
        option.subControls = QStyle::SC_SliderGroove;
        option.upsideDown = false;
        style->drawComplexControl(QStyle::CC_Slider, &option, painter, &slider);
        const QRect groove = slider.rectOf(QStyle::SC_SliderGroove, -100);
        const QPoint a = slider.place(values[0]);
        const QPoint b = slider.place(values[1]);
        const QPoint c = groove.center();
        const QRect box = slider.orientation() == Qt::Horizontal
                              ? QRect(QPoint(a.x(), c.y() - 2), QPoint(b.x(), c.y() + 1))
                              : QRect(QPoint(c.x() - 2, b.y()), QPoint(c.x() + 1, a.y()));
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(0.5, 0.5);
        painter->setPen(QColor(11, 11, 11));
        painter->setBrush(QColor(65, 155, 249, 200));
        painter->drawRoundedRect(
            box.intersected(groove).adjusted(range ? 0 : -4, 1, range ? 0 : 4, 2), 2, 2);
        if (range) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(Qt::green);
            painter->drawRect(slider.handleAt(values[0]).adjusted(5, 0, -6, 0));
            painter->drawRect(slider.handleAt(values[1]).adjusted(5, 0, -6, 0));
        }
        option = slider.optionAt(values[2]);
        option.subControls = QStyle::SC_SliderHandle;
        style->drawComplexControl(QStyle::CC_Slider, &option, painter, &slider);
    }

    DarkUX m_theme;
    const std::unique_ptr<QStyle> m_darkStyle{m_theme.style()};
};

NOCTURNE_TEST_MAIN(TestRangeSlider)

#include "tst_rangeslider.moc"
