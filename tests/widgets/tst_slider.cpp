#include "gestures.h"

#include <nocturne/Slider>

namespace {

/// A slider of 0 to 99, pressed and dragged at places along x.
class TestSlider : public TestSupport::Driven<Slider>
{
public:
    explicit TestSlider(Qt::Orientation orientation = Qt::Horizontal)
        : Driven(orientation)
    {
        connect(this, &Slider::valueChanged, this, note("value"));
        connect(this, &Slider::sliderMoveChanged, this, note("hover"));
        connect(this, &Slider::mousePressed, this, note("pressed"));
        connect(this, &Slider::mouseDoubleClick, this, note("double"));
    }

    QStyleOptionSlider optionAt(int) const override
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return option;
    }

    /// The value whose handle has its middle at \a x.
    int valueAt(int x) const
    {
        const QRect groove = rectOf(QStyle::SC_SliderGroove);
        const int length = rectOf(QStyle::SC_SliderHandle).width();
        return QStyle::sliderValueFromPosition(minimum(), maximum(), x - length / 2 - groove.x(),
                                               groove.width() - length, optionAt(0).upsideDown);
    }

    QPoint at(int x) const { return QPoint(x, height() / 2); }
    void hover(int x)
    {
        TestSupport::sendMouse(this, QEvent::MouseMove, at(x), Qt::NoButton, Qt::NoButton);
    }
};

} // namespace

class TestSliderClass : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create("fusion")); }
    void cleanup() { QVERIFY(TestSupport::nothingIsHeld()); }

    void clickJumpsAndDragContinues()
    {
        for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            TestSlider slider;
            slider.setLayoutDirection(direction);
            const QSignalSpy plain(&slider, &QSlider::valueChanged);
            const auto valuesAt = [&slider](int first, int next) {
                return QString("value %1 1, value %2 0")
                    .arg(slider.valueAt(first))
                    .arg(slider.valueAt(next));
            };
            slider.press(slider.at(200));
            QVERIFY(slider.isMousePressed() && slider.isSliderDown());
            slider.drag(slider.at(240));
            slider.release(slider.at(240));
            QVERIFY(!slider.isMousePressed() && !slider.isSliderDown());
            QCOMPARE(slider.takeLog(), "pressed, " + valuesAt(200, 240));
            QCOMPARE(plain.count(), 2);

            // A click on the value leaves the first change to the drag.
            slider.setValue(slider.valueAt(150));
            slider.press(slider.at(150));
            slider.drag(slider.at(170));
            slider.drag(slider.at(190));
            slider.release(slider.at(190));
            QCOMPARE(slider.takeLog(), "pressed, " + valuesAt(170, 190));
        }
    }

    void verticalSliderJumpsAlongX()
    {
        TestSlider slider(Qt::Vertical);
        slider.press(QPoint(30, 20));
        slider.release(QPoint(30, 20));
        const QString jump = QString("pressed, value %1 1").arg(slider.valueAt(30));
        QVERIFY(slider.takeLog().startsWith(jump));
    }

    void withoutDirectJump()
    {
        TestSlider slider;
        slider.setEnableDirectJump(false);
        slider.hover(250);
        QCOMPARE(slider.takeLog(), QString());
        slider.press(slider.at(250));
        slider.release(slider.at(250));
        QCOMPARE(slider.takeLog(), QString("pressed, value %1 1").arg(slider.pageStep()));
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
                expected << QString("hover %1 15 %2").arg(x).arg(value);
            last = value;
        }
        QCOMPARE(slider.takeLog(), expected.join(", "));
        QCOMPARE(slider.value(), 0);
    }

    void callsKeysAndWheel()
    {
        TestSlider slider;
        QSignalSpy plain(&slider, &QSlider::valueChanged);
        slider.positionChange(30);
        QCOMPARE(slider.value(), 30);
        QCOMPARE(plain.count(), 0);
        QTest::keyPress(&slider, Qt::Key_Right);
        QVERIFY(slider.isKeyPressed());
        QTest::keyRelease(&slider, Qt::Key_Right);
        QVERIFY(!slider.isKeyPressed());
        QCOMPARE(plain.count(), 1);
        QVERIFY(!TestSupport::takesWheel(&slider));
        QCOMPARE(slider.value(), 31);
        QCOMPARE(slider.takeLog(), QString());
        TestSupport::sendMouse(&slider, QEvent::MouseButtonDblClick, slider.at(250), Qt::LeftButton,
                               Qt::LeftButton);
        QCOMPARE(slider.value(), 31);
        QCOMPARE(slider.takeLog(), QString("double"));
    }

    void interruptedDrag_data()
    {
        TestSupport::addInterruptions();
        QTest::newRow("parent hidden") << QString("parent hidden");
    }

    /// Whatever takes the slider away in mid-drag, nothing moves it without a button afterwards.
    void interruptedDrag()
    {
        QFETCH(QString, how);
        QWidget window;
        window.resize(320, 40);
        auto *slider = new TestSlider;
        slider->setParent(&window);
        QVERIFY(TestSupport::showActive(&window));
        const QSignalSpy released(slider, &QSlider::sliderReleased);
        QTest::keyPress(slider, Qt::Key_Shift);
        slider->press(slider->at(100));
        slider->drag(slider->at(120));
        const int value = slider->value();
        auto modal = how == "parent hidden" ? TestSupport::interrupt(&window, "hidden")
                                            : TestSupport::interrupt(slider, how);
        QVERIFY(!slider->isMousePressed() && !slider->isKeyPressed() && !slider->isSliderDown());
        QCOMPARE(released.count(), 1);
        modal.reset();
        window.show();
        slider->show();
        slider->setEnabled(true);
        slider->hover(200);
        slider->hover(210);
        QCOMPARE(slider->value(), value);
        slider->release(slider->at(210));
        QCOMPARE(released.count(), 1);
        slider->takeLog();
        slider->press(slider->at(250));
        slider->release(slider->at(250));
        QCOMPARE(slider->takeLog(), QString("pressed, value %1 1").arg(slider->value()));
    }

    void receiverTakesTheSliderAway()
    {
        TestSlider slider;
        slider.show();
        connect(&slider, &Slider::mousePressed, &slider, &QWidget::hide);
        slider.press(slider.at(200));
        QCOMPARE(slider.value(), 0);
        QVERIFY(!slider.isMousePressed() && !slider.isSliderDown());

        auto doomed = std::make_unique<TestSlider>();
        doomed->show();
        doomed->press(doomed->at(100));
        doomed->drag(doomed->at(150));
        doomed.reset();
        QCoreApplication::processEvents();
    }

    void secondButton()
    {
        TestSlider slider;
        slider.press(slider.at(100));
        slider.takeLog();
        slider.press(slider.at(140), Qt::RightButton, Qt::LeftButton);
        QCOMPARE(slider.takeLog(), QString("pressed, value %1 1").arg(slider.valueAt(140)));
        slider.release(slider.at(140), Qt::RightButton, Qt::LeftButton);
        QVERIFY(!slider.isMousePressed());
        slider.release(slider.at(140));
        QVERIFY(!slider.isSliderDown());
    }
};

NOCTURNE_TEST_MAIN(TestSliderClass)

#include "tst_slider.moc"
