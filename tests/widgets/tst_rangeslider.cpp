#include "gestures.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/RangeSlider>

#include <QtGui/QAccessible>
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
class TestRange : public TestSupport::Driven<RangeSlider>
{
public:
    explicit TestRange(Qt::Orientation orientation = Qt::Horizontal, bool range = true)
        : Driven(orientation)
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

    QStyleOptionSlider optionAt(int position) const override
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        option.sliderPosition = option.sliderValue = position;
        return option;
    }

    void perform(const QString &verb, int number) override
    {
        if (verb == "tracking")
            setTracking(number);
        else if (verb == "symmetric")
            setSymmetricMoves(number);
        else if (verb == "range")
            setEnableRange(number);
        else if (verb == "handles") // which of them are held, as bits
            note("holds")(isMinimumSliderDown() + 2 * isMaximumSliderDown()
                          + 4 * isMainSliderDown());
    }

    /// What a click at \a point first reports.
    QString click(const QPoint &point)
    {
        takeLog();
        press(point);
        release(point);
        return takeLog().section(',', 0, 0);
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
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("log");
        QTest::addColumn<Ints>("values");
        const auto row = [](const char *script, const char *log, const Ints &values) {
            QTest::newRow(script) << script << log << values;
        };
        row("press 20, handles, release 20", "pressed 1, holds 1, released 1", {20, 80, 50});
        row("press 20, drag 30, release 30",
            "pressed 1, minpos 30, positions 30 80 50, min 30, released 1, values 30 80 50",
            {30, 80, 50});
        row("press 80, drag 70, handles, release 70",
            "pressed 2, maxpos 70, positions 20 70 50, max 70, holds 2, released 2, "
            "values 20 70 50",
            {20, 70, 50});
        row("press 50, drag 95, release 95, handles",
            "pressed 4, mainpos 95, positions 20 80 95, main 95, released 4, values 20 80 95, "
            "holds 0",
            {20, 80, 95});
        row("press 20, drag 95, release 95", // The handles stop at each other.
            "pressed 1, minpos 80, positions 80 80 50, min 80, released 1, values 80 80 50",
            {80, 80, 50});
        row("jump 35, handles, release 35", // A press on the groove brings the main handle.
            "pressed 0, main 35, holds 4, released 4, values 20 80 35", {20, 80, 35});
        row("range 0, jump 20, handles, release 20", // Without a range so does one on a handle.
            "pressed 1, main 20, holds 4, released 4, values 20 80 20", {20, 80, 20});
        row("tracking 0, press 20, drag 25, release 25",
            "pressed 1, minpos 25, positions 25 80 50, released 1", {20, 80, 50});
        // A second button pressed in the middle is left alone; its release ends the drag.
        row("press 20, right 20, drag 22, rightup 22, drag 40, release 40",
            "pressed 1, minpos 22, positions 22 80 50, min 22, released 1, values 22 80 50, "
            "released 0",
            {22, 80, 50});
        row("symmetric 1, press 20, drag 15, symmetric 0, drag 14, release 14",
            "pressed 1, minpos 15, maxpos 85, positions 15 85 50, min 15, max 85, minpos 14, "
            "positions 14 85 50, min 14, released 1, values 14 85 50",
            {14, 85, 50});
        row("symmetric 1, press 80, drag 99, release 99",
            "pressed 2, minpos 1, maxpos 99, positions 1 99 50, min 1, max 99, released 2, "
            "values 1 99 50",
            {1, 99, 50});
    }

    void gestures()
    {
        QFETCH(QString, script);
        QFETCH(QString, log);
        QFETCH(Ints, values);
        for (const auto &way : ways) {
            TestRange slider(way.first);
            slider.setLayoutDirection(way.second);
            QCOMPARE(slider.run(script), log);
            QCOMPARE(slider.values(), values);
            QVERIFY(!slider.isMousePressed() && !slider.isSliderDown());
        }
    }

    void handlesOnTopOfEachOther()
    {
        TestRange slider;
        slider.setValues(50, 50, 50);
        const QRect handle = slider.handleAt(50);
        const int y = handle.center().y();
        QCOMPARE(slider.click(QPoint(handle.left() + 1, y)), QString("pressed 1"));
        QCOMPARE(slider.click(QPoint(handle.right() - 1, y)), QString("pressed 2"));
        QCOMPARE(handle.width() % 2, 1); // The tie is a pixel.
        const int tie = handle.left() + (handle.width() - 1) / 2;
        QCOMPARE(slider.click(QPoint(tie, y)), QString("pressed 2"));
        slider.setValues(50, 50, 90);
        QCOMPARE(slider.click(QPoint(handle.right() - 1, y)), QString("pressed 1"));

        TestRange vertical(Qt::Vertical);
        vertical.setValues(50, 50, 50);
        const QRect upright = vertical.handleAt(50);
        const int x = upright.center().x();
        QCOMPARE(vertical.click(QPoint(x, upright.bottom() - 1)), QString("pressed 1"));
        QCOMPARE(vertical.click(QPoint(x, upright.top() + 1)), QString("pressed 2"));
    }

    void symmetricMovesStayInTheRange()
    {
        const int most = std::numeric_limits<int>::max();
        for (const Ints &values : {Ints{10, 95, 50}, Ints{most / 4, most - 10, most / 2}}) {
            TestRange slider;
            slider.setRange(0, values[2] == 50 ? 100 : most);
            slider.setValues(values[0], values[1], values[2]);
            slider.setSymmetricMoves(true);
            slider.press(slider.place(values[0]));
            slider.drag(slider.place(0));
            slider.release(slider.place(0));
            QCOMPARE(slider.values(), Ints({0, slider.maximum(), values[2]}));
        }
    }

    void leavingTheDragAreaSnapsBack()
    {
        TestSupport::LimitedDragStyle style;
        TestRange slider;
        slider.setStyle(&style);
        QCOMPARE(slider.run("press 20, drag 30, leave 30, drag 30, release 30"),
                 QString("pressed 1, minpos 30, positions 30 80 50, min 30, minpos 20, "
                         "positions 20 80 50, min 20, minpos 30, positions 30 80 50, min 30, "
                         "released 1, values 30 80 50"));
    }

    void movesWithoutAHandleReportTheValue()
    {
        TestRange empty;
        empty.setRange(5, 5);
        empty.takeLog();
        QVERIFY(!empty.press(QPoint(100, 15)));
        QVERIFY(empty.isMousePressed());
        empty.drag(QPoint(120, 15));
        empty.drag(QPoint(140, 15));
        empty.release(QPoint(140, 15));
        QCOMPARE(empty.takeLog(), QString("hover 120 15 5, released 0"));

        for (bool horizontal : {true, false}) {
            TestRange slider(horizontal ? Qt::Horizontal : Qt::Vertical);
            QVERIFY(!slider.press(QPoint(15, 15), Qt::LeftButton, Qt::RightButton));
            const QPoint point = horizontal ? QPoint(80, 12) : QPoint(12, 80);
            QVERIFY(!slider.drag(point));
            slider.drag(point);
            // A quarter of the way from the left or from the top, where the maximum is.
            QCOMPARE(slider.takeLog(), QString(horizontal ? "hover 80 12 25" : "hover 12 80 75"));
            slider.release(point);
        }
    }

    void otherButtonsAndKeys()
    {
        TestRange slider;
        slider.press(slider.place(20), Qt::RightButton);
        slider.drag(slider.place(30));
        QVERIFY(!slider.isMousePressed());
        QTest::keyPress(&slider, Qt::Key_Right);
        QVERIFY(slider.isKeyPressed());
        QTest::keyRelease(&slider, Qt::Key_Right);
        QVERIFY(!slider.isKeyPressed());
        QVERIFY(!TestSupport::takesWheel(&slider));
        QCOMPARE(slider.values(), Ints({20, 80, 50}));
        QCOMPARE(slider.value(), 0);
        QCOMPARE(slider.takeLog(), QString());
    }

    void interruptedDrag_data() { TestSupport::addInterruptions(); }

    void interruptedDrag()
    {
        QFETCH(QString, how);
        TestRange slider;
        QVERIFY(TestSupport::showActive(&slider));
        slider.run("press 20, drag 30");
        const auto modal = TestSupport::interrupt(&slider, how);
        QCOMPARE(slider.run("handles"), QString("released 1, values 30 80 50, holds 0"));
        QVERIFY(!slider.isMousePressed() && !slider.isSliderDown());
        slider.drag(slider.place(50));
        QCOMPARE(slider.takeLog(), QString());
    }

    void dragGoesOnWhenTheWindowLosesTheFocus()
    {
        TestRange slider;
        QVERIFY(TestSupport::showActive(&slider));
        slider.setFocus();
        QTest::keyPress(&slider, Qt::Key_Shift);
        slider.run("press 20");
        QWidget other;
        QVERIFY(TestSupport::showActive(&other));
        QVERIFY(!slider.isKeyPressed());
        slider.run("drag 30, release 30");
        QCOMPARE(slider.minimumValue(), 30);
        QVERIFY(!slider.isSliderDown());
    }

    void receiversThatTakeTheSliderAway()
    {
        TestRange slider;
        slider.show();
        const auto hiding = connect(&slider, &RangeSlider::mousePressed, &slider, &QWidget::hide);
        QCOMPARE(slider.run("press 20, handles"), QString("pressed 1, released 0, holds 0"));
        QVERIFY(!slider.isSliderDown());
        disconnect(hiding);
        slider.show();
        connect(&slider, &QSlider::sliderPressed, &slider, [&] { slider.setEnabled(false); });
        QVERIFY(slider.run("press 20, handles").endsWith("holds 0"));
        QVERIFY(!slider.isSliderDown());

        auto doomed = std::make_unique<TestRange>();
        doomed->show();
        doomed->run("press 20, drag 25");
        doomed.reset();
        QCoreApplication::processEvents();
    }

    void toolTipOfTheRangeHandles()
    {
        TestRange slider;
        slider.move(50, 50);
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
        }
    }

    void handlesAreAccessible()
    {
        TestRange slider;
        slider.show();
        QAccessibleInterface *group = QAccessible::queryAccessibleInterface(&slider);
        QVERIFY(group);
        QCOMPARE(group->childCount(), 3);
        const QStringList names = {"Minimum", "Maximum", "Position"};
        for (int i = 0; i < 3; ++i) {
            QAccessibleInterface *handle = group->child(i);
            const int value = slider.values().at(i);
            const QPoint center = slider.mapToGlobal(slider.place(value));
            QCOMPARE(handle, group->child(i));
            QCOMPARE(group->indexOfChild(handle), i);
            QCOMPARE(handle->parent(), group);
            QCOMPARE(handle->role(), QAccessible::Slider);
            QCOMPARE(handle->text(QAccessible::Name), names.at(i));
            QCOMPARE(handle->valueInterface()->currentValue().toInt(), value);
            QCOMPARE(handle->text(QAccessible::Value), QString::number(value));
            QCOMPARE(handle->rect().center(), center);
            QCOMPARE(group->childAt(center.x(), center.y()), handle);
            QVERIFY(!handle->state().invisible);
        }
        group->child(0)->valueInterface()->setCurrentValue(25);
        group->child(2)->valueInterface()->setCurrentValue(1000);
        QCOMPARE(slider.takeLog(), QString("min 25, main 100"));

        slider.setEnableRange(false);
        QVERIFY(group->child(1)->state().invisible);
        group->child(1)->valueInterface()->setCurrentValue(90);
        QCOMPARE(slider.maximumValue(), 80);
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
