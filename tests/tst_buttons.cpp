#include "testsupport.h"

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

#include <memory>

namespace {

const QColor nothing(0, 0, 0, 0);
const QColor boxColor(31, 31, 31);
const QColor accent(65, 155, 249);
const QColor caption(0xbb, 0xbb, 0xbb);
const QColor disabledCaption(0x63, 0x63, 0x63);

int count(const QImage &image, const QRect &area, const QColor &color)
{
    int hits = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            hits += image.pixelColor(x, y) == color;
    }
    return hits;
}

std::unique_ptr<QAbstractButton> makeIndicator(bool radio)
{
    if (radio)
        return std::make_unique<RadioButton>();
    return std::make_unique<CheckBox>();
}

} // namespace

class TestButtons : public QObject
{
    Q_OBJECT

private slots:
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
        QTest::addColumn<bool>("enabled");
        for (bool radio : {true, false}) {
            for (bool on : {true, false}) {
                for (bool enabled : {true, false}) {
                    QTest::addRow("%s, %s, %s", radio ? "radio button" : "check box",
                                  on ? "on" : "off", enabled ? "enabled" : "disabled")
                        << radio << on << enabled;
                }
            }
        }
    }

    void indicator()
    {
        QFETCH(bool, radio);
        QFETCH(bool, on);
        QFETCH(bool, enabled);

        const auto button = makeIndicator(radio);
        button->setCheckable(true);
        button->setChecked(on);
        button->setEnabled(enabled);
        button->setText(QStringLiteral("MMMM"));
        button->resize(100, 22);
        const QColor edge = TestSupport::blended(QColor(67, 67, 67, 128), Qt::transparent);

        const QImage image = TestSupport::render(*button);
        // The square's lower edge is a unit below it, and two units shorter.
        for (int x : {3, 14}) {
            COMPARE_PIXEL(image, x, 4, boxColor);
            COMPARE_PIXEL(image, x, 15, boxColor);
            COMPARE_PIXEL(image, x, 16, nothing);
        }
        for (int x : {4, 13})
            COMPARE_PIXEL(image, x, 16, edge);
        COMPARE_PIXEL(image, 9, 3, nothing);
        COMPARE_PIXEL(image, 2, 10, nothing);
        COMPARE_PIXEL(image, 15, 10, nothing);
        COMPARE_PIXEL(image, 9, 17, nothing);
        // The dot is eight units wide and round.
        for (const QPoint &inside : {QPoint(9, 10), QPoint(6, 10), QPoint(11, 10), QPoint(9, 7)})
            COMPARE_PIXEL(image, inside.x(), inside.y(), on ? accent : boxColor);
        for (const QPoint &outside : {QPoint(4, 10), QPoint(13, 10), QPoint(5, 6), QPoint(9, 5)})
            COMPARE_PIXEL(image, outside.x(), outside.y(), boxColor);
        QVERIFY(count(image, QRect(18, 0, 82, 22), enabled ? caption : disabledCaption) > 10);
        QCOMPARE(count(image, QRect(18, 0, 82, 22), enabled ? disabledCaption : caption), 0);

        const QImage at2 = TestSupport::render(*button, 2);
        for (const QPoint &corner : {QPoint(6, 8), QPoint(29, 8), QPoint(6, 30), QPoint(29, 30)})
            COMPARE_PIXEL(at2, corner.x(), corner.y(), boxColor);
        COMPARE_PIXEL(at2, 18, 7, nothing);
        COMPARE_PIXEL(at2, 5, 20, nothing);
        COMPARE_PIXEL(at2, 30, 20, nothing);
        COMPARE_PIXEL(at2, 7, 32, edge);
        COMPARE_PIXEL(at2, 26, 32, edge);
        COMPARE_PIXEL(at2, 18, 33, nothing);
        COMPARE_PIXEL(at2, 18, 13, on ? accent : boxColor);
        COMPARE_PIXEL(at2, 18, 26, on ? accent : boxColor);
        COMPARE_PIXEL(at2, 18, 11, boxColor);
        COMPARE_PIXEL(at2, 18, 29, boxColor);
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

    /// Right to left the indicator stands at the other end, beside the caption.
    void indicatorIsMirrored()
    {
        RadioButton button;
        button.setLayoutDirection(Qt::RightToLeft);
        button.setText(QStringLiteral("M"));
        button.resize(100, 22);
        const QImage image = TestSupport::render(button);
        COMPARE_PIXEL(image, 85, 10, boxColor);
        COMPARE_PIXEL(image, 96, 10, boxColor);
        COMPARE_PIXEL(image, 84, 10, nothing);
        COMPARE_PIXEL(image, 97, 10, nothing);
        COMPARE_PIXEL(image, 9, 10, nothing);
    }

    void slideCheckBox_data()
    {
        QTest::addColumn<bool>("on");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("on") << true << true;
        QTest::newRow("off") << false << true;
        QTest::newRow("on, disabled") << true << false;
        QTest::newRow("off, disabled") << false << false;
    }

    void slideCheckBox()
    {
        QFETCH(bool, on);
        QFETCH(bool, enabled);
        SlideCheckBox box;
        box.setEnabled(enabled);
        box.setChecked(on);
        box.resize(80, 30);
        const QColor track = on ? QColor(50, 50, 255) : QColor(50, 50, 50);
        const int knob = on ? 50 : 0;

        for (int ratio : {1, 2}) {
            const QImage image = TestSupport::render(box, ratio);
            const auto hasColor = [&](int x, int y, const QColor &color) {
                return image.pixelColor(x * ratio, y * ratio) == color;
            };
            QVERIFY(hasColor(0, 0, Qt::black));
            QVERIFY(hasColor(79, 0, Qt::black));
            QVERIFY(hasColor(78, 29, Qt::black));
            QVERIFY(hasColor(on ? 4 : 74, 14, track));
            QVERIFY(hasColor(40, 2, track));
            // The text may reach over the left of the knob, above its baseline.
            QVERIFY(hasColor(knob + 4, 23, Qt::white));
            for (int x : {15, 28})
                QVERIFY(hasColor(knob + x, 15, Qt::white));
            QVERIFY(hasColor(knob + 15, 2, Qt::white));
            QVERIFY(hasColor(knob + 15, 27, Qt::white));
        }

        // The text starts at a quarter or at half of the width, and the pen is the widget's own.
        const QColor pen = box.palette().color(box.foregroundRole());
        const QImage image = TestSupport::render(box);
        const int left = on ? 20 : 40;
        QVERIFY(count(image, QRect(left, 3, on ? 28 : 36, 19), pen) > 10);
        QCOMPARE(count(image, QRect(left, 21, 26, 5), pen), 0); // nothing below the baseline
        const QRect before = on ? QRect(3, 10, 17, 12) : QRect(31, 10, 9, 12);
        QCOMPARE(count(image, before, track), before.width() * before.height());
    }

    /// The knob can be clicked at either end, and the track between.
    void slideCheckBoxIsHitAnywhere()
    {
        SlideCheckBox box;
        box.resize(120, 34);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        bool on = false;
        for (const QPoint &place : {QPoint(2, 2), QPoint(60, 17), QPoint(117, 31), QPoint(17, 17)})
        {
            QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, place);
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
        label->resize(40, 20);
        window.resize(60, 40);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
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
        button.resize(60, 24);
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(button.isEnabled());

        button.setCheckable(true);
        QElapsedTimer timer;
        timer.start();
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(button.isChecked());
        QVERIFY(!button.isEnabled());
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(button.isChecked());
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

        auto *doomed = new Button;
        doomed->setCheckable(true);
        doomed->setDelay(0);
        doomed->toggle();
        delete doomed;
        QCoreApplication::processEvents();
    }

    DarkUX m_theme;
};

NOCTURNE_TEST_MAIN(TestButtons)
#include "tst_buttons.moc"
