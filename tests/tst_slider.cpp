#include "testsupport.h"

#include <nocturne/Slider>

#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOptionSlider>

#include <memory>

namespace {

/// A shown slider under the built-in Fusion style, and what it reported.
class TestSlider : public Slider
{
public:
    explicit TestSlider(Qt::Orientation orientation = Qt::Horizontal)
        : Slider(orientation)
    {
        const bool horizontal = orientation == Qt::Horizontal;
        resize(horizontal ? QSize(300, 30) : QSize(40, 300));
        connect(this, &Slider::valueChanged, this, [this](double value, bool first) {
            log << QStringLiteral("%1 %2").arg(value).arg(first ? "first" : "next");
        });
        connect(this, &Slider::sliderMoveChanged, this, [this](int x, int y, int value) {
            log << QStringLiteral("hover %1 %2 %3").arg(x).arg(y).arg(value);
        });
        connect(this, &Slider::mousePressed, this, [this] { log << QStringLiteral("pressed"); });
        connect(this, &Slider::mouseDoubleClick, this, [this] { log << QStringLiteral("double"); });
    }

    QRect rectOf(QStyle::SubControl control) const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_Slider, &option, control, this);
    }

    int valueAt(int x) const
    {
        const QRect groove = rectOf(QStyle::SC_SliderGroove);
        const int length = rectOf(QStyle::SC_SliderHandle).width();
        return QStyle::sliderValueFromPosition(minimum(), maximum(), x - length / 2 - groove.x(),
                                               groove.right() - length + 1 - groove.x(),
                                               layoutDirection() == Qt::RightToLeft);
    }

    void mouse(QEvent::Type type, int x, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, QPointF(x, height() / 2), button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &event);
    }
    void press(int x) { mouse(QEvent::MouseButtonPress, x, Qt::LeftButton, Qt::LeftButton); }
    void drag(int x) { mouse(QEvent::MouseMove, x, Qt::NoButton, Qt::LeftButton); }
    void hover(int x) { mouse(QEvent::MouseMove, x, Qt::NoButton, Qt::NoButton); }
    void release(int x) { mouse(QEvent::MouseButtonRelease, x, Qt::LeftButton, Qt::NoButton); }

    QStringList log;
};

} // namespace

class TestSliderClass : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion"))); }

    void cleanup()
    {
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(!QWidget::mouseGrabber());
    }

    void clickJumpsAndDragContinues_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("left to right") << Qt::LeftToRight;
        QTest::newRow("right to left") << Qt::RightToLeft;
    }

    void clickJumpsAndDragContinues()
    {
        QFETCH(Qt::LayoutDirection, direction);
        TestSlider slider;
        slider.setLayoutDirection(direction);
        const QSignalSpy plain(&slider, &QSlider::valueChanged);
        const int clicked = slider.valueAt(200);
        QVERIFY(clicked != slider.value());

        slider.press(200);
        QVERIFY(slider.isMousePressed());
        QVERIFY(slider.isSliderDown());
        QCOMPARE(slider.value(), clicked);
        slider.drag(220);
        slider.drag(240);
        slider.release(240);

        QVERIFY(!slider.isMousePressed());
        QVERIFY(!slider.isSliderDown());
        const QStringList expected = {QStringLiteral("pressed"),
                                      QStringLiteral("%1 first").arg(clicked),
                                      QStringLiteral("%1 next").arg(slider.valueAt(220)),
                                      QStringLiteral("%1 next").arg(slider.valueAt(240))};
        QCOMPARE(slider.log, expected);
        QCOMPARE(plain.count(), 3);
    }

    void clickOnTheValueLeavesFirstToTheDrag()
    {
        TestSlider slider;
        slider.setValue(slider.valueAt(150));
        slider.press(150);
        slider.drag(170);
        slider.drag(190);
        slider.release(190);
        const QStringList expected = {QStringLiteral("pressed"),
                                      QStringLiteral("%1 first").arg(slider.valueAt(170)),
                                      QStringLiteral("%1 next").arg(slider.valueAt(190))};
        QCOMPARE(slider.log, expected);
    }

    void verticalSliderJumpsAlongX()
    {
        TestSlider slider(Qt::Vertical);
        const QRect groove = slider.rectOf(QStyle::SC_SliderGroove);
        const int length = slider.rectOf(QStyle::SC_SliderHandle).width();
        const int value = QStyle::sliderValueFromPosition(0, 99, 30 - length / 2 - groove.x(),
                                                          groove.width() - length, true);
        slider.press(30);
        slider.release(30);
        QVERIFY(slider.log.contains(QStringLiteral("%1 first").arg(value)));
    }

    void withoutDirectJump()
    {
        TestSlider slider;
        slider.setEnableDirectJump(false);
        slider.hover(250);
        QVERIFY(slider.log.isEmpty());
        slider.press(250);
        QCOMPARE(slider.value(), slider.pageStep());
        slider.release(250);
        QCOMPARE(slider.log, QStringList({QStringLiteral("pressed"),
                                          QStringLiteral("%1 first").arg(slider.pageStep())}));
    }

    void hoverReportsEachValueOnce()
    {
        TestSlider slider;
        QVERIFY(slider.hasMouseTracking());
        QStringList expected;
        int last = 0;
        for (int x = 0; x < slider.width(); ++x) {
            slider.hover(x);
            const int value = QStyle::sliderValueFromPosition(0, 99, x, slider.width(), false);
            if (value != last)
                expected << QStringLiteral("hover %1 15 %2").arg(x).arg(value);
            last = value;
        }
        QCOMPARE(slider.log, expected);
        QCOMPARE(slider.log.size(), 99);
        QCOMPARE(slider.value(), 0);
    }

    void callsKeysAndWheel()
    {
        QWidget parent;
        auto *slider = new TestSlider;
        slider->setParent(&parent);
        QSignalSpy plain(slider, &QSlider::valueChanged);
        slider->positionChange(30);
        QCOMPARE(slider->value(), 30);
        QCOMPARE(plain.count(), 0);

        QTest::keyPress(slider, Qt::Key_Right);
        QVERIFY(slider->isKeyPressed());
        QCOMPARE(slider->value(), 31);
        QTest::keyRelease(slider, Qt::Key_Right);
        QVERIFY(!slider->isKeyPressed());
        QCOMPARE(plain.count(), 1);

        QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(slider, &wheel);
        QVERIFY(!wheel.isAccepted());
        QCOMPARE(slider->value(), 31);
        QVERIFY(slider->log.isEmpty());
    }

    void doubleClick()
    {
        TestSlider slider;
        slider.setValue(10);
        QTest::mouseDClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(250, 15));
        QCOMPARE(slider.log.count(QStringLiteral("double")), 1);
        slider.log.clear();
        const int value = slider.value();
        slider.mouse(QEvent::MouseButtonDblClick, 20, Qt::LeftButton, Qt::LeftButton);
        QCOMPARE(slider.value(), value);
        QCOMPARE(slider.log, QStringList(QStringLiteral("double")));
        slider.release(20);
    }

    /// Whatever takes the slider away in mid-drag, nothing moves it without a button afterwards.
    void interruptedDrag_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("hidden") << QStringLiteral("hide");
        QTest::newRow("disabled") << QStringLiteral("disable");
        QTest::newRow("parent hidden") << QStringLiteral("hide parent");
    }

    void interruptedDrag()
    {
        QFETCH(QString, how);
        QWidget window;
        window.resize(320, 40);
        auto *slider = new TestSlider;
        slider->setParent(&window);
        window.show();
        const QSignalSpy released(slider, &QSlider::sliderReleased);
        QTest::keyPress(slider, Qt::Key_Shift);
        slider->press(100);
        slider->drag(120);
        const int value = slider->value();

        QWidget *widget = how == QLatin1String("hide parent") ? &window : slider;
        if (how == QLatin1String("disable")) {
            widget->setEnabled(false);
            widget->setEnabled(true);
        } else {
            widget->hide();
            widget->show();
        }
        QVERIFY(!slider->isMousePressed());
        QVERIFY(!slider->isKeyPressed());
        QVERIFY(!slider->isSliderDown());
        QCOMPARE(released.count(), 1);
        slider->hover(200);
        slider->hover(210);
        QCOMPARE(slider->value(), value);
        slider->log.clear();
        slider->release(210);
        QCOMPARE(released.count(), 1);
        slider->press(250);
        slider->release(250);
        QCOMPARE(slider->log, QStringList({QStringLiteral("pressed"),
                                           QStringLiteral("%1 first").arg(slider->value())}));
    }

    void receiverTakesTheSliderAway()
    {
        TestSlider slider;
        slider.show();
        connect(&slider, &Slider::mousePressed, &slider, &QWidget::hide);
        slider.press(200);
        QCOMPARE(slider.value(), 0);
        QVERIFY(!slider.isMousePressed());
        QVERIFY(!slider.isSliderDown());
    }

    void secondButton()
    {
        TestSlider slider;
        slider.press(100);
        slider.log.clear();
        slider.mouse(QEvent::MouseButtonPress, 140, Qt::RightButton,
                     Qt::LeftButton | Qt::RightButton);
        QCOMPARE(slider.log, QStringList({QStringLiteral("pressed"),
                                          QStringLiteral("%1 first").arg(slider.valueAt(140))}));
        slider.mouse(QEvent::MouseButtonRelease, 140, Qt::RightButton, Qt::LeftButton);
        QVERIFY(!slider.isMousePressed());
        slider.release(140);
        QVERIFY(!slider.isSliderDown());
    }

    void destroyedInMidDrag()
    {
        auto slider = std::make_unique<TestSlider>();
        slider->show();
        slider->press(100);
        slider->drag(150);
        slider.reset();
        QCoreApplication::processEvents();
    }
};

NOCTURNE_TEST_MAIN(TestSliderClass)

#include "tst_slider.moc"
