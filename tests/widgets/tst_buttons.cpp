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

#include <QtWidgets/QColorDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

using TestSupport::addPainting;
using TestSupport::count;
using TestSupport::made;
using Flags = QVector<bool>;

namespace {

const QColor caption(0xbb, 0xbb, 0xbb);
const QColor disabledCaption(0x63, 0x63, 0x63);

template <typename Button>
MakeWidget button(const QSize &size, bool checked, Qt::LayoutDirection direction = Qt::LeftToRight)
{
    return made<Button>(
        size, {{"checkable", true}, {"checked", checked}, {"layoutDirection", direction}});
}

MakeWidget bar(bool elipse)
{
    return made<ColorBar>({40, 20}, {}, [elipse](ColorBar *bar) {
        bar->setColor(Qt::red);
        bar->setElipse(elipse);
    });
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
            const QString dot = on ? "#419bf9" : "#1f1f1f";
            addPainting(QString("radio button %1").arg(on), button<RadioButton>({100, 22}, on),
                        square.arg(dot), at2.arg(dot));
            addPainting(QString("check box %1").arg(on), button<CheckBox>({100, 22}, on),
                        square.arg(dot), at2.arg(dot));
        }
        addPainting("partially checked",
                    made<CheckBox>({60, 22}, {},
                                   [](CheckBox *box) { box->setCheckState(Qt::PartiallyChecked); }),
                    "#1f1f1f 9,10");
        addPainting("mirrored", button<RadioButton>({100, 22}, true, Qt::RightToLeft),
                    "#1f1f1f 85,10 96,10; none 84,10 97,10 3,4");
        // The text may reach over the left of the knob above the baseline.
        addPainting("switched off", button<SlideCheckBox>({80, 30}, false),
                    "black 0,0 79,0 78,29; #323232 74,14 40,2; white 4,23 15,15 28,15 15,2 15,27");
        addPainting("switched on", button<SlideCheckBox>({80, 30}, true),
                    "black 0,0 79,0; #3232ff 4,14 40,2; white 54,23 65,15 78,15 65,2 65,27");
        addPainting("color button", button<ColorButton>({80, 40}, false),
                    "w-18 2,20; w+33 40,3; w+29/128 40,39; none 40,1; black 40,20; w+22 10,5; "
                    "w+12 10,19",
                    "w-18 4,40; w+33 80,6; w+29/128 80,78; none 80,2; black 80,40");
        addPainting("pressed color button", button<ColorButton>({80, 40}, true),
                    "#141414 2,20; #171717 10,5; #111111 10,30; w+29/128 40,39");
        addPainting("bar", bar(false), "none 1,10 38,10; red 2,0 37,19");
        addPainting("dot", bar(true), "none 20,2 3,3; red 20,10");
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
            const std::unique_ptr<QWidget> box(button<SlideCheckBox>({80, 30}, on)());
            const QImage image = TestSupport::render(*box);
            const QColor pen = box->palette().color(box->foregroundRole());
            const int left = on ? 20 : 40;
            QVERIFY(count(image, {left, 3, 8, 19}, pen) > 0);
            QVERIFY(count(image, {left, 3, on ? 28 : 36, 19}, pen) > 10);
            QCOMPARE(count(image, {left, 21, 26, 5}, pen), 0); // nothing below the baseline
            QCOMPARE(count(image, {on ? 3 : 31, 10, on ? 17 : 9, 12}, pen), 0); // nor before it
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
        SlideCheckBox box;
        box.resize(80, 30);
        QVERIFY(TestSupport::showExposed(&box));
        bool on = false;
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
        QTest::mousePress(label, Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
        QTest::mouseClick(label, Qt::RightButton);
        QCOMPARE(clicked.count(), 2);
    }

    void colorDialog()
    {
        // The notifications of a dialog in which two colours are chosen.
        const auto flagsOf = [](bool realtime, bool accept) {
            ColorFixture f;
            f.button.setRealtimeChange(realtime);
            whenOpen<QColorDialog>([&](QColorDialog *dialog) {
                for (const QColor color : {Qt::red, Qt::blue}) {
                    dialog->setCurrentColor(color);
                    QCOMPARE(f.button.color(), realtime ? color : QColor(10, 20, 30));
                }
                const auto which = accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel;
                QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(which),
                                  Qt::LeftButton);
            });
            QTest::mouseClick(&f.button, Qt::LeftButton);
            const bool right = f.button.color() == (accept ? QColor(Qt::blue) : QColor(10, 20, 30));
            return right ? f.flags : Flags();
        };
        QCOMPARE(flagsOf(true, true), Flags({false, false, false, true}));
        QCOMPARE(flagsOf(false, true), Flags({false, true}));
        QCOMPARE(flagsOf(true, false), Flags({false, false, false}));
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
        QVERIFY(!TestSupport::drop(&f.button, text, QPoint(6, 5)).contains(true));
        QCOMPARE(f.flags, Flags());
        QCOMPARE(TestSupport::drop(&f.button, color, QPoint(6, 5)).mid(0, 2), Flags({true, true}));
        QCOMPARE(f.flags, Flags{true});
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
