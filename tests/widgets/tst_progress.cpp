#include "probes.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/ProgressIndicator>
#include <nocturne/RoundProgressBar>

namespace {

class Ring : public RoundProgressBar
{
public:
    using RoundProgressBar::valueToText;
};

} // namespace

class TestProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { delete m_theme.style(); }

    void ringRangeAndValue()
    {
        RoundProgressBar ring;
        ring.setValue(40);
        QCOMPARE(ring.value(), 0.0); // while it is not shown
        ring.show();
        ring.setRange(50, 10);
        ring.setValue(70.0);
        QCOMPARE(ring.value(), 50.0);
        ring.setMaximum(5);
        ring.setMinimum(20);
        ring.setValue(qQNaN());
        QCOMPARE(QVector<double>({ring.minimum(), ring.maximum(), ring.value()}),
                 QVector<double>({10, 20, 10}));
        ring.setDecimals(-1);
        QCOMPARE(ring.decimals(), 1);
    }

    void ringText()
    {
        const auto compare = [](const char *format, double value, const char *text,
                                const char *unitText = nullptr) {
            Ring ring;
            ring.setFormat(format);
            QCOMPARE(ring.valueToText(value), QString(text));
            ring.setTitle(QString(), QFont(), QFont(), 1.0, true);
            QVERIFY(!unitText || ring.valueToText(value) == unitText);
            ring.resetFormat();
            QCOMPARE(ring.valueToText(value), QString());
        };
        compare("%p%", 25, "25.0%", "25.0");
        compare("%p", 25, "25.0", "%p");
        compare("%v of %v", 3.75, "3.8 of 3.8");
        compare("%connect", 3, "3.0");
        compare("%v/%p%", 50, "50.0/50.0%");
        compare("%byte", 500, "0.5 KB/s");
        compare("%byte", 1023, "1.0 KB/s");
        compare("x %byte", 1024, "1.0 KB/s");
        compare("%byte", 1536, "1.5 KB/s", "1.5");
        compare("%byte", 3145728, "3.0 MB/s");
        compare("%byte", 5368709120, "5.0 GB/s");
        compare("%byte", 2199023255552, "2048.0 GB/s");
        Ring empty;
        empty.show();
        empty.setRange(7, 7);
        TestSupport::render(empty);
        QCOMPARE(empty.valueToText(7), QString("0.0%"));
    }

    void dataColorsBecomeTheHighlightBrush()
    {
        RoundProgressBar ring;
        ring.setDataColors({{0.0, Qt::red}, {0.25, Qt::blue}});
        TestSupport::render(ring);
        const QBrush brush = ring.palette().brush(QPalette::Highlight);
        QVERIFY(brush.gradient());
        QCOMPARE(brush.gradient()->type(), QGradient::ConicalGradient);
        QCOMPARE(brush.gradient()->stops(), QGradientStops({{0.75, Qt::blue}, {1.0, Qt::red}}));
    }

    void ringKeepsItsFonts()
    {
        QWidget panel;
        panel.resize(160, 160);
        RoundProgressBar within(&panel);
        RoundProgressBar alone;
        for (RoundProgressBar *ring : {&within, &alone}) {
            ring->resize(160, 160);
            ring->setTitle("Stream out", QFont(), QFont(), 1, false);
        }
        panel.show();
        const QImage plain = TestSupport::render(alone);
        QFont loud("monospace", 40, QFont::Bold, true);
        loud.setFamilies({"monospace"});
        loud.setUnderline(true);
        loud.setStrikeOut(true);
        loud.setStretch(200);
        loud.setLetterSpacing(QFont::AbsoluteSpacing, 5);
        loud.setWordSpacing(9);
        loud.setCapitalization(QFont::AllUppercase);
        panel.setFont(loud);
        QCOMPARE(TestSupport::render(within), plain);
    }

    void indicatorTurns()
    {
        ProgressIndicator wheel;
        wheel.setAnimationDelay(1);
        wheel.resize(40, 40);
        const QImage upright = TestSupport::render(wheel);
        // The capsule at 6 o'clock is half way through the fade.
        QVERIFY(qAbs(upright.pixelColor(19, 33).alphaF() - 0.5) < 0.01);
        wheel.startAnimation();
        QTRY_VERIFY(TestSupport::render(wheel) != upright);
        wheel.setAnimationDelay(1000000);
        QVERIFY(wheel.isAnimated());
        wheel.startAnimation();
        QCOMPARE(TestSupport::render(wheel), upright);
        wheel.setAnimationDelay(-5);
        QCOMPARE(wheel.animationDelay(), 1000000);
        wheel.stopAnimation();
        QVERIFY(!wheel.isAnimated());
        QCOMPARE(TestSupport::render(wheel), upright);
        wheel.setDisplayedWhenStopped(false);
        QCOMPARE(TestSupport::count(TestSupport::render(wheel), wheel.rect(), Qt::transparent),
                 1600);
    }

private:
    DarkUX m_theme;
};

NOCTURNE_TEST_MAIN(TestProgress)

#include "tst_progress.moc"
