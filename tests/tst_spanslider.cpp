#include "testsupport.h"

#include <nocturne/SpanSlider>

#include <QtGui/QAccessible>
#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QDialog>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOptionSlider>

#include <memory>

namespace {

/// A span slider and what it reported.
class TestSpan : public SpanSlider
{
public:
    explicit TestSpan(Qt::Orientation orientation = Qt::Horizontal)
        : SpanSlider(orientation)
    {
        resize(orientation == Qt::Horizontal ? QSize(320, 30) : QSize(30, 320));
        setSpan(20, 60);
        const auto note = [this](const char *name) {
            return [this, name](int value) {
                log << QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(value);
            };
        };
        connect(this, &SpanSlider::lowerValueChanged, this, note("lower"));
        connect(this, &SpanSlider::upperValueChanged, this, note("upper"));
        connect(this, &SpanSlider::lowerPositionChanged, this, note("lowerpos"));
        connect(this, &SpanSlider::upperPositionChanged, this, note("upperpos"));
        connect(this, &SpanSlider::spanChanged, this,
                [this](int a, int b) { log << QStringLiteral("span %1 %2").arg(a).arg(b); });
    }

    QRect handleAt(int position) const
    {
        QStyleOptionSlider option;
        initStyleOption(&option, LowerHandle);
        option.sliderPosition = option.sliderValue = position;
        return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    }
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
    void dragFromTo(int from, int to)
    {
        press(place(from));
        for (int position = from; position != to; position += from < to ? 1 : -1)
            drag(place(position));
        drag(place(to));
        release(place(to));
    }

    QStringList takeLog() { return std::exchange(log, {}); }
    QVector<int> span() const { return {lowerValue(), upperValue()}; }
    QVector<int> positions() const { return {lowerPosition(), upperPosition()}; }

    QStringList log;
    bool accepted = false;
};

/// Fusion with a drag area of 20 units around the slider.
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

} // namespace

using Ints = QVector<int>;

class TestSpanSlider : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion"))); }

    void cleanup()
    {
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(!QWidget::mouseGrabber());
    }

    void setters()
    {
        TestSpan slider;
        slider.setSpan(70, 10);
        QCOMPARE(slider.takeLog(), QStringList({"lower 10", "upper 70", "span 10 70"}));
        slider.setSpan(70, 10);
        QVERIFY(slider.log.isEmpty());
        slider.setSpan(-5, 150);
        QCOMPARE(slider.span(), Ints({0, 99}));
        QCOMPARE(slider.positions(), Ints({0, 99}));
        slider.setLowerValue(30);
        slider.setUpperValue(20);
        QCOMPARE(slider.span(), Ints({20, 30}));
        slider.takeLog();
        slider.setRange(25, 50);
        QCOMPARE(slider.span(), Ints({25, 30}));
        QCOMPARE(slider.takeLog(), QStringList({"lower 25", "span 25 30"}));
        slider.setLowerPosition(28);
        QCOMPARE(slider.takeLog(), QStringList({"lower 28", "span 28 30"}));
    }

    void dragsBothHandles_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<bool>("mirrored");
        QTest::addColumn<bool>("inverted");
        QTest::newRow("horizontal") << Qt::Horizontal << false << false;
        QTest::newRow("right to left") << Qt::Horizontal << true << false;
        QTest::newRow("inverted") << Qt::Horizontal << false << true;
        QTest::newRow("vertical") << Qt::Vertical << false << false;
        QTest::newRow("vertical, inverted") << Qt::Vertical << true << true;
    }

    void dragsBothHandles()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(bool, mirrored);
        QFETCH(bool, inverted);
        TestSpan slider(orientation);
        slider.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        slider.setInvertedAppearance(inverted);
        const bool startsFirst = slider.pick(slider.place(0)) < slider.pick(slider.place(99));
        QCOMPARE(startsFirst, orientation == Qt::Horizontal ? mirrored == inverted : inverted);

        slider.dragFromTo(20, 30);
        QCOMPARE(slider.span(), Ints({30, 60}));
        QVERIFY(!slider.isSliderDown());
        slider.dragFromTo(60, 90);
        QCOMPARE(slider.span(), Ints({30, 90}));
        slider.takeLog();
        slider.press(slider.place(30));
        slider.drag(slider.place(40));
        slider.release(slider.place(40));
        QCOMPARE(slider.takeLog(), QStringList({"lowerpos 40", "lower 40", "span 40 90"}));
    }

    void freeHandlesPassAndSwapRoles()
    {
        TestSpan slider;
        slider.dragFromTo(20, 80);
        QCOMPARE(slider.span(), Ints({60, 80}));
        QVERIFY(slider.lowerPosition() <= slider.upperPosition());
        // The arrow keys along the slider go on moving the dragged handle.
        QTest::keyClick(&slider, Qt::Key_Right);
        QCOMPARE(slider.span(), Ints({60, 81}));

        TestSpan down;
        down.dragFromTo(60, 10);
        QCOMPARE(down.span(), Ints({10, 20}));
    }

    void boundHandlesStop()
    {
        TestSpan slider;
        slider.setHandleMovementMode(SpanSlider::NoCrossing);
        slider.dragFromTo(20, 80);
        QCOMPARE(slider.span(), Ints({60, 60}));

        TestSpan apart;
        apart.setHandleMovementMode(SpanSlider::NoOverlapping);
        apart.dragFromTo(20, 80);
        QCOMPARE(apart.span(), Ints({59, 60}));
        apart.setSpan(20, 60);
        apart.dragFromTo(60, 5);
        QCOMPARE(apart.span(), Ints({20, 21}));
    }

    void coincidingHandles()
    {
        for (SpanSlider::HandleMovementMode mode :
             {SpanSlider::FreeMovement, SpanSlider::NoCrossing}) {
            TestSpan slider;
            slider.setHandleMovementMode(mode);
            slider.setSpan(50, 50);
            slider.dragFromTo(50, 40);
            QCOMPARE(slider.span(), Ints({40, 50}));
            slider.setSpan(50, 50);
            slider.dragFromTo(50, 70);
            QCOMPARE(slider.span(), Ints({50, 70}));
        }
    }

    void releaseCommitsWithoutTracking()
    {
        TestSpan slider;
        slider.setTracking(false);
        slider.press(slider.place(20));
        slider.drag(slider.place(35));
        QCOMPARE(slider.takeLog(), QStringList("lowerpos 35"));
        QCOMPARE(slider.span(), Ints({20, 60}));
        slider.release(slider.place(35));
        QCOMPARE(slider.takeLog(), QStringList({"lower 35", "span 35 60"}));
    }

    void leavingTheDragAreaSnapsBack()
    {
        LimitedDragStyle style;
        TestSpan slider;
        slider.setStyle(&style);
        slider.press(slider.place(60));
        slider.drag(slider.place(70));
        QCOMPARE(slider.upperValue(), 70);
        slider.drag(slider.place(70) + QPoint(0, 60));
        QCOMPARE(slider.upperValue(), 60);
        slider.release(slider.place(70));
    }

    void keys_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<int>("key");
        QTest::addColumn<Ints>("span");
        QTest::addColumn<Ints>("spanOfOtherMain");
        QTest::newRow("home") << Qt::Horizontal << int(Qt::Key_Home) << Ints{0, 60} << Ints{0, 60};
        QTest::newRow("end") << Qt::Horizontal << int(Qt::Key_End) << Ints{20, 99} << Ints{20, 99};
        QTest::newRow("left") << Qt::Horizontal << int(Qt::Key_Left) << Ints{19, 60}
                              << Ints{20, 59};
        QTest::newRow("right") << Qt::Horizontal << int(Qt::Key_Right) << Ints{21, 60}
                               << Ints{20, 61};
        QTest::newRow("up") << Qt::Horizontal << int(Qt::Key_Up) << Ints{20, 61} << Ints{21, 60};
        QTest::newRow("down") << Qt::Vertical << int(Qt::Key_Down) << Ints{19, 60} << Ints{20, 59};
    }

    void keys()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(int, key);
        QFETCH(Ints, span);
        QFETCH(Ints, spanOfOtherMain);
        TestSpan slider(orientation);
        QTest::keyClick(&slider, static_cast<Qt::Key>(key));
        QCOMPARE(slider.span(), span);

        TestSpan other(orientation);
        other.swapControls();
        other.swapControls(); // Back, which shows that twice is nothing.
        other.dragFromTo(20, 70);
        other.setSpan(20, 60);
        QTest::keyClick(&other, static_cast<Qt::Key>(key));
        QCOMPARE(other.span(), spanOfOtherMain);
    }

    void keysInverted()
    {
        TestSpan slider;
        slider.setInvertedAppearance(true);
        slider.setInvertedControls(true);
        QTest::keyClick(&slider, Qt::Key_Left);
        QCOMPARE(slider.span(), Ints({21, 60}));
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
        QCOMPARE(slider.span(), Ints({21, 59}));
        slider.triggerAction(QAbstractSlider::SliderNoAction, true);
        QCOMPARE(slider.span(), Ints({21, 59}));
        QTest::ignoreMessage(QtWarningMsg, "QxtSpanSliderPrivate::triggerAction: Unknown action");
        slider.triggerAction(QAbstractSlider::SliderPageStepAdd, false);
        QCOMPARE(slider.span(), Ints({0, 59}));
        // To the far end, past the other handle.
        slider.triggerAction(QAbstractSlider::SliderToMaximum, true);
        QCOMPARE(slider.upperValue(), 99);
    }

    void pressesThatGrabNothing()
    {
        TestSpan slider;
        slider.press(slider.place(40));
        QVERIFY(slider.accepted && !slider.isSliderDown());
        slider.drag(slider.place(50));
        QVERIFY(!slider.accepted);
        slider.release(slider.place(50));
        slider.mouse(QEvent::MouseButtonPress, slider.place(20), Qt::LeftButton,
                     Qt::LeftButton | Qt::RightButton);
        QVERIFY(!slider.accepted && !slider.isSliderDown());
        slider.setRange(7, 7);
        slider.press(slider.place(7));
        QVERIFY(!slider.accepted && !slider.isSliderDown());

        QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&slider, &wheel);
        QVERIFY(!wheel.isAccepted());
    }

    void secondButton()
    {
        TestSpan slider;
        slider.press(slider.place(20));
        slider.mouse(QEvent::MouseButtonPress, slider.place(20), Qt::RightButton,
                     Qt::LeftButton | Qt::RightButton);
        slider.drag(slider.place(25));
        QCOMPARE(slider.lowerValue(), 25);
        slider.mouse(QEvent::MouseButtonRelease, slider.place(25), Qt::RightButton, Qt::LeftButton);
        slider.drag(slider.place(40));
        QCOMPARE(slider.lowerValue(), 25);
        const QSignalSpy released(&slider, &QSlider::sliderReleased);
        slider.release(slider.place(40));
        QCOMPARE(released.count(), 0);
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
        TestSpan slider;
        slider.setTracking(false);
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
        QCOMPARE(slider.takeLog(), QStringList({"lower 30", "span 30 60"}));
        QVERIFY(!slider.isSliderDown());
        slider.drag(slider.place(50));
        QCOMPARE(slider.lowerPosition(), 30);
    }

    void receiversThatTakeTheSliderAway()
    {
        TestSpan slider;
        slider.setSpan(50, 50);
        slider.show();
        connect(&slider, &QSlider::sliderPressed, &slider, &QWidget::hide);
        slider.press(slider.place(50));
        QVERIFY(!slider.isSliderDown());
        slider.drag(slider.place(40));
        QCOMPARE(slider.span(), Ints({50, 50}));

        auto doomed = std::make_unique<TestSpan>();
        doomed->show();
        doomed->press(doomed->place(20));
        doomed->drag(doomed->place(25));
        doomed.reset();
        QCoreApplication::processEvents();
    }

    void painting_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<int>("ratio");
        QTest::newRow("horizontal") << Qt::Horizontal << 1;
        QTest::newRow("vertical") << Qt::Vertical << 1;
        QTest::newRow("horizontal at ratio 2") << Qt::Horizontal << 2;
        QTest::newRow("vertical at ratio 2") << Qt::Vertical << 2;
    }

    /// Paints groove, span and handles piece by piece and compares every pixel.
    void painting()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(int, ratio);
        TestSpan slider(orientation);
        for (const Ints &span : {Ints{20, 60}, Ints{50, 50}, Ints{0, 99}}) {
            slider.setSpan(span[0], span[1]);
            QImage expected(slider.size() * ratio, QImage::Format_ARGB32_Premultiplied);
            expected.setDevicePixelRatio(ratio);
            expected.fill(Qt::darkGray);
            QImage image = expected;
            QPainter painter(&expected);
            paintByHand(&painter, slider, span);
            painter.end();
            slider.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
            QCOMPARE(image, expected);
        }
    }

    void handlesAreAccessible()
    {
        TestSpan slider;
        slider.show();
        slider.setHandleMovementMode(SpanSlider::NoOverlapping);
        QAccessibleInterface *group = QAccessible::queryAccessibleInterface(&slider);
        QCOMPARE(group->childCount(), 2);
        QAccessibleInterface *lower = group->child(0);
        QAccessibleInterface *upper = group->child(1);
        QCOMPARE(lower->text(QAccessible::Name), QStringLiteral("Lower"));
        QCOMPARE(upper->text(QAccessible::Name), QStringLiteral("Upper"));
        QCOMPARE(lower->rect().center(), slider.mapToGlobal(slider.place(20)));
        QCOMPARE(lower->valueInterface()->currentValue().toInt(), 20);
        QCOMPARE(lower->valueInterface()->maximumValue().toInt(), 59);
        QCOMPARE(upper->valueInterface()->minimumValue().toInt(), 21);
        lower->valueInterface()->setCurrentValue(90);
        QCOMPARE(slider.span(), Ints({59, 60}));
        upper->valueInterface()->setCurrentValue(70);
        QCOMPARE(slider.span(), Ints({59, 70}));
        slider.setEnabled(false);
        upper->valueInterface()->setCurrentValue(80);
        QCOMPARE(slider.span(), Ints({59, 70}));
    }

private:
    static void paintByHand(QPainter *painter, const TestSpan &slider, const Ints &span)
    {
        const QStyle *style = slider.style();
        const bool horizontal = slider.orientation() == Qt::Horizontal;
        QStyleOptionSlider option;
        slider.initStyleOption(&option, SpanSlider::UpperHandle);
        option.sliderPosition = option.sliderValue = 0;
        option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderTickmarks;
        style->drawComplexControl(QStyle::CC_Slider, &option, painter, &slider);

        QRect groove =
            style->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, &slider);
        if (horizontal)
            groove.setRight(groove.right() - 1);
        else
            groove.setBottom(groove.bottom() - 1);
        const QPoint a = slider.place(span[0]);
        const QPoint b = slider.place(span[1]);
        const QRect box = horizontal ? QRect(QPoint(a.x(), a.y() - 2), QPoint(b.x(), a.y() + 1))
                                     : QRect(QPoint(a.x() - 2, b.y()), QPoint(a.x() + 1, a.y()));
        const QColor highlight = slider.palette().color(QPalette::Highlight);
        const QPoint c = groove.center();
        QLinearGradient gradient =
            horizontal ? QLinearGradient(c.x(), groove.top(), c.x(), groove.bottom())
                       : QLinearGradient(groove.left(), c.y(), groove.right(), c.y());
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
