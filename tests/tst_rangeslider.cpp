#include "gestures.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/RangeSlider>

#include <QtGui/QAccessible>
#include <QtGui/QHelpEvent>
#include <QtWidgets/QToolTip>

using Ints = QVector<int>;

namespace {

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

/// Whether every pixel is the same, give or take one of 255: what shines through a smoothed corner
/// is rounded once more when the corner was kept.
bool sameImage(const QImage &a, const QImage &b)
{
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor p = a.pixelColor(x, y);
            const QColor q = b.pixelColor(x, y);
            if (qAbs(p.red() - q.red()) > 1 || qAbs(p.green() - q.green()) > 1
                || qAbs(p.blue() - q.blue()) > 1 || qAbs(p.alpha() - q.alpha()) > 1)
                return false;
        }
    }
    return a.size() == b.size();
}

} // namespace

class TestRangeSlider : public QObject
{
    Q_OBJECT

private slots:
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

    void dragsEachHandle_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("horizontal") << Qt::Horizontal << Qt::LeftToRight;
        QTest::newRow("right to left") << Qt::Horizontal << Qt::RightToLeft;
        QTest::newRow("vertical") << Qt::Vertical << Qt::LeftToRight;
    }

    void dragsEachHandle()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(Qt::LayoutDirection, direction);
        TestRange slider(orientation);
        slider.setLayoutDirection(direction);
        // Off the middle of the handle, so that a lost click offset would show.
        const QPoint off = orientation == Qt::Horizontal ? QPoint(2, 0) : QPoint(0, 2);
        QVERIFY(slider.press(slider.place(20) + off));
        QVERIFY(slider.isMinimumSliderDown() && slider.isMousePressed() && slider.isSliderDown());
        slider.release(slider.place(20) + off);
        slider.dragFromTo(20, 30, off);
        slider.dragFromTo(80, 70, off);
        QCOMPARE(slider.values(), Ints({30, 70, 50}));

        slider.takeLog();
        slider.press(slider.place(50) + off);
        slider.drag(slider.place(95) + off);
        slider.release(slider.place(95) + off);
        QCOMPARE(slider.takeLog(), QString("pressed 4, mainpos 95, positions 30 70 95, main 95, "
                                           "released 4, values 30 70 95"));
        QVERIFY(!slider.isMousePressed() && !slider.isSliderDown());

        // A press on the groove brings the main handle.
        slider.press(slider.place(50));
        QCOMPARE(slider.takeLog(), QString("pressed 0, main 50"));
        QVERIFY(slider.isMainSliderDown());
        slider.drag(slider.place(51));
        slider.release(slider.place(51));
        QVERIFY(slider.takeLog().endsWith("values 30 70 51"));

        // Without a range so does one on a range handle.
        slider.setEnableRange(false);
        slider.press(slider.place(30));
        QVERIFY(slider.isMainSliderDown() && !slider.isMinimumSliderDown());
        slider.release(slider.place(30));
        QCOMPARE(slider.takeLog(), QString("pressed 1, main 30, released 4, values 30 70 30"));
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

        vertical.setValues(20, 80, 50);
        vertical.dragFromTo(20, 95);
        QCOMPARE(vertical.values(), Ints({80, 80, 50}));
    }

    void symmetricMoves()
    {
        TestRange slider;
        slider.setSymmetricMoves(true);
        slider.press(slider.place(20));
        slider.drag(slider.place(15));
        QCOMPARE(slider.values(), Ints({15, 85, 50}));
        slider.setSymmetricMoves(false);
        slider.drag(slider.place(14));
        QCOMPARE(slider.values(), Ints({14, 85, 50}));
        slider.release(slider.place(14));

        slider.setSymmetricMoves(true);
        slider.setValues(10, 95, 50);
        slider.dragFromTo(10, 0);
        QCOMPARE(slider.values(), Ints({0, 100, 50}));
        slider.setValues(30, 60, 50);
        slider.dragFromTo(60, 65);
        QCOMPARE(slider.values(), Ints({25, 65, 50}));

        const int most = std::numeric_limits<int>::max();
        slider.setRange(0, most);
        slider.setValues(most / 4, most - 10, most / 2);
        slider.press(slider.place(most / 4));
        slider.drag(slider.place(0));
        slider.release(slider.place(0));
        QCOMPARE(slider.values(), Ints({0, most, most / 2}));
    }

    void withoutTrackingOnlyPositionsMove()
    {
        TestRange slider;
        slider.setTracking(false);
        slider.press(slider.place(20));
        slider.drag(slider.place(25));
        slider.release(slider.place(25));
        QCOMPARE(slider.takeLog(), QString("pressed 1, minpos 25, positions 25 80 50, released 1"));
        QCOMPARE(slider.values(), Ints({20, 80, 50}));
        QCOMPARE(slider.positions(), Ints({25, 80, 50}));
        slider.setMainValue(51);
        QCOMPARE(slider.positions(), Ints({20, 80, 51}));
    }

    void leavingTheDragAreaSnapsBack()
    {
        TestSupport::LimitedDragStyle style;
        TestRange slider;
        slider.setStyle(&style);
        slider.press(slider.place(20));
        for (const QPoint &step : {QPoint(25, 30), QPoint(60, 20), QPoint(0, 30)}) {
            slider.drag(slider.place(30) + QPoint(0, step.x()));
            QCOMPARE(slider.minimumValue(), step.y());
        }
        slider.release(slider.place(30));
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
        QCOMPARE(slider.takeLog(), QString());

        // A second button pressed in the middle is left alone; its release ends the drag.
        slider.press(slider.place(20));
        slider.press(slider.place(20), Qt::RightButton, Qt::LeftButton);
        QVERIFY(slider.isMinimumSliderDown());
        slider.drag(slider.place(22));
        QCOMPARE(slider.minimumValue(), 22);
        slider.takeLog();
        slider.release(slider.place(22), Qt::RightButton, Qt::LeftButton);
        QCOMPARE(slider.takeLog(), QString("released 1, values 22 80 50"));
        slider.drag(slider.place(40));
        slider.release(slider.place(40));
        QCOMPARE(slider.takeLog(), QString("released 0"));

        QTest::keyPress(&slider, Qt::Key_Right);
        QVERIFY(slider.isKeyPressed());
        QTest::keyRelease(&slider, Qt::Key_Right);
        QVERIFY(!slider.isKeyPressed());
        QVERIFY(!TestSupport::takesWheel(&slider));
        QCOMPARE(slider.values(), Ints({22, 80, 50}));
        QCOMPARE(slider.value(), 0);
        QCOMPARE(slider.takeLog(), QString());
    }

    void interruptedDrag_data() { TestSupport::addInterruptions(); }

    void interruptedDrag()
    {
        QFETCH(QString, how);
        TestRange slider;
        QVERIFY(TestSupport::showActive(&slider));
        slider.press(slider.place(20));
        slider.drag(slider.place(30));
        slider.takeLog();
        const auto modal = TestSupport::interrupt(&slider, how);
        QCOMPARE(slider.takeLog(), QString("released 1, values 30 80 50"));
        QVERIFY(!slider.isMousePressed() && !slider.isSliderDown());
        QVERIFY(!slider.isMinimumSliderDown());
        slider.drag(slider.place(50));
        QCOMPARE(slider.minimumValue(), 30);
        QCOMPARE(slider.takeLog(), QString());
    }

    void dragGoesOnWhenTheWindowLosesTheFocus()
    {
        TestRange slider;
        QVERIFY(TestSupport::showActive(&slider));
        slider.setFocus();
        QTest::keyPress(&slider, Qt::Key_Shift);
        slider.press(slider.place(20));
        QWidget other;
        QVERIFY(TestSupport::showActive(&other));
        QVERIFY(!slider.isKeyPressed());
        slider.drag(slider.place(30));
        QCOMPARE(slider.minimumValue(), 30);
        slider.release(slider.place(30));
        QVERIFY(!slider.isSliderDown());
    }

    void receiversThatTakeTheSliderAway()
    {
        TestRange slider;
        slider.show();
        const auto hiding = connect(&slider, &RangeSlider::mousePressed, &slider, &QWidget::hide);
        slider.press(slider.place(20));
        QCOMPARE(slider.takeLog(), QString("pressed 1, released 0"));
        QVERIFY(!slider.isSliderDown() && !slider.isMinimumSliderDown());
        disconnect(hiding);
        slider.show();
        connect(&slider, &QSlider::sliderPressed, &slider, [&] { slider.setEnabled(false); });
        slider.press(slider.place(20));
        QVERIFY(!slider.isSliderDown() && !slider.isMinimumSliderDown());

        auto doomed = std::make_unique<TestRange>();
        doomed->show();
        doomed->press(doomed->place(20));
        doomed->drag(doomed->place(25));
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

    void painting_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<bool>("range");
        for (bool range : {true, false}) {
            QTest::addRow("horizontal, range %d", range) << Qt::Horizontal << range;
            QTest::addRow("vertical, range %d", range) << Qt::Vertical << range;
        }
    }

    /// Paints groove, bar and handles piece by piece and compares every pixel.
    void painting()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(bool, range);
        TestRange slider(orientation, range);
        // A long bar, one too short to have a middle, and the main handle in different places.
        for (const Ints &values : {Ints{20, 80, 50}, Ints{40, 41, 10}, Ints{0, 100, 100}}) {
            slider.setValues(values[0], values[1], values[2]);
            for (int ratio : {1, 2}) {
                const auto paint = [&](auto work) {
                    return TestSupport::paintOn(slider.size(), Qt::darkGray, work, ratio);
                };
                QVERIFY(sameImage(
                    paint([&](QPainter &p) { slider.render(&p, {}, {}, QWidget::DrawChildren); }),
                    paint([&](QPainter &p) { paintByHand(&p, slider, values, range); })));
            }
        }
    }

    void grooveIsNotFilled_data() { dragsEachHandle_data(); }

    void grooveIsNotFilled()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(Qt::LayoutDirection, direction);
        TestRange slider(orientation);
        slider.setLayoutDirection(direction);
        slider.setStyle(m_theme.style());
        slider.setValues(40, 60, 50);
        const QImage image = TestSupport::render(slider);
        const QPoint inside = slider.place(45) + QPoint(0, orientation == Qt::Horizontal);
        QVERIFY(image.pixelColor(inside).blue() > 100);
        for (int position : {10, 30, 70, 90})
            QVERIFY(image.pixelColor(slider.place(position)).blue() < 50);
    }

    void barIsOpaqueUnderTheMouse()
    {
        TestRange slider;
        const QPoint middle = slider.place(35);
        slider.setAttribute(Qt::WA_UnderMouse);
        COMPARE_PIXEL(TestSupport::render(slider), middle.x(), middle.y() + 1,
                      QColor(65, 155, 249));
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
