#include "stylepainting.h"

#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QTabBar>

using namespace StylePainting;

namespace {

class SearchLineEdit : public QWidget
{
    Q_OBJECT
};

class QComboBoxPrivateContainer : public QWidget
{
    Q_OBJECT
};

class QDockWidgetTitleButton : public QWidget
{
    Q_OBJECT
};

/// Notes which primitives pass through it.
class RecordingProxy : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        elements << element;
        states << option->state;
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    QIcon standardIcon(StandardPixmap pixmap, const QStyleOption *option,
                       const QWidget *widget) const override
    {
        if (pixmap == SP_DialogCloseButton)
            ++closeIcons;
        return QProxyStyle::standardIcon(pixmap, option, widget);
    }

    mutable QVector<int> elements;
    mutable QVector<State> states;
    mutable int closeIcons = 0;
};

const QColor background(0x20, 0x40, 0x60);
const QColor window(0x1f, 0x21, 0x26);

QColor windowShifted(int shift)
{
    return QColor(window.red() + shift, window.green() + shift, window.blue() + shift);
}

} // namespace

using Drawing = std::function<void(QPainter &painter, const QRect &rect)>;

Q_DECLARE_METATYPE(Drawing)
Q_DECLARE_METATYPE(QStyle::State)
Q_DECLARE_METATYPE(QStyle::PrimitiveElement)

class TestStylePrimitives : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_style = m_theme.style(); }
    void cleanupTestCase() { delete m_style; }

    void frames();
    void drawnPieceByPiece_data();
    void drawnPieceByPiece();
    void tabFrames();
    void fields();
    void focusFrame();
    void groupBoxFrame();
    void panels();
    void buttonPanel();
    void flatButton();
    void toolButtonPanel();
    void tabCloseButton();
    void arrows();
    void headerArrow();
    void checkBox();
    void itemViewCheck();
    void radioButton();
    void toolBarHandleAndSeparator();
    void resizeHandle();
    void nothing();
    void othersAreCommon();
    void badInput();

private:
    QImage paint(QStyle::PrimitiveElement element, const QStyleOption &option,
                 const QWidget *widget = nullptr) const
    {
        return picture(QSize(60, 60), background, [&](QPainter &painter) {
            m_style->drawPrimitive(element, &option, &painter, widget);
        });
    }

    DarkUX m_theme;
    DarkFusionStyle *m_style = nullptr;
};

void TestStylePrimitives::frames()
{
    const auto option = makeOption<QStyleOption>(QRect(4, 5, 30, 20)); // to 33, 24
    const QColor outline = window.darker(140);

    QImage image = paint(QStyle::PE_Frame, option);
    for (const QPoint &corner : {QPoint(4, 5), QPoint(33, 5), QPoint(4, 24), QPoint(33, 24)})
        COMPARE_UNIT(image, corner.x(), corner.y(), outline.lighter(108));
    COMPARE_UNIT(image, 5, 6, background);

    image = paint(QStyle::PE_FrameMenu, option);
    COMPARE_UNIT(image, 4, 24, outline);
    COMPARE_UNIT(image, 5, 6, window.lighter(160));
    COMPARE_UNIT(image, 31, 6, window.lighter(160));
    COMPARE_UNIT(image, 32, 15, window.darker(110));
    COMPARE_UNIT(image, 15, 23, window.darker(110));
    COMPARE_UNIT(image, 15, 15, background);

    image = paint(QStyle::PE_FrameDockWidget, option);
    COMPARE_UNIT(image, 33, 15, window.darker(120));
    COMPARE_UNIT(image, 5, 15, QColor("#5a5959"));
    COMPARE_UNIT(image, 32, 15, window.darker(120));
    COMPARE_UNIT(image, 31, 23, window.darker(120));

    image = paint(QStyle::PE_FrameWindow, option);
    COMPARE_UNIT(image, 4, 15, outline.darker(150));
    COMPARE_UNIT(image, 32, 15, window.darker(120));

    const QComboBoxPrivateContainer container;
    image = paint(QStyle::PE_Frame, option, &container);
    COMPARE_UNIT(image, 15, 15, QColor("#191a1e").lighter(108));
}

void TestStylePrimitives::drawnPieceByPiece_data()
{
    QTest::addColumn<QStyle::PrimitiveElement>("element");
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<Drawing>("drawing");
    const auto row = [](const char *name, QStyle::PrimitiveElement element, QStyle::State state,
                        const Drawing &drawing) {
        QTest::newRow(name) << element << (enabled | state) << drawing;
    };
    const QColor outline = window.darker(140);
    const QColor base(0x19, 0x1a, 0x1e);
    const QColor light(0x5a, 0x59, 0x59);
    const QColor check = QColor(0xbb, 0xbb, 0xbb).darker(120);
    QColor focus = QColor(0x67, 0x9d, 0xcd).darker(125);
    focus.setHsl(focus.hue(), focus.saturation(), 160);
    const auto alpha = [](QColor color, int value) {
        color.setAlpha(value);
        return color;
    };
    const auto soft = [](QPainter &p) {
        p.setRenderHint(QPainter::Antialiasing);
        p.translate(0.5, 0.5);
    };
    const auto gradient = [](const QRect &r, const QGradientStops &stops) {
        QLinearGradient gradient(r.topLeft(), r.bottomLeft());
        gradient.setStops(stops);
        return gradient;
    };

    row("frame", QStyle::PE_Frame, {}, [=](QPainter &p, const QRect &r) {
        p.setPen(outline.lighter(108));
        p.drawRect(r.adjusted(0, 0, -1, -1));
    });
    row("menu", QStyle::PE_FrameMenu, {}, [=](QPainter &p, const QRect &r) {
        const QRect f = r.adjusted(1, 1, -1, -1);
        p.setPen(outline);
        p.drawRect(r.adjusted(0, 0, -1, -1));
        p.setPen(window.lighter(160));
        p.drawLine(f.topLeft(), f.bottomLeft());
        p.drawLine(f.topLeft(), f.topRight());
        p.setPen(window.darker(110));
        p.drawLine(f.topRight(), f.bottomRight());
        p.drawLine(f.bottomLeft(), f.bottomRight());
    });
    const auto dock = [=](const QColor &rim) {
        return [=](QPainter &p, const QRect &r) {
            p.setPen(rim);
            p.drawRect(r.adjusted(0, 0, -1, -1));
            p.setPen(light);
            p.drawLine(r.left() + 1, r.top() + 1, r.left() + 1, r.bottom() - 1);
            p.setPen(window.darker(120));
            p.drawLine(r.left() + 1, r.bottom() - 1, r.right() - 2, r.bottom() - 1);
            p.drawLine(r.right() - 1, r.top() + 1, r.right() - 1, r.bottom() - 1);
        };
    };
    row("dock widget", QStyle::PE_FrameDockWidget, {}, dock(window.darker(120)));
    row("window", QStyle::PE_FrameWindow, {}, dock(outline.darker(150)));
    row("focus", QStyle::PE_FrameFocusRect, QStyle::State_KeyboardFocusChange,
        [=](QPainter &p, const QRect &r) {
            soft(p);
            p.setPen(alpha(focus, 80).darker(120));
            p.setBrush(
                gradient(r, {{0.0, alpha(focus, 30).lighter(160)}, {1.0, alpha(focus, 30)}}));
            p.drawRoundedRect(r.adjusted(0, 0, -1, -1), 1, 1);
        });
    row("line edit", QStyle::PE_FrameLineEdit, {}, [=](QPainter &p, const QRect &r) {
        soft(p);
        p.setPen(Qt::NoPen);
        p.setBrush(windowShifted(-6));
        p.drawRoundedRect(r.adjusted(0, 1, -1, -2), 2, 2);
    });

    const auto box = [=](QPainter &p, const QRect &r, const QColor &pen) {
        soft(p);
        p.setPen(pen);
        p.setBrush(gradient(r.adjusted(0, 0, -1, -1),
                            {{0.0, base.darker(115)}, {0.15, base}, {1.0, base}}));
        p.drawRect(r.adjusted(0, 0, -1, -1));
    };
    row("box", QStyle::PE_IndicatorCheckBox, {},
        [=](QPainter &p, const QRect &r) { box(p, r, outline.lighter(110)); });
    row("box, focused", QStyle::PE_IndicatorCheckBox, keyboardFocus,
        [=](QPainter &p, const QRect &r) { box(p, r, focus); });
    row("box, half", QStyle::PE_IndicatorCheckBox, QStyle::State_NoChange | QStyle::State_On,
        [=](QPainter &p, const QRect &r) {
            box(p, r, outline.lighter(110));
            const QRect inner = r.adjusted(0, 0, -1, -1);
            p.setPen(alpha(check, 180));
            p.setBrush(gradient(inner, {{0.0, alpha(check, 80)}, {1.0, alpha(check, 140)}}));
            p.drawRect(inner.adjusted(3, 3, -3, -3));
        });
    row("box, checked", QStyle::PE_IndicatorCheckBox, QStyle::State_On,
        [=](QPainter &p, const QRect &r) {
            box(p, r, outline.lighter(110));
            p.translate(-0.8, 0.5);
            p.setPen(QPen(check, 1.8));
            const qreal w = r.width() - 1;
            const qreal h = r.height() - 1;
            p.translate(r.topLeft());
            const QPointF mark[] = {{5.0, h * 0.5}, {w * 0.5, h - 3}, {w - 3.5, 3.0}};
            p.drawPolyline(mark, 3);
        });
    const auto circle = [=](QPainter &p, const QRect &r, const QColor &pen) {
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(pen);
        p.setBrush(base);
        const qreal radius = (r.width() + (r.width() + 1) % 2) * 0.5 - 1;
        p.drawEllipse(QPointF(r.center() + QPoint(1, 1)), radius, radius);
        return radius;
    };
    row("circle, focused", QStyle::PE_IndicatorRadioButton, keyboardFocus,
        [=](QPainter &p, const QRect &r) { circle(p, r, focus); });
    row("circle, chosen", QStyle::PE_IndicatorRadioButton, QStyle::State_On,
        [=](QPainter &p, const QRect &r) {
            const qreal radius = circle(p, r, window.darker(150)) / 2.32;
            p.setPen(alpha(check, 200));
            p.setBrush(alpha(check, 180));
            p.drawEllipse(QPointF(r.center() + QPoint(1, 1)), radius, radius);
        });
    const auto dots = [](const QVector<int> &columns, const QVector<int> &rows) {
        return [=](QPainter &p, const QRect &r) {
            for (const int x : columns) {
                for (const int y : rows) {
                    const QPoint dot = r.center() + QPoint(x, y);
                    p.fillRect(QRect(dot, QSize(2, 2)), QColor(255, 255, 255, 90));
                    p.fillRect(QRect(dot, QSize(1, 1)), QColor(0, 0, 0, 60));
                }
            }
        };
    };
    row("handle", QStyle::PE_IndicatorToolBarHandle, {}, dots({-6, -3, 0, 3, 6, 9}, {-3, 0}));
    row("handle, horizontal", QStyle::PE_IndicatorToolBarHandle, QStyle::State_Horizontal,
        dots({-3, 0}, {-8, -5, -2, 1, 4, 7}));
}

/// The style keeps drawings, and fills what could be drawn as lines: neither may show.
void TestStylePrimitives::drawnPieceByPiece()
{
    QFETCH(QStyle::PrimitiveElement, element);
    QFETCH(QStyle::State, state);
    QFETCH(Drawing, drawing);
    const bool hasFilledLines = element == QStyle::PE_Frame || element == QStyle::PE_FrameMenu
                                || element == QStyle::PE_FrameDockWidget
                                || element == QStyle::PE_FrameWindow;
    if (hasFilledLines && qApp->devicePixelRatio() != 1.0)
        QSKIP("Drawn lines lie across the units there.");
    for (const QRect &rect : {QRect(4, 5, 14, 14), QRect(7, 12, 31, 22), QRect(20, 20, 8, 11)}) {
        auto button = makeOption<QStyleOptionButton>(rect, state);
        auto focus = makeOption<QStyleOptionFocusRect>(rect, state);
        const bool isFocus = element == QStyle::PE_FrameFocusRect;
        const QStyleOption &option = isFocus ? static_cast<const QStyleOption &>(focus) : button;
        // Indicators are kept drawings, whose translucent edges meet before they are on the ground.
        const bool isKept =
            element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_IndicatorRadioButton;
        const QColor ground = isKept ? QColor(Qt::transparent) : background;
        const QSize size(60, 60);
        const QImage drawn =
            picture(size, ground, [&](QPainter &painter) { drawing(painter, rect); });
        QCOMPARE(paint(element, option), picture(size, background, [&](QPainter &painter) {
                     painter.drawImage(0, 0, drawn);
                 }));
    }
}

void TestStylePrimitives::tabFrames()
{
    auto frame = makeOption<QStyleOptionTabWidgetFrame>(QRect(4, 5, 30, 20));
    QImage image = paint(QStyle::PE_FrameTabWidget, frame);
    QVERIFY(isFilled(image, QRect(4, 5, 29, 19), window));
    COMPARE_UNIT(image, 33, 15, background);
    COMPARE_UNIT(image, 10, 24, TestSupport::blended(QColor(0, 0, 0, 15), background));
    frame.shape = QTabBar::RoundedSouth;
    COMPARE_UNIT(paint(QStyle::PE_FrameTabWidget, frame), 10, 24, background);

    const QColor line = window.darker(140).lighter(110);
    auto base = makeOption<QStyleOptionTabBarBase>(QRect(4, 5, 30, 20));
    base.selectedTabRect = QRect(10, 0, 8, 10);
    image = paint(QStyle::PE_FrameTabBarBase, base);
    QVERIFY(isFilled(image, QRect(4, 5, 30, 1), line));
    COMPARE_UNIT(image, 9, 6, QColor("#5a5959"));
    QVERIFY(isFilled(image, QRect(10, 6, 8, 1), background));
    COMPARE_UNIT(image, 18, 6, QColor("#5a5959"));
    COMPARE_UNIT(image, 18, 7, background);

    const QVector<QPair<QTabBar::Shape, QRect>> edges = {
        {QTabBar::RoundedSouth, QRect(4, 24, 30, 1)},
        {QTabBar::RoundedWest, QRect(4, 5, 1, 20)},
        {QTabBar::RoundedEast, QRect(33, 5, 1, 20)}};
    for (const auto &edge : edges) {
        base.shape = edge.first;
        image = paint(QStyle::PE_FrameTabBarBase, base);
        QVERIFY(isFilled(image, edge.second, line));
        COMPARE_UNIT(image, 15, 15, background);
    }
}

void TestStylePrimitives::fields()
{
    auto option = makeOption<QStyleOptionFrame>(QRect(4, 5, 40, 30)); // to 43, 34
    QImage image = paint(QStyle::PE_FrameLineEdit, option);
    QVERIFY(isFilled(image, QRect(8, 7, 30, 25), windowShifted(-6)));
    COMPARE_UNIT(image, 20, 5, background);

    option.lineWidth = 0;
    QVERIFY(isFilled(paint(QStyle::PE_PanelLineEdit, option), QRect(0, 0, 60, 60), background));

    option.lineWidth = 1;
    image = paint(QStyle::PE_PanelLineEdit, option);
    QVERIFY(isFilled(image, QRect(7, 6, 34, 28), windowShifted(-6)));
    QVERIFY(isFilled(image, QRect(4, 9, 40, 22), windowShifted(-6)));
    COMPARE_UNIT(image, 20, 5, background);
    COMPARE_UNIT(image, 20, 34, background);

    const SearchLineEdit search;
    image = paint(QStyle::PE_PanelLineEdit, option, &search);
    QVERIFY(isFilled(image, QRect(13, 6, 22, 28), windowShifted(-15)));
    COMPARE_UNIT(image, 5, 7, background); // inside a radius of 3, outside one of 9
}

void TestStylePrimitives::focusFrame()
{
    auto option = makeOption<QStyleOptionFocusRect>(QRect(4, 5, 40, 30));
    QVERIFY(isFilled(paint(QStyle::PE_FrameFocusRect, option), QRect(0, 0, 60, 60), background));

    option.state |= QStyle::State_KeyboardFocusChange;
    const QImage image = paint(QStyle::PE_FrameFocusRect, option);
    QColor color = QColor(0x67, 0x9d, 0xcd).darker(125);
    if (color.value() > 160)
        color.setHsl(color.hue(), color.saturation(), 160);
    color.setAlpha(30);
    COMPARE_UNIT(image, 3, 20, background);
    COMPARE_UNIT(image, 44, 20, background);
    // The last inner row is nearly the end of the gradient.
    const int ratio = qRound(image.devicePixelRatio());
    const QColor fill = image.pixelColor(20 * ratio, 33 * ratio);
    const QColor expected = TestSupport::blended(color, background);
    QVERIFY(qAbs(fill.blue() - expected.blue()) <= 2);
    QVERIFY(unitColor(image, 20, 20) != background);
    // The outline adds to the fill below it.
    QVERIFY(unitColor(image, 20, 34).blue() > fill.blue());
}

void TestStylePrimitives::groupBoxFrame()
{
    const auto option = makeOption<QStyleOption>(QRect(0, 0, 60, 50));
    const int title =
        qMax(m_style->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight), option.fontMetrics.height())
        + 3;
    const QImage image = paint(QStyle::PE_FrameGroupBox, option);
    QVERIFY(isFilled(image, QRect(0, 0, 60, title), background));
    QVERIFY(!isFilled(image, QRect(10, title, 40, 2), background));
    QVERIFY(isFilled(image, QRect(0, 50, 60, 10), background));
}

void TestStylePrimitives::panels()
{
    const auto option = makeOption<QStyleOption>(QRect(4, 5, 30, 20));
    QImage image = paint(QStyle::PE_PanelTipLabel, option);
    COMPARE_UNIT(image, 4, 5, QColor(Qt::black));
    COMPARE_UNIT(image, 33, 24, QColor(Qt::black));
    QVERIFY(isFilled(image, QRect(5, 6, 28, 18), Qt::gray));

    image = paint(QStyle::PE_PanelMenu, option);
    COMPARE_UNIT(image, 33, 24, window.darker(160));
    QVERIFY(isFilled(image, QRect(5, 6, 28, 18), QColor("#191a1e").lighter(108)));

    image = paint(QStyle::PE_PanelScrollAreaCorner, option);
    QVERIFY(isFilled(image, QRect(5, 6, 29, 19), window));
    QColor outline = window.darker(140);
    outline.setAlpha(180);
    COMPARE_UNIT(image, 34, 25, TestSupport::blended(outline, background));
}

void TestStylePrimitives::buttonPanel()
{
    auto option = makeOption<QStyleOptionButton>(QRect(3, 4, 40, 24));
    QImage image = paint(QStyle::PE_PanelButtonCommand, option);
    // The panel's own rectangle is 5, 6 to 40, 25; its border stands one unit higher and wider.
    COMPARE_UNIT(image, 20, 5, QColor(13, 15, 20));
    COMPARE_UNIT(image, 5, 15, QColor(13, 15, 20));
    COMPARE_UNIT(image, 41, 15, QColor(13, 15, 20));
    COMPARE_UNIT(image, 20, 25, QColor(13, 15, 20));
    QVERIFY(isFilled(image, QRect(7, 6, 33, 1), QColor(64, 66, 71)));
    QVERIFY(isFilled(image, QRect(7, 26, 33, 1),
                     TestSupport::blended(QColor(60, 62, 67, 128), background)));
    COMPARE_UNIT(image, 6, 26, background);
    COMPARE_UNIT(image, 4, 15, background);
    const int ratio = qRound(image.devicePixelRatio());
    QLinearGradient gradient(0, 2, 0, 20); // from the top to the height of 2, 2, 36 x 20
    gradient.setStops({{0.0, QColor(55, 57, 62)}, {1.0, QColor(32, 34, 39)}});
    const QImage fills = picture(QSize(60, 60), background, [&](QPainter &painter) {
        painter.translate(0, 3.5);
        painter.fillRect(QRect(0, 0, 60, 40), gradient);
    });
    for (int y = 7; y < 25; ++y)
        COMPARE_UNIT(image, 20, y, unitColor(fills, 20, y));

    for (const QStyle::State down : {QStyle::State_Sunken, QStyle::State_On}) {
        option.state = enabled | down;
        image = paint(QStyle::PE_PanelButtonCommand, option);
        COMPARE_UNIT(image, 5, 15, QColor(20, 20, 20));
        QCOMPARE(image.pixelColor(20 * ratio, 24 * ratio).red(), 16);
        QVERIFY(qAbs(image.pixelColor(20 * ratio, 6 * ratio).red() - 24) <= 1);
    }

    // A rotated painter is painted on itself.
    image = picture(QSize(60, 60), background, [&](QPainter &painter) {
        painter.translate(60, 0);
        painter.rotate(90);
        m_style->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter);
    });
    QVERIFY(!isFilled(image, QRect(0, 0, 60, 60), background));
    QVERIFY(isFilled(image, QRect(0, 0, 28, 60), background));

    // Too dark for a border of 18 less.
    option.palette.setColor(QPalette::Window, QColor(3, 30, 250));
    option.state = enabled;
    image = paint(QStyle::PE_PanelButtonCommand, option);
    COMPARE_UNIT(image, 5, 15, QColor(0, 12, 232));
    COMPARE_UNIT(image, 20, 6, QColor(36, 63, 255));
}

void TestStylePrimitives::flatButton()
{
    auto option = makeOption<QStyleOptionButton>(QRect(4, 5, 40, 24)); // to 43, 28
    option.features = QStyleOptionButton::Flat;
    QVERIFY(
        isFilled(paint(QStyle::PE_PanelButtonCommand, option), QRect(0, 0, 60, 60), background));

    option.features |= QStyleOptionButton::DefaultButton;
    const QImage image = paint(QStyle::PE_PanelButtonCommand, option);
    QVERIFY(isFilled(image, QRect(6, 6, 36, 1), Qt::black));
    QVERIFY(isFilled(image, QRect(6, 27, 36, 1), Qt::black));
    QVERIFY(isFilled(image, QRect(4, 8, 1, 18), Qt::black));
    QVERIFY(isFilled(image, QRect(43, 8, 1, 18), Qt::black));
    for (const QPoint &corner : {QPoint(5, 7), QPoint(42, 7), QPoint(5, 26), QPoint(42, 26)})
        COMPARE_UNIT(image, corner.x(), corner.y(), QColor(Qt::black));
    COMPARE_UNIT(image, 5, 6, background);
    COMPARE_UNIT(image, 20, 15, background);

    option.state = QStyle::State_None;
    QVERIFY(
        isFilled(paint(QStyle::PE_PanelButtonCommand, option), QRect(0, 0, 60, 60), background));
    option.state = enabled | QStyle::State_Sunken;
    COMPARE_UNIT(paint(QStyle::PE_PanelButtonCommand, option), 6, 15, QColor(20, 20, 20));
}

void TestStylePrimitives::toolButtonPanel()
{
    auto option = makeOption<QStyleOptionToolButton>(QRect(0, 0, 30, 24));
    const auto paints = [&](QStyle::State state, const QWidget *widget = nullptr) {
        option.state = state;
        return !isFilled(paint(QStyle::PE_PanelButtonTool, option, widget), QRect(0, 0, 60, 60),
                         background);
    };
    QVERIFY(paints(enabled));
    QVERIFY(paints(enabled | QStyle::State_AutoRaise));
    QVERIFY(paints(QStyle::State_None));
    QVERIFY(paints(QStyle::State_AutoRaise | QStyle::State_On));
    QVERIFY(!paints(QStyle::State_AutoRaise));

    const QDockWidgetTitleButton titleButton;
    QVERIFY(!paints(enabled, &titleButton));
    QVERIFY(paints(enabled | QStyle::State_MouseOver, &titleButton));
}

void TestStylePrimitives::tabCloseButton()
{
    auto *style = new DarkFusionStyle;
    RecordingProxy proxy(style);
    auto option = makeOption<QStyleOption>(QRect(0, 0, 20, 20));
    const auto paintIt = [&] {
        proxy.elements.clear();
        return picture(QSize(60, 60), background, [&](QPainter &painter) {
            proxy.drawPrimitive(QStyle::PE_IndicatorTabClose, &option, &painter, nullptr);
        });
    };
    QVERIFY(!isFilled(paintIt(), QRect(2, 2, 16, 16), background));
    QCOMPARE(proxy.elements, QVector<int>{QStyle::PE_IndicatorTabClose});
    option.state |= QStyle::State_MouseOver;
    paintIt();
    QCOMPARE(proxy.elements,
             (QVector<int>{QStyle::PE_IndicatorTabClose, QStyle::PE_PanelButtonCommand}));
    option.state = QStyle::State_MouseOver;
    paintIt();
    QCOMPARE(proxy.elements.size(), 1);
    QCOMPARE(proxy.closeIcons, 1);
}

void TestStylePrimitives::arrows()
{
    auto option = makeOption<QStyleOption>(QRect(0, 0, 20, 20),
                                           enabled | QStyle::State_Children | QStyle::State_Open);
    const QImage down = paint(QStyle::PE_IndicatorArrowDown, option);
    const QImage right = paint(QStyle::PE_IndicatorArrowRight, option);
    QVERIFY(!isFilled(down, QRect(0, 0, 20, 20), background));
    QVERIFY(down != right);
    QVERIFY(right != paint(QStyle::PE_IndicatorArrowLeft, option));
    QVERIFY(down != paint(QStyle::PE_IndicatorArrowUp, option));
    QCOMPARE(paint(QStyle::PE_IndicatorBranch, option), down);
    option.state = enabled | QStyle::State_Children;
    QCOMPARE(paint(QStyle::PE_IndicatorBranch, option), right);
    option.state = enabled;
    QVERIFY(isFilled(paint(QStyle::PE_IndicatorBranch, option), QRect(0, 0, 60, 60), background));
    option.rect.setHeight(1);
    QVERIFY(
        isFilled(paint(QStyle::PE_IndicatorArrowDown, option), QRect(0, 0, 60, 60), background));
}

void TestStylePrimitives::headerArrow()
{
    auto option = makeOption<QStyleOptionHeader>(QRect(10, 10, 20, 20));
    QVERIFY(
        isFilled(paint(QStyle::PE_IndicatorHeaderArrow, option), QRect(0, 0, 60, 60), background));
    const auto widthOfRow = [](const QImage &image, int row) {
        int width = 0;
        for (int x = 0; x < image.width(); ++x)
            width += image.pixel(x, row) != background.rgba();
        return width;
    };
    const auto pointsDown = [&](const QImage &image) {
        QVector<int> widths;
        for (int y = 0; y < image.height(); ++y) {
            if (const int width = widthOfRow(image, y))
                widths << width;
        }
        return !widths.isEmpty() && widths.first() > widths.last();
    };
    option.sortIndicator = QStyleOptionHeader::SortUp;
    const QImage up = paint(QStyle::PE_IndicatorHeaderArrow, option);
    QVERIFY(pointsDown(up));
    option.sortIndicator = QStyleOptionHeader::SortDown;
    QImage arrow = paint(QStyle::PE_IndicatorHeaderArrow, option);
    QVERIFY(!isFilled(arrow, QRect(10, 10, 20, 20), background));
    QVERIFY(!pointsDown(arrow));
}

void TestStylePrimitives::checkBox()
{
    auto option = makeOption<QStyleOptionButton>(QRect(4, 5, 14, 14)); // to 17, 18
    const QColor outline = window.darker(140).lighter(110);
    const QColor base("#191a1e");
    QImage image = paint(QStyle::PE_IndicatorCheckBox, option);
    COMPARE_UNIT(image, 4, 10, outline);
    COMPARE_UNIT(image, 17, 10, outline);
    COMPARE_UNIT(image, 10, 18, outline);
    QVERIFY(isFilled(image, QRect(5, 8, 12, 10), base));
    COMPARE_UNIT(image, 18, 10, background);

    option.state = enabled | QStyle::State_Sunken;
    QVERIFY(isFilled(paint(QStyle::PE_IndicatorCheckBox, option), QRect(5, 6, 12, 12),
                     QColor(49, 50, 53)));

    option.state = enabled | keyboardFocus;
    QColor focus = QColor("#679dcd").darker(125);
    focus = focus.value() > 160 ? QColor::fromHsl(focus.hue(), focus.saturation(), 160) : focus;
    COMPARE_UNIT(paint(QStyle::PE_IndicatorCheckBox, option), 4, 10, focus);
    option.state = enabled | QStyle::State_HasFocus;
    COMPARE_UNIT(paint(QStyle::PE_IndicatorCheckBox, option), 4, 10, outline);

    option.state = enabled | QStyle::State_On;
    image = paint(QStyle::PE_IndicatorCheckBox, option);
    const QColor check = QColor("#bbbbbb").darker(120);
    const int ratio = qRound(image.devicePixelRatio());
    // The stroke down to (6.5, 10) of the box and up to (9.5, 3), moved by (-0.3, 1).
    COMPARE_UNIT(image, 10, 15, check);
    COMPARE_UNIT(image, 5, 8, base);
    COMPARE_UNIT(image, 15, 16, base);

    option.state = enabled | QStyle::State_On | QStyle::State_NoChange;
    image = paint(QStyle::PE_IndicatorCheckBox, option);
    COMPARE_UNIT(image, 6, 10, base);
    QVERIFY(unitColor(image, 14, 8).red() > base.red() + 50);
    QVERIFY(image.pixelColor(10 * ratio, 14 * ratio).red() > base.red() + 50);
    COMPARE_UNIT(image, 15, 10, base);

    option.state = QStyle::State_On;
    option.palette = themePalette(QPalette::Disabled);
    image = paint(QStyle::PE_IndicatorCheckBox, option);
    COMPARE_UNIT(image, 10, 15, QColor("#555453").darker(120));
}

void TestStylePrimitives::itemViewCheck()
{
    auto item = makeOption<QStyleOptionViewItem>(
        QRect(4, 5, 14, 14), enabled | QStyle::State_On | QStyle::State_MouseOver);
    auto button = makeOption<QStyleOptionButton>(item.rect, enabled | QStyle::State_On);
    QCOMPARE(paint(QStyle::PE_IndicatorItemViewItemCheck, item),
             paint(QStyle::PE_IndicatorCheckBox, button));

    RecordingProxy proxy(new DarkFusionStyle);
    picture(QSize(60, 60), background, [&](QPainter &painter) {
        proxy.drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &item, &painter, nullptr);
    });
    QCOMPARE(proxy.elements.last(), int(QStyle::PE_IndicatorCheckBox));
    QVERIFY(!(proxy.states.last() & QStyle::State_MouseOver));
}

void TestStylePrimitives::radioButton()
{
    auto option = makeOption<QStyleOption>(QRect(4, 5, 14, 14)); // the middle is 11, 12
    const int ratio = qRound(qApp->devicePixelRatio());
    const auto middle = [&](QStyle::State state, QPalette::ColorGroup group = QPalette::Active) {
        option.state = state;
        option.palette = themePalette(group);
        return paint(QStyle::PE_IndicatorRadioButton, option).pixelColor(11 * ratio, 12 * ratio);
    };
    const QColor base("#191a1e");
    QColor dot = QColor("#bbbbbb").darker(120);
    dot.setAlpha(180);
    QCOMPARE(middle(enabled), base);
    QCOMPARE(middle(enabled | QStyle::State_Sunken), QColor(49, 50, 53));
    QCOMPARE(middle(enabled | QStyle::State_On), TestSupport::blended(dot, base));
    dot = QColor("#555453").darker(120);
    dot.setAlpha(180);
    QCOMPARE(middle(QStyle::State_On, QPalette::Disabled),
             TestSupport::blended(dot, QColor("#15161a")));

    const QImage image = paint(QStyle::PE_IndicatorRadioButton, option);
    COMPARE_UNIT(image, 4, 5, background); // round
    option.state = enabled | keyboardFocus;
    option.palette = themePalette();
    QVERIFY(paint(QStyle::PE_IndicatorRadioButton, option).pixelColor(11 * ratio, 5 * ratio).blue()
            > 90);
}

void TestStylePrimitives::toolBarHandleAndSeparator()
{
    const QColor light = TestSupport::blended(QColor(255, 255, 255, 90), background);
    const QColor dark = TestSupport::blended(QColor(0, 0, 0, 60), light);
    auto option = makeOption<QStyleOption>(QRect(0, 0, 41, 41), enabled | QStyle::State_Horizontal);
    QImage image = paint(QStyle::PE_IndicatorToolBarHandle, option); // the middle is 20, 20
    for (const int x : {17, 20}) {
        for (const int y : {12, 15, 18, 21, 24, 27}) {
            COMPARE_UNIT(image, x, y, dark);
            COMPARE_UNIT(image, x + 1, y, light);
            COMPARE_UNIT(image, x, y + 1, light);
            COMPARE_UNIT(image, x + 2, y, background);
        }
    }
    COMPARE_UNIT(image, 17, 30, background);

    option.state = enabled;
    image = paint(QStyle::PE_IndicatorToolBarHandle, option);
    COMPARE_UNIT(image, 14, 17, dark);
    COMPARE_UNIT(image, 29, 20, dark);
    COMPARE_UNIT(image, 32, 20, background);

    image = paint(QStyle::PE_IndicatorToolBarSeparator, option);
    QVERIFY(isFilled(image, QRect(6, 20, 29, 1), window.darker(110)));
    QVERIFY(isFilled(image, QRect(6, 21, 29, 1), window.lighter(110)));
    COMPARE_UNIT(image, 5, 20, background);
    COMPARE_UNIT(image, 35, 20, background);
    option.state = enabled | QStyle::State_Horizontal;
    image = picture(QSize(60, 60), background, [&](QPainter &painter) {
        m_style->drawPrimitive(QStyle::PE_IndicatorToolBarSeparator, &option, &painter);
        QCOMPARE(painter.pen(), QPen(window.lighter(110)));
    });
    QVERIFY(isFilled(image, QRect(20, 6, 1, 29), window.darker(110)));
    QVERIFY(isFilled(image, QRect(21, 6, 1, 29), window.lighter(110)));
}

void TestStylePrimitives::resizeHandle()
{
    auto handle = makeOption<QStyleOption>(QRect(0, 0, 40, 6), enabled | QStyle::State_Horizontal);
    auto splitter = makeOption<QStyleOption>(handle.rect, enabled);
    const QImage expected = picture(QSize(60, 60), background, [&](QPainter &painter) {
        m_style->drawControl(QStyle::CE_Splitter, &splitter, &painter);
    });
    QCOMPARE(paint(QStyle::PE_IndicatorDockWidgetResizeHandle, handle), expected);
}

void TestStylePrimitives::nothing()
{
    const auto option = makeOption<QStyleOptionButton>(QRect(0, 0, 40, 30));
    for (const auto element : {QStyle::PE_FrameDefaultButton, QStyle::PE_FrameStatusBarItem})
        QVERIFY(isFilled(paint(element, option), QRect(0, 0, 60, 60), background));
}

void TestStylePrimitives::othersAreCommon()
{
    const QCommonStyle *common = m_style;
    auto item =
        makeOption<QStyleOptionViewItem>(QRect(0, 0, 40, 30), enabled | QStyle::State_Selected);
    item.backgroundBrush = Qt::green;
    const auto progress = makeOption<QStyleOptionProgressBar>(QRect(0, 0, 40, 30));
    const QVector<QPair<QStyle::PrimitiveElement, const QStyleOption *>> elements = {
        {QStyle::PE_PanelItemViewItem, &item}, {QStyle::PE_IndicatorProgressChunk, &progress}};
    for (const auto &element : elements) {
        const QImage expected = picture(QSize(60, 60), background, [&](QPainter &painter) {
            common->QCommonStyle::drawPrimitive(element.first, element.second, &painter);
        });
        QVERIFY(!isFilled(expected, QRect(0, 0, 40, 30), background));
        QCOMPARE(paint(element.first, *element.second), expected);
    }
}

void TestStylePrimitives::badInput()
{
    QVector<int> elements;
    for (int element = QStyle::PE_Frame; element <= QStyle::PE_PanelMenu; ++element)
        elements << element;
    // Those of the common style, and the one that leaves its pen.
    for (const int other :
         {QStyle::PE_FrameButtonBevel, QStyle::PE_FrameButtonTool, QStyle::PE_PanelButtonBevel,
          QStyle::PE_PanelMenuBar, QStyle::PE_PanelToolBar, QStyle::PE_IndicatorMenuCheckMark,
          QStyle::PE_IndicatorProgressChunk, QStyle::PE_IndicatorSpinDown,
          QStyle::PE_IndicatorSpinMinus, QStyle::PE_IndicatorSpinPlus, QStyle::PE_IndicatorSpinUp,
          QStyle::PE_IndicatorToolBarSeparator, QStyle::PE_IndicatorTabTear, QStyle::PE_Widget,
          QStyle::PE_IndicatorColumnViewArrow, QStyle::PE_IndicatorItemViewItemDrop,
          QStyle::PE_PanelItemViewItem, QStyle::PE_PanelItemViewRow, QStyle::PE_PanelStatusBar})
        elements.removeOne(other);

    QStyleOption plain;
    QStyleOptionButton button;
    QStyleOptionFrame frame;
    frame.lineWidth = 1;
    QStyleOptionTabBarBase base;
    QStyleOptionTabWidgetFrame tabFrame;
    QStyleOptionHeader header;
    header.sortIndicator = QStyleOptionHeader::SortUp;
    QStyleOptionFocusRect focus;
    for (QStyleOption *option : std::initializer_list<QStyleOption *>{
             &plain, &button, &frame, &base, &tabFrame, &header, &focus})
    {
        for (const QStyle::State state :
             {QStyle::State(QStyle::State_None), enabled | QStyle::State_On | keyboardFocus,
              enabled | QStyle::State_NoChange | QStyle::State_Children,
              enabled | QStyle::State_Sunken | QStyle::State_Horizontal})
        {
            option->state = state;
            for (const int element : qAsConst(elements)) {
                const QString fault = firstFault(
                    [&](const QStyleOption *tried, QPainter *painter) {
                        m_style->drawPrimitive(QStyle::PrimitiveElement(element), tried, painter);
                    },
                    option);
                QVERIFY2(fault.isEmpty(),
                         qPrintable(QStringLiteral("element %1: ").arg(element) + fault));
            }
        }
    }

    // In a single unit there is no room for what is inside a frame.
    const auto tiny = makeOption<QStyleOption>(QRect(20, 20, 1, 1));
    for (const auto element :
         {QStyle::PE_Frame, QStyle::PE_FrameMenu, QStyle::PE_PanelMenu, QStyle::PE_PanelTipLabel})
    {
        const QImage image = paint(element, tiny);
        QVERIFY(unitColor(image, 20, 20) != background);
        QVERIFY(isFilled(image, QRect(0, 0, 60, 20), background));
        QVERIFY(isFilled(image, QRect(0, 21, 60, 39), background));
        QVERIFY(isFilled(image, QRect(0, 20, 20, 1), background));
        QVERIFY(isFilled(image, QRect(21, 20, 39, 1), background));
    }

    // An option of the wrong type paints nothing.
    const auto wrong = makeOption<QStyleOption>(QRect(0, 0, 40, 30), enabled | keyboardFocus);
    for (const auto element :
         {QStyle::PE_FrameFocusRect, QStyle::PE_PanelLineEdit, QStyle::PE_FrameTabBarBase,
          QStyle::PE_IndicatorHeaderArrow, QStyle::PE_IndicatorCheckBox})
        QVERIFY(isFilled(paint(element, wrong), QRect(0, 0, 60, 60), background));
}

NOCTURNE_TEST_MAIN(TestStylePrimitives)
#include "tst_style_primitives.moc"
