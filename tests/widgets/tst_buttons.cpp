#include "gestures.h"
#include "modaldialog.h"

#include <nocturne/ButtonGroup>
#include <nocturne/ClickableLabel>
#include <nocturne/ColorBar>
#include <nocturne/ColorButton>
#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/DelayButton>
#include <nocturne/DelayToolButton>
#include <nocturne/SlideCheckBox>

#include <QtWidgets/QColorDialog>

using TestSupport::count;
using Signals = QList<QVariantList>;

class TestButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(m_theme.style()); }

    /// The knob can be clicked at either end, and the track between. The text starts at a quarter
    /// or at half of the width, and the pen is its own.
    void slideCheckBox()
    {
        SlideCheckBox box;
        box.resize(80, 30);
        QVERIFY(TestSupport::showExposed(&box));
        bool on = false;
        for (const QPoint &place : {QPoint(2, 2), QPoint(40, 15), QPoint(77, 27), QPoint(15, 15)}) {
            QTest::mouseClick(&box, Qt::LeftButton, {}, place);
            on = !on;
            QCOMPARE(box.isChecked(), on);
            const QImage image = TestSupport::render(box);
            const QColor pen = box.palette().color(box.foregroundRole());
            const int left = on ? 20 : 40;
            QVERIFY(count(image, {left, 3, 8, 19}, pen) > 0);
            QVERIFY(count(image, {left, 3, on ? 28 : 36, 19}, pen) > 10);
            QCOMPARE(count(image, {left, 21, 26, 5}, pen), 0); // nothing below the baseline
            QCOMPARE(count(image, {on ? 3 : 31, 10, on ? 17 : 9, 12}, pen), 0); // nor before it
        }
    }

    void groupChecksById()
    {
        ButtonGroup group;
        QPushButton first;
        QPushButton second;
        for (QPushButton *button : {&first, &second}) {
            button->setCheckable(true);
            group.addButton(button, button == &first ? 3 : 7);
        }
        QSignalSpy clicked(&group, QOverload<int>::of(&QButtonGroup::idClicked));
        QSignalSpy toggled(&group, QOverload<int, bool>::of(&QButtonGroup::idToggled));
        for (int id : {7, 3, -1, 0, 4}) // the last are unknown
            group.setValue(id);
        QVERIFY(first.isChecked() && !second.isChecked());
        QCOMPARE(toggled, QList<QVariantList>({{7, true}, {7, false}, {3, true}}));
        QCOMPARE(clicked.count(), 0);
    }

    void delayButtons()
    {
        checkDelay<DelayButton>();
        checkDelay<DelayToolButton>();
    }

    void labelIsClickedByEachPress()
    {
        QWidget window;
        auto *label = new ClickableLabel(&window, Qt::Window);
        QVERIFY(!label->isWindow());
        QVERIFY(TestSupport::showExposed(&window));
        QSignalSpy clicked(label, &ClickableLabel::clicked);
        for (Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton})
            QTest::mousePress(label, button);
        QCOMPARE(clicked.count(), 2);
    }

    void colorDialog()
    {
        // The notifications of a dialog in which two colors are chosen.
        const QColor old(10, 20, 30);
        const auto signalsOf = [&old](bool realtime, QDialogButtonBox::StandardButton answer) {
            ColorButton button(old);
            button.setRealtimeChange(realtime);
            button.show();
            QSignalSpy changed(&button, &ColorButton::colorChanged);
            whenOpen<QColorDialog>([&](QColorDialog *dialog) {
                for (const QColor color : {Qt::red, Qt::blue}) {
                    dialog->setCurrentColor(color);
                    QCOMPARE(button.color(), realtime ? color : old);
                }
                clickButton(dialog, answer);
            });
            QTest::mouseClick(&button, Qt::LeftButton);
            const bool right = button.color() == (answer == QDialogButtonBox::Ok ? Qt::blue : old);
            return right ? Signals(changed) : Signals();
        };
        const QVariantList meanwhile{0.0, false};
        const QVariantList last{0.0, true};
        QCOMPARE(signalsOf(true, QDialogButtonBox::Ok),
                 Signals({meanwhile, meanwhile, meanwhile, last}));
        QCOMPARE(signalsOf(false, QDialogButtonBox::Ok), Signals({meanwhile, last}));
        QCOMPARE(signalsOf(true, QDialogButtonBox::Cancel),
                 Signals({meanwhile, meanwhile, meanwhile}));

        auto *deleted = new ColorButton;
        whenOpen<QColorDialog>([deleted](QColorDialog *) { delete deleted; });
        QMetaObject::invokeMethod(deleted, "changeColor");
    }

    void jitterClicksAndTextIsNoColor()
    {
        ColorButton button(Qt::blue);
        button.disconnect(SIGNAL(clicked(bool))); // No dialog.
        button.show();
        QSignalSpy clicked(&button, &ColorButton::clicked);
        const QPoint jittered(10 + QApplication::startDragDistance(), 10);
        QTest::mousePress(&button, Qt::LeftButton, {}, {10, 10});
        TestSupport::sendDrag(&button, jittered);
        QTest::mouseRelease(&button, Qt::LeftButton, {}, jittered);
        QCOMPARE(clicked.count(), 1);

        QMimeData data;
        data.setText("red");
        QVERIFY(!TestSupport::drop(&button, data, QPoint(6, 5)).contains(true));
        data.setColorData(QColor(Qt::red));
        QCOMPARE(TestSupport::drop(&button, data, QPoint(6, 5)).count(true), 3);
        QCOMPARE(button.color(), QColor(Qt::red));
    }

    void flicker()
    {
        ColorBar bar;
        bar.resize(20, 20);
        bar.setColor(Qt::red);
        bar.setElipse(true);
        const auto isDrawn = [&bar] {
            return TestSupport::render(bar).pixelColor(10, 10) == QColor(Qt::red);
        };
        for (int start = 0; start < 2; ++start)
            bar.startFlicker();
        QMetaObject::invokeMethod(&bar, "timeOut");
        QVERIFY(!isDrawn());
        bar.setElipse(false);
        QVERIFY(isDrawn());
        bar.setElipse(true);
        bar.stopFlicker();
        QVERIFY(isDrawn());
        bar.startFlicker();
        QTRY_VERIFY_WITH_TIMEOUT(isDrawn(), 2000);
        QTRY_VERIFY_WITH_TIMEOUT(!isDrawn(), 2000);
    }

private:
    /// A click toggles and locks; further clicks are lost until the delay is over.
    template <typename Button>
    static void checkDelay()
    {
        auto button = std::make_unique<Button>();
        QVERIFY(TestSupport::showExposed(button.get()));
        QTest::mouseClick(button.get(), Qt::LeftButton);
        QVERIFY(button->isEnabled());

        button->setCheckable(true);
        QElapsedTimer timer;
        timer.start();
        for (int click = 0; click < 2; ++click) {
            QTest::mouseClick(button.get(), Qt::LeftButton);
            QVERIFY(button->isChecked() && !button->isEnabled());
        }
        QTRY_VERIFY(button->isEnabled());
        QVERIFY2(timer.elapsed() >= 499, qPrintable(QString::number(timer.elapsed())));

        const auto toggle = [&button](int delay) {
            button->setDelay(delay);
            button->toggle();
        };
        for (int delay : {0, -5}) {
            toggle(delay);
            QVERIFY(!button->isEnabled());
            QCoreApplication::processEvents();
            QVERIFY(button->isEnabled());
        }
        // Every toggle has its own timer, and a new delay is for the next toggle.
        toggle(50);
        toggle(3000);
        button->setDelay(5000);
        QVERIFY(!button->isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(button->isEnabled(), 1000);
        toggle(0);
        button.reset();
        QCoreApplication::processEvents();
    }

    DarkUX m_theme;
};

NOCTURNE_TEST_MAIN(TestButtons)
#include "tst_buttons.moc"
