#include "stylepainting.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>

using namespace StylePainting;

namespace {

const QColor background(0x20, 0x40, 0x60);
const QColor window(0x1f, 0x21, 0x26);
const QColor base(0x19, 0x1a, 0x1e);
const QColor highlight(0x67, 0x9d, 0xcd);
const QColor outline = window.darker(140);
const QSize canvas(120, 60);
const QRect everything(QPoint(), canvas);

/// Notes the texts, pixmaps and pieces that an element draws through the proxy.
class RecordingProxy : public QProxyStyle
{
    Q_OBJECT

public:
    struct Text
    {
        QRect rect;
        int flags;
        QString text;
        QPalette::ColorRole role;
    };

    RecordingProxy()
        : QProxyStyle(new DarkFusionStyle)
    {}

    void drawItemText(QPainter *, const QRect &rect, int flags, const QPalette &, bool,
                      const QString &text, QPalette::ColorRole role) const override
    {
        texts << Text{rect, flags, text, role};
    }
    void drawItemPixmap(QPainter *, const QRect &rect, int, const QPixmap &) const override
    {
        pixmapRects << rect;
    }
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *,
                       const QWidget *) const override
    {
        primitives << element;
        pieces << *option;
    }
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        controls << element;
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        const bool isShift = metric == PM_ButtonShiftHorizontal || metric == PM_ButtonShiftVertical;
        return isShift ? 3 : QProxyStyle::pixelMetric(metric, option, widget);
    }

    /// Draws \a element and forgets what came before.
    QImage record(ControlElement element, const QStyleOption &option,
                  const QWidget *widget = nullptr)
    {
        texts.clear();
        pixmapRects.clear();
        primitives.clear();
        pieces.clear();
        controls.clear();
        return picture(canvas, background,
                       [&](QPainter &painter) { drawControl(element, &option, &painter, widget); });
    }

    mutable QVector<Text> texts;
    mutable QVector<QRect> pixmapRects;
    mutable QVector<int> primitives;
    mutable QVector<QStyleOption> pieces;
    mutable QVector<int> controls;
};

QIcon redIcon(int extent = 16)
{
    QPixmap pixmap(extent, extent);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

QColor translucent(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

} // namespace

Q_DECLARE_METATYPE(QStyle::State)
Q_DECLARE_METATYPE(QStyleOptionToolBar::ToolBarPosition)

class TestStyleControls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_style = m_theme.style(); }
    void cleanupTestCase() { delete m_style; }

    void pushButton();
    void pushButtonLabel_data();
    void pushButtonLabel();
    void toolButtonLabel();
    void comboBoxLabel();
    void tabPieceByPiece_data();
    void tabPieceByPiece();
    void tabOverlap();
    void triangularTab();
    void headerSection();
    void progressGroove();
    void progressContents_data();
    void progressContents();
    void progressPieceByPiece_data();
    void progressPieceByPiece();
    void unstartedProgress();
    void busyProgress();
    void progressLabel();
    void menuSeparator();
    void menuItemText();
    void menuItemTextPieceByPiece_data();
    void menuItemTextPieceByPiece();
    void menuItemCheck();
    void subMenu();
    void menuBar();
    void gripAndSplitter();
    void rubberBand();
    void dockWidgetTitle();
    void toolBar_data();
    void toolBar();
    void toolBarOutsideMainWindow();
    void badInput();

private:
    QImage paint(QStyle::ControlElement element, const QStyleOption &option,
                 const QWidget *widget = nullptr) const
    {
        return picture(canvas, background, [&](QPainter &painter) {
            painter.setLayoutDirection(option.direction);
            m_style->drawControl(element, &option, &painter, widget);
        });
    }

    DarkUX m_theme;
    DarkFusionStyle *m_style = nullptr;
    RecordingProxy m_proxy;
};

void TestStyleControls::pushButton()
{
    auto option = makeOption<QStyleOptionButton>(QRect(0, 0, 80, 30));
    option.text = QStringLiteral("Go");
    m_proxy.record(QStyle::CE_PushButton, option);
    QCOMPARE(m_proxy.controls, (QVector<int>{QStyle::CE_PushButton, QStyle::CE_PushButtonBevel,
                                             QStyle::CE_PushButtonLabel}));
    const QRect contents = m_style->subElementRect(QStyle::SE_PushButtonContents, &option);
    QCOMPARE(m_proxy.texts.first().rect, contents.adjusted(0, 0, 0, -2));
}

void TestStyleControls::pushButtonLabel_data()
{
    QTest::addColumn<int>("kind"); // of widget
    QTest::addColumn<bool>("sunken");
    QTest::addColumn<int>("role");
    const int plain = QPalette::ButtonText;
    const int lit = QPalette::HighlightedText;
    QTest::newRow("no widget, pressed") << 0 << true << plain;
    QTest::newRow("tool button, pressed") << 1 << true << plain;
    QTest::newRow("push button") << 2 << false << plain;
    QTest::newRow("push button, pressed") << 2 << true << lit;
    QTest::newRow("push button, checked") << 3 << false << lit;
}

void TestStyleControls::pushButtonLabel()
{
    QFETCH(int, kind);
    QFETCH(bool, sunken);
    QToolButton toolButton;
    QPushButton plain;
    QPushButton checked;
    checked.setCheckable(true);
    checked.setChecked(true);
    const QWidget *widgets[] = {nullptr, &toolButton, &plain, &checked};

    auto option = makeOption<QStyleOptionButton>(QRect(0, 0, 100, 30));
    option.text = QStringLiteral("Label");
    if (sunken)
        option.state |= QStyle::State_Sunken;
    m_proxy.record(QStyle::CE_PushButtonLabel, option, widgets[kind]);
    QCOMPARE(m_proxy.texts.size(), 1);
    QTEST(int(m_proxy.texts.first().role), "role");
    QCOMPARE(m_proxy.texts.first().rect, QRect(0, 0, 100, 28));
    QVERIFY(m_proxy.texts.first().flags & Qt::AlignHCenter);

    option.features = QStyleOptionButton::HasMenu;
    m_proxy.record(QStyle::CE_PushButtonLabel, option, widgets[kind]);
    const int indicator = m_style->pixelMetric(QStyle::PM_MenuButtonIndicator, &option);
    QCOMPARE(m_proxy.texts.first().rect, QRect(0, 0, 100 - indicator, 28));

    // Icon and text stand in the middle together.
    option.features = QStyleOptionButton::None;
    option.icon = redIcon();
    option.iconSize = QSize(16, 16);
    const int text =
        option.fontMetrics
            .boundingRect(option.rect, Qt::AlignVCenter | Qt::TextShowMnemonic, option.text)
            .width();
    const int left = 50 - (16 + text + 2) / 2;
    QImage image = m_proxy.record(QStyle::CE_PushButtonLabel, option, widgets[kind]);
    QVERIFY(isFilled(image, QRect(left, 7, 16, 16), Qt::red));
    QVERIFY(isFilled(image, QRect(0, 0, left, 60), background));
    QCOMPARE(m_proxy.texts.first().rect, QRect(left + 16, 0, 100, 28));
    QVERIFY(m_proxy.texts.first().flags & Qt::AlignLeft);

    option.direction = Qt::RightToLeft;
    image = m_proxy.record(QStyle::CE_PushButtonLabel, option, widgets[kind]);
    QVERIFY(isFilled(image, QRect(99 - left - 16, 7, 16, 16), Qt::red));
    QCOMPARE(m_proxy.texts.first().rect, QRect(-left - 16 - 2, 0, 100, 28));
}

void TestStyleControls::toolButtonLabel()
{
    auto option = makeOption<QStyleOptionToolButton>(QRect(0, 0, 100, 50));
    option.text = QStringLiteral("Cut");
    option.iconSize = QSize(16, 16);
    option.font = QFont(QStringLiteral("serif"), 17);
    const auto record = [&] { m_proxy.record(QStyle::CE_ToolButtonLabel, option); };

    // Without icon and arrow there is only the text, whatever the style asks for.
    option.toolButtonStyle = Qt::ToolButtonIconOnly;
    record();
    QCOMPARE(m_proxy.texts.first().rect, option.rect);
    QVERIFY(m_proxy.pixmapRects.isEmpty());

    option.icon = redIcon();
    option.state = enabled | QStyle::State_Sunken; // moves by three units
    record();
    QVERIFY(m_proxy.texts.isEmpty());
    QCOMPARE(m_proxy.pixmapRects, QVector<QRect>{option.rect.translated(3, 3)});

    option.toolButtonStyle = Qt::ToolButtonTextOnly;
    record();
    QCOMPARE(m_proxy.texts.first().rect, option.rect.translated(3, 3));

    option.state = enabled;
    option.toolButtonStyle = Qt::ToolButtonTextUnderIcon;
    record();
    QCOMPARE(m_proxy.pixmapRects, QVector<QRect>{QRect(0, 0, 100, 22)});
    QCOMPARE(m_proxy.texts.first().rect, QRect(0, 21, 100, 26));
    QVERIFY(m_proxy.texts.first().flags & Qt::AlignCenter);

    option.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
    record();
    QCOMPARE(m_proxy.pixmapRects, QVector<QRect>{QRect(0, 0, 24, 50)});
    QCOMPARE(m_proxy.texts.first().rect, QRect(24, 0, 76, 48));
    option.direction = Qt::RightToLeft;
    record();
    QCOMPARE(m_proxy.pixmapRects, QVector<QRect>{QRect(76, 0, 24, 50)});
    QCOMPARE(m_proxy.texts.first().rect, QRect(0, 0, 76, 48));
    QCOMPARE(m_proxy.texts.first().role, QPalette::ButtonText);

    option.features = QStyleOptionToolButton::Arrow;
    option.arrowType = Qt::DownArrow;
    record();
    QCOMPARE(m_proxy.primitives, QVector<int>{QStyle::PE_IndicatorArrowDown});
    QVERIFY(m_proxy.pixmapRects.isEmpty());
}

void TestStyleControls::comboBoxLabel()
{
    auto option = makeOption<QStyleOptionComboBox>(QRect(0, 0, 100, 26));
    option.currentText = QStringLiteral("Choice");
    const QRect field =
        m_style->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField);
    m_proxy.record(QStyle::CE_ComboBoxLabel, option);
    QCOMPARE(m_proxy.texts.first().rect, field.adjusted(6, 0, -1, 0));
    QCOMPARE(m_proxy.texts.first().role, QPalette::ButtonText);

    option.currentIcon = redIcon();
    option.iconSize = QSize(16, 16);
    m_proxy.record(QStyle::CE_ComboBoxLabel, option);
    QCOMPARE(m_proxy.pixmapRects,
             QVector<QRect>{QRect(field.topLeft(), QSize(20, field.height()))});
    QCOMPARE(m_proxy.texts.first().rect, field.adjusted(26, 0, 19, 0));

    option.editable = true;
    const QImage image = m_proxy.record(QStyle::CE_ComboBoxLabel, option);
    QVERIFY(m_proxy.texts.isEmpty());
    const QRect editor =
        m_style->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField);
    QVERIFY(isFilled(image, QRect(editor.topLeft(), QSize(20, editor.height())), base));
}

void TestStyleControls::tabPieceByPiece_data()
{
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<QTransform>("turn");
    QTest::addColumn<bool>("framed");
    const QTransform north;
    QTransform south;
    south.rotate(180).translate(0, -30 + 1).scale(-1, 1);
    QTransform west;
    west.rotate(270).scale(-1, 1);
    QTransform east;
    east.rotate(90).translate(0, -30 + 1);
    QTest::newRow("north") << QTabBar::RoundedNorth << north << true;
    QTest::newRow("north, frameless") << QTabBar::RoundedNorth << north << false;
    QTest::newRow("south") << QTabBar::RoundedSouth << south << true;
    QTest::newRow("west") << QTabBar::RoundedWest << west << true;
    QTest::newRow("east") << QTabBar::RoundedEast << east << false;
}

void TestStyleControls::tabPieceByPiece()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(QTransform, turn);
    QFETCH(bool, framed);
    const bool upright = shape == QTabBar::RoundedNorth || shape == QTabBar::RoundedSouth;
    const QRect rect(0, 0, 50, 30);
    auto option = makeOption<QStyleOptionTab>(upright ? rect : QRect(0, 0, 30, 50));
    option.shape = shape;
    option.position = QStyleOptionTab::OnlyOneTab;
    if (framed)
        option.features = QStyleOptionTab::HasFrame;
    const QColor frame = framed ? QColor(0x48, 0x48, 0x48).lighter(104) : window;
    const QColor contrast(255, 255, 255, 30);
    for (const bool selected : {false, true}) {
        option.state = selected ? enabled | QStyle::State_Selected : enabled;
        const auto begin = [&](QPainter &painter) {
            painter.setTransform(turn, true);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.translate(0.5, 0.5);
        };
        // The body is kept: its translucent edges meet before they are on the ground.
        const QImage body = picture(canvas, Qt::transparent, [&](QPainter &painter) {
            begin(painter);
            QLinearGradient fill(rect.topLeft(), rect.bottomLeft());
            fill.setStops(selected ? QGradientStops{{0.0, frame.lighter(104)}, {1.0, frame}}
                                   : QGradientStops{{0.0, frame.darker(108)},
                                                    {0.85, frame.darker(108)},
                                                    {1.0, frame.darker(116)}});
            const QRect r = rect.adjusted(0, selected ? 0 : 2, 0, 3);
            painter.setClipRect(rect.adjusted(-1, -1, 1, selected ? -2 : -3));
            painter.setPen(selected ? outline : outline.lighter(110));
            painter.setBrush(fill);
            painter.drawRoundedRect(r.adjusted(0, 0, -1, -1), 2, 2);
            painter.setBrush(Qt::NoBrush);
            painter.setPen(contrast);
            painter.drawRoundedRect(r.adjusted(1, 1, -2, -1), 2, 2);
        });
        const QImage expected = picture(canvas, background, [&](QPainter &painter) {
            painter.drawImage(0, 0, body);
            if (!selected)
                return;
            begin(painter);
            painter.fillRect(rect.left() + 1, rect.bottom() - 1, rect.width() - 2,
                             rect.bottom() - 1, frame);
            painter.setPen(contrast);
            painter.drawPoint(rect.bottomRight() + QPoint(-2, -1));
            painter.drawPoint(rect.bottomLeft() + QPoint(0, -1));
            painter.drawPoint(rect.bottomRight() + QPoint(-1, -1));
        });
        QCOMPARE(paint(QStyle::CE_TabBarTabShape, option), expected);
    }
}

void TestStyleControls::tabOverlap()
{
    auto option = makeOption<QStyleOptionTab>(QRect(0, 0, 60, 30));
    const auto reachesOver = [&](QStyleOptionTab::TabPosition position,
                                 Qt::LayoutDirection direction) {
        option.position = position;
        option.direction = direction;
        return unitColor(paint(QStyle::CE_TabBarTabShape, option), 60, 15) != background;
    };
    QVERIFY(reachesOver(QStyleOptionTab::Beginning, Qt::LeftToRight));
    QVERIFY(reachesOver(QStyleOptionTab::Middle, Qt::LeftToRight));
    QVERIFY(!reachesOver(QStyleOptionTab::End, Qt::LeftToRight));
    QVERIFY(!reachesOver(QStyleOptionTab::OnlyOneTab, Qt::LeftToRight));
    QVERIFY(!reachesOver(QStyleOptionTab::Beginning, Qt::RightToLeft));
    QVERIFY(reachesOver(QStyleOptionTab::End, Qt::RightToLeft));
}

void TestStyleControls::triangularTab()
{
    auto option =
        makeOption<QStyleOptionTab>(QRect(0, 0, 60, 30), enabled | QStyle::State_Selected);
    option.shape = QTabBar::TriangularSouth;
    const QImage expected = picture(canvas, background, [&](QPainter &painter) {
        m_style->QCommonStyle::drawControl(QStyle::CE_TabBarTabShape, &option, &painter);
    });
    QCOMPARE(paint(QStyle::CE_TabBarTabShape, option), expected);
}

void TestStyleControls::headerSection()
{
    auto option = makeOption<QStyleOptionHeader>(QRect(10, 5, 40, 25)); // to 49, 29
    option.orientation = Qt::Horizontal;
    option.position = QStyleOptionHeader::Beginning;
    const QColor button(0x48, 0x48, 0x48);
    QImage image = paint(QStyle::CE_HeaderSection, option);
    const QColor contrast(255, 255, 255, 30);
    COMPARE_UNIT(image, 20, 5, TestSupport::blended(contrast, button.lighter(104)));
    const QColor start = button.lighter(104);
    const QColor stop = button.darker(102);
    const auto mixed = [&](int share) {
        const int gray = start.red() * share / 100 + stop.red() * (100 - share) / 100;
        return QColor(gray, gray, gray);
    };
    QLinearGradient gradient(0, 5, 0, 29);
    gradient.setStops({{0.0, start},
                       {0.5, mixed(60)},
                       {0.501, mixed(40)},
                       {0.92, stop},
                       {1.0, stop.darker(104)}});
    const QImage fills = picture(canvas, background, [&](QPainter &painter) {
        painter.fillRect(QRect(0, 5, 60, 25), gradient);
    });
    for (int y = 6; y < 29; ++y)
        COMPARE_UNIT(image, 20, y, unitColor(fills, 20, y));
    COMPARE_UNIT(image, 20, 29, outline);
    COMPARE_UNIT(image, 9, 15, background);
    COMPARE_UNIT(image, 50, 15, background);
    const QColor fill = unitColor(image, 30, 25);
    COMPARE_UNIT(image, 49, 25, TestSupport::blended(QColor(0, 0, 0, 40), fill));
    COMPARE_UNIT(image, 48, 25, TestSupport::blended(contrast, fill));

    option.position = QStyleOptionHeader::End;
    COMPARE_UNIT(paint(QStyle::CE_HeaderSection, option), 49, 25, fill);
    option.orientation = Qt::Vertical;
    COMPARE_UNIT(paint(QStyle::CE_HeaderSection, option), 49, 25, outline);

    gradient.setStops({{0.0, Qt::green}, {1.0, Qt::green}});
    option.palette.setBrush(QPalette::Window, gradient);
    COMPARE_UNIT(paint(QStyle::CE_HeaderSection, option), 20, 15, QColor(Qt::green));
}

void TestStyleControls::progressGroove()
{
    const auto option = makeOption<QStyleOptionProgressBar>(QRect(4, 5, 60, 20));
    const QImage image = paint(QStyle::CE_ProgressBarGroove, option);
    COMPARE_UNIT(image, 30, 4, TestSupport::blended(QColor(0, 0, 0, 16), background));
    COMPARE_UNIT(image, 30, 5, outline);
    COMPARE_UNIT(image, 30, 6, TestSupport::blended(QColor(0, 0, 0, 18), base));
    QVERIFY(isFilled(image, QRect(6, 8, 56, 16), base));
    COMPARE_UNIT(image, 30, 24, outline);
    COMPARE_UNIT(image, 63, 15, outline);
}

void TestStyleControls::progressContents_data()
{
    QTest::addColumn<bool>("vertical");
    QTest::addColumn<bool>("inverted");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("filled"); // at 40 percent
    QTest::addColumn<QRect>("edge");
    QTest::newRow("left to right")
        << false << false << Qt::LeftToRight << QRect(3, 2, 35, 16) << QRect(39, 4, 1, 12);
    QTest::newRow("right to left")
        << false << false << Qt::RightToLeft << QRect(62, 2, 35, 16) << QRect(57, 4, 1, 12);
    QTest::newRow("inverted") << false << true << Qt::LeftToRight << QRect(62, 2, 35, 16)
                              << QRect(57, 4, 1, 12);
    QTest::newRow("right to left, inverted")
        << false << true << Qt::RightToLeft << QRect(3, 2, 35, 16) << QRect(39, 4, 1, 12);
    QTest::newRow("vertical") << true << false << Qt::LeftToRight << QRect(2, 30, 16, 16)
                              << QRect();
    QTest::newRow("vertical, inverted")
        << true << true << Qt::LeftToRight << QRect(2, 2, 16, 14) << QRect(4, 18, 12, 1);
}

void TestStyleControls::progressContents()
{
    QFETCH(bool, vertical);
    QFETCH(bool, inverted);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, filled);
    QFETCH(QRect, edge);
    auto option =
        makeOption<QStyleOptionProgressBar>(vertical ? QRect(0, 0, 20, 50) : QRect(0, 0, 100, 20));
    option.orientation = vertical ? Qt::Vertical : Qt::Horizontal;
    option.invertedAppearance = inverted;
    option.direction = direction;
    option.maximum = 100;
    option.progress = 40;
    const auto isBlue = [](const QColor &color) {
        return color.blue() >= highlight.blue() - 1 && color.red() >= highlight.red() - 1;
    };
    QImage image = paint(QStyle::CE_ProgressBarContents, option);
    const int ratio = qRound(image.devicePixelRatio());
    for (const QPoint &corner : {filled.topLeft(), filled.bottomRight(), filled.center()})
        QVERIFY(isBlue(image.pixelColor(corner * ratio)));
    QVERIFY(isFilled(image, edge, highlight.darker(140)));

    option.progress = -5;
    image = paint(QStyle::CE_ProgressBarContents, option);
    QVERIFY(!isBlue(image.pixelColor(filled.center() * ratio)));

    option.progress = 100;
    image = paint(QStyle::CE_ProgressBarContents, option);
    QVERIFY(isBlue(image.pixelColor(QPoint(3, 3) * ratio)));
    QVERIFY(isBlue(image.pixelColor((option.rect.bottomRight() - QPoint(3, 3)) * ratio)));

    // Beyond the end and at the limits of the type the bar stays within its groove.
    option.progress = INT_MAX;
    option.maximum = 10;
    option.minimum = INT_MIN;
    image = paint(QStyle::CE_ProgressBarContents, option);
    QVERIFY(isFilled(image, QRect(104, 0, 16, 60), background));
    QVERIFY(isFilled(image, QRect(0, 54, 120, 6), background));
}

void TestStyleControls::progressPieceByPiece_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("reversed"); // by right to left, and upright by nothing
    QTest::newRow("left to right") << Qt::Horizontal << false;
    QTest::newRow("right to left") << Qt::Horizontal << true;
    QTest::newRow("downwards") << Qt::Vertical << false;
    QTest::newRow("upwards") << Qt::Vertical << true;
}

void TestStyleControls::progressPieceByPiece()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(bool, reversed);
    const bool vertical = orientation == Qt::Vertical;
    auto option =
        makeOption<QStyleOptionProgressBar>(vertical ? QRect(0, 0, 20, 50) : QRect(5, 4, 90, 20));
    option.orientation = orientation;
    option.direction = reversed && !vertical ? Qt::RightToLeft : Qt::LeftToRight;
    option.invertedAppearance = vertical && !reversed;
    option.minimum = 10;
    option.maximum = 47;
    const QRect r = vertical ? QRect(0, 0, 50, 20) : option.rect;
    for (const int progress : {3, 10, 11, 23, 46, 47}) {
        option.progress = progress;
        const bool complete = progress == 47;
        const int width = (qMax(progress, 10) - 10) * r.width() / 37;
        const QImage expected = picture(canvas, background, [&](QPainter &painter) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.translate(0.5, 0.5);
            if (vertical) {
                painter.translate(r.height() - 1, -1);
                painter.rotate(90);
            }
            QRect bar(r.left(), r.top(), width - 1, r.height() - 1);
            if (reversed)
                bar = QRect(r.right() - width - 1, r.top(), width + 2, r.height() - 1);
            const int side = reversed ? -1 : 1;
            const int edge = reversed ? bar.left() : bar.right();
            for (const int distance : complete ? QVector<int>() : QVector<int>{2, 1}) {
                painter.setPen(distance == 2 ? QColor(0, 0, 0, 35) : highlight.darker(140));
                const int x = edge + distance * side;
                painter.drawLine(x, bar.top() + 1, x, bar.bottom());
            }
            if (progress <= 10)
                return;
            QLinearGradient gradient(r.topLeft(), r.bottomLeft());
            gradient.setStops({{0.0, highlight.lighter(120)}, {1.0, highlight}});
            painter.setPen(outline); // darker than the highlight at 140
            painter.setBrush(gradient);
            painter.save();
            if (!complete)
                painter.setClipRect(bar.adjusted(-1, -1, -1, 1));
            const int extra = complete ? 0 : 2;
            painter.drawRoundedRect(bar.adjusted(reversed ? -extra : 0, 0, reversed ? 0 : extra, 0),
                                    2, 2);
            painter.restore();
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QColor(255, 255, 255, 50));
            painter.drawRoundedRect(bar.adjusted(1, 1, -1, -1), 1, 1);
        });
        QCOMPARE(paint(QStyle::CE_ProgressBarContents, option), expected);
    }
}

void TestStyleControls::unstartedProgress()
{
    // The two lines of the edge are all there is.
    auto option = makeOption<QStyleOptionProgressBar>(QRect(10, 0, 60, 20));
    option.maximum = 100;
    const QImage image = paint(QStyle::CE_ProgressBarContents, option);
    QVERIFY(isFilled(image, QRect(9, 1, 1, 18), highlight.darker(140)));
    QVERIFY(isFilled(image, QRect(10, 1, 1, 18),
                     TestSupport::blended(QColor(0, 0, 0, 35), background)));
    QVERIFY(isFilled(image, QRect(11, 0, 100, 20), background));
}

void TestStyleControls::busyProgress()
{
    auto option = makeOption<QStyleOptionProgressBar>(QRect(0, 0, 100, 20));
    option.minimum = option.maximum = 0;
    const QImage image = paint(QStyle::CE_ProgressBarContents, option);
    QCOMPARE(paint(QStyle::CE_ProgressBarContents, option), image);
    // Every 22 units the row repeats, and half way there it does not.
    bool hasStripes = false;
    int darkest = 255;
    int brightest = 0;
    for (int x = 4; x < 70; ++x) {
        COMPARE_UNIT(image, x + 22, 10, unitColor(image, x, 10));
        hasStripes |= unitColor(image, x + 11, 10) != unitColor(image, x, 10);
        darkest = qMin(darkest, unitColor(image, x, 10).red());
        brightest = qMax(brightest, unitColor(image, x, 10).red());
    }
    QVERIFY(hasStripes);
    const int light = highlight.lighter(120).red();
    QVERIFY(qAbs(brightest - (light * 120 + darkest * 135) / 255) <= 1);
}

void TestStyleControls::progressLabel()
{
    auto option = makeOption<QStyleOptionProgressBar>(QRect(0, 0, 100, 20));
    option.maximum = 100;
    option.progress = 50;
    option.text = QStringLiteral("HHHHHHHH");
    // Orange text has far more red than blue.
    const auto hasLit = [](const QImage &image, bool left) {
        const int half = 50 * qRound(image.devicePixelRatio());
        for (int y = 0; y < image.height(); ++y) {
            for (int x = left ? 0 : half; x < (left ? half : 2 * half); ++x) {
                const QColor color = image.pixelColor(x, y);
                if (color.red() > color.blue() + 60)
                    return true;
            }
        }
        return false;
    };
    const auto check = [&](bool litLeft, bool litRight) {
        const QImage image = paint(QStyle::CE_ProgressBarLabel, option);
        return hasLit(image, true) == litLeft && hasLit(image, false) == litRight;
    };
    QVERIFY(check(true, false));
    option.direction = Qt::RightToLeft;
    QVERIFY(check(false, true));
    option.invertedAppearance = true;
    QVERIFY(check(true, false));
    option.direction = Qt::LeftToRight;
    QVERIFY(check(false, true));
    option.invertedAppearance = false;
    option.progress = -1;
    QVERIFY(check(false, false));
    option.progress = 100;
    QVERIFY(check(true, true));
}

void TestStyleControls::menuSeparator()
{
    auto option = makeOption<QStyleOptionMenuItem>(QRect(0, 0, 100, 21));
    option.menuItemType = QStyleOptionMenuItem::Separator;
    const QColor line = TestSupport::blended(QColor(0, 0, 0, 60), background);
    QImage image = paint(QStyle::CE_MenuItem, option);
    QVERIFY(isFilled(image, QRect(5, 10, 90, 1), line));
    COMPARE_UNIT(image, 4, 10, background);
    COMPARE_UNIT(image, 95, 10, background);

    option.text = QStringLiteral("View");
    const int width = option.fontMetrics.horizontalAdvance(option.text) + 5;
    image = m_proxy.record(QStyle::CE_MenuItem, option);
    QVERIFY(isFilled(image, QRect(5 + width, 10, 90 - width, 1), line));
    COMPARE_UNIT(image, 4 + width, 10, background);
    QCOMPARE(m_proxy.texts.first().rect, QRect(5, 0, 90, 21));
    option.direction = Qt::RightToLeft;
    image = m_proxy.record(QStyle::CE_MenuItem, option);
    QVERIFY(isFilled(image, QRect(5, 10, 90 - width, 1), line));
    COMPARE_UNIT(image, 95 - width, 10, background);
}

void TestStyleControls::menuItemText()
{
    auto option = makeOption<QStyleOptionMenuItem>(QRect(0, 0, 120, 30));
    option.menuItemType = QStyleOptionMenuItem::Normal;
    option.font = QApplication::font();
    option.text = QStringLiteral("HH");
    // The bounds of what is unlike the background, in units.
    const auto bounds = [](const QImage &image) {
        QRegion region;
        for (int x = 0; x < canvas.width(); ++x) {
            for (int y = 0; y < canvas.height(); ++y) {
                if (unitColor(image, x, y) != background)
                    region += QRect(x, y, 1, 1);
            }
        }
        return region.boundingRect();
    };
    const auto hasLit = [&](const QImage &image) {
        for (int i = 0; i < image.width() * image.height(); ++i) {
            const QColor color = image.pixelColor(i % image.width(), i / image.width());
            if (color.red() > color.blue() + 60)
                return true;
        }
        return false;
    };
    QImage image = paint(QStyle::CE_MenuItem, option);
    QVERIFY(bounds(image).left() >= 26 && bounds(image).left() <= 30); // after a column of 20 + 7
    QVERIFY(!hasLit(image));

    option.maxIconWidth = 40;
    QVERIFY(bounds(paint(QStyle::CE_MenuItem, option)).left() >= 46);
    const QComboBox comboBox;
    QVERIFY(bounds(paint(QStyle::CE_MenuItem, option, &comboBox)).left() <= 30);
    QObject popupItem;
    popupItem.setProperty("_q_isComboBoxPopupItem", true);
    option.styleObject = &popupItem;
    QVERIFY(bounds(paint(QStyle::CE_MenuItem, option)).left() <= 30);

    // Selected: only the text tells.
    option.state |= QStyle::State_Selected;
    image = paint(QStyle::CE_MenuItem, option);
    QVERIFY(hasLit(image));
    COMPARE_UNIT(image, 2, 2, background);
    option.state = QStyle::State_Selected;
    option.palette = themePalette(QPalette::Disabled);
    QVERIFY(!hasLit(paint(QStyle::CE_MenuItem, option)));

    // The shortcut stands at the far end.
    option.state = enabled;
    option.palette = themePalette();
    option.tabWidth = 40;
    option.text = QStringLiteral("\tF1");
    QVERIFY(bounds(paint(QStyle::CE_MenuItem, option)).left() >= 120 - 40 - 14 - 2);
    option.direction = Qt::RightToLeft;
    QVERIFY(bounds(paint(QStyle::CE_MenuItem, option)).right() <= 40 + 14 + 2);
    option.text = QStringLiteral("HH");
    QVERIFY(bounds(paint(QStyle::CE_MenuItem, option)).right() >= 120 - 30 - 1);
}

void TestStyleControls::menuItemTextPieceByPiece_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<bool>("isDefault");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("normal") << enabled << false << Qt::LeftToRight;
    QTest::newRow("normal, mirrored") << enabled << false << Qt::RightToLeft;
    QTest::newRow("selected") << (enabled | QStyle::State_Selected) << false << Qt::LeftToRight;
    QTest::newRow("default") << enabled << true << Qt::LeftToRight;
    QTest::newRow("disabled") << QStyle::State(QStyle::State_None) << false << Qt::LeftToRight;
    QTest::newRow("disabled, mirrored")
        << QStyle::State(QStyle::State_None) << false << Qt::RightToLeft;
    QTest::newRow("disabled, selected")
        << QStyle::State(QStyle::State_Selected) << false << Qt::LeftToRight;
}

void TestStyleControls::menuItemTextPieceByPiece()
{
    QFETCH(QStyle::State, state);
    QFETCH(bool, isDefault);
    QFETCH(Qt::LayoutDirection, direction);
    auto option = makeOption<QStyleOptionMenuItem>(QRect(3, 2, 115, 28), state);
    option.menuItemType =
        isDefault ? QStyleOptionMenuItem::DefaultItem : QStyleOptionMenuItem::Normal;
    option.direction = direction;
    option.maxIconWidth = 22;
    option.tabWidth = 24;
    option.font = QApplication::font();
    option.font.setPixelSize(11);
    option.text = QStringLiteral("&Open\tF1\tF2");
    const QRect rect = option.rect;
    const QRect text(3 + 22 + 7, 2 + 8, 115 - (22 + 7) - 24 - 14, 28 - 16);
    const QRect shortcut = QStyle::visualRect(
        direction, rect, QRect(text.topRight(), QPoint(rect.right(), text.bottom())));
    const bool isSelected = state & QStyle::State_Selected;
    const bool isEnabled = state & QStyle::State_Enabled;
    const QColor color =
        option.palette.color(isSelected && isEnabled ? QPalette::HighlightedText : QPalette::Text);
    const int flags = Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic | Qt::TextDontClip
                      | Qt::TextSingleLine;
    const QImage expected = picture(canvas, background, [&](QPainter &painter) {
        painter.setLayoutDirection(direction);
        if (!isEnabled && !isSelected) {
            painter.setPen(option.palette.color(QPalette::Light));
            painter.drawText(shortcut.translated(1, 1), flags, QStringLiteral("F1\tF2"));
        }
        painter.setPen(color);
        painter.drawText(shortcut, flags, QStringLiteral("F1\tF2"));
        QFont font = option.font;
        font.setPointSizeF(QFontInfo(font).pointSizeF());
        if (isDefault)
            font.setBold(true);
        painter.setFont(font);
        painter.drawText(QStyle::visualRect(direction, rect, text), flags, QStringLiteral("&Open"));
    });
    QCOMPARE(paint(QStyle::CE_MenuItem, option), expected);
}

void TestStyleControls::menuItemCheck()
{
    auto option = makeOption<QStyleOptionMenuItem>(QRect(0, 0, 100, 30));
    option.menuItemType = QStyleOptionMenuItem::Normal;
    option.checkType = QStyleOptionMenuItem::NonExclusive;
    m_proxy.record(QStyle::CE_MenuItem, option);
    QCOMPARE(m_proxy.primitives, QVector<int>{QStyle::PE_IndicatorCheckBox});
    QCOMPARE(m_proxy.pieces.first().rect, QRect(7, 8, 14, 14));
    QVERIFY(!(m_proxy.pieces.first().state & QStyle::State_On));
    option.checked = true;
    option.direction = Qt::RightToLeft;
    m_proxy.record(QStyle::CE_MenuItem, option);
    QCOMPARE(m_proxy.pieces.first().rect, QRect(79, 8, 14, 14));
    QVERIFY(m_proxy.pieces.first().state & QStyle::State_On);
    option.direction = Qt::LeftToRight;

    // With an icon, a sunken panel behind it stands for the check mark.
    option.icon = redIcon();
    QImage image = m_proxy.record(QStyle::CE_MenuItem, option);
    QCOMPARE(m_proxy.primitives, QVector<int>{QStyle::PE_PanelButtonCommand});
    QCOMPARE(m_proxy.pieces.first().rect, QRect(4, 0, 20, 30));
    QVERIFY(m_proxy.pieces.first().state & QStyle::State_Sunken);
    QVERIFY(isFilled(image, QRect(6, 7, 15, 15), Qt::red));
    option.state |= QStyle::State_Selected;
    m_proxy.record(QStyle::CE_MenuItem, option);
    QCOMPARE(m_proxy.pieces.first().palette.color(QPalette::Button),
             QColor((0x1f * 50) / 100 + (0x67 * 50) / 100, (0x21 * 50) / 100 + (0x9d * 50) / 100,
                    (0x26 * 50) / 100 + (0xcd * 50) / 100));

    option = makeOption<QStyleOptionMenuItem>(QRect(0, 0, 100, 30));
    option.menuItemType = QStyleOptionMenuItem::Normal;
    option.checkType = QStyleOptionMenuItem::Exclusive;
    QVERIFY(isFilled(paint(QStyle::CE_MenuItem, option), everything, background));
    option.checked = true;
    COMPARE_UNIT(paint(QStyle::CE_MenuItem, option), 13, 14, QColor(0xbb, 0xbb, 0xbb));
    option.state |= QStyle::State_Selected;
    COMPARE_UNIT(paint(QStyle::CE_MenuItem, option), 13, 14, QColor(0xed, 0x6e, 0x00));
    option.state = QStyle::State_Selected;
    option.palette = themePalette(QPalette::Disabled);
    COMPARE_UNIT(paint(QStyle::CE_MenuItem, option), 13, 14, QColor(0x55, 0x54, 0x53));
}

void TestStyleControls::subMenu()
{
    auto option =
        makeOption<QStyleOptionMenuItem>(QRect(0, 0, 100, 30), enabled | QStyle::State_Selected);
    option.menuItemType = QStyleOptionMenuItem::SubMenu;
    m_proxy.record(QStyle::CE_MenuItem, option);
    QCOMPARE(m_proxy.primitives, QVector<int>{QStyle::PE_IndicatorArrowRight});
    QCOMPARE(m_proxy.pieces.first().rect, QRect(100 - 3 - 13, 15 - 6, 13, 13));
    QCOMPARE(m_proxy.pieces.first().state, QStyle::State(QStyle::State_Enabled));
    QCOMPARE(m_proxy.pieces.first().palette.color(QPalette::WindowText), QColor(0xed, 0x6e, 0x00));
    option.direction = Qt::RightToLeft;
    m_proxy.record(QStyle::CE_MenuItem, option);
    QCOMPARE(m_proxy.primitives, QVector<int>{QStyle::PE_IndicatorArrowLeft});
    QCOMPARE(m_proxy.pieces.first().rect, QRect(3, 9, 13, 13));
}

void TestStyleControls::menuBar()
{
    const QColor dark = window.darker(120);
    const QColor light = outline.lighter(140);
    const auto mix = [](int a, int b) { return a * 60 / 100 + b * 40 / 100; };
    const QColor line(mix(dark.red(), light.red()), mix(dark.green(), light.green()),
                      mix(dark.blue(), light.blue()));
    auto option = makeOption<QStyleOptionMenuItem>(QRect(4, 5, 60, 26)); // to 63, 30
    for (const auto element : {QStyle::CE_MenuBarItem, QStyle::CE_MenuBarEmptyArea}) {
        const QImage image = paint(element, option);
        QVERIFY(isFilled(image, QRect(4, 5, 60, 25), window));
        QVERIFY(isFilled(image, QRect(4, 30, 60, 1), line));
        COMPARE_UNIT(image, 64, 30, background);
    }
    option.text = QStringLiteral("File");
    m_proxy.record(QStyle::CE_MenuBarItem, option);
    QCOMPARE(m_proxy.texts.size(), 1);
    QCOMPARE(m_proxy.texts.first().rect, QRect(4, 6, 60, 22));
    option.state |= QStyle::State_Selected | QStyle::State_Sunken;
    const QImage image = m_proxy.record(QStyle::CE_MenuBarItem, option);
    QVERIFY(isFilled(image, option.rect, window));
    QCOMPARE(m_proxy.texts.last().role, QPalette::HighlightedText);
    option.state &= ~QStyle::State_Enabled;
    m_proxy.record(QStyle::CE_MenuBarItem, option);
    QCOMPARE(m_proxy.texts.last().role, QPalette::Text);

    for (const auto element :
         {QStyle::CE_MenuVMargin, QStyle::CE_MenuHMargin, QStyle::CE_MenuEmptyArea})
        QVERIFY(isFilled(paint(element, option), everything, background));
}

void TestStyleControls::gripAndSplitter()
{
    const QColor light = TestSupport::blended(QColor(255, 255, 255, 90), background);
    const QColor dark = TestSupport::blended(QColor(0, 0, 0, 60), light);
    auto option = makeOption<QStyleOption>(QRect(0, 0, 41, 41)); // the middle is 20, 20
    QImage image = paint(QStyle::CE_SizeGrip, option);
    COMPARE_UNIT(image, 23, 20, dark);
    COMPARE_UNIT(image, 24, 20, light);
    COMPARE_UNIT(image, 29, 14, dark);
    COMPARE_UNIT(image, 20, 20, background); // on the diagonal
    COMPARE_UNIT(image, 14, 17, background);
    option.direction = Qt::RightToLeft;
    image = paint(QStyle::CE_SizeGrip, option);
    COMPARE_UNIT(image, 14, 29, dark);
    COMPARE_UNIT(image, 17, 20, dark);
    COMPARE_UNIT(image, 20, 20, background);
    COMPARE_UNIT(image, 23, 20, background);

    image = paint(QStyle::CE_Splitter, option);
    for (const int x : {14, 17, 20, 23, 26, 29}) {
        COMPARE_UNIT(image, x, 20, dark);
        COMPARE_UNIT(image, x, 21, light);
    }
    COMPARE_UNIT(image, 32, 20, background);
    option.state |= QStyle::State_Horizontal;
    image = paint(QStyle::CE_Splitter, option);
    COMPARE_UNIT(image, 21, 14, dark);
    COMPARE_UNIT(image, 22, 30, light);
    option.rect.setWidth(1);
    QVERIFY(isFilled(paint(QStyle::CE_Splitter, option), everything, background));
}

void TestStyleControls::rubberBand()
{
    auto option = makeOption<QStyleOptionRubberBand>(QRect(4, 5, 60, 30));
    option.palette = themePalette(QPalette::Disabled); // the band is always in active colours
    const QColor fill(0x67 / 2 + 110, 0x9d / 2 + 110, 0xcd / 2 + 110);
    QWidget top;
    QWidget child(&top);
    COMPARE_UNIT(paint(QStyle::CE_RubberBand, option, &top), 30, 20, fill);
    const QColor translucentFill = TestSupport::blended(translucent(fill, 80), background);
    COMPARE_UNIT(paint(QStyle::CE_RubberBand, option), 30, 6,
                 unitColor(paint(QStyle::CE_RubberBand, option, &child), 30, 6));
    const QImage image = paint(QStyle::CE_RubberBand, option, &child);
    // The fill is laid on twice: once within each of the two outlines.
    COMPARE_UNIT(image, 30, 20, TestSupport::blended(translucent(fill, 80), translucentFill));
    const QImage expected = picture(canvas, background, [&](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(0.5, 0.5);
        painter.setBrush(translucent(fill, 80));
        painter.setPen(translucent(highlight.darker(120), 180));
        painter.drawRoundedRect(option.rect.adjusted(0, 0, -1, -1), 1, 1);
        painter.setPen(QColor(255, 255, 255, 40));
        painter.drawRoundedRect(option.rect.adjusted(1, 1, -2, -2), 1, 1);
    });
    QCOMPARE(image, expected);
}

void TestStyleControls::dockWidgetTitle()
{
    auto option = makeOption<QStyleOptionDockWidget>(QRect(0, 0, 100, 22));
    m_proxy.record(QStyle::CE_DockWidgetTitle, option);
    QVERIFY(m_proxy.texts.isEmpty());
    option.title = QStringLiteral("A title that is far too long for its dock widget");
    m_proxy.record(QStyle::CE_DockWidgetTitle, option);
    const QRect title = m_style->subElementRect(QStyle::SE_DockWidgetTitleBarText, &option);
    QCOMPARE(m_proxy.texts.first().rect, title);
    QVERIFY(m_proxy.texts.first().text.endsWith(QChar(0x2026)));
    QCOMPARE(m_proxy.texts.first().role, QPalette::WindowText);

    // Upright: the text runs upwards within the bar.
    option.rect = QRect(10, 5, 22, 50);
    option.verticalTitleBar = true;
    option.title = QStringLiteral("HH");
    const QRect upright =
        m_style->subElementRect(QStyle::SE_DockWidgetTitleBarText, &option); // of a turned bar
    const QImage expected = picture(canvas, background, [&](QPainter &painter) {
        // The lower end of the bar is where the turned text begins.
        painter.translate(upright.left(), upright.bottom() + 1);
        painter.rotate(-90);
        painter.setPen(option.palette.color(QPalette::WindowText));
        painter.drawText(QRect(0, 0, upright.height(), upright.width()),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, option.title);
    });
    QCOMPARE(paint(QStyle::CE_DockWidgetTitle, option), expected);
}

void TestStyleControls::toolBar_data()
{
    QTest::addColumn<Qt::ToolBarArea>("area");
    QTest::addColumn<QStyleOptionToolBar::ToolBarPosition>("position");
    QTest::addColumn<QString>("lines"); // l, s or - at the four outermost rows or columns
    const auto row = [](const char *name, Qt::ToolBarArea area,
                        QStyleOptionToolBar::ToolBarPosition position, const char *lines) {
        QTest::newRow(name) << area << position << QString::fromLatin1(lines);
    };
    using Option = QStyleOptionToolBar;
    row("top, beginning", Qt::TopToolBarArea, Option::Beginning, "l--s");
    row("top, middle", Qt::TopToolBarArea, Option::Middle, "l--s");
    row("top, end", Qt::TopToolBarArea, Option::End, "l-sl");
    row("top, only one", Qt::TopToolBarArea, Option::OnlyOne, "l-sl");
    row("bottom, beginning", Qt::BottomToolBarArea, Option::Beginning, "l-sl");
    row("bottom, middle", Qt::BottomToolBarArea, Option::Middle, "l--s");
    row("bottom, end", Qt::BottomToolBarArea, Option::End, "sl-s");
    row("bottom, only one", Qt::BottomToolBarArea, Option::OnlyOne, "l-sl");
    row("left, beginning", Qt::LeftToolBarArea, Option::Beginning, "---s");
    row("left, middle", Qt::LeftToolBarArea, Option::Middle, "l--s");
    row("left, end", Qt::LeftToolBarArea, Option::End, "l-sl");
    row("left, only one", Qt::LeftToolBarArea, Option::OnlyOne, "---s");
    row("right, beginning", Qt::RightToolBarArea, Option::Beginning, "l---");
    row("right, middle", Qt::RightToolBarArea, Option::Middle, "l--s");
    row("right, end", Qt::RightToolBarArea, Option::End, "sl-s");
    row("right, only one", Qt::RightToolBarArea, Option::OnlyOne, "sl--");
    row("floating", Qt::NoToolBarArea, Option::OnlyOne, "----");
}

void TestStyleControls::toolBar()
{
    QFETCH(Qt::ToolBarArea, area);
    QFETCH(QStyleOptionToolBar::ToolBarPosition, position);
    QFETCH(QString, lines);
    const bool lies = !(area & (Qt::LeftToolBarArea | Qt::RightToolBarArea));
    auto option = makeOption<QStyleOptionToolBar>(lies ? QRect(4, 5, 60, 20) : QRect(4, 5, 20, 50));
    if (lies)
        option.state |= QStyle::State_Horizontal;
    // Without a gradient the lines alone differ.
    const QColor plain(0, 0, 40);
    option.palette.setColor(QPalette::Window, plain);
    option.toolBarArea = area;
    option.positionOfLine = position;
    const QImage image = paint(QStyle::CE_ToolBar, option);
    const int inner[] = {0, 1, 18, 19};
    for (int i = 0; i < 4; ++i) {
        const QPoint place = lies ? QPoint(30, 5 + inner[i]) : QPoint(4 + inner[i], 30);
        const QColor color = unitColor(image, place.x(), place.y());
        const QChar line = QLatin1Char(color.red() > 60 ? 'l' : color.blue() < 35 ? 's' : '-');
        QCOMPARE(line, lines.at(i));
    }
    QVERIFY(qAbs(unitColor(image, 14, 15).blue() - plain.blue()) <= 2);
    COMPARE_UNIT(image, 2, 3, background);
}

void TestStyleControls::toolBarOutsideMainWindow()
{
    const auto option = makeOption<QStyleOptionToolBar>(QRect(0, 0, 60, 20));
    QWidget plain;
    QWidget orphan;
    QWidget child(&plain);
    QMainWindow mainWindow;
    QWidget docked(&mainWindow);
    QVERIFY(isFilled(paint(QStyle::CE_ToolBar, option, &orphan), everything, background));
    QVERIFY(isFilled(paint(QStyle::CE_ToolBar, option, &child), everything, background));
    QVERIFY(!isFilled(paint(QStyle::CE_ToolBar, option, &docked), everything, background));
}

void TestStyleControls::badInput()
{
    const QVector<QStyle::ControlElement> typed = {
        QStyle::CE_PushButton,       QStyle::CE_PushButtonLabel,     QStyle::CE_TabBarTabShape,
        QStyle::CE_ProgressBarLabel, QStyle::CE_ProgressBarContents, QStyle::CE_MenuItem,
        QStyle::CE_MenuBarItem,      QStyle::CE_ToolButtonLabel,     QStyle::CE_HeaderSection,
        QStyle::CE_RubberBand,       QStyle::CE_DockWidgetTitle,     QStyle::CE_ComboBoxLabel,
        QStyle::CE_ToolBar};
    const QVector<QStyle::ControlElement> untyped = {
        QStyle::CE_ProgressBarGroove, QStyle::CE_MenuVMargin, QStyle::CE_MenuHMargin,
        QStyle::CE_MenuEmptyArea,     QStyle::CE_SizeGrip,    QStyle::CE_Splitter,
        QStyle::CE_MenuBarEmptyArea};
    const auto wrong = makeOption<QStyleOption>(QRect(0, 0, 60, 30));
    for (const auto element : typed)
        QVERIFY(isFilled(paint(element, wrong), everything, background));

    QStyleOption plain;
    QStyleOptionButton button;
    button.icon = redIcon();
    button.iconSize = QSize(16, 16);
    QStyleOptionTab tab;
    tab.shape = QTabBar::RoundedEast;
    QStyleOptionProgressBar progress;
    progress.maximum = 7;
    progress.progress = 3;
    progress.orientation = Qt::Vertical;
    QStyleOptionProgressBar busy;
    QStyleOptionMenuItem menuItem;
    menuItem.menuItemType = QStyleOptionMenuItem::SubMenu;
    menuItem.checkType = QStyleOptionMenuItem::Exclusive;
    menuItem.icon = redIcon();
    menuItem.checked = true;
    menuItem.text = QStringLiteral("Item\tCtrl+I");
    QStyleOptionToolButton toolButton;
    toolButton.text = QStringLiteral("Tool");
    toolButton.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
    toolButton.features = QStyleOptionToolButton::Arrow;
    QStyleOptionHeader header;
    QStyleOptionComboBox comboBox;
    comboBox.currentIcon = redIcon();
    comboBox.currentText = QStringLiteral("Text");
    QStyleOptionRubberBand band;
    QStyleOptionDockWidget dock;
    dock.title = QStringLiteral("Dock");
    dock.verticalTitleBar = true;
    QStyleOptionToolBar toolBar;
    for (QStyleOption *option : std::initializer_list<QStyleOption *>{
             &plain, &button, &tab, &progress, &busy, &menuItem, &toolButton, &header, &comboBox,
             &band, &dock, &toolBar})
    {
        for (const QStyle::State state :
             {QStyle::State(QStyle::State_None), enabled | QStyle::State_Selected,
              QStyle::State_Sunken | QStyle::State_Horizontal})
        {
            option->state = state;
            option->direction = state ? Qt::RightToLeft : Qt::LeftToRight;
            for (const auto element : typed + untyped) {
                const QString fault = firstFault(
                    [&](const QStyleOption *tried, QPainter *painter) {
                        m_style->drawControl(element, tried, painter);
                    },
                    option);
                QVERIFY2(fault.isEmpty(),
                         qPrintable(QStringLiteral("element %1: ").arg(element) + fault));
            }
        }
    }
}

NOCTURNE_TEST_MAIN(TestStyleControls)
#include "tst_style_controls.moc"
