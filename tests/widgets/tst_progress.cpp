#include "testsupport.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/ProgressBar>
#include <nocturne/ProgressIndicator>
#include <nocturne/RoundProgressBar>

#include <QtGui/QPainterPath>

#include <cmath>
#include <functional>
#include <memory>

namespace {

QFont pixelFont(int size)
{
    QFont font;
    font.setPixelSize(size);
    return font;
}

/// Gives tests the texts and angles that the ring paints.
class Ring : public RoundProgressBar
{
public:
    using RoundProgressBar::valueToText;

    double arc = -1.0;
    QRectF inner;

protected:
    void drawValue(QPainter &painter, const QRectF &rect, double value, double arcLength) override
    {
        arc = arcLength;
        RoundProgressBar::drawValue(painter, rect, value, arcLength);
    }
    void drawText(QPainter &painter, const QRectF &innerRect, double innerRadius,
                  double value) override
    {
        inner = innerRect;
        RoundProgressBar::drawText(painter, innerRect, innerRadius, value);
    }
};

/// A point on the ring's middle line, at \a degrees counter-clockwise from 3 o'clock.
QPoint onRing(int side, double thickness, double degrees)
{
    const double radius = side / 2.0 - 1 - thickness / 4;
    const double angle = degrees * M_PI / 180.0;
    return QPoint(int(side / 2.0 + radius * std::cos(angle)),
                  int(side / 2.0 - radius * std::sin(angle)));
}

} // namespace

class TestProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_theme = std::make_unique<DarkUX>(); }
    void cleanupTestCase() { delete m_theme->style(); }

    void ringRangeAndValue()
    {
        RoundProgressBar ring;
        ring.setValue(40);
        QCOMPARE(ring.value(), 0.0);
        ring.show();
        ring.setRange(50, 10);
        QCOMPARE(ring.minimum(), 10.0);
        QCOMPARE(ring.maximum(), 50.0);
        QCOMPARE(ring.value(), 10.0);
        ring.setValue(70.0);
        QCOMPARE(ring.value(), 50.0);
        ring.setMaximum(5);
        QCOMPARE(ring.minimum(), 5.0);
        QCOMPARE(ring.maximum(), 10.0);
        QCOMPARE(ring.value(), 10.0);
        ring.setMinimum(20);
        QCOMPARE(ring.minimum(), 10.0);
        QCOMPARE(ring.maximum(), 20.0);
        ring.setValue(qQNaN());
        QCOMPARE(ring.value(), 10.0);
        ring.setDecimals(-1);
        QCOMPARE(ring.decimals(), 1);
        ring.setDecimals(0);
        QCOMPARE(ring.decimals(), 0);
    }

    void ringText_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<bool>("unitMode");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");

        QTest::newRow("percent") << "%p%" << false << 25.0 << "25.0%";
        QTest::newRow("percent, unit") << "%p%" << true << 25.0 << "25.0";
        QTest::newRow("bare percent, unit") << "%p" << true << 25.0 << "%p";
        QTest::newRow("value") << "%v of %v" << false << 3.75 << "3.8 of 3.8";
        QTest::newRow("connect") << "%connect" << false << 3.0 << "3.0";
        QTest::newRow("both") << "%v/%p%" << false << 50.0 << "50.0/50.0%";
        QTest::newRow("0.5 KB") << "%byte" << false << 512.0 << "0.5 KB/s";
        QTest::newRow("500") << "%byte" << false << 500.0 << "0.5 KB/s";
        QTest::newRow("1023") << "%byte" << false << 1023.0 << "1.0 KB/s";
        QTest::newRow("1024") << "x %byte" << false << 1024.0 << "1.0 KB/s";
        QTest::newRow("1536") << "%byte" << false << 1536.0 << "1.5 KB/s";
        QTest::newRow("1536, unit") << "%byte" << true << 1536.0 << "1.5";
        QTest::newRow("2 KB") << "%byte" << false << 2048.0 << "2.0 KB/s";
        QTest::newRow("3 MB") << "%byte" << false << 3145728.0 << "3.0 MB/s";
        QTest::newRow("5 GB") << "%byte" << false << 5368709120.0 << "5.0 GB/s";
        QTest::newRow("2 TB") << "%byte" << false << 2199023255552.0 << "2048.0 GB/s";
    }

    void ringText()
    {
        QFETCH(QString, format);
        QFETCH(bool, unitMode);
        QFETCH(double, value);
        QFETCH(QString, text);
        Ring ring;
        ring.setFormat(format);
        ring.setTitle(QString(), pixelFont(12), pixelFont(24), 1.0, unitMode);
        QCOMPARE(ring.valueToText(value), text);
        ring.resetFormat();
        QCOMPARE(ring.valueToText(value), QString());
    }

    void ringSector_data()
    {
        QTest::addColumn<qreal>("ratio");
        QTest::newRow("1x") << 1.0;
        QTest::newRow("2x") << 2.0;
    }

    void ringSector()
    {
        QFETCH(qreal, ratio);
        const int side = 200;
        const double thickness = 20 + 3;
        Ring ring;
        ring.setFormat(QString());
        ring.setTitle(QString(), pixelFont(20), pixelFont(24), 0, false);
        ring.resize(side, side + 40);
        ring.show();

        const QColor window(0x1f, 0x21, 0x26);
        const QColor base(0x1b, 0x1d, 0x22);
        const auto at = [ratio](const QPoint &point) { return point * ratio; };

        QImage image = TestSupport::render(ring, ratio);
        const QPoint justBefore12 = at(onRing(side, thickness, 95));
        const QPoint justAfter12 = at(onRing(side, thickness, 85));
        const QPoint nineOClock = at(onRing(side, thickness, 180));
        COMPARE_PIXEL(image, justAfter12.x(), justAfter12.y(), base);
        COMPARE_PIXEL(image, at({100, 100}).x(), at({100, 100}).y(), window);
        COMPARE_PIXEL(image, 0, 0, window);
        COMPARE_PIXEL(image, 10, int((side + 10) * ratio), QColor(Qt::transparent));
        QCOMPARE(ring.arc, 0.0);

        ring.setValue(50);
        image = TestSupport::render(ring, ratio);
        const QColor half = TestSupport::blended(QColor(65, 155, 249, 130), base);
        COMPARE_PIXEL(image, justAfter12.x(), justAfter12.y(), half);
        COMPARE_PIXEL(image, justBefore12.x(), justBefore12.y(), base);
        QCOMPARE(ring.arc, 180.0);

        ring.setValue(100);
        image = TestSupport::render(ring, ratio);
        const QColor full = TestSupport::blended(QColor(65, 155, 249, 180), base);
        COMPARE_PIXEL(image, justBefore12.x(), justBefore12.y(), full);
        COMPARE_PIXEL(image, nineOClock.x(), nineOClock.y(), full);

        ring.setNullPosition(RoundProgressBar::PositionLeft);
        ring.setValue(1);
        image = TestSupport::render(ring, ratio);
        COMPARE_PIXEL(image, justAfter12.x(), justAfter12.y(), base);
    }

    void ringStyles()
    {
        RoundProgressBar ring;
        ring.setFormat(QString());
        ring.resize(200, 200);
        QPalette palette = ring.palette();
        palette.setColor(QPalette::Base, Qt::darkGreen);
        ring.setPalette(palette);
        ring.setBarStyle(RoundProgressBar::PieStyle);
        QImage image = TestSupport::render(ring);
        COMPARE_PIXEL(image, 100, 100, QColor(Qt::darkGreen));

        ring.show();
        ring.setBarStyle(RoundProgressBar::LineStyle);
        ring.setOutlinePenWidth(8);
        ring.setDataPenWidth(4);
        ring.setValue(25);
        image = TestSupport::render(ring);
        COMPARE_PIXEL(image, 100, 100, QColor(0x1f, 0x21, 0x26));
        COMPARE_PIXEL(image, 5, 100, m_theme->palette().color(QPalette::Mid));
        COMPARE_PIXEL(image, 195, 98, QColor(65, 155, 249));
        COMPARE_PIXEL(image, 195, 110, m_theme->palette().color(QPalette::Mid));
    }

    void ringOfNoLengthShowsZero()
    {
        Ring ring;
        ring.show();
        ring.setRange(7, 7);
        TestSupport::render(ring);
        QCOMPARE(ring.arc, 0.0);
        QCOMPARE(ring.valueToText(7), QStringLiteral("0.0%"));
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

    void barFillsValueOverMaximum_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("filled");

        QTest::newRow("half") << 0 << 100 << 50 << 100;
        QTest::newRow("half of the maximum") << 40 << 100 << 50 << 100;
        QTest::newRow("full") << 0 << 100 << 100 << 200;
        QTest::newRow("none") << 0 << 100 << 0 << 0;
        QTest::newRow("below 0") << -50 << 100 << -10 << 0;
        QTest::newRow("busy") << 0 << 0 << 0 << 0;
        QTest::newRow("negative range") << -50 << -10 << -20 << 0;
    }

    void barFillsValueOverMaximum()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, value);
        QFETCH(int, filled);
        ProgressBar bar;
        bar.resize(200, 30);
        bar.setRange(minimum, maximum);
        bar.setValue(value);
        const QImage image = TestSupport::render(bar);
        const int middle = 8 + 13 / 2;
        int blue = 0;
        for (int x = 0; x < image.width(); ++x)
            blue += image.pixelColor(x, middle).blue() > 120;
        // The blur takes the last pixel or two at each end.
        QVERIFY2(blue <= filled && blue >= filled - 6, qPrintable(QString::number(blue)));

        COMPARE_PIXEL(image, 100, 7, QColor(Qt::transparent));
        COMPARE_PIXEL(image, 100, 22, QColor(Qt::transparent));
        if (filled < 150) {
            const QImage groove = TestSupport::paintOn({1, 1}, Qt::transparent, [](QPainter &p) {
                p.fillRect(0, 0, 1, 1, QColor(11, 11, 11, 128));
            });
            COMPARE_PIXEL(image, 150, middle, groove.pixelColor(0, 0));
            QVERIFY(image.pixelColor(150, 21).red() > 60);
            COMPARE_PIXEL(image, 1, 21, image.pixelColor(198, 21));
        }
    }

    void fullBarHasNoGroove()
    {
        ProgressBar bar;
        bar.setFullSize(true);
        bar.resize(200, 30);
        bar.setRange(0, 100);
        bar.setValue(50);
        const QImage image = TestSupport::render(bar);
        COMPARE_PIXEL(image, 50, 15, QColor(65, 155, 249));
        COMPARE_PIXEL(image, 120, 15, QColor(Qt::transparent));
    }

    void indicatorTurns()
    {
        ProgressIndicator wheel;
        QCOMPARE(wheel.sizeHint(), QSize(20, 20));
        QVERIFY(!wheel.isAnimated());
        wheel.setProperty("delay", 1);
        wheel.resize(40, 40);
        const QImage upright = TestSupport::render(wheel);
        wheel.startAnimation();
        QVERIFY(wheel.isAnimated());
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
        QImage nothing = TestSupport::render(wheel);
        nothing.fill(Qt::transparent);
        QCOMPARE(TestSupport::render(wheel), nothing);
    }

    void indicatorCapsules_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<QRect>("capsule");

        // side 20: outer 9.5, R 9, height 9 - 3 = 6, width 2; side 40: outer 19.5, R 19,
        // height 19 - 7 = 12, width 2; side 32: outer 15.5, R 15, height 10, width 3.
        QTest::newRow("20") << 20 << QRect(8, 0, 2, 6);
        QTest::newRow("32") << 32 << QRect(14, 0, 3, 10);
        QTest::newRow("40") << 40 << QRect(18, 0, 2, 12);
    }

    void indicatorCapsules()
    {
        QFETCH(int, side);
        QFETCH(QRect, capsule);
        ProgressIndicator wheel;
        wheel.setColor(Qt::red);
        wheel.resize(side, side);
        const QImage image = TestSupport::render(wheel);
        for (int x : {capsule.left() - 2, capsule.right() + 2})
            QVERIFY(image.pixelColor(x, capsule.top() + 1).alpha() < 10);
        for (int x = capsule.left(); x <= capsule.right(); ++x)
            COMPARE_PIXEL(image, x, capsule.center().y(), QColor(Qt::red));
        QCOMPARE(image.pixelColor(capsule.left(), capsule.bottom() + 1).alpha(), 0);
        // The capsule at 6 o'clock is half way through the fade.
        const QPoint centre = QRect(0, 0, side, side).center();
        const QColor opposite =
            image.pixelColor(centre.x(), 2 * centre.y() - capsule.center().y() - 1);
        QVERIFY(qAbs(opposite.alphaF() - 0.5) < 0.01);
    }

private:
    std::unique_ptr<DarkUX> m_theme;
};

NOCTURNE_TEST_MAIN(TestProgress)

#include "tst_progress.moc"
