#include "probes.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/ProgressBar>
#include <nocturne/ProgressIndicator>
#include <nocturne/RoundProgressBar>

#include <functional>
#include <memory>

namespace {

QFont pixelFont(int size)
{
    QFont font;
    font.setPixelSize(size);
    return font;
}

class Ring : public RoundProgressBar
{
public:
    using RoundProgressBar::valueToText;
};

/// Without texts, 200 units wide and 240 high, with a ring 23 wide whose middle line has the
/// radius 93.
MakeWidget ring(double value, RoundProgressBar::BarStyle style = RoundProgressBar::DonutStyle,
                double nullPosition = RoundProgressBar::PositionTop)
{
    return TestSupport::made<RoundProgressBar>({200, 240}, {}, [=](RoundProgressBar *ring) {
        ring->setFormat(QString());
        ring->setTitle(QString(), pixelFont(20), pixelFont(24), 0, false);
        ring->setBarStyle(style);
        ring->setNullPosition(nullPosition);
        ring->setOutlinePenWidth(8);
        ring->setDataPenWidth(4);
        ring->setPalette(QPalette({}, {}, {}, {}, {}, Qt::black, Qt::red));
        ring->show();
        ring->setValue(value);
    });
}

MakeWidget wheel(int side)
{
    return TestSupport::made<ProgressIndicator>(
        {side, side}, {}, [](ProgressIndicator *wheel) { wheel->setColor(Qt::red); });
}

} // namespace

class TestProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_theme = std::make_unique<DarkUX>(); }
    void cleanupTestCase() { delete m_theme->style(); }

    void paints_data()
    {
        TestSupport::addPaintingColumns();
        using TestSupport::addPainting;
        // Just before and after twelve o'clock, and at nine.
        addPainting("ring", ring(0), "w-4 108,7; w+0 100,100 0,0; none 10,210",
                    "w-4 216,14; w+0 200,200 0,0; none 10,420");
        addPainting("half a ring", ring(50), "#419bf9/130|w-4 108,7; w-4 91,7",
                    "#419bf9/130|w-4 216,14; w-4 182,14");
        addPainting("whole ring", ring(100), "#419bf9/180|w-4 91,7 6,100");
        addPainting("ring from the left",
                    ring(1, RoundProgressBar::DonutStyle, RoundProgressBar::PositionLeft),
                    "w-4 108,7");
        addPainting("pie", ring(0, RoundProgressBar::PieStyle), "red 100,100");
        addPainting("line", ring(25, RoundProgressBar::LineStyle),
                    "w+0 100,100; #419bf9 195,98; #2d2c2c 5,100 195,110");
        // side 20: outer 9.5, R 9, height 9 - 3 = 6, width 2; side 40: outer 19.5, R 19,
        // height 19 - 7 = 12, width 2; side 32: outer 15.5, R 15, height 10, width 3.
        addPainting("wheel 20", wheel(20), "red 8,2 9,2; none 8,6");
        addPainting("wheel 32", wheel(32), "red 14,4 16,4; none 14,10");
        addPainting("wheel 40", wheel(40), "red 18,5 19,5 18,10; none 18,12");
    }

    void paints() { TestSupport::comparePainting(); }

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
            ring.setTitle(QString(), pixelFont(12), pixelFont(24), 1.0, true);
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
        loud.setOverline(true);
        loud.setStrikeOut(true);
        loud.setStretch(200);
        loud.setLetterSpacing(QFont::AbsoluteSpacing, 5);
        loud.setWordSpacing(9);
        loud.setCapitalization(QFont::AllUppercase);
        panel.setFont(loud);
        QCOMPARE(TestSupport::render(within), plain);
    }

    void barFillsValueOverMaximum()
    {
        // How many of 200 pixels are filled at a value of a range.
        const auto compare = [](int minimum, int maximum, int value, int filled) {
            ProgressBar bar;
            bar.resize(200, 30);
            bar.setRange(minimum, maximum);
            bar.setValue(value);
            const QImage image = TestSupport::render(bar);
            int blue = 0;
            for (int x = 0; x < image.width(); ++x)
                blue += image.pixelColor(x, 14).blue() > 120;
            // The blur takes the last pixel or two at each end.
            QVERIFY2(blue <= filled && blue >= filled - 6, qPrintable(QString::number(blue)));
            TestSupport::compareProbes(image, "none 100,7 100,22");
            if (filled < 150)
                TestSupport::compareProbes(image, "#0b0b0b/128 150,14; #4c4c4c/128 150,21");
        };
        compare(0, 100, 50, 100);
        compare(40, 100, 50, 100);
        compare(0, 100, 100, 200);
        compare(0, 100, 0, 0);
        compare(-50, 100, -10, 0);
        compare(0, 0, 0, 0);
        compare(-50, -10, -20, 0);
        ProgressBar full;
        full.setFullSize(true);
        full.resize(200, 30);
        full.setRange(0, 100);
        full.setValue(50);
        TestSupport::compareProbes(TestSupport::render(full), "#419bf9 50,15; none 120,15");
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
    std::unique_ptr<DarkUX> m_theme;
};

NOCTURNE_TEST_MAIN(TestProgress)

#include "tst_progress.moc"
