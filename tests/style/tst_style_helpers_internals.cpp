#include "stylepainting.h"

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

class TestStyleHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QPixmapCache::clear(); }

    void scrollBarBackground();
    void cacheKeys();
    void keptDrawings();
    void keptDrawingsFollowTheScreen();
    void paintedOnceOrInPlace();
    void colorizedArrow();
    void colorizedChannels();

private:
    DarkUX m_theme;
};

void TestStyleHelpers::scrollBarBackground()
{
    QPalette palette(Qt::red);
    QScrollArea area;
    QScrollBar loose;
    area.setPalette(Qt::green);
    const auto ground = [&](const QWidget *widget) {
        return StyleColors::scrollBarBackgroundColor(palette, widget);
    };
    QCOMPARE(ground(area.verticalScrollBar()), area.palette().color(QPalette::Base));
    for (const QWidget *widget : std::initializer_list<QWidget *>{&loose, &area, nullptr})
        QCOMPARE(ground(widget), palette.color(QPalette::Base));
}

/// Whatever a drawing depends on gives it a key of its own.
void TestStyleHelpers::cacheKeys()
{
    QStyleOptionSlider slider;
    slider.palette = m_theme.palette();
    QStyleOptionSpinBox spinBox;
    QSize size(20, 10);
    const auto key = [&](const char *prefix, const QStyleOption *option) {
        return StyleHelpers::styleCacheKey(prefix, option, size);
    };
    QCOMPARE(key("x", &slider), key("x", &slider));
    QSet<QString> keys = {key("x", &slider), key("y", &slider), key("x", nullptr)};
    const std::function<void()> changes[] = {
        [&] { size = QSize(10, 20); },
        [&] { size.rwidth() += 0x10000; },
        [&] { slider.state = QStyle::State_Window; }, // a high bit
        [&] { slider.direction = Qt::RightToLeft; },
        [&] { slider.activeSubControls = QStyle::SC_SliderHandle; },
        [&] { slider.palette.setColor(QPalette::Text, Qt::red); },
        [&] { slider.palette.setCurrentColorGroup(QPalette::Disabled); }};
    for (const auto &change : changes) {
        change();
        keys << key("x", &slider);
    }
    for (int i = 0; i < 24; ++i) {
        spinBox.frame = i % 2;
        spinBox.stepEnabled = QAbstractSpinBox::StepEnabled(i / 2 % 4);
        spinBox.buttonSymbols = QAbstractSpinBox::ButtonSymbols(i / 8);
        keys << key("x", &spinBox);
    }
    QCOMPARE(keys.size(), 3 + 7 + 24);
}

/// Each is looked up under its key, then replaced there, so that what is drawn next tells where it
/// came from. Where it would be blurred, nothing kept is drawn.
void TestStyleHelpers::keptDrawings()
{
    const std::unique_ptr<QStyle> style(m_theme.style());
    auto button = makeOption<QStyleOptionButton>(QRect(2, 2, 40, 24));
    auto progress = makeOption<QStyleOptionProgressBar>(button.rect);
    QtVersion::setOrientation(progress, Qt::Horizontal);
    const auto primitive = [&](QStyle::PrimitiveElement element) {
        return
            [&, element](QPainter &painter) { style->drawPrimitive(element, &button, &painter); };
    };
    const auto control = [&](QStyle::ControlElement element) {
        return
            [&, element](QPainter &painter) { style->drawControl(element, &progress, &painter); };
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
        QCOMPARE(painted(picture(paint)), QRegion(kept & everything));
        const QImage finer =
            TestSupport::paintOn(canvas, background, paint, qApp->devicePixelRatio() * 1.5);
        if (prefix != "pushbutton-0")
            QCOMPARE(TestSupport::count(finer, finer.rect(), Qt::green), 0);
    }
}

/// A dense screen is plugged in: what was kept for the old one is not drawn on it.
void TestStyleHelpers::keptDrawingsFollowTheScreen()
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

/// Three units to the right are three units down for a painter turned by 90 degrees.
void TestStyleHelpers::paintedOnceOrInPlace()
{
    int calls = 0;
    const auto paint = [&](QPainter *painter) {
        ++calls;
        painter->fillRect(0, 0, 3, 1, Qt::red);
    };
    const QImage image = TestSupport::paintOn(QSize(9, 9), Qt::black, [&](QPainter &painter) {
        for (const QPoint &place : {QPoint(1, 1), QPoint(6, 8)})
            StyleHelpers::drawCached(&painter, place, "once", QSize(3, 1), paint);
        StyleHelpers::drawCached(&painter, QPoint(), "none", QSize(0, 5), paint);
        QCOMPARE(calls, 1);
        StyleHelpers::drawCached(&painter, QPoint(0, 6), "huge", QSize(1000000, 1000000), paint);
        painter.translate(8, 0);
        painter.rotate(90);
        StyleHelpers::drawCachedUnlessTransformed(&painter, QPoint(2, 2), "turned", QSize(3, 1),
                                                  paint);
        QVERIFY(painter.worldTransform().isRotating());
    });
    QCOMPARE(painted(image, Qt::black),
             QRegion(1, 1, 3, 1) + QRect(6, 8, 3, 1) + QRect(0, 6, 3, 1) + QRect(5, 2, 1, 3));
    QPixmap pixmap;
    for (const char *key : {"huge", "turned"})
        QVERIFY(!QPixmapCache::find(key, &pixmap));
}

/// The toolkit's arrow, or the style's own where that is missing: an upright triangle.
void TestStyleHelpers::colorizedArrow()
{
    const auto arrow = [](int rotation) {
        return StyleHelpers::colorizedImage(StyleHelpers::arrowImageFileName(),
                                            QColor(200, 150, 100), rotation)
            .toImage();
    };
    const QImage up = arrow(0);
    QVERIFY(up.width() >= up.height());
    COMPARE_PIXEL(up, up.width() / 2, up.height() - 2, QColor(200, 150, 100));
    QCOMPARE(arrow(180), up.mirrored(true, true));
    QCOMPARE(arrow(-90), up.transformed(QTransform().rotate(-90)));
    QPixmap cached;
    QVERIFY(
        QPixmapCache::find("$qt_ia-" + StyleHelpers::arrowImageFileName() + "46698cff0", &cached));
    QVERIFY(StyleHelpers::colorizedImage(QStringLiteral(":/no/such.png"), Qt::red).isNull());
    QVERIFY(!QImage(StyleHelpers::groupBoxImageFileName()).isNull());
    StyleHelpers::drawArrowImage(QStyle::PE_IndicatorArrowUp, nullptr, nullptr);
}

void TestStyleHelpers::colorizedChannels()
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

NOCTURNE_TEST_MAIN(TestStyleHelpers)

#include "tst_style_helpers_internals.moc"
