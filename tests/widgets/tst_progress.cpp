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
    return [=] {
        auto *ring = new RoundProgressBar;
        ring->setFormat(QString());
        ring->setTitle(QString(), pixelFont(20), pixelFont(24), 0, false);
        ring->setBarStyle(style);
        ring->setNullPosition(nullPosition);
        ring->setOutlinePenWidth(8);
        ring->setDataPenWidth(4);
        ring->resize(200, 240);
        QPalette palette;
        palette.setColor(QPalette::Base, Qt::red);
        ring->setPalette(palette);
        ring->show();
        ring->setValue(value);
        return ring;
    };
}

MakeWidget wheel(int side)
{
    return [=] {
        auto *wheel = new ProgressIndicator;
        wheel->setColor(Qt::red);
        wheel->resize(side, side);
        return wheel;
    };
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
        addPainting("whole ring", ring(100), "#419bf9/180|w-4 91,7 6,100",
                    "#419bf9/180|w-4 182,14 12,200");
        addPainting("ring from the left",
                    ring(1, RoundProgressBar::DonutStyle, RoundProgressBar::PositionLeft),
                    "w-4 108,7", "w-4 216,14");
        addPainting("pie", ring(0, RoundProgressBar::PieStyle), "red 100,100", "red 200,200");
        addPainting("line", ring(25, RoundProgressBar::LineStyle),
                    "w+0 100,100; #419bf9 195,98; #2d2c2c 5,100 195,110", "w+0 200,200");
        // side 20: outer 9.5, R 9, height 9 - 3 = 6, width 2; side 40: outer 19.5, R 19,
        // height 19 - 7 = 12, width 2; side 32: outer 15.5, R 15, height 10, width 3.
        addPainting("wheel 20", wheel(20), "red 8,2 9,2; none 8,6", "");
        addPainting("wheel 32", wheel(32), "red 14,4 16,4; none 14,10", "");
        addPainting("wheel 40", wheel(40), "red 18,5 19,5 18,10; none 18,12", "");
    }

    void paints() { TestSupport::comparePainting(); }

    void ringRangeAndValue()
    {
        RoundProgressBar ring;
        const auto state = [&ring] {
            return QVector<double>{ring.minimum(), ring.maximum(), ring.value()};
        };
        ring.setValue(40);
        QCOMPARE(ring.value(), 0.0);
        ring.show();
        ring.setRange(50, 10);
        QCOMPARE(state(), QVector<double>({10, 50, 10}));
        ring.setValue(70.0);
        QCOMPARE(ring.value(), 50.0);
        ring.setMaximum(5);
        QCOMPARE(state(), QVector<double>({5, 10, 10}));
        ring.setMinimum(20);
        QCOMPARE(state(), QVector<double>({10, 20, 10}));
        ring.setValue(qQNaN());
        QCOMPARE(ring.value(), 10.0);
        ring.setDecimals(-1);
        QCOMPARE(ring.decimals(), 1);
    }

    void ringText()
    {
        struct Row
        {
            const char *format;
            double value;
            const char *text;
            const char *unitText = nullptr;
        };
        for (const Row &row : {Row{"%p%", 25, "25.0%", "25.0"},
                               {"%p", 25, "25.0", "%p"},
                               {"%v of %v", 3.75, "3.8 of 3.8"},
                               {"%connect", 3, "3.0"},
                               {"%v/%p%", 50, "50.0/50.0%"},
                               {"%byte", 500, "0.5 KB/s"},
                               {"%byte", 1023, "1.0 KB/s"},
                               {"x %byte", 1024, "1.0 KB/s"},
                               {"%byte", 1536, "1.5 KB/s", "1.5"},
                               {"%byte", 3145728, "3.0 MB/s"},
                               {"%byte", 5368709120, "5.0 GB/s"},
                               {"%byte", 2199023255552, "2048.0 GB/s"}})
        {
            Ring ring;
            ring.setFormat(row.format);
            QCOMPARE(ring.valueToText(row.value), QString(row.text));
            ring.setTitle(QString(), pixelFont(12), pixelFont(24), 1.0, true);
            QVERIFY(!row.unitText || ring.valueToText(row.value) == row.unitText);
            ring.resetFormat();
            QCOMPARE(ring.valueToText(row.value), QString());
        }
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
        const QVector<std::function<void(QFont &)>> leaks{
            [](QFont &f) { f = QFont("monospace", 40, QFont::Bold, true); },
            [](QFont &f) { f.setFamilies({"monospace"}); },
            [](QFont &f) { f.setUnderline(true); },
            [](QFont &f) { f.setOverline(true); },
            [](QFont &f) { f.setStrikeOut(true); },
            [](QFont &f) { f.setStretch(200); },
            [](QFont &f) { f.setLetterSpacing(QFont::AbsoluteSpacing, 5); },
            [](QFont &f) { f.setWordSpacing(9); },
            [](QFont &f) { f.setCapitalization(QFont::AllUppercase); },
        };
        for (const auto &leak : leaks) {
            QFont font;
            leak(font);
            panel.setFont(font);
            QCOMPARE(TestSupport::render(within), plain);
        }
    }

    void barFillsValueOverMaximum()
    {
        struct Row
        {
            int minimum;
            int maximum;
            int value;
            int filled;
        };
        for (const Row &row :
             {Row{0, 100, 50, 100}, Row{40, 100, 50, 100}, Row{0, 100, 100, 200}, Row{0, 100, 0, 0},
              Row{-50, 100, -10, 0}, Row{0, 0, 0, 0}, Row{-50, -10, -20, 0}})
        {
            ProgressBar bar;
            bar.resize(200, 30);
            bar.setRange(row.minimum, row.maximum);
            bar.setValue(row.value);
            const QImage image = TestSupport::render(bar);
            int blue = 0;
            for (int x = 0; x < image.width(); ++x)
                blue += image.pixelColor(x, 14).blue() > 120;
            // The blur takes the last pixel or two at each end.
            QVERIFY2(blue <= row.filled && blue >= row.filled - 6,
                     qPrintable(QString::number(blue)));
            TestSupport::compareProbes(image, "none 100,7 100,22");
            if (row.filled < 150)
                TestSupport::compareProbes(image, "#0b0b0b/128 150,14; #4c4c4c/128 150,21");
        }
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
