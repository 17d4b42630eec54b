#include "stylepainting.h"

#include <QtWidgets/QTabBar>

using namespace StylePainting;

namespace {

// Widgets that the style knows by name.
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

const QColor check = QColor(0xbb, 0xbb, 0xbb).darker(120);

void drawMenuPanel(QPainter &painter, const QRect &rect)
{
    painter.fillRect(rect, base.lighter(108));
    fillRing(painter, rect, window.darker(160));
}

void drawCheckBox(QPainter &painter, const QRect &rect, const QColor &pen,
                  const QGradientStops &stops = {{0.0, base.darker(115)}, {0.15, base}})
{
    const QRect box = rect.adjusted(0, 0, -1, -1);
    beginSharp(painter);
    drawBox(painter, box, pen, gradientDown(box, stops));
}

void drawCheckMark(QPainter &painter, const QRect &rect, const QColor &color)
{
    const qreal width = rect.width() - 1;
    const qreal height = rect.height() - 1;
    const QPointF mark[] = {{5.0, height * 0.5}, {width * 0.5, height - 3}, {width - 3.5, 3.0}};
    painter.translate(rect.topLeft());
    painter.translate(-0.8, 0.5);
    painter.setPen(QPen(color, 1.8));
    painter.drawPolyline(mark, 3);
}

qreal drawCircle(QPainter &painter, const QRect &rect, const QColor &pen, const QColor &fill = base)
{
    const qreal radius = (rect.width() + (rect.width() + 1) % 2) * 0.5 - 1;
    painter.setRenderHint(QPainter::Antialiasing);
    drawDisc(painter, QPointF(rect.center() + QPoint(1, 1)), radius, pen, fill);
    return radius;
}

void drawField(QPainter &painter, const QRect &rect, int shift, qreal radius)
{
    painter.setRenderHint(QPainter::Antialiasing);
    drawBox(painter, rect, Qt::NoPen, shifted(window, shift), radius);
}

/// The panel of a button whose Window colour is \a color; without one it is down.
void drawButton(QPainter &painter, const QRect &rect, const QColor &color = QColor())
{
    const QRect r = rect.adjusted(2, 2, -2, -2);
    QLinearGradient gradient(0, r.top(), 0, rect.top() + r.height());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(0.5, -0.5);
    if (color.isValid()) {
        gradient.setStops({{0.0, shifted(color, 24)}, {1.0, shifted(color, 1)}});
        painter.setPen(shifted(color, -18));
    } else {
        gradient.setStops({{0.0, QColor(24, 24, 24)}, {1.0, QColor(16, 16, 16)}});
        painter.setPen(QColor(20, 20, 20));
    }
    painter.setBrush(gradient);
    painter.drawRect(r);
    if (color.isValid()) {
        drawLine(painter, shifted(color, 33), r.left() + 2, r.top() + 1, r.right() - 1,
                 r.top() + 1);
    }
    drawLine(painter, shifted(color.isValid() ? color : window, 29, 128), r.left() + 2,
             r.bottom() + 2, r.right() - 1, r.bottom() + 2);
}

void drawFlatDefaultButton(QPainter &painter, const QRect &rect)
{
    const QRect r = rect.adjusted(0, 1, 0, -1);
    QRegion frame = QRegion(r.adjusted(2, 0, -2, 0)) + r.adjusted(1, 1, -1, -1);
    frame += r.adjusted(0, 2, 0, -2);
    frame -= QRegion(r.adjusted(2, 1, -2, -1)) + r.adjusted(1, 2, -1, -2);
    for (const QRect &part : frame)
        painter.fillRect(part, Qt::black);
}

} // namespace

using PlacedDrawing = std::function<void(QPainter &painter, const QRect &rect)>;

Q_DECLARE_METATYPE(PlacedDrawing)

class TestStylePrimitives : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_style = m_theme.style(); }
    void cleanupTestCase() { delete m_style; }

    void drawnPieceByPiece_data();
    void drawnPieceByPiece();
    void frameInOneUnit();
    void groupBoxFrame();
    void rotatedButtonPanel();
    void buttonPanelsFor();
    void tabCloseButton();
    void arrows();
    void itemViewCheck();
    void toolBarSeparator();
    void resizeHandle();
    void nothing();

private:
    QImage paint(QStyle::PrimitiveElement element, const QStyleOption &option,
                 const QWidget *widget = nullptr) const
    {
        return picture(
            [&](QPainter &painter) { m_style->drawPrimitive(element, &option, &painter, widget); });
    }
    bool paints(QStyle::PrimitiveElement element, const QStyleOption &option,
                const QWidget *widget = nullptr) const
    {
        return !painted(paint(element, option, widget)).isEmpty();
    }
    template <typename Option>
    void addRow(const char *name, QStyle::PrimitiveElement element, const Option &option,
                const PlacedDrawing &expected, bool isKept = false, const QWidget *widget = nullptr)
    {
        const PlacedDrawing actual = [=](QPainter &painter, const QRect &rect) {
            Option placed = option;
            placed.rect = rect;
            m_style->drawPrimitive(element, &placed, &painter, widget);
        };
        QTest::newRow(name) << actual << expected << isKept;
    }
    void addFrames();
    void addFields();
    void addTabFrames();
    void addButtons();
    void addIndicators();

    DarkUX m_theme;
    DarkFusionStyle *m_style = nullptr;
    const SearchLineEdit m_search{};
    const QComboBoxPrivateContainer m_popup{};
};

void TestStylePrimitives::addFrames()
{
    const auto option = makeOption<QStyleOption>(QRect());
    addRow("frame", QStyle::PE_Frame, option,
           [](QPainter &painter, const QRect &r) { fillRing(painter, r, outline.lighter(108)); });
    addRow("frame of a popup", QStyle::PE_Frame, option, drawMenuPanel, false, &m_popup);
    addRow("menu", QStyle::PE_FrameMenu, option, [](QPainter &painter, const QRect &r) {
        const QRect inner = r.adjusted(1, 1, -1, -1);
        fillRing(painter, r, outline);
        fillRing(painter, inner, window.lighter(160));
        fillUnits(painter, inner.topRight(), inner.bottomRight(), window.darker(110));
        fillUnits(painter, inner.bottomLeft(), inner.bottomRight(), window.darker(110));
    });
    const auto drawDock = [](const QColor &rim) {
        return [rim](QPainter &painter, const QRect &r) {
            const QRect inner = r.adjusted(1, 1, -1, -1);
            fillRing(painter, r, rim);
            fillUnits(painter, inner.topLeft(), inner.bottomLeft(), light);
            fillUnits(painter, inner.bottomLeft(), inner.bottomRight(), window.darker(120));
            fillUnits(painter, inner.topRight(), inner.bottomRight(), window.darker(120));
        };
    };
    addRow("dock widget", QStyle::PE_FrameDockWidget, option, drawDock(window.darker(120)));
    addRow("window", QStyle::PE_FrameWindow, option, drawDock(outline.darker(150)));
    addRow("tip", QStyle::PE_PanelTipLabel, option, [](QPainter &painter, const QRect &r) {
        painter.fillRect(r, Qt::gray);
        fillRing(painter, r, Qt::black);
    });
    addRow("menu panel", QStyle::PE_PanelMenu, option, drawMenuPanel);
    addRow("corner", QStyle::PE_PanelScrollAreaCorner, option,
           [](QPainter &p, const QRect &r) { drawBox(p, r, withAlpha(outline, 180), window); });
}

void TestStylePrimitives::addFields()
{
    const PlacedDrawing drawFocus = [](QPainter &painter, const QRect &r) {
        const QColor fill = withAlpha(focusOutline(), 30);
        beginSharp(painter);
        drawBox(painter, r.adjusted(0, 0, -1, -1), withAlpha(focusOutline(), 80).darker(120),
                gradientDown(r, {{0.0, fill.lighter(160)}, {1.0, fill}}), 1);
    };
    const auto drawNothing = [](QPainter &, const QRect &) {};
    auto focus = makeOption<QStyleOptionFocusRect>(QRect(), enabled | QStyle::State_HasFocus);
    addRow("focus by mouse", QStyle::PE_FrameFocusRect, focus, drawNothing);
    focus.state |= QStyle::State_KeyboardFocusChange;
    addRow("focus", QStyle::PE_FrameFocusRect, focus, drawFocus);

    auto frame = makeOption<QStyleOptionFrame>(QRect());
    addRow("framed line edit", QStyle::PE_FrameLineEdit, frame, [](QPainter &p, const QRect &r) {
        p.translate(0.5, 0.5);
        drawField(p, r.adjusted(0, 1, -1, -2), -6, 2);
    });
    addRow("frameless line edit", QStyle::PE_PanelLineEdit, frame, drawNothing);
    frame.lineWidth = 1;
    addRow("line edit", QStyle::PE_PanelLineEdit, frame, [](QPainter &painter, const QRect &r) {
        drawField(painter, r.adjusted(0, 1, 0, -1), -6, 3);
    });
    const PlacedDrawing drawSearch = [](QPainter &painter, const QRect &r) {
        drawField(painter, r.adjusted(0, 1, 0, -1), -15, 9);
    };
    addRow("search", QStyle::PE_PanelLineEdit, frame, drawSearch, false, &m_search);
}

void TestStylePrimitives::addTabFrames()
{
    auto page = makeOption<QStyleOptionTabWidgetFrame>(QRect());
    addRow("page", QStyle::PE_FrameTabWidget, page, [](QPainter &painter, const QRect &r) {
        painter.fillRect(r.adjusted(0, 0, -1, -1), window);
        fillUnits(painter, r.bottomLeft(), r.bottomRight(), QColor(0, 0, 0, 15));
    });
    page.shape = QTabBar::RoundedSouth;
    addRow("page, south", QStyle::PE_FrameTabWidget, page,
           [](QPainter &p, const QRect &r) { p.fillRect(r.adjusted(0, 0, -1, -1), window); });
    auto bar = makeOption<QStyleOptionTabBarBase>(QRect());
    bar.selectedTabRect = QRect(10, 0, 3, 50);
    addRow("base", QStyle::PE_FrameTabBarBase, bar, [=](QPainter &painter, const QRect &r) {
        fillUnits(painter, r.topLeft(), r.topRight(), outline.lighter(110));
        for (const QRect &part : QRegion(r.left(), r.top() + 1, r.width(), 1) - bar.selectedTabRect)
            painter.fillRect(part, light);
    });
    const auto addBase = [&](const char *name, QTabBar::Shape shape, QPoint (QRect::*first)() const,
                             QPoint (QRect::*last)() const) {
        bar.shape = shape;
        addRow(name, QStyle::PE_FrameTabBarBase, bar, [=](QPainter &painter, const QRect &r) {
            fillUnits(painter, (r.*first)(), (r.*last)(), outline.lighter(110));
        });
    };
    addBase("base, south", QTabBar::RoundedSouth, &QRect::bottomLeft, &QRect::bottomRight);
    addBase("base, west", QTabBar::RoundedWest, &QRect::topLeft, &QRect::bottomLeft);
    addBase("base, east", QTabBar::RoundedEast, &QRect::topRight, &QRect::bottomRight);
}

void TestStylePrimitives::addButtons()
{
    const auto add = [this](const char *name, QStyle::State state, const PlacedDrawing &expected,
                            QStyleOptionButton::ButtonFeatures features = {},
                            const QColor &color = window) {
        auto option = makeOption<QStyleOptionButton>(QRect(), state);
        option.features = features;
        option.palette.setColor(QPalette::Window, color);
        addRow(name, QStyle::PE_PanelButtonCommand, option, expected, true);
    };
    const auto drawRaised = [](QPainter &painter, const QRect &r) {
        drawButton(painter, r, window);
    };
    const auto drawDown = [](QPainter &painter, const QRect &r) { drawButton(painter, r); };
    add("button", enabled, drawRaised);
    add("button, pressed", enabled | QStyle::State_Sunken, drawDown);
    add("button, checked", enabled | QStyle::State_On, drawDown);
    const QStyleOptionButton::ButtonFeatures flat = QStyleOptionButton::Flat;
    const auto drawNothing = [](QPainter &, const QRect &) {};
    add("flat", enabled, drawNothing, flat);
    add("flat, pressed", enabled | QStyle::State_Sunken, drawDown, flat);
    add("flat, default, disabled", {}, drawNothing, flat | QStyleOptionButton::DefaultButton);
    if (qApp->devicePixelRatio() == 1.0) { // its lines lie across the units of other ratios
        add("flat, default", enabled, drawFlatDefaultButton,
            flat | QStyleOptionButton::DefaultButton);
    }
}

void TestStylePrimitives::addIndicators()
{
    const auto addBox = [this](const char *name, QStyle::State state, const PlacedDrawing &expected,
                               QStyle::PrimitiveElement element = QStyle::PE_IndicatorCheckBox) {
        addRow(name, element, makeOption<QStyleOptionButton>(QRect(), state), expected, true);
    };
    addBox("box", enabled | QStyle::State_HasFocus, [](QPainter &painter, const QRect &r) {
        drawCheckBox(painter, r, outline.lighter(110));
    });
    addBox("box, focused", enabled | keyboardFocus,
           [](QPainter &painter, const QRect &r) { drawCheckBox(painter, r, focusOutline()); });
    addBox("box, pressed", enabled | QStyle::State_Sunken, [](QPainter &painter, const QRect &r) {
        drawCheckBox(painter, r, outline.lighter(110), {{0.0, QColor(49, 50, 53)}});
    });
    addBox("box, half", enabled | QStyle::State_NoChange | QStyle::State_On,
           [](QPainter &painter, const QRect &r) {
               const QRect box = r.adjusted(0, 0, -1, -1);
               drawCheckBox(painter, r, outline.lighter(110));
               drawBox(
                   painter, box.adjusted(3, 3, -3, -3), withAlpha(check, 180),
                   gradientDown(box, {{0.0, withAlpha(check, 80)}, {1.0, withAlpha(check, 140)}}));
           });
    addBox("box, checked", enabled | QStyle::State_On, [](QPainter &painter, const QRect &r) {
        drawCheckBox(painter, r, outline.lighter(110));
        drawCheckMark(painter, r, check);
    });

    const auto circle = QStyle::PE_IndicatorRadioButton;
    const auto drawChosen = [](const QColor &fill, const QColor &dot) {
        return [=](QPainter &painter, const QRect &r) {
            const qreal radius = drawCircle(painter, r, window.darker(150), fill) / 2.32;
            drawDisc(painter, QPointF(r.center() + QPoint(1, 1)), radius, withAlpha(dot, 200),
                     withAlpha(dot, 180));
        };
    };
    addBox(
        "circle, focused", enabled | keyboardFocus,
        [](QPainter &painter, const QRect &r) { drawCircle(painter, r, focusOutline()); }, circle);
    addBox(
        "circle, pressed", enabled | QStyle::State_Sunken,
        [](QPainter &p, const QRect &r) {
            drawCircle(p, r, window.darker(150), QColor(49, 50, 53));
        },
        circle);
    addBox("circle, chosen", enabled | QStyle::State_On, drawChosen(base, check), circle);

    const auto addHandle = [this](const char *name, QStyle::State state,
                                  const QVector<QPoint> &places) {
        addRow(name, QStyle::PE_IndicatorToolBarHandle, makeOption<QStyleOption>(QRect(), state),
               [=](QPainter &painter, const QRect &r) {
                   painter.translate(r.center());
                   fillDots(painter, places);
               });
    };
    QVector<QPoint> lying;
    QVector<QPoint> upright;
    for (const int across : {-3, 0}) {
        for (int i = 0; i < 6; ++i) {
            lying << QPoint(3 * i - 6, across);
            upright << QPoint(across, 3 * i - 8);
        }
    }
    addHandle("handle", enabled, lying);
    addHandle("handle, horizontal", enabled | QStyle::State_Horizontal, upright);
}

void TestStylePrimitives::drawnPieceByPiece_data()
{
    QTest::addColumn<PlacedDrawing>("actual");
    QTest::addColumn<PlacedDrawing>("expected");
    QTest::addColumn<bool>("isKept");
    addFrames();
    addFields();
    addTabFrames();
    addButtons();
    addIndicators();
}

/// The style keeps drawings, and fills what could be drawn as lines: neither may show.
void TestStylePrimitives::drawnPieceByPiece()
{
    QFETCH(PlacedDrawing, actual);
    QFETCH(PlacedDrawing, expected);
    QFETCH(bool, isKept);
    for (const QRect &rect : {QRect(4, 5, 14, 14), QRect(7, 12, 31, 22), QRect(20, 20, 8, 11)}) {
        const auto draw = [&](QPainter &painter) { expected(painter, rect); };
        QCOMPARE(picture([&](QPainter &painter) { actual(painter, rect); }),
                 isKept ? keptPicture(draw) : picture(draw));
    }
}

void TestStylePrimitives::frameInOneUnit()
{
    // There is no room for what is inside a frame.
    const auto tiny = makeOption<QStyleOption>(QRect(20, 20, 1, 1));
    for (const auto element :
         {QStyle::PE_Frame, QStyle::PE_FrameMenu, QStyle::PE_PanelMenu, QStyle::PE_PanelTipLabel})
        QCOMPARE(painted(paint(element, tiny)), QRegion(tiny.rect));
}

void TestStylePrimitives::groupBoxFrame()
{
    const auto option = makeOption<QStyleOption>(QRect(0, 0, 60, 50));
    const int title = qMax(14, option.fontMetrics.height()) + 3;
    QCOMPARE(painted(paint(QStyle::PE_FrameGroupBox, option)).boundingRect(),
             QRect(1, title + 1, 59, 49 - title));
}

void TestStylePrimitives::rotatedButtonPanel()
{
    // What is kept would be blurred.
    const auto option = makeOption<QStyleOptionButton>(QRect(0, 0, 40, 24));
    const auto turned = [&](const Drawing &draw) {
        return picture([&](QPainter &painter) {
            painter.translate(60, 0);
            painter.rotate(90);
            draw(painter);
        });
    };
    QCOMPARE(turned([&](QPainter &painter) {
                 m_style->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter);
             }),
             turned([&](QPainter &painter) { drawButton(painter, option.rect, window); }));
}

void TestStylePrimitives::buttonPanelsFor()
{
    auto option = makeOption<QStyleOptionToolButton>(QRect(0, 0, 30, 24));
    const auto hasPanel = [&](QStyle::State state, const QWidget *widget = nullptr) {
        option.state = state;
        return paints(QStyle::PE_PanelButtonTool, option, widget);
    };
    QVERIFY(hasPanel(enabled | QStyle::State_AutoRaise));
    QVERIFY(hasPanel(QStyle::State_None));
    QVERIFY(hasPanel(QStyle::State_AutoRaise | QStyle::State_On));
    QVERIFY(!hasPanel(QStyle::State_AutoRaise));
    const QDockWidgetTitleButton titleButton;
    QVERIFY(!hasPanel(enabled, &titleButton));
    QVERIFY(hasPanel(enabled | QStyle::State_MouseOver, &titleButton));
    QVERIFY(paints(QStyle::PE_IndicatorButtonDropDown, option));

    // Too dark for a border of 18 less, and too bright for a light of 33 more.
    option.palette.setColor(QPalette::Window, QColor(3, 30, 250));
    const QImage image = paint(QStyle::PE_PanelButtonCommand, option);
    QCOMPARE(unitColor(image, 2, 11), QColor(0, 12, 232));
    QCOMPARE(unitColor(image, 15, 2), QColor(36, 63, 255));
}

void TestStylePrimitives::tabCloseButton()
{
    Recorder recorder;
    auto option = makeOption<QStyleOption>(QRect(0, 0, 20, 20));
    const auto panels = [&](QStyle::State state) {
        recorder.forget();
        option.state = state;
        picture([&](QPainter &painter) {
            recorder.baseStyle()->drawPrimitive(QStyle::PE_IndicatorTabClose, &option, &painter);
        });
        return recorder.pieces.size();
    };
    QCOMPARE(panels(enabled), 0);
    QCOMPARE(recorder.pixmapRects, QVector<QRect>{option.rect});
    QCOMPARE(panels(QStyle::State_MouseOver), 0);
    QCOMPARE(panels(enabled | QStyle::State_MouseOver), 1);
    QCOMPARE(recorder.pieces.first().element, QStyle::PE_PanelButtonCommand);
}

void TestStylePrimitives::arrows()
{
    auto branch = makeOption<QStyleOption>(QRect(0, 0, 20, 20),
                                           enabled | QStyle::State_Children | QStyle::State_Open);
    QCOMPARE(paint(QStyle::PE_IndicatorBranch, branch),
             paint(QStyle::PE_IndicatorArrowDown, branch));
    branch.state = enabled | QStyle::State_Children;
    QCOMPARE(paint(QStyle::PE_IndicatorBranch, branch),
             paint(QStyle::PE_IndicatorArrowRight, branch));
    branch.state = enabled;
    QVERIFY(!paints(QStyle::PE_IndicatorBranch, branch));

    auto header = makeOption<QStyleOptionHeader>(QRect(10, 10, 20, 20));
    QVERIFY(!paints(QStyle::PE_IndicatorHeaderArrow, header));
    const auto pointsDown = [&](QStyleOptionHeader::SortIndicator indicator) {
        header.sortIndicator = indicator;
        const QRegion arrow = painted(paint(QStyle::PE_IndicatorHeaderArrow, header));
        return arrow.begin()->width() > (arrow.end() - 1)->width();
    };
    QVERIFY(pointsDown(QStyleOptionHeader::SortUp));
    QVERIFY(!pointsDown(QStyleOptionHeader::SortDown));
}

void TestStylePrimitives::itemViewCheck()
{
    const auto item = makeOption<QStyleOptionViewItem>(
        QRect(4, 5, 14, 14), enabled | QStyle::State_On | QStyle::State_MouseOver);
    Recorder recorder;
    picture([&](QPainter &painter) {
        recorder.baseStyle()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &item, &painter);
    });
    const Recorder::Piece box = recorder.pieces.value(0);
    QCOMPARE(box.element, QStyle::PE_IndicatorCheckBox);
    QCOMPARE(box.rect, item.rect);
    QCOMPARE(box.state, enabled | QStyle::State_On);
    QCOMPARE(box.palette, item.palette);
}

void TestStylePrimitives::toolBarSeparator()
{
    auto option = makeOption<QStyleOption>(QRect(0, 0, 41, 41));
    const auto lines = [&](const QRect &dark, const QPoint &offset) {
        return picture([&](QPainter &painter) {
            painter.fillRect(dark, window.darker(110));
            painter.fillRect(dark.translated(offset), window.lighter(110));
        });
    };
    // Drawn as lines, which at other ratios lie across the units.
    const bool isExact = qApp->devicePixelRatio() == 1.0;
    const QImage image = paint(QStyle::PE_IndicatorToolBarSeparator, option);
    QVERIFY(!isExact || image == lines(QRect(6, 20, 29, 1), QPoint(0, 1)));
    QCOMPARE(unitColor(image, 20, 20).rgba(), window.darker(110).rgba());
    option.state |= QStyle::State_Horizontal;
    QVERIFY(!isExact
            || paint(QStyle::PE_IndicatorToolBarSeparator, option)
                   == lines(QRect(20, 6, 1, 29), QPoint(1, 0)));
}

void TestStylePrimitives::resizeHandle()
{
    const auto handle =
        makeOption<QStyleOption>(QRect(0, 0, 40, 6), enabled | QStyle::State_Horizontal);
    const auto splitter = makeOption<QStyleOption>(handle.rect);
    QCOMPARE(paint(QStyle::PE_IndicatorDockWidgetResizeHandle, handle),
             picture([&](QPainter &painter) {
                 m_style->drawControl(QStyle::CE_Splitter, &splitter, &painter);
             }));
}

void TestStylePrimitives::nothing()
{
    const auto option = makeOption<QStyleOptionFrame>(QRect(0, 0, 40, 30));
    for (const auto element : {QStyle::PE_FrameDefaultButton, QStyle::PE_FrameStatusBarItem})
        QVERIFY(!paints(element, option));
}

NOCTURNE_TEST_MAIN(TestStylePrimitives)
#include "tst_style_primitives.moc"
