#include "stylepainting.h"

#include <nocturne/style/complexcontrols_p.h>
#include <nocturne/style/stylecolors_p.h>
#include <nocturne/style/stylehelpers_p.h>

#include <QtCore/QSet>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

#include <private/qguiapplication_p.h>
#include <private/qhighdpiscaling_p.h>

#include <memory>

// The hidden tools that all paint functions of the style share.

using namespace StylePainting;
using namespace Nocturne;

namespace {

QImage arrow(const QColor &color, int rotation)
{
    return StyleHelpers::colorizedImage(StyleHelpers::arrowImageFileName(), color, rotation)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QStyleOptionSlider dialOption()
{
    auto option = makeOption<QStyleOptionSlider>(QRect(0, 0, 64, 64));
    option.subControls = QStyle::SC_DialTickmarks | QStyle::SC_DialHandle;
    option.maximum = 100;
    option.pageStep = 20;
    option.tickInterval = 10;
    option.upsideDown = true;
    return option;
}

} // namespace

class tst_StyleHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QPixmapCache::clear(); }

    void derivedColors();
    void scrollBarBackground();

    void cacheKeys();
    void keptDrawings();
    void keptDrawingsFollowTheScreen();
    void cachedDrawingIsPaintedOnce();
    void uncacheableDrawingIsPaintedInPlace();

    void colorizedArrow();
    void colorizedChannels();

    void dialTicks();
    void dialPositions();

private:
    DarkUX m_theme;
};

void tst_StyleHelpers::derivedColors()
{
    const QPalette palette = m_theme.palette();
    QCOMPARE(StyleColors::buttonColor(palette).rgba(), qRgb(0x48, 0x48, 0x48));
    QCOMPARE(StyleColors::outlineColor(palette), palette.color(QPalette::Window).darker(140));

    // Grey 134 is lightened by (180 - 134) / 6 percent.
    QPalette light(palette);
    light.setColor(QPalette::Button, QColor(200, 100, 100));
    const QColor button = QColor(200, 100, 100).lighter(107);
    QCOMPARE(StyleColors::buttonColor(light).hue(), button.hue());
    QCOMPARE(StyleColors::buttonColor(light).value(), button.value());
    QCOMPARE(StyleColors::buttonColor(light).saturation(), int(button.saturation() * 0.75));

    QPalette bright(palette);
    bright.setColor(QPalette::Highlight, QColor(40, 80, 255));
    QCOMPARE(StyleColors::highlightedOutlineColor(bright).lightness(), 160);
    bright.setColor(QPalette::Highlight, QColor(20, 40, 100));
    QCOMPARE(StyleColors::highlightedOutlineColor(bright), QColor(20, 40, 100).darker(125));

    QPalette textured(palette);
    textured.setBrush(QPalette::Window, QBrush(QPixmap(4, 4)));
    QCOMPARE(StyleColors::outlineColor(textured), QColor(0, 0, 0, 160));
    QCOMPARE(StyleColors::tabFrameColor(textured), QColor(255, 255, 255, 8));

    QCOMPARE(StyleColors::mergedColors(QColor(0x19, 0x1a, 0x1e, 40), QColor(0xbb, 0xbb, 0xbb), 85),
             QColor(49, 50, 53, 40));
    QCOMPARE(StyleColors::mergedColors(QColor(200, 0, 100), QColor(0, 200, 100), 200),
             QColor(255, 0, 100));
}

void tst_StyleHelpers::scrollBarBackground()
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::red);
    QScrollArea area;
    QScrollBar loose;
    QPalette areaPalette;
    areaPalette.setColor(QPalette::Base, Qt::green);
    area.setPalette(areaPalette);
    const auto ground = [&](const QWidget *widget) {
        return StyleColors::scrollBarBackgroundColor(palette, widget);
    };
    QCOMPARE(ground(area.verticalScrollBar()), QColor(Qt::green));
    for (const QWidget *widget : std::initializer_list<QWidget *>{&loose, &area, nullptr})
        QCOMPARE(ground(widget), QColor(Qt::red));
}

/// Whatever a drawing depends on gives it a key of its own.
void tst_StyleHelpers::cacheKeys()
{
    const QSize size(20, 10);
    QStyleOptionSlider option;
    option.palette = m_theme.palette();
    const QString key = StyleHelpers::styleCacheKey("x", &option, size);
    QCOMPARE(StyleHelpers::styleCacheKey("x", &option, size), key);
    QVERIFY(key.startsWith('x'));
    QSet<QString> keys = {key, StyleHelpers::styleCacheKey("y", &option, size),
                          StyleHelpers::styleCacheKey("x", nullptr, size),
                          StyleHelpers::styleCacheKey("x", &option, QSize(10, 20)),
                          StyleHelpers::styleCacheKey("x", &option, QSize(20 + 0x10000, 10))};
    const std::function<void(QStyleOptionSlider &)> changes[] = {
        [](auto &other) { other.state = QStyle::State_Window; }, // a high bit
        [](auto &other) { other.direction = Qt::RightToLeft; },
        [](auto &other) { other.activeSubControls = QStyle::SC_SliderHandle; },
        [](auto &other) { other.palette.setColor(QPalette::Text, Qt::red); },
        [](auto &other) { other.palette.setCurrentColorGroup(QPalette::Disabled); }};
    for (const auto &change : changes) {
        QStyleOptionSlider changed(option);
        change(changed);
        keys << StyleHelpers::styleCacheKey("x", &changed, size);
    }
    QCOMPARE(keys.size(), 10);

    keys.clear();
    QStyleOptionSpinBox spinBox;
    for (int i = 0; i < 24; ++i) {
        spinBox.frame = i % 2;
        spinBox.stepEnabled = QAbstractSpinBox::StepEnabled(i / 2 % 4);
        spinBox.buttonSymbols = QAbstractSpinBox::ButtonSymbols(i / 8);
        keys << StyleHelpers::styleCacheKey("s", &spinBox, size);
    }
    QCOMPARE(keys.size(), 24);
}

/// Each is looked up under its key, then replaced there, so that what is drawn next tells where it
/// came from. Where it would be blurred, nothing kept is drawn.
void tst_StyleHelpers::keptDrawings()
{
    const std::unique_ptr<QStyle> style(m_theme.style());
    auto button = makeOption<QStyleOptionButton>(QRect(2, 2, 40, 24));
    auto progress = makeOption<QStyleOptionProgressBar>(button.rect);
    QtVersion::setOrientation(progress, Qt::Horizontal);
    const auto primitive = [&](QStyle::PrimitiveElement element) {
        return [&style, &button, element](QPainter &painter) {
            style->drawPrimitive(element, &button, &painter);
        };
    };
    const auto control = [&](QStyle::ControlElement element) {
        return [&style, &progress, element](QPainter &painter) {
            style->drawControl(element, &progress, &painter);
        };
    };
    const std::tuple<QString, QRect, Drawing> rows[] = {
        {"checkbox", button.rect, primitive(QStyle::PE_IndicatorCheckBox)},
        // A circle as wide as the rectangle, one unit right of and below its middle.
        {"radiobutton", QRect(2, -6, 40, 40), primitive(QStyle::PE_IndicatorRadioButton)},
        {"pushbutton-0", button.rect, primitive(QStyle::PE_PanelButtonCommand)},
        {"progressgroove", QRect(2, 1, 40, 25), control(QStyle::CE_ProgressBarGroove)},
        {"progressbusy", button.rect, control(QStyle::CE_ProgressBarContents)}};
    for (const auto &[prefix, kept, paint] : rows) {
        const QStyleOption &option =
            prefix.startsWith("progress") ? static_cast<const QStyleOption &>(progress) : button;
        const QString key = StyleHelpers::styleCacheKey(prefix, &option, kept.size());
        picture(paint);
        QPixmap mark;
        QVERIFY2(QPixmapCache::find(key, &mark), qPrintable(prefix));
        mark.fill(Qt::green);
        QPixmapCache::insert(key, mark);
        const QImage image = picture(paint);
        QCOMPARE(painted(image), QRegion(kept & everything));
        QVERIFY(isFilled(image, kept & everything, Qt::green));
        const QImage finer =
            TestSupport::paintOn(canvas, background, paint, qApp->devicePixelRatio() * 1.5);
        if (prefix != "pushbutton-0")
            QCOMPARE(TestSupport::count(finer, finer.rect(), Qt::green), 0);
    }
}

/// A dense screen is plugged in: what was kept for the old one is not drawn on it.
void tst_StyleHelpers::keptDrawingsFollowTheScreen()
{
    const DarkFusionStyle style;
    const auto button = makeOption<QStyleOptionButton>(QRect(2, 2, 40, 24));
    auto titleBar = makeOption<QStyleOptionTitleBar>(everything);
    titleBar.titleBarState = int(QStyle::State_Active);
    titleBar.titleBarFlags = Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
    const auto draw = [&] {
        return picture([&](QPainter &painter) {
            style.drawComplexControl(QStyle::CC_TitleBar, &titleBar, &painter);
            style.drawPrimitive(QStyle::PE_PanelButtonCommand, &button, &painter);
            style.drawPrimitive(QStyle::PE_IndicatorArrowDown, &button, &painter);
        });
    };
    const auto setScale = [](qreal scale) {
        QHighDpiScaling::setGlobalFactor(scale);
        QGuiApplicationPrivate::resetCachedDevicePixelRatio();
    };
    const qreal scale = qApp->devicePixelRatio();
    draw();
    setScale(scale + 1);
    QCOMPARE(qApp->devicePixelRatio(), scale + 1);
    const QImage kept = draw();
    QPixmapCache::clear();
    const QImage fresh = draw();
    setScale(scale);
    QCOMPARE(kept, fresh);
}

void tst_StyleHelpers::cachedDrawingIsPaintedOnce()
{
    int painted = 0;
    const auto paint = [&](QPainter *painter) {
        ++painted;
        painter->fillRect(0, 0, 4, 4, Qt::red);
    };
    const QImage image = TestSupport::paintOn(QSize(12, 12), Qt::black, [&](QPainter &painter) {
        for (const QPoint &place : {QPoint(1, 1), QPoint(6, 6)})
            StyleHelpers::drawCached(&painter, place, "once", QSize(5, 5), paint);
        StyleHelpers::drawCached(&painter, QPoint(), "none", QSize(0, 5), paint);
    });
    QCOMPARE(painted, 1);
    TestSupport::comparePixels(image, Qt::black, {{0, 0}, {5, 5}});
    TestSupport::comparePixels(image, Qt::red, {{1, 1}, {9, 9}});
}

/// Three units to the right are three units down for a painter turned by 90 degrees.
void tst_StyleHelpers::uncacheableDrawingIsPaintedInPlace()
{
    const auto paint = [](QPainter *painter) { painter->fillRect(0, 0, 3, 1, Qt::red); };
    const QImage image = TestSupport::paintOn(QSize(8, 8), Qt::black, [&](QPainter &painter) {
        StyleHelpers::drawCached(&painter, QPoint(0, 0), "huge", QSize(1000000, 1000000), paint);
        painter.translate(8, 0);
        painter.rotate(90);
        StyleHelpers::drawCachedUnlessTransformed(&painter, QPoint(2, 2), "turned", QSize(3, 1),
                                                  paint);
        QVERIFY(painter.worldTransform().isRotating());
    });
    TestSupport::comparePixels(image, Qt::red, {{0, 0}, {2, 0}, {5, 2}, {5, 4}});
    QPixmap pixmap;
    for (const char *key : {"huge", "turned"})
        QVERIFY(!QPixmapCache::find(key, &pixmap));
}

/// The toolkit's arrow, or the style's own where that is missing: an upright triangle.
void tst_StyleHelpers::colorizedArrow()
{
    const QColor color(200, 150, 100);
    const QImage up = arrow(color, 0);
    QVERIFY(up.width() >= up.height());
    QCOMPARE(directionOf(painted(up, Qt::transparent)), Qt::UpArrow);
    QCOMPARE(up.mirrored(true, false), up);
    COMPARE_PIXEL(up, up.width() / 2, up.height() - 2, color);
    QCOMPARE(arrow(color, 180), up.mirrored(true, true));
    QCOMPARE(arrow(color, 90), up.transformed(QTransform().rotate(90)));
    QCOMPARE(arrow(color, -90), up.transformed(QTransform().rotate(-90)));

    QPixmap cached;
    QVERIFY(
        QPixmapCache::find("$qt_ia-" + StyleHelpers::arrowImageFileName() + "46698cff0", &cached));
    QVERIFY(StyleHelpers::colorizedImage(QStringLiteral(":/no/such.png"), Qt::red).isNull());
    QVERIFY(!QImage(StyleHelpers::groupBoxImageFileName()).isNull());
    StyleHelpers::drawArrowImage(QStyle::PE_IndicatorArrowUp, nullptr, nullptr);
}

void tst_StyleHelpers::colorizedChannels()
{
    QTemporaryDir directory;
    const QString fileName = directory.filePath(QStringLiteral("channels.png"));
    QImage source(3, 1, QImage::Format_ARGB32);
    source.setPixelColor(0, 0, QColor(0, 40, 255));   // all of the colour, on grey
    source.setPixelColor(1, 0, QColor(30, 60, 30));   // grey alone
    source.setPixelColor(2, 0, QColor(0, 0, 255, 0)); // nothing
    QVERIFY(source.save(fileName));

    const QImage image = StyleHelpers::colorizedImage(fileName, QColor(100, 50, 250)).toImage();
    COMPARE_PIXEL(image, 0, 0, QColor(140, 90, (40 + 250) % 256));
    COMPARE_PIXEL(image, 1, 0, QColor(60, 60, 60));
    QCOMPARE(image.pixelColor(2, 0).alpha(), 0);

    // No channel exceeds the alpha of a translucent colour.
    const QImage faint = StyleHelpers::colorizedImage(fileName, QColor(100, 50, 200, 80)).toImage();
    QCOMPARE(faint.convertToFormat(QImage::Format_ARGB32_Premultiplied).pixelColor(0, 0).alpha(),
             80);
}

void tst_StyleHelpers::dialTicks()
{
    QStyleOptionSlider option = dialOption();
    const QVector<QLineF> lines = ComplexControls::dialTickLines(&option);
    QCOMPARE(lines.size(), 11);
    const auto polar = [](const QPointF &point) {
        const QLineF line(QPointF(32.5, 32.5), point);
        return QPoint(qRound(line.length()), qRound(line.angle()));
    };
    // At 240 degrees, a long mark; the next one is short, and one unit further in.
    QCOMPARE(ComplexControls::dialBigLineSize(32), 5);
    QCOMPARE(polar(lines[0].p1()), QPoint(27, 240));
    QCOMPARE(polar(lines[0].p2()), QPoint(32, 240));
    QCOMPARE(polar(lines[1].p1()), QPoint(29, 210));
    QCOMPARE(polar(lines[1].p2()), QPoint(31, 210));
    QCOMPARE(polar(lines[2].p2()), QPoint(32, 180));
    QCOMPARE(polar(lines[10].p2()), QPoint(32, 300));

    option.pageStep = 0;
    const int rows[][4] = {// minimum, maximum, interval, number of marks
                           {0, 100, 0, 0},
                           {0, 100, -5, 0},
                           {0, 100, 30, 5},
                           {5, 5, 1, 0},
                           {5, 2, 1, 0},
                           {0, 5000, 7, (7 + 999) / 7 + 1},
                           {INT_MIN, INT_MAX, INT_MAX, 2}};
    for (const auto &row : rows) {
        option.minimum = row[0];
        option.maximum = row[1];
        option.tickInterval = row[2];
        QCOMPARE(int(ComplexControls::dialTickLines(&option).size()), row[3]);
    }
}

void tst_StyleHelpers::dialPositions()
{
    QStyleOptionSlider option = dialOption();
    const QPointF center(32, 32);
    const auto angle = [&](int value) {
        option.sliderPosition = value;
        return qRound(QLineF(center, ComplexControls::dialRadialPos(&option, 1.0)).angle());
    };
    QCOMPARE(angle(0), 240);
    QCOMPARE(angle(50), 90);
    QCOMPARE(angle(100), 300);
    QCOMPARE(QLineF(center, ComplexControls::dialRadialPos(&option, 0.5)).length(), 12.0);

    option.upsideDown = false;
    QCOMPARE(angle(0), 300);
    option.dialWrapping = true;
    QCOMPARE(angle(25), 0);
    option.minimum = option.maximum = 7;
    QCOMPARE(angle(7), 90);
}

NOCTURNE_TEST_MAIN(tst_StyleHelpers)

#include "tst_style_helpers_internals.moc"
