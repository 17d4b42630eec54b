#include "modaldialog.h"
#include "testsupport.h"

#include <nocturne/ColorBar>
#include <nocturne/ColorButton>
#include <nocturne/ColorToolButton>
#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>

#include <QtCore/QMimeData>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

#include <memory>

namespace {

void clickButton(QColorDialog *dialog, QDialogButtonBox::StandardButton which)
{
    QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(which), Qt::LeftButton);
}

using Flags = QVector<bool>;

/// A colour button with the flags of its notifications.
class Fixture
{
public:
    Fixture()
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

class CountingBar : public ColorBar
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        ColorBar::paintEvent(event);
    }
};

} // namespace

class TestColorButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_theme = std::make_unique<DarkUX>(); }
    void cleanupTestCase() { delete m_theme->style(); }

    void dialogCancelled()
    {
        Fixture f;
        whenOpen<QColorDialog>([&f](QColorDialog *dialog) {
            dialog->setCurrentColor(Qt::red);
            QCOMPARE(f.button.color(), QColor(Qt::red));
            dialog->setCurrentColor(Qt::blue);
            clickButton(dialog, QDialogButtonBox::Cancel);
        });
        QTest::mouseClick(&f.button, Qt::LeftButton);
        QCOMPARE(f.flags, Flags({false, false, false}));
        QCOMPARE(f.button.color(), QColor(10, 20, 30));
    }

    void dialogAccepted_data()
    {
        QTest::addColumn<bool>("realtime");
        QTest::addColumn<Flags>("flags");
        QTest::newRow("realtime") << true << Flags({false, false, true});
        QTest::newRow("at the end") << false << Flags({false, true});
    }

    void dialogAccepted()
    {
        QFETCH(bool, realtime);
        QFETCH(Flags, flags);
        Fixture f;
        f.button.setRealtimeChange(realtime);
        whenOpen<QColorDialog>([](QColorDialog *dialog) {
            dialog->setCurrentColor(Qt::red);
            clickButton(dialog, QDialogButtonBox::Ok);
        });
        QTest::mouseClick(&f.button, Qt::LeftButton);
        QCOMPARE(f.flags, flags);
        QCOMPARE(f.button.color(), QColor(Qt::red));
        f.button.setProperty("color", QColor(Qt::cyan));
        QCOMPARE(f.button.color(), QColor(Qt::cyan));
        QCOMPARE(f.flags, flags);
    }

    void deletedWhileItsDialogIsOpen()
    {
        auto *button = new ColorButton;
        QCOMPARE(button->color(), QColor(Qt::black));
        whenOpen<QColorDialog>([button](QColorDialog *) { delete button; });
        QMetaObject::invokeMethod(button, "changeColor");
    }

    void aJitterStillClicks()
    {
        Fixture f;
        f.button.disconnect(SIGNAL(clicked(bool))); // No dialog.
        QSignalSpy clicked(&f.button, &ColorButton::clicked);
        const QPoint jittered(10 + QApplication::startDragDistance(), 10);
        QTest::mousePress(&f.button, Qt::LeftButton, {}, {10, 10});
        QMouseEvent move(QEvent::MouseMove, jittered, f.button.mapToGlobal(jittered), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&f.button, &move);
        QVERIFY(f.button.isDown());
        QTest::mouseRelease(&f.button, Qt::LeftButton, {}, jittered);
        QCOMPARE(clicked.count(), 1);
    }

    void drops()
    {
        Fixture f;
        QMimeData color;
        color.setColorData(QColor(Qt::magenta));
        QMimeData text;
        text.setText(QStringLiteral("red"));

        for (const QMimeData *data : {&color, &text}) {
            QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, data, Qt::LeftButton,
                                  Qt::NoModifier);
            QCoreApplication::sendEvent(&f.button, &enter);
            QCOMPARE(enter.isAccepted(), data->hasColor());
            QDragMoveEvent move(QPoint(6, 5), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&f.button, &move);
            QCOMPARE(move.isAccepted(), data->hasColor());
        }
        const auto drop = [&f](const QMimeData *data) {
            QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, data, Qt::LeftButton,
                                  Qt::NoModifier);
            QCoreApplication::sendEvent(&f.button, &enter);
            QDropEvent event(QPointF(6, 5), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&f.button, &event);
        };
        drop(&text);
        QCOMPARE(f.flags, Flags());
        drop(&color);
        QCOMPARE(f.flags, Flags({true}));
        QCOMPARE(f.button.color(), QColor(Qt::magenta));
    }

    void buttonPixels_data()
    {
        QTest::addColumn<int>("ratio");
        QTest::newRow("1x") << 1;
        QTest::newRow("2x") << 2;
    }

    void buttonPixels()
    {
        QFETCH(int, ratio);
        Fixture f;
        f.button.setCheckable(true);
        f.button.resize(80, 40);
        QCOMPARE(f.button.sizeHint(), QSize(40, 26));
        QCOMPARE(f.button.minimumSizeHint(), QSize(40, 26));

        QImage image = TestSupport::render(f.button, ratio);
        const auto compare = [&](int x, int y, const QColor &color) {
            COMPARE_PIXEL(image, x * ratio, y * ratio, color);
        };
        compare(2, 20, QColor(13, 15, 20));
        compare(40, 3, QColor(64, 66, 71));
        // The edge is half transparent; premultiplying costs it a unit of blue.
        const QColor edge = image.pixelColor(40 * ratio, 39 * ratio);
        QCOMPARE(edge.alpha(), 128);
        QVERIFY(edge.red() == 60 && edge.green() == 62 && qAbs(edge.blue() - 67) <= 1);
        compare(40, 1, QColor(Qt::transparent));
        compare(20, 15, f.button.palette().color(QPalette::Inactive, QPalette::ButtonText));
        compare(40, 20, QColor(10, 20, 30));
        const QColor middle = image.pixelColor(10 * ratio, 19 * ratio);
        QVERIFY(middle.red() > 32 && middle.red() < 55);
        QVERIFY(image.pixelColor(10 * ratio, 5 * ratio).red() > middle.red());

        f.button.setChecked(true);
        image = TestSupport::render(f.button, ratio);
        compare(2, 20, QColor(20, 20, 20));
        QCOMPARE(image.pixelColor(10 * ratio, 5 * ratio).red(),
                 image.pixelColor(10 * ratio, 5 * ratio).blue());
        QVERIFY(image.pixelColor(10 * ratio, 5 * ratio).red() <= 24);

        f.button.setEnabled(false);
        image = TestSupport::render(f.button, ratio);
        compare(20, 15, f.button.palette().color(QPalette::Disabled, QPalette::ButtonText));
    }

    void barAndDot()
    {
        CountingBar bar;
        bar.resize(40, 20);
        QCOMPARE(TestSupport::render(bar).pixelColor(20, 10), QColor(Qt::transparent));
        bar.setColor(Qt::red);
        QImage image = TestSupport::render(bar);
        COMPARE_PIXEL(image, 1, 10, QColor(Qt::transparent));
        COMPARE_PIXEL(image, 2, 0, QColor(Qt::red));
        COMPARE_PIXEL(image, 37, 19, QColor(Qt::red));
        COMPARE_PIXEL(image, 38, 10, QColor(Qt::transparent));

        bar.setElipse(true);
        image = TestSupport::render(bar);
        COMPARE_PIXEL(image, 20, 2, QColor(Qt::transparent));
        COMPARE_PIXEL(image, 20, 10, QColor(Qt::red));
        COMPARE_PIXEL(image, 3, 3, QColor(Qt::transparent));

        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        QCoreApplication::processEvents();
        const int paints = bar.paints;
        bar.setColor(Qt::red);
        QCoreApplication::processEvents();
        QCOMPARE(bar.paints, paints);
        bar.setColor(Qt::green);
        QTRY_COMPARE(bar.paints, paints + 1);
    }

    void flicker()
    {
        ColorBar bar;
        bar.resize(20, 20);
        bar.setColor(Qt::red);
        bar.setElipse(true);
        bar.setElipse(true);
        const QImage drawn = TestSupport::render(bar);
        QImage blank = drawn;
        blank.fill(Qt::transparent);
        bar.startFlicker();
        bar.startFlicker();
        // Each tick inverts the phase once, however often the shape was set.
        QMetaObject::invokeMethod(&bar, "timeOut");
        QCOMPARE(TestSupport::render(bar), blank);
        bar.setElipse(false);
        QVERIFY(TestSupport::render(bar) != blank);
        bar.setElipse(true);
        bar.stopFlicker();
        QCOMPARE(TestSupport::render(bar), drawn);

        bar.startFlicker();
        QTRY_VERIFY_WITH_TIMEOUT(TestSupport::render(bar) == drawn, 2000);
        QElapsedTimer phase;
        phase.start();
        QTRY_VERIFY_WITH_TIMEOUT(TestSupport::render(bar) == blank, 2000);
        QVERIFY2(phase.elapsed() >= 200, qPrintable(QString::number(phase.elapsed())));
    }

    void toolButtonIsPlain()
    {
        ColorToolButton colored;
        QToolButton plain;
        for (QToolButton *button : {static_cast<QToolButton *>(&colored), &plain}) {
            button->setText(QStringLiteral("Fill"));
            button->resize(60, 30);
        }
        QCOMPARE(TestSupport::render(colored), TestSupport::render(plain));
    }

private:
    std::unique_ptr<DarkUX> m_theme;
};

NOCTURNE_TEST_MAIN(TestColorButtons)

#include "tst_colorbuttons.moc"
