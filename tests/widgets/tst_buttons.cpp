#include "gestures.h"

#include <nocturne/ButtonGroup>
#include <nocturne/CheckBox>
#include <nocturne/ClickableLabel>
#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/DelayButton>
#include <nocturne/DelayToolButton>
#include <nocturne/RadioButton>
#include <nocturne/SlideCheckBox>

#include <QtWidgets/QPushButton>

using TestSupport::comparePixels;
using TestSupport::count;

namespace {

const QColor nothing(0, 0, 0, 0);
const QColor boxColor(31, 31, 31);
const QColor accent(65, 155, 249);
const QColor caption(0xbb, 0xbb, 0xbb);
const QColor disabledCaption(0x63, 0x63, 0x63);

} // namespace

class TestButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setStyle(m_theme.style());
        // The colours are the theme's, not those of the application.
        QApplication::setPalette(QPalette(Qt::red, Qt::green));
    }

    void indicator_data()
    {
        QTest::addColumn<bool>("radio");
        QTest::addColumn<bool>("on");
        for (bool radio : {true, false}) {
            for (bool on : {true, false}) {
                QTest::addRow("%s, %s", radio ? "radio button" : "check box", on ? "on" : "off")
                    << radio << on;
            }
        }
    }

    void indicator()
    {
        QFETCH(bool, radio);
        QFETCH(bool, on);
        std::unique_ptr<QAbstractButton> button;
        if (radio)
            button = std::make_unique<RadioButton>();
        else
            button = std::make_unique<CheckBox>();
        button->setCheckable(true);
        button->setChecked(on);
        button->setText("MMMM");
        button->resize(100, 22);
        const QColor edge = TestSupport::blended(QColor(67, 67, 67, 128), Qt::transparent);
        const QColor dot = on ? accent : boxColor;
        const QRect text(18, 0, 82, 22);

        for (bool enabled : {true, false}) {
            button->setEnabled(enabled);
            // The square's lower edge is a unit below it, and two units shorter. The dot is eight
            // units wide and round.
            const QImage image = TestSupport::render(*button);
            comparePixels(image, boxColor, {{3, 4}, {14, 4}, {3, 15}, {14, 15}});
            comparePixels(image, edge, {{4, 16}, {13, 16}});
            comparePixels(image, nothing, {{3, 16}, {14, 16}, {9, 3}, {2, 10}, {15, 10}, {9, 17}});
            comparePixels(image, dot, {{9, 10}, {6, 10}, {11, 10}, {9, 7}});
            comparePixels(image, boxColor, {{4, 10}, {13, 10}, {5, 6}, {9, 5}});
            QVERIFY(count(image, text, enabled ? caption : disabledCaption) > 10);
            QCOMPARE(count(image, text, enabled ? disabledCaption : caption), 0);

            const QImage at2 = TestSupport::render(*button, 2);
            comparePixels(at2, boxColor, {{6, 8}, {29, 8}, {6, 30}, {29, 30}, {18, 11}, {18, 29}});
            comparePixels(at2, edge, {{7, 32}, {26, 32}});
            comparePixels(at2, nothing, {{18, 7}, {5, 20}, {30, 20}, {18, 33}});
            comparePixels(at2, dot, {{18, 13}, {18, 26}});
        }

        // Right to left the indicator stands at the other end, beside the caption.
        button->setLayoutDirection(Qt::RightToLeft);
        const QImage mirrored = TestSupport::render(*button);
        comparePixels(mirrored, boxColor, {{85, 10}, {96, 10}});
        comparePixels(mirrored, nothing, {{84, 10}, {97, 10}, {3, 4}});
    }

    void partiallyCheckedBoxIsEmpty()
    {
        CheckBox box;
        box.setTristate(true);
        box.resize(60, 20);
        const QImage off = TestSupport::render(box);
        box.setCheckState(Qt::PartiallyChecked);
        QCOMPARE(TestSupport::render(box), off);
    }

    void slideCheckBox()
    {
        SlideCheckBox box;
        box.resize(80, 30);
        for (int state : {0, 1, 2, 3}) {
            const bool on = state & 1;
            box.setChecked(on);
            box.setEnabled(state & 2);
            const QColor track = on ? QColor(50, 50, 255) : QColor(50, 50, 50);
            const int knob = on ? 50 : 0;
            for (int ratio : {1, 2}) {
                // Without its text, which may reach over the left of the knob above the baseline.
                const QImage image = TestSupport::render(box, ratio).scaled(box.size());
                comparePixels(image, Qt::black, {{0, 0}, {79, 0}, {78, 29}});
                comparePixels(image, track, {{on ? 4 : 74, 14}, {40, 2}});
                comparePixels(image, Qt::white,
                              {{knob + 4, 23},
                               {knob + 15, 15},
                               {knob + 28, 15},
                               {knob + 15, 2},
                               {knob + 15, 27}});
            }
            // The text starts at a quarter or at half of the width, and the pen is the widget's
            // own.
            const QImage image = TestSupport::render(box);
            const QColor pen = box.palette().color(box.foregroundRole());
            const int left = on ? 20 : 40;
            QVERIFY(count(image, QRect(left, 3, on ? 28 : 36, 19), pen) > 10);
            QCOMPARE(count(image, QRect(left, 21, 26, 5), pen), 0); // nothing below the baseline
            const QRect before = on ? QRect(3, 10, 17, 12) : QRect(31, 10, 9, 12);
            QVERIFY(count(image, QRect(left, 3, 8, 19), pen) > 0);
            QVERIFY(TestSupport::isFilled(image, before, track));
        }

        // The knob can be clicked at either end, and the track between.
        QVERIFY(TestSupport::showExposed(&box));
        bool on = box.isChecked();
        for (const QPoint &place : {QPoint(2, 2), QPoint(40, 15), QPoint(77, 27), QPoint(15, 15)}) {
            QTest::mouseClick(&box, Qt::LeftButton, {}, place);
            on = !on;
            QCOMPARE(box.isChecked(), on);
        }
    }

    void groupChecksById()
    {
        ButtonGroup group;
        QPushButton first;
        QPushButton second;
        for (QPushButton *button : {&first, &second})
            button->setCheckable(true);
        group.addButton(&first, 3);
        group.addButton(&second, 7);
        QSignalSpy clicked(&group, QOverload<int>::of(&QButtonGroup::idClicked));
        QSignalSpy toggled(&group, QOverload<int, bool>::of(&QButtonGroup::idToggled));

        group.setValue(7);
        QCOMPARE(group.checkedId(), 7);
        group.setValue(3);
        QCOMPARE(group.checkedId(), 3);
        QVERIFY(!second.isChecked());
        toggled.clear();
        for (int unknown : {-1, 0, 4})
            group.setValue(unknown);
        QCOMPARE(group.checkedId(), 3);
        QCOMPARE(toggled.count(), 0);
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
        int presses = 0;
        for (Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            QTest::mousePress(label, button);
            QCOMPARE(clicked.count(), ++presses);
            QTest::mouseRelease(label, button);
            QCOMPARE(clicked.count(), presses);
        }
    }

private:
    /// A click toggles and locks; further clicks are lost until the delay is over.
    template <typename Button>
    static void checkDelay()
    {
        Button button;
        QVERIFY(TestSupport::showExposed(&button));
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(button.isEnabled());

        button.setCheckable(true);
        QElapsedTimer timer;
        timer.start();
        for (int click = 0; click < 2; ++click) {
            QTest::mouseClick(&button, Qt::LeftButton);
            QVERIFY(button.isChecked() && !button.isEnabled());
        }
        QTRY_VERIFY(button.isEnabled());
        QVERIFY2(timer.elapsed() >= 499, qPrintable(QString::number(timer.elapsed())));

        for (int delay : {0, -5}) {
            button.setDelay(delay);
            button.toggle();
            QVERIFY(!button.isEnabled());
            QCoreApplication::processEvents();
            QVERIFY(button.isEnabled());
        }

        // Every toggle has its own timer, and a new delay is for the next toggle.
        button.setDelay(50);
        button.toggle();
        button.setDelay(5000);
        QTRY_VERIFY_WITH_TIMEOUT(button.isEnabled(), 1000);
        button.setDelay(50);
        button.toggle();
        button.setDelay(3000);
        button.toggle();
        QVERIFY(!button.isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(button.isEnabled(), 2000);

        auto doomed = std::make_unique<Button>();
        doomed->setCheckable(true);
        doomed->setDelay(0);
        doomed->toggle();
        doomed.reset();
        QCoreApplication::processEvents();
    }

    DarkUX m_theme;
};

NOCTURNE_TEST_MAIN(TestButtons)
#include "tst_buttons.moc"
