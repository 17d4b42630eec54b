#include "gestures.h"
#include "modaldialog.h"
#include "probes.h"

#include <nocturne/ButtonGroup>
#include <nocturne/CheckBox>
#include <nocturne/ClickableLabel>
#include <nocturne/ColorBar>
#include <nocturne/ColorButton>
#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/DelayButton>
#include <nocturne/DelayToolButton>
#include <nocturne/RadioButton>
#include <nocturne/SlideCheckBox>

#include <QtCore/QMimeData>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

using TestSupport::addPainting;
using TestSupport::count;
using Flags = QVector<bool>;

namespace {

const QColor caption(0xbb, 0xbb, 0xbb);
const QColor disabledCaption(0x63, 0x63, 0x63);

template <typename Button>
Button *sized(int width, int height, bool checked)
{
    auto *button = new Button;
    button->resize(width, height);
    button->setCheckable(true);
    button->setChecked(checked);
    return button;
}

void clickButton(QColorDialog *dialog, QDialogButtonBox::StandardButton which)
{
    QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(which), Qt::LeftButton);
}

/// A colour button with the flags of its notifications.
class ColorFixture
{
public:
    ColorFixture()
    {
        button.resize(40, 26);
        QObject::connect(&button, &ColorButton::colorChanged, &button,
                         [this](double value, bool complete) {
                             QCOMPARE(value, 0.0);
                             flags << complete;
                         });
        button.show();
    }

    ColorButton button{QColor(10, 20, 30)};
    Flags flags;
};

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

    void paints_data()
    {
        TestSupport::addPaintingColumns();
        // The square's lower edge is a unit below it, and two units shorter. The dot is eight units
        // wide and round.
        const QString square =
            "#1f1f1f 3,4 14,4 3,15 14,15 4,10 13,10 5,6 9,5; #434343/128 4,16 13,16; "
            "none 3,16 14,16 9,3 2,10 15,10 9,17; %1 9,10 6,10 11,10 9,7";
        const QString at2 = "#1f1f1f 6,8 29,8 6,30 29,30 18,11 18,29; #434343/128 7,32 26,32; "
                            "none 18,7 5,20 30,20 18,33; %1 18,13 18,26";
        for (bool on : {false, true}) {
            const auto row = [&](const char *name, const MakeWidget &make) {
                const QString dot = on ? "#419bf9" : "#1f1f1f";
                addPainting(qPrintable(QString("%1 %2").arg(name).arg(on)), make,
                            qPrintable(square.arg(dot)), qPrintable(at2.arg(dot)));
            };
            row("radio button", [=] { return sized<RadioButton>(100, 22, on); });
            row("check box", [=] { return sized<CheckBox>(100, 22, on); });
        }
        const auto partial = [] {
            auto *box = sized<CheckBox>(60, 22, false);
            box->setCheckState(Qt::PartiallyChecked);
            return box;
        };
        addPainting("partially checked", partial, "#1f1f1f 9,10", "#1f1f1f 18,20");
        const auto mirrored = [] {
            auto *box = sized<RadioButton>(100, 22, true);
            box->setLayoutDirection(Qt::RightToLeft);
            return box;
        };
        addPainting("mirrored", mirrored, "#1f1f1f 85,10 96,10; none 84,10 97,10 3,4", "");
        // The text may reach over the left of the knob above the baseline.
        addPainting(
            "switched off", [] { return sized<SlideCheckBox>(80, 30, false); },
            "black 0,0 79,0 78,29; #323232 74,14 40,2; white 4,23 15,15 28,15 15,2 15,27",
            "#323232 148,28; white 8,46 56,30 30,4 30,54");
        addPainting(
            "switched on", [] { return sized<SlideCheckBox>(80, 30, true); },
            "black 0,0 79,0; #3232ff 4,14 40,2; white 54,23 65,15 78,15 65,2 65,27",
            "#3232ff 8,28; white 108,46 156,30 130,4 130,54");
        addPainting(
            "color button", [] { return sized<ColorButton>(80, 40, false); },
            "w-18 2,20; w+33 40,3; w+29/128 40,39; none 40,1; black 40,20; w+22 10,5; "
            "w+12 10,19",
            "w-18 4,40; w+33 80,6; w+29/128 80,78; none 80,2; black 80,40");
        addPainting(
            "pressed color button", [] { return sized<ColorButton>(80, 40, true); },
            "#141414 2,20; #171717 10,5; #111111 10,30; w+29/128 40,39", "#141414 4,40");
        const auto bar = [](bool elipse) {
            return [elipse] {
                auto *bar = new ColorBar;
                bar->resize(40, 20);
                bar->setColor(Qt::red);
                bar->setElipse(elipse);
                return bar;
            };
        };
        addPainting("bar", bar(false), "none 1,10 38,10; red 2,0 37,19", "none 3,20; red 4,20");
        addPainting("dot", bar(true), "none 20,2 3,3; red 20,10", "none 40,5; red 40,20");
    }

    void paints() { TestSupport::comparePainting(); }

    void captions()
    {
        RadioButton radio;
        CheckBox check;
        for (QAbstractButton *button : QVector<QAbstractButton *>{&radio, &check}) {
            button->setText("MMMM");
            button->resize(100, 22);
            for (bool enabled : {true, false}) {
                button->setEnabled(enabled);
                const QImage image = TestSupport::render(*button);
                QVERIFY(count(image, {18, 0, 82, 22}, enabled ? caption : disabledCaption) > 10);
                QCOMPARE(count(image, {18, 0, 82, 22}, enabled ? disabledCaption : caption), 0);
            }
        }
        // The text of a switch starts at a quarter or at half of the width, and the pen is its own.
        for (bool on : {false, true}) {
            const std::unique_ptr<SlideCheckBox> box(sized<SlideCheckBox>(80, 30, on));
            const QImage image = TestSupport::render(*box);
            const QColor pen = box->palette().color(box->foregroundRole());
            const int left = on ? 20 : 40;
            QVERIFY(count(image, {left, 3, 8, 19}, pen) > 0);
            QVERIFY(count(image, {left, 3, on ? 28 : 36, 19}, pen) > 10);
            QCOMPARE(count(image, {left, 21, 26, 5}, pen), 0); // nothing below the baseline
            const QRect before = on ? QRect(3, 10, 17, 12) : QRect(31, 10, 9, 12);
            QVERIFY(TestSupport::isFilled(image, before,
                                          on ? QColor(50, 50, 255) : QColor(50, 50, 50)));
        }
        ColorButton color;
        color.resize(80, 40);
        for (auto group : {QPalette::Inactive, QPalette::Disabled}) {
            color.setEnabled(group == QPalette::Inactive);
            COMPARE_PIXEL(TestSupport::render(color), 20, 15,
                          color.palette().color(group, QPalette::ButtonText));
        }
    }

    /// The knob can be clicked at either end, and the track between.
    void slideCheckBoxIsClicked()
    {
        const std::unique_ptr<SlideCheckBox> box(sized<SlideCheckBox>(80, 30, false));
        QVERIFY(TestSupport::showExposed(box.get()));
        bool on = false;
        for (const QPoint &place : {QPoint(2, 2), QPoint(40, 15), QPoint(77, 27), QPoint(15, 15)}) {
            QTest::mouseClick(box.get(), Qt::LeftButton, {}, place);
            on = !on;
            QCOMPARE(box->isChecked(), on);
        }
    }

    void groupChecksById()
    {
        ButtonGroup group;
        QPushButton first;
        QPushButton second;
        int id = 3;
        for (QPushButton *button : {&first, &second}) {
            button->setCheckable(true);
            group.addButton(button, id);
            id = 7;
        }
        QSignalSpy clicked(&group, QOverload<int>::of(&QButtonGroup::idClicked));
        QSignalSpy toggled(&group, QOverload<int, bool>::of(&QButtonGroup::idToggled));
        group.setValue(7);
        group.setValue(3);
        QVERIFY(first.isChecked() && !second.isChecked());
        toggled.clear();
        for (int unknown : {-1, 0, 4})
            group.setValue(unknown);
        QCOMPARE(group.checkedId(), 3);
        QCOMPARE(toggled.count() + clicked.count(), 0);
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

    void colorDialog_data()
    {
        QTest::addColumn<bool>("realtime");
        QTest::addColumn<bool>("accept");
        QTest::addColumn<Flags>("flags");
        QTest::newRow("realtime") << true << true << Flags{false, false, false, true};
        QTest::newRow("at the end") << false << true << Flags{false, true};
        QTest::newRow("cancelled") << true << false << Flags{false, false, false};
    }

    void colorDialog()
    {
        QFETCH(bool, realtime);
        QFETCH(bool, accept);
        QFETCH(Flags, flags);
        ColorFixture f;
        f.button.setRealtimeChange(realtime);
        whenOpen<QColorDialog>([&](QColorDialog *dialog) {
            for (const QColor color : {Qt::red, Qt::blue}) {
                dialog->setCurrentColor(color);
                QCOMPARE(f.button.color(), realtime ? color : QColor(10, 20, 30));
            }
            clickButton(dialog, accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
        });
        QTest::mouseClick(&f.button, Qt::LeftButton);
        QCOMPARE(f.flags, flags);
        QCOMPARE(f.button.color(), accept ? QColor(Qt::blue) : QColor(10, 20, 30));
    }

    void deletedWhileItsDialogIsOpen()
    {
        auto *button = new ColorButton;
        whenOpen<QColorDialog>([button](QColorDialog *) { delete button; });
        QMetaObject::invokeMethod(button, "changeColor");
    }

    void aJitterStillClicks()
    {
        ColorFixture f;
        f.button.disconnect(SIGNAL(clicked(bool))); // No dialog.
        QSignalSpy clicked(&f.button, &ColorButton::clicked);
        const QPoint jittered(10 + QApplication::startDragDistance(), 10);
        QTest::mousePress(&f.button, Qt::LeftButton, {}, {10, 10});
        TestSupport::sendDrag(&f.button, jittered);
        QTest::mouseRelease(&f.button, Qt::LeftButton, {}, jittered);
        QCOMPARE(clicked.count(), 1);
    }

    void colorsAreDropped()
    {
        ColorFixture f;
        QMimeData color;
        color.setColorData(QColor(Qt::magenta));
        QMimeData text;
        text.setText("red");
        for (const QMimeData *data : {&text, &color}) {
            QDragEnterEvent enter({5, 5}, Qt::CopyAction, data, Qt::LeftButton, {});
            QDragMoveEvent move({6, 5}, Qt::CopyAction, data, Qt::LeftButton, {});
            QDropEvent drop(QPointF(6, 5), Qt::CopyAction, data, Qt::LeftButton, {});
            for (QDropEvent *event : QVector<QDropEvent *>{&enter, &move, &drop}) {
                QCoreApplication::sendEvent(&f.button, event);
                QVERIFY(event == &drop || event->isAccepted() == data->hasColor());
            }
            QCOMPARE(f.flags, data->hasColor() ? Flags{true} : Flags());
        }
        QCOMPARE(f.button.color(), QColor(Qt::magenta));
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
        bar.startFlicker();
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
        QElapsedTimer phase;
        phase.start();
        QTRY_VERIFY_WITH_TIMEOUT(!isDrawn(), 2000);
        QVERIFY2(phase.elapsed() >= 200, qPrintable(QString::number(phase.elapsed())));
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
