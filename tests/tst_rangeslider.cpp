#include "testsupport.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/RangeSlider>

#include <QtCore/QPointer>
#include <QtGui/QAccessible>
#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QDialog>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOptionSlider>
#include <QtWidgets/QToolTip>

#include <memory>

namespace {

constexpr int minimumHandle = 1;
constexpr int maximumHandle = 2;
constexpr int mainHandle = 4;

/// Fusion with a drag area of 20 units around the slider when asked for.
class LimitedDragStyle : public QProxyStyle
{
public:
    LimitedDragStyle()
        : QProxyStyle(QStringLiteral("fusion"))
    {}
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        return metric == PM_MaximumDragDistance ? 20
                                                : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

/// A range slider of 0 to 100 and what it reported.
class TestRange : public RangeSlider
{
public:
    explicit TestRange(Qt::Orientation orientation = Qt::Horizontal, bool range = true)
        : RangeSlider(orientation)
    {
        const bool horizontal = orientation == Qt::Horizontal;
        resize(horizontal ? QSize(320, 30) : QSize(30, 320));
        setRange(0, 100);
        setEnableRange(range);
        setValues(20, 80, 50);
        const auto note = [this](const char *name) {
            return [this, name](int value) {
                log << QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(value);
            };
        };
        connect(this, &RangeSlider::minimumValueChanged, this, note("min"));
        connect(this, &RangeSlider::maximumValueChanged, this, note("max"));
        connect(this, &RangeSlider::mainValueChanged, this, note("main"));
        connect(this, &RangeSlider::minimumPositionChanged, this, note("minpos"));
        connect(this, &RangeSlider::maximumPositionChanged, this, note("maxpos"));
        connect(this, &RangeSlider::mainPositionChanged, this, note("mainpos"));
        connect(this, &RangeSlider::mousePressed, this, note("pressed"));
        connect(this, &RangeSlider::mouseReleased, this, note("released"));
        const auto noteAll = [this](const char *name) {
            return [this, name](int a, int b, int c) {
                log << QStringLiteral("%1 %2 %3 %4").arg(QLatin1String(name)).arg(a).arg(b).arg(c);
            };
        };
        connect(this, &RangeSlider::valuesChanged, this, noteAll("values"));
        connect(this, &RangeSlider::positionsChanged, this, noteAll("positions"));
        connect(this, &RangeSlider::sliderMoveChanged, this, noteAll("hover"));
    }

    QStyleOptionSlider option(int position) const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        option.sliderPosition = option.sliderValue = position;
        return option;
    }

    QRect handleAt(int position) const
    {
        const QStyleOptionSlider slider = option(position);
        return style()->subControlRect(QStyle::CC_Slider, &slider, QStyle::SC_SliderHandle, this);
    }

    /// The middle of a handle at that position.
    QPoint place(int position) const { return handleAt(position).center(); }

    void mouse(QEvent::Type type, const QPoint &pos, Qt::MouseButton button,
               Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, pos, button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &event);
        accepted = event.isAccepted();
    }
    void press(const QPoint &pos)
    {
        mouse(QEvent::MouseButtonPress, pos, Qt::LeftButton, Qt::LeftButton);
    }
    void drag(const QPoint &pos) { mouse(QEvent::MouseMove, pos, Qt::NoButton, Qt::LeftButton); }
    void release(const QPoint &pos)
    {
        mouse(QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton);
    }

    QStringList takeLog() { return std::exchange(log, {}); }
    QVector<int> values() const { return {minimumValue(), maximumValue(), mainValue()}; }
    QVector<int> positions() const
    {
        return {minimumPosition(), maximumPosition(), mainPosition()};
    }

    QStringList log;
    bool accepted = false;
};

/// Whether every pixel is the same, give or take one of 255: what shines through a smoothed corner
/// is rounded once more when the corner was kept.
bool sameImage(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return false;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor p = a.pixelColor(x, y);
            const QColor q = b.pixelColor(x, y);
            if (qAbs(p.red() - q.red()) > 1 || qAbs(p.green() - q.green()) > 1
                || qAbs(p.blue() - q.blue()) > 1 || qAbs(p.alpha() - q.alpha()) > 1)
                return false;
        }
    }
    return true;
}

} // namespace

using Ints = QVector<int>;

class TestRangeSlider : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion"))); }

    void cleanup()
    {
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(!QWidget::mouseGrabber());
    }

    void startsWithTheWholeRange()
    {
        const RangeSlider slider(nullptr);
        QCOMPARE(slider.minimumValue(), 0);
        QCOMPARE(slider.maximumValue(), 99);
        QCOMPARE(slider.maximumPosition(), 99);
        QCOMPARE(slider.mainValue(), 50);
        QCOMPARE(slider.frameRate(), 25.0);
        QVERIFY(slider.hasMouseTracking());
    }

    void setters()
    {
        TestRange slider;
        slider.setValues(80, 20, 50);
        QCOMPARE(slider.values(), Ints({20, 80, 50}));
        QVERIFY(slider.log.isEmpty());

        slider.setValues(-10, 150, 500);
        QCOMPARE(slider.values(), Ints({0, 100, 500}));
        QCOMPARE(slider.positions(), Ints({0, 100, 500}));
        QCOMPARE(slider.takeLog(), QStringList({"min 0", "max 100", "main 500"}));

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
        QCOMPARE(slider.takeLog(), QStringList({"min 10", "max 10"}));
    }

    void positionsWaitWithoutTracking()
    {
        TestRange slider;
        slider.setTracking(false);
        slider.setMinimumPosition(90);
        QCOMPARE(slider.positions(), Ints({90, 90, 50}));
        QCOMPARE(slider.values(), Ints({20, 80, 50}));
        QVERIFY(slider.log.isEmpty());
        slider.setMainValue(51);
        QCOMPARE(slider.positions(), Ints({20, 80, 51}));
    }

    void signalOrderWhileDown()
    {
        TestRange slider;
        slider.setSliderDown(true);
        slider.setValues(10, 90, 40);
        QCOMPARE(slider.takeLog(), QStringList({"positions 10 90 40", "minpos 10", "maxpos 90",
                                                "mainpos 40", "min 10", "max 90", "main 40"}));
        slider.setPositions(11, 91, 41);
        QCOMPARE(slider.takeLog(),
                 QStringList({"minpos 11", "maxpos 91", "mainpos 41", "positions 11 91 41",
                              "min 11", "max 91", "main 41"}));
        slider.setPositions(11, 91, 41);
        QVERIFY(slider.log.isEmpty());
    }

    void positionChangeIsSilent()
    {
        TestRange slider;
        slider.positionChange(70);
        QCOMPARE(slider.mainValue(), 70);
        QVERIFY(slider.log.isEmpty());
        QVERIFY(!slider.signalsBlocked());
    }

    void rangeChangeIsClampedOnRequest()
    {
        TestRange slider;
        slider.setRange(0, 50);
        QCOMPARE(slider.maximumValue(), 80);
        QVERIFY(QMetaObject::invokeMethod(&slider, "onRangeChanged", Q_ARG(int, 1), Q_ARG(int, 2),
                                          Q_ARG(int, 3)));
        QCOMPARE(slider.values(), Ints({20, 50, 50}));
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

        slider.press(slider.place(20) + off);
        QVERIFY(slider.isMinimumSliderDown());
        QVERIFY(slider.isMousePressed() && slider.isSliderDown() && slider.accepted);
        for (int position = 21; position <= 30; ++position)
            slider.drag(slider.place(position) + off);
        slider.release(slider.place(30) + off);
        QCOMPARE(slider.values(), Ints({30, 80, 50}));

        slider.press(slider.place(80) + off);
        slider.drag(slider.place(70) + off);
        slider.release(slider.place(70) + off);
        QCOMPARE(slider.values(), Ints({30, 70, 50}));

        slider.takeLog();
        slider.press(slider.place(50) + off);
        slider.drag(slider.place(95) + off);
        slider.release(slider.place(95) + off);
        QCOMPARE(slider.values(), Ints({30, 70, 95}));
        QCOMPARE(slider.takeLog(), QStringList({"pressed 4", "mainpos 95", "positions 30 70 95",
                                                "main 95", "released 4", "values 30 70 95"}));
        QVERIFY(!slider.isMousePressed() && !slider.isSliderDown());
    }

    void grooveClickMovesTheMainHandle_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::newRow("horizontal") << Qt::Horizontal;
        QTest::newRow("vertical") << Qt::Vertical;
    }

    void grooveClickMovesTheMainHandle()
    {
        QFETCH(Qt::Orientation, orientation);
        TestRange slider(orientation);
        slider.press(slider.place(35));
        QCOMPARE(slider.takeLog(), QStringList({"pressed 0", "main 35"}));
        QVERIFY(slider.isMainSliderDown());
        slider.drag(slider.place(36));
        QCOMPARE(slider.mainValue(), 36);
        slider.release(slider.place(36));
        QCOMPARE(slider.takeLog().last(), QStringLiteral("values 20 80 36"));
    }

    void withoutRange()
    {
        TestRange slider(Qt::Horizontal, false);
        slider.press(slider.place(20));
        QVERIFY(slider.isMainSliderDown() && !slider.isMinimumSliderDown());
        slider.release(slider.place(20));
        QCOMPARE(slider.values(), Ints({20, 80, 20}));
        QCOMPARE(slider.takeLog(),
                 QStringList({"pressed 1", "main 20", "released 4", "values 20 80 20"}));
    }

    void handlesOnTopOfEachOther()
    {
        TestRange slider;
        slider.setValues(50, 50, 50);
        slider.takeLog();
        const QRect handle = slider.handleAt(50);
        const QPoint middle = handle.center();
        const auto pressedAt = [&](const QPoint &point) {
            slider.press(point);
            slider.release(point);
            return slider.takeLog().first();
        };
        QCOMPARE(pressedAt(QPoint(handle.left() + 1, middle.y())), QStringLiteral("pressed 1"));
        QCOMPARE(pressedAt(QPoint(handle.right() - 1, middle.y())), QStringLiteral("pressed 2"));
        const int tie = handle.left() + (handle.width() - 1) / 2;
        QCOMPARE(handle.width() % 2, 1); // The tie is a pixel.
        QCOMPARE(pressedAt(QPoint(tie, middle.y())), QStringLiteral("pressed 2"));
        slider.setValues(50, 50, 90);
        slider.takeLog();
        QCOMPARE(pressedAt(QPoint(handle.right() - 1, middle.y())), QStringLiteral("pressed 1"));

        TestRange vertical(Qt::Vertical);
        vertical.setValues(50, 50, 50);
        const QRect upright = vertical.handleAt(50);
        vertical.press(QPoint(upright.center().x(), upright.bottom() - 1));
        QVERIFY(vertical.isMinimumSliderDown());
        vertical.release(upright.center());
        vertical.press(QPoint(upright.center().x(), upright.top() + 1));
        QVERIFY(vertical.isMaximumSliderDown());
        vertical.release(upright.center());
    }

    void rangeHandlesStopAtEachOther()
    {
        TestRange slider;
        slider.press(slider.place(20));
        slider.drag(slider.place(95));
        QCOMPARE(slider.values(), Ints({80, 80, 50}));
        slider.release(slider.place(95));
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

        slider.setValues(10, 95, 50);
        slider.setSymmetricMoves(true);
        slider.press(slider.place(10));
        slider.drag(slider.place(0));
        QCOMPARE(slider.values(), Ints({0, 100, 50}));
        slider.release(slider.place(0));

        slider.setValues(30, 60, 50);
        slider.press(slider.place(60));
        slider.drag(slider.place(65));
        QCOMPARE(slider.values(), Ints({25, 65, 50}));
        slider.release(slider.place(65));
    }

    void symmetricMovesOfTheLargestRange()
    {
        TestRange slider;
        const int most = std::numeric_limits<int>::max();
        slider.setRange(0, most);
        slider.setValues(most / 4, most - 10, most / 2);
        slider.setSymmetricMoves(true);
        slider.press(slider.place(most / 4));
        slider.drag(slider.place(0));
        QCOMPARE(slider.minimumValue(), 0);
        QCOMPARE(slider.maximumValue(), most);
        slider.release(slider.place(0));
    }

    void withoutTrackingOnlyPositionsMove()
    {
        TestRange slider;
        slider.setTracking(false);
        slider.press(slider.place(20));
        slider.drag(slider.place(25));
        slider.release(slider.place(25));
        QCOMPARE(slider.takeLog(),
                 QStringList({"pressed 1", "minpos 25", "positions 25 80 50", "released 1"}));
        QCOMPARE(slider.values(), Ints({20, 80, 50}));
        QCOMPARE(slider.positions(), Ints({25, 80, 50}));
    }

    void leavingTheDragAreaSnapsBack()
    {
        LimitedDragStyle style;
        TestRange slider;
        slider.setStyle(&style);
        slider.press(slider.place(20));
        slider.drag(slider.place(30) + QPoint(0, 25));
        QCOMPARE(slider.minimumValue(), 30);
        slider.drag(slider.place(30) + QPoint(0, 60));
        QCOMPARE(slider.minimumValue(), 20);
        slider.drag(slider.place(30));
        QCOMPARE(slider.minimumValue(), 30);
        slider.release(slider.place(30));
    }

    void emptyRange()
    {
        TestRange slider;
        slider.setRange(5, 5);
        slider.takeLog();
        slider.press(QPoint(100, 15));
        QVERIFY(!slider.accepted && slider.isMousePressed());
        QVERIFY(slider.log.isEmpty());
        slider.drag(QPoint(120, 15));
        QCOMPARE(slider.takeLog(), QStringList("hover 120 15 5"));
        slider.drag(QPoint(140, 15));
        QVERIFY(slider.log.isEmpty());
        slider.release(QPoint(140, 15));
        QCOMPARE(slider.takeLog(), QStringList("released 0"));
    }

    void movesWithoutAHandleReportTheValue()
    {
        for (Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            TestRange slider(orientation);
            slider.mouse(QEvent::MouseButtonPress, QPoint(15, 15), Qt::LeftButton,
                         Qt::LeftButton | Qt::RightButton);
            QVERIFY(!slider.accepted);
            const bool horizontal = orientation == Qt::Horizontal;
            const QPoint point = horizontal ? QPoint(80, 12) : QPoint(12, 80);
            slider.drag(point);
            slider.drag(point);
            QVERIFY(!slider.accepted);
            // A quarter of the way from the left or from the top, where the maximum is.
            QCOMPARE(slider.takeLog(),
                     QStringList(horizontal ? "hover 80 12 25" : "hover 12 80 75"));
            slider.release(point);
        }
    }

    void otherButtonsAndKeys()
    {
        TestRange slider;
        slider.mouse(QEvent::MouseButtonPress, slider.place(20), Qt::RightButton, Qt::RightButton);
        slider.drag(slider.place(30));
        QVERIFY(!slider.isMousePressed() && slider.log.isEmpty());

        // A second button pressed in the middle is left alone; its release ends the drag.
        slider.press(slider.place(20));
        slider.mouse(QEvent::MouseButtonPress, slider.place(20), Qt::RightButton,
                     Qt::LeftButton | Qt::RightButton);
        QVERIFY(slider.isMinimumSliderDown());
        slider.drag(slider.place(22));
        QCOMPARE(slider.minimumValue(), 22);
        slider.takeLog();
        slider.mouse(QEvent::MouseButtonRelease, slider.place(22), Qt::RightButton, Qt::LeftButton);
        QCOMPARE(slider.takeLog(), QStringList({"released 1", "values 22 80 50"}));
        slider.drag(slider.place(40));
        slider.release(slider.place(40));
        QCOMPARE(slider.takeLog(), QStringList("released 0"));

        QTest::keyPress(&slider, Qt::Key_Right);
        QVERIFY(slider.isKeyPressed());
        QTest::keyRelease(&slider, Qt::Key_Right);
        QVERIFY(!slider.isKeyPressed());
        QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&slider, &wheel);
        QVERIFY(!wheel.isAccepted());
        QCOMPARE(slider.values(), Ints({22, 80, 50}));
        QCOMPARE(slider.value(), 0);
        QVERIFY(slider.log.isEmpty());
    }

    void interruptedDrag_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("hidden") << QStringLiteral("hide");
        QTest::newRow("disabled") << QStringLiteral("disable");
        QTest::newRow("modal window") << QStringLiteral("modal");
    }

    void interruptedDrag()
    {
        QFETCH(QString, how);
        TestRange slider;
        slider.show();
        slider.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&slider));
        slider.press(slider.place(20));
        slider.drag(slider.place(30));
        slider.takeLog();

        QDialog dialog;
        if (how == QLatin1String("hide")) {
            slider.hide();
        } else if (how == QLatin1String("disable")) {
            slider.setEnabled(false);
        } else {
            dialog.setModal(true);
            dialog.show();
            dialog.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
        }
        QCOMPARE(slider.takeLog(), QStringList({"released 1", "values 30 80 50"}));
        QVERIFY(!slider.isMousePressed() && !slider.isSliderDown());
        QVERIFY(!slider.isMinimumSliderDown());
        slider.drag(slider.place(50));
        QCOMPARE(slider.minimumValue(), 30);
        QVERIFY(slider.log.isEmpty());
    }

    void dragGoesOnWhenTheWindowLosesTheFocus()
    {
        TestRange slider;
        slider.show();
        slider.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&slider));
        slider.setFocus();
        QTest::keyPress(&slider, Qt::Key_Shift);
        slider.press(slider.place(20));
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
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
        QCOMPARE(slider.takeLog(), QStringList({"pressed 1", "released 0"}));
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
            const QPoint point = slider.place(position);
            QHelpEvent event(QEvent::ToolTip, point, slider.mapToGlobal(point));
            QCoreApplication::sendEvent(&slider, &event);
            return QToolTip::isVisible() ? QToolTip::text() : QString();
        };
        QCOMPARE(help(20), QString());
        slider.setHandleToolTip(QStringLiteral("frame %1"));
        QCOMPARE(help(20), QStringLiteral("frame 20"));
        QCOMPARE(help(80), QStringLiteral("frame 80"));
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(help(50), QString());
    }

    void painting_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<bool>("range");
        QTest::addColumn<int>("ratio");
        for (int ratio : {1, 2}) {
            const QByteArray at = " at ratio " + QByteArray::number(ratio);
            QTest::newRow("horizontal" + at) << Qt::Horizontal << true << ratio;
            QTest::newRow("horizontal, no range" + at) << Qt::Horizontal << false << ratio;
            QTest::newRow("vertical" + at) << Qt::Vertical << true << ratio;
            QTest::newRow("vertical, no range" + at) << Qt::Vertical << false << ratio;
        }
    }

    /// Paints groove, bar and handles piece by piece and compares every pixel.
    void painting()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(bool, range);
        QFETCH(int, ratio);
        TestRange slider(orientation, range);

        // A long bar, one too short to have a middle, and the main handle in different places.
        for (const Ints &values : {Ints{20, 80, 50}, Ints{40, 41, 10}, Ints{0, 100, 100}}) {
            slider.setValues(values[0], values[1], values[2]);
            QImage expected(slider.size() * ratio, QImage::Format_ARGB32_Premultiplied);
            expected.setDevicePixelRatio(ratio);
            expected.fill(Qt::darkGray);
            QPainter painter(&expected);
            paintByHand(&painter, slider, values, range);
            painter.end();
            QImage image(expected.size(), expected.format());
            image.setDevicePixelRatio(ratio);
            image.fill(Qt::darkGray);
            slider.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
            QVERIFY(sameImage(image, expected));
        }
    }

    void grooveIsNotFilled_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("horizontal") << Qt::Horizontal << Qt::LeftToRight;
        QTest::newRow("right to left") << Qt::Horizontal << Qt::RightToLeft;
        QTest::newRow("vertical") << Qt::Vertical << Qt::LeftToRight;
    }

    void grooveIsNotFilled()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(Qt::LayoutDirection, direction);
        TestRange slider(orientation);
        slider.setLayoutDirection(direction);
        slider.setStyle(m_theme.style());
        slider.setValues(40, 60, 50);
        const QImage image = TestSupport::render(slider);
        const QPoint inside = slider.place(45);
        QVERIFY(image.pixelColor(inside + QPoint(0, orientation == Qt::Horizontal)).blue() > 100);
        for (int position : {10, 30, 70, 90}) {
            const QColor color = image.pixelColor(slider.place(position));
            QVERIFY2(color.blue() < 50, qPrintable(color.name(QColor::HexArgb)));
        }
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
            QCOMPARE(handle, group->child(i));
            QCOMPARE(group->indexOfChild(handle), i);
            QCOMPARE(handle->parent(), group);
            QCOMPARE(handle->role(), QAccessible::Slider);
            QCOMPARE(handle->text(QAccessible::Name), names.at(i));
            QCOMPARE(handle->valueInterface()->currentValue().toInt(), slider.values().at(i));
            QCOMPARE(handle->text(QAccessible::Value), QString::number(slider.values().at(i)));
            QCOMPARE(handle->rect().center(), slider.mapToGlobal(slider.place(slider.values()[i])));
            QCOMPARE(group->childAt(handle->rect().center().x(), handle->rect().center().y()),
                     handle);
            QVERIFY(!handle->state().invisible);
        }
        group->child(0)->valueInterface()->setCurrentValue(25);
        group->child(2)->valueInterface()->setCurrentValue(1000);
        QCOMPARE(slider.takeLog(), QStringList({"min 25", "main 100"}));

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
        const bool horizontal = slider.orientation() == Qt::Horizontal;
        QStyleOptionSlider option = slider.option(-100);
        option.subControls = QStyle::SC_SliderGroove;
        const bool upsideDown = std::exchange(option.upsideDown, false);
        style->drawComplexControl(QStyle::CC_Slider, &option, painter, &slider);
        option.upsideDown = upsideDown;
        const QRect groove =
            style->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, &slider);
        const QPoint a = slider.place(values[0]);
        const QPoint b = slider.place(values[1]);
        const QPoint c = groove.center();
        const QRect box = horizontal ? QRect(QPoint(qMin(a.x(), b.x()), c.y() - 2),
                                             QPoint(qMax(a.x(), b.x()), c.y() + 1))
                                     : QRect(QPoint(c.x() - 2, qMin(a.y(), b.y())),
                                             QPoint(c.x() + 1, qMax(a.y(), b.y())));
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
        option = slider.option(values[2]);
        option.subControls = QStyle::SC_SliderHandle;
        style->drawComplexControl(QStyle::CC_Slider, &option, painter, &slider);
    }

    DarkUX m_theme;
    const std::unique_ptr<QStyle> m_darkStyle{m_theme.style()};
};

NOCTURNE_TEST_MAIN(TestRangeSlider)

#include "tst_rangeslider.moc"
