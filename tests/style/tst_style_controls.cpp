#include "qtversion.h"
#include "stylepainting.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>

using namespace StylePainting;

Q_DECLARE_METATYPE(QStyle::State)

namespace {

QGradientStops progressStops()
{
    return {{0.0, highlight.lighter(120)}, {1.0, highlight}};
}

constexpr int plainMenuItem = 0;
constexpr int comboBoxMenuItem = 1; // of the list that a combo box opens
constexpr int popupMenuItem = 2;    // the same, known by a property

} // namespace

class TestStyleControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_style = m_theme.style(); }
    void cleanupTestCase() { delete m_style; }

    void pushButton();
    void pushButtonLabel();
    void toolButtonLabel();
    void comboBoxLabel();
    void tab_data();
    void tab();
    void tabOverlap();
    void headerSection();
    void progressGroove();
    void progressContents_data();
    void progressContents();
    void busyProgress();
    void progressLabel_data();
    void progressLabel();
    void menuSeparator();
    void menuItemText_data();
    void menuItemText();
    void menuItemCheck();
    void menuItemRadioDot();
    void subMenu();
    void menuBar();
    void gripAndSplitter();
    void rubberBand();
    void dockWidgetTitle();
    void toolBarLines();
    void toolBarOutsideMainWindow();

private:
    QImage paint(QStyle::ControlElement element, const QStyleOption &option,
                 const QWidget *widget = nullptr) const
    {
        return picture([&](QPainter &painter) {
            painter.setLayoutDirection(option.direction);
            m_style->drawControl(element, &option, &painter, widget);
        });
    }
    /// Through the recorder, which has forgotten what came before.
    QImage record(QStyle::ControlElement element, const QStyleOption &option,
                  const QWidget *widget = nullptr)
    {
        m_recorder.forget();
        return picture(
            [&](QPainter &painter) { m_recorder.drawControl(element, &option, &painter, widget); });
    }

    DarkUX m_theme;
    DarkFusionStyle *m_style = nullptr;
    Recorder m_recorder;
};

void TestStyleControls::pushButton()
{
    auto option = makeOption<QStyleOptionButton>(QRect(0, 0, 80, 30));
    record(QStyle::CE_PushButton, option);
    QCOMPARE(m_recorder.controls, (QVector<int>{QStyle::CE_PushButton, QStyle::CE_PushButtonBevel,
                                                QStyle::CE_PushButtonLabel}));
    const QRect contents = m_style->subElementRect(QStyle::SE_PushButtonContents, &option);
    QCOMPARE(m_recorder.texts.first().rect, contents.adjusted(0, 0, 0, -2));

    QToolButton toolButton;
    QPushButton plain;
    QPushButton checked;
    checked.setCheckable(true);
    checked.setChecked(true);
    const auto roleOn = [&](const QWidget *widget, QStyle::State state) {
        option.state = enabled | state;
        record(QStyle::CE_PushButtonLabel, option, widget);
        return m_recorder.texts.first().role;
    };
    QCOMPARE(roleOn(nullptr, QStyle::State_Sunken), QPalette::ButtonText);
    QCOMPARE(roleOn(&toolButton, QStyle::State_Sunken), QPalette::ButtonText);
    QCOMPARE(roleOn(&plain, {}), QPalette::ButtonText);
    QCOMPARE(roleOn(&plain, QStyle::State_Sunken), QPalette::HighlightedText);
    QCOMPARE(roleOn(&checked, {}), QPalette::HighlightedText);
}

void TestStyleControls::pushButtonLabel()
{
    auto option = makeOption<QStyleOptionButton>(QRect(0, 0, 100, 30));
    option.text = QStringLiteral("Label");
    option.features = QStyleOptionButton::HasMenu;
    record(QStyle::CE_PushButtonLabel, option);
    const int indicator = m_style->pixelMetric(QStyle::PM_MenuButtonIndicator, &option);
    QCOMPARE(m_recorder.texts.first().rect, QRect(0, 0, 100 - indicator, 28));
    QVERIFY(m_recorder.texts.first().flags & Qt::AlignHCenter);

    // Icon and text stand in the middle together.
    option.features = QStyleOptionButton::None;
    option.icon = redIcon();
    option.iconSize = QSize(16, 16);
    const int text =
        option.fontMetrics
            .boundingRect(option.rect, Qt::AlignVCenter | Qt::TextShowMnemonic, option.text)
            .width();
    const int left = 50 - (16 + text + 2) / 2;
    QCOMPARE(painted(record(QStyle::CE_PushButtonLabel, option)), QRegion(left, 7, 16, 16));
    QCOMPARE(m_recorder.texts.first().rect, QRect(left + 16, 0, 100, 28));
    QVERIFY(m_recorder.texts.first().flags & Qt::AlignLeft);
    option.direction = Qt::RightToLeft;
    QCOMPARE(painted(record(QStyle::CE_PushButtonLabel, option)),
             QRegion(99 - left - 16, 7, 16, 16));
    QCOMPARE(m_recorder.texts.first().rect, QRect(-left - 16 - 2, 0, 100, 28));
}

void TestStyleControls::toolButtonLabel()
{
    auto option = makeOption<QStyleOptionToolButton>(QRect(0, 0, 100, 50));
    option.text = QStringLiteral("Cut");
    option.iconSize = QSize(16, 16);
    const auto compare = [&](Qt::ToolButtonStyle style, const QVector<QRect> &icons,
                             const QVector<QRect> &texts) {
        option.toolButtonStyle = style;
        record(QStyle::CE_ToolButtonLabel, option);
        QCOMPARE(m_recorder.pixmapRects, icons);
        QCOMPARE(m_recorder.texts.size(), texts.size());
        if (!texts.isEmpty()) {
            QCOMPARE(m_recorder.texts.first().rect, texts.first());
            QCOMPARE(m_recorder.texts.first().role, QPalette::ButtonText);
        }
    };
    // Without icon and arrow there is only the text, whatever the style asks for.
    compare(Qt::ToolButtonIconOnly, {}, {option.rect});
    option.icon = redIcon();
    compare(Qt::ToolButtonTextUnderIcon, {QRect(0, 0, 100, 22)}, {QRect(0, 21, 100, 26)});
    QVERIFY(m_recorder.texts.first().flags & Qt::AlignCenter);
    compare(Qt::ToolButtonTextBesideIcon, {QRect(0, 0, 24, 50)}, {QRect(24, 0, 76, 48)});
    option.direction = Qt::RightToLeft;
    compare(Qt::ToolButtonTextBesideIcon, {QRect(76, 0, 24, 50)}, {QRect(0, 0, 76, 48)});
    option.state |= QStyle::State_Sunken; // moves by three units
    compare(Qt::ToolButtonIconOnly, {option.rect.translated(3, 3)}, {});
    compare(Qt::ToolButtonTextOnly, {}, {option.rect.translated(3, 3)});

    option.features = QStyleOptionToolButton::Arrow;
    option.arrowType = Qt::DownArrow;
    compare(Qt::ToolButtonIconOnly, {}, {});
    QCOMPARE(m_recorder.pieces.first().element, QStyle::PE_IndicatorArrowDown);
}

void TestStyleControls::comboBoxLabel()
{
    auto option = makeOption<QStyleOptionComboBox>(QRect(0, 0, 100, 26));
    option.currentText = QStringLiteral("Choice");
    const auto fieldRect = [&] {
        return m_style->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField);
    };
    const QRect field = fieldRect();
    record(QStyle::CE_ComboBoxLabel, option);
    QCOMPARE(m_recorder.texts.first().rect, field.adjusted(6, 0, -1, 0));
    QCOMPARE(m_recorder.texts.first().role, QPalette::ButtonText);

    option.currentIcon = redIcon();
    option.iconSize = QSize(16, 16);
    record(QStyle::CE_ComboBoxLabel, option);
    QCOMPARE(m_recorder.pixmapRects.first(), QRect(field.topLeft(), QSize(20, field.height())));
    QCOMPARE(m_recorder.texts.first().rect, field.adjusted(26, 0, 19, 0));

    option.editable = true;
    const QRect icon(fieldRect().topLeft(), QSize(20, fieldRect().height()));
    QVERIFY(isFilled(record(QStyle::CE_ComboBoxLabel, option), icon, base));
    QVERIFY(m_recorder.texts.isEmpty());
}

void TestStyleControls::tab_data()
{
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<QTransform>("turn");
    QTest::addColumn<bool>("isFramed");
    QTransform south;
    south.rotate(180).translate(0, -30 + 1).scale(-1, 1);
    QTransform west;
    west.rotate(270).scale(-1, 1);
    QTransform east;
    east.rotate(90).translate(0, -30 + 1);
    QTest::newRow("north") << QTabBar::RoundedNorth << QTransform() << true;
    QTest::newRow("north, frameless") << QTabBar::RoundedNorth << QTransform() << false;
    QTest::newRow("south") << QTabBar::RoundedSouth << south << true;
    QTest::newRow("west") << QTabBar::RoundedWest << west << true;
    QTest::newRow("east") << QTabBar::RoundedEast << east << false;
}

void TestStyleControls::tab()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(QTransform, turn);
    QFETCH(bool, isFramed);
    const QRect rect(0, 0, 50, 30);
    auto option = makeOption<QStyleOptionTab>(rect);
    if (shape == QTabBar::RoundedWest || shape == QTabBar::RoundedEast)
        option.rect = QRect(0, 0, 30, 50);
    option.shape = shape;
    option.position = QStyleOptionTab::OnlyOneTab;
    if (isFramed)
        option.features = QStyleOptionTab::HasFrame;
    const QColor frame = isFramed ? button.lighter(104) : window;
    for (const bool isSelected : {false, true}) {
        option.state.setFlag(QStyle::State_Selected, isSelected);
        const QImage body = keptPicture([&](QPainter &painter) {
            painter.setTransform(turn, true);
            beginSharp(painter);
            const QRect r = rect.adjusted(0, isSelected ? 0 : 2, 0, 3);
            painter.setClipRect(rect.adjusted(-1, -1, 1, isSelected ? -2 : -3));
            drawBox(painter, r.adjusted(0, 0, -1, -1), isSelected ? outline : outline.lighter(110),
                    gradientDown(rect, isSelected
                                           ? QGradientStops{{0.0, frame.lighter(104)}, {1.0, frame}}
                                           : QGradientStops{{0.85, frame.darker(108)},
                                                            {1.0, frame.darker(116)}}),
                    2);
            drawBox(painter, r.adjusted(1, 1, -2, -1), contrast, Qt::NoBrush, 2);
        });
        const QImage expected = picture([&](QPainter &painter) {
            painter.drawImage(0, 0, body);
            if (!isSelected)
                return;
            painter.setTransform(turn, true);
            beginSharp(painter);
            painter.fillRect(rect.left() + 1, rect.bottom() - 1, rect.width() - 2,
                             rect.bottom() - 1, frame);
            painter.setPen(contrast);
            for (const QPoint &place : {QPoint(47, 28), QPoint(0, 28), QPoint(48, 28)})
                painter.drawPoint(place);
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

void TestStyleControls::headerSection()
{
    auto option = makeOption<QStyleOptionHeader>(QRect(10, 5, 40, 25));
    const QColor start = button.lighter(104);
    const QColor stop = button.darker(102);
    QGradientStops stops = {{0.0, start},
                            {0.5, merged(start, stop, 60)},
                            {0.501, merged(start, stop, 40)},
                            {0.92, stop},
                            {1.0, stop.darker(104)}};
    const auto draw = [&](QPainter &painter) {
        painter.translate(10, 5);
        painter.setClipRect(0, 0, 40, 25);
        painter.fillRect(0, 0, 40, 25, gradientDown(QRect(0, 0, 40, 25), stops));
        drawLine(painter, contrast, 0, 0, 39, 0);
        drawLine(painter, outline, 0, 24, 39, 24);
        if (option.orientation == Qt::Vertical) {
            painter.drawLine(39, 0, 39, 24);
        } else if (option.position == QStyleOptionHeader::Beginning) {
            drawLine(painter, QColor(0, 0, 0, 40), 39, 0, 39, 23);
            drawLine(painter, contrast, 38, 0, 38, 23);
        }
    };
    for (const Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
        for (const auto position : {QStyleOptionHeader::OnlyOneSection, QStyleOptionHeader::End,
                                    QStyleOptionHeader::Beginning})
        {
            option.orientation = orientation;
            option.position = position;
            QCOMPARE(paint(QStyle::CE_HeaderSection, option), keptPicture(draw));
        }
    }

    stops = {{0.0, Qt::green}, {1.0, Qt::red}};
    option.palette.setBrush(QPalette::Window, gradientDown(QRect(), stops));
    const QImage image = paint(QStyle::CE_HeaderSection, option);
    QCOMPARE(unitColor(image, 20, 15), unitColor(keptPicture(draw), 20, 15));
}

void TestStyleControls::progressGroove()
{
    const QRect r(4, 5, 60, 20);
    const QImage expected = keptPicture([&](QPainter &painter) {
        beginSharp(painter);
        drawLine(painter, QColor(0, 0, 0, 16), 4, 4, 63, 4);
        drawBox(painter, r.adjusted(0, 0, -1, -1), outline, base, 2);
        drawLine(painter, QColor(0, 0, 0, 18), 5, 6, 62, 6);
    });
    QCOMPARE(paint(QStyle::CE_ProgressBarGroove, makeOption<QStyleOptionProgressBar>(r)), expected);
}

void TestStyleControls::progressContents_data()
{
    QTest::addColumn<bool>("isVertical");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("isInverted");
    QTest::addColumn<bool>("isReversed");
    QTest::newRow("left to right") << false << Qt::LeftToRight << false << false;
    QTest::newRow("left to right, inverted") << false << Qt::LeftToRight << true << true;
    QTest::newRow("right to left") << false << Qt::RightToLeft << false << true;
    QTest::newRow("right to left, inverted") << false << Qt::RightToLeft << true << false;
    QTest::newRow("upwards") << true << Qt::LeftToRight << false << true;
    QTest::newRow("downwards") << true << Qt::LeftToRight << true << false;
}

void TestStyleControls::progressContents()
{
    QFETCH(bool, isVertical);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(bool, isInverted);
    QFETCH(bool, isReversed);
    const QRect r = isVertical ? QRect(0, 0, 50, 20) : QRect(5, 4, 90, 20); // as it lies
    auto option = makeOption<QStyleOptionProgressBar>(isVertical ? QRect(0, 0, 20, 50) : r);
    QtVersion::setOrientation(option, isVertical ? Qt::Vertical : Qt::Horizontal);
    option.direction = direction;
    option.invertedAppearance = isInverted;
    option.minimum = 10;
    option.maximum = 47;
    for (const int progress : {3, 10, 11, 23, 46, 47, 99}) {
        option.progress = progress;
        const bool isComplete = progress == 47;
        const int width = (qBound(10, progress, 47) - 10) * r.width() / 37;
        const QImage expected = picture([&](QPainter &painter) {
            beginSharp(painter);
            if (isVertical) {
                painter.translate(r.height() - 1, -1);
                painter.rotate(90);
            }
            QRect bar(r.left(), r.top(), width - 1, r.height() - 1);
            if (isReversed)
                bar = QRect(r.right() - width - 1, r.top(), width + 2, r.height() - 1);
            if (!isComplete) {
                const int outwards = isReversed ? -1 : 1;
                const int x = outwards + (isReversed ? bar.left() : bar.right());
                drawLine(painter, QColor(0, 0, 0, 35), x + outwards, bar.top() + 1, x + outwards,
                         bar.bottom());
                drawLine(painter, highlight.darker(140), x, bar.top() + 1, x, bar.bottom());
            }
            if (progress <= 10)
                return;
            const int extra = isComplete ? 0 : 2; // which is cut off
            if (!isComplete)
                painter.setClipRect(bar.adjusted(-1, -1, -1, 1));
            drawBox(painter, bar.adjusted(isReversed ? -extra : 0, 0, isReversed ? 0 : extra, 0),
                    outline, gradientDown(r, progressStops()), 2);
            painter.setClipping(false);
            drawBox(painter, bar.adjusted(1, 1, -1, -1), QColor(255, 255, 255, 50), Qt::NoBrush, 1);
        });
        QCOMPARE(paint(QStyle::CE_ProgressBarContents, option), expected);
    }
}

void TestStyleControls::busyProgress()
{
    auto option = makeOption<QStyleOptionProgressBar>(QRect(0, 0, 100, 20));
    option.minimum = option.maximum = 0;
    const QRect bar(0, 0, 99, 19);
    const QImage expected = keptPicture([&](QPainter &painter) {
        beginSharp(painter);
        drawBox(painter, bar, outline, gradientDown(option.rect, progressStops()), 2);
        drawBox(painter, bar.adjusted(1, 1, -1, -1), QColor(255, 255, 255, 50), Qt::NoBrush, 1);
        painter.setPen(QPen(withAlpha(highlight.lighter(120), 120), 9));
        painter.setClipRect(bar.adjusted(1, 1, -1, -1));
        for (int x = -20; x < 99; x += 22)
            painter.drawLine(x, bar.bottom() + 1, x + 20, -2);
    });
    QCOMPARE(paint(QStyle::CE_ProgressBarContents, option), expected);
}

void TestStyleControls::progressLabel_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("isInverted");
    QTest::addColumn<int>("progress");
    QTest::addColumn<QRect>("litRect");
    const QRect bar(0, 0, 100, 20);
    const QRect left(0, 0, 40, 20);
    const QRect right(40, 0, 60, 20);
    QTest::newRow("left to right") << bar << Qt::LeftToRight << false << 40 << left;
    QTest::newRow("right to left") << bar << Qt::RightToLeft << false << 40 << right;
    QTest::newRow("both") << bar << Qt::RightToLeft << true << 40 << left;
    QTest::newRow("inverted") << bar << Qt::LeftToRight << true << 40 << right;
    QTest::newRow("unstarted") << bar << Qt::LeftToRight << false << -1 << QRect();
    QTest::newRow("complete") << bar << Qt::LeftToRight << false << 100 << bar;
    QTest::newRow("vertical") << QRect(0, 0, 20, 100) << Qt::LeftToRight << false << 40
                              << QRect(60, 0, 40, 20);
}

void TestStyleControls::progressLabel()
{
    QFETCH(QRect, rect);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(bool, isInverted);
    QFETCH(int, progress);
    QFETCH(QRect, litRect);
    auto option = makeOption<QStyleOptionProgressBar>(rect);
    option.direction = direction;
    QtVersion::setOrientation(option, rect.width() < rect.height() ? Qt::Vertical : Qt::Horizontal);
    option.invertedAppearance = isInverted;
    option.maximum = 100;
    option.progress = progress;
    option.text = QStringLiteral("HHHHHHHH");
    const QRect bar(0, 0, 100, 20);
    const QImage expected = picture([&](QPainter &painter) {
        for (const bool isLit : {false, true}) {
            painter.setClipRegion(isLit ? QRegion(litRect) : QRegion(bar) - litRect);
            painter.setPen(isLit ? lit : option.palette.color(QPalette::Text));
            painter.drawText(bar, Qt::AlignCenter, option.text);
        }
    });
    QCOMPARE(paint(QStyle::CE_ProgressBarLabel, option), expected);
}

void TestStyleControls::menuSeparator()
{
    auto option = makeOption<QStyleOptionMenuItem>(QRect(0, 0, 100, 21));
    option.menuItemType = QStyleOptionMenuItem::Separator;
    const auto line = [](int left, int right) {
        return picture([&](QPainter &painter) {
            fillUnits(painter, QPoint(left, 10), QPoint(right, 10), QColor(0, 0, 0, 60));
        });
    };
    QCOMPARE(paint(QStyle::CE_MenuItem, option), line(5, 94));
    option.text = QStringLiteral("View");
    const int width = option.fontMetrics.horizontalAdvance(option.text) + 5;
    QCOMPARE(record(QStyle::CE_MenuItem, option), line(5 + width, 94));
    QCOMPARE(m_recorder.texts.first().rect, QRect(5, 0, 90, 21));
    option.direction = Qt::RightToLeft;
    QCOMPARE(record(QStyle::CE_MenuItem, option), line(5, 94 - width));
}

void TestStyleControls::menuItemText_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<bool>("isDefault");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("kind");
    const auto row = [](const char *name, QStyle::State state,
                        Qt::LayoutDirection direction = Qt::LeftToRight, int kind = plainMenuItem) {
        QTest::newRow(name) << state << false << direction << kind;
    };
    row("normal", enabled);
    row("normal, mirrored", enabled, Qt::RightToLeft);
    row("selected", enabled | QStyle::State_Selected);
    row("disabled", {});
    row("disabled, mirrored", {}, Qt::RightToLeft);
    row("disabled, selected", QStyle::State_Selected);
    row("of a combo box", enabled, Qt::LeftToRight, comboBoxMenuItem);
    row("of a popup", enabled, Qt::LeftToRight, popupMenuItem);
    QTest::newRow("default") << enabled << true << Qt::LeftToRight << plainMenuItem;
}

void TestStyleControls::menuItemText()
{
    QFETCH(QStyle::State, state);
    QFETCH(bool, isDefault);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, kind);
    const QComboBox comboBox;
    QObject popupItem;
    popupItem.setProperty("_q_isComboBoxPopupItem", true);
    auto option = makeOption<QStyleOptionMenuItem>(QRect(3, 2, 115, 28), state);
    if (isDefault)
        option.menuItemType = QStyleOptionMenuItem::DefaultItem;
    option.direction = direction;
    option.styleObject = kind == popupMenuItem ? &popupItem : nullptr;
    option.maxIconWidth = 22;
    QtVersion::setShortcutWidth(option, 24);
    option.font.setPixelSize(11);
    option.text = QStringLiteral("&Open\tF1\tF2");

    const QRect rect = option.rect;
    const int column = kind == plainMenuItem ? 22 : 20;
    const QRect text(3 + column + 7, 2 + 8, 115 - (column + 7) - 24 - 14, 28 - 16);
    const QRect shortcut = QStyle::visualRect(
        direction, rect, QRect(text.topRight(), QPoint(rect.right(), text.bottom())));
    const bool isSelected = state & QStyle::State_Selected;
    const bool isEnabled = state & QStyle::State_Enabled;
    const int flags = Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic | Qt::TextDontClip
                      | Qt::TextSingleLine;
    const QImage expected = picture([&](QPainter &painter) {
        painter.setLayoutDirection(direction);
        if (!isEnabled && !isSelected) {
            painter.setPen(option.palette.color(QPalette::Light));
            painter.drawText(shortcut.translated(1, 1), flags, QStringLiteral("F1\tF2"));
        }
        painter.setPen(option.palette.color(isSelected && isEnabled ? QPalette::HighlightedText
                                                                    : QPalette::Text));
        painter.drawText(shortcut, flags, QStringLiteral("F1\tF2"));
        QFont font = option.font;
        font.setPointSizeF(QFontInfo(font).pointSizeF());
        font.setBold(isDefault);
        painter.setFont(font);
        painter.drawText(QStyle::visualRect(direction, rect, text), flags, QStringLiteral("&Open"));
    });
    QCOMPARE(paint(QStyle::CE_MenuItem, option, kind == comboBoxMenuItem ? &comboBox : nullptr),
             expected);
}

void TestStyleControls::menuItemCheck()
{
    auto option = makeOption<QStyleOptionMenuItem>(QRect(0, 0, 100, 30));
    option.checkType = QStyleOptionMenuItem::NonExclusive;
    const auto piece = [&] {
        record(QStyle::CE_MenuItem, option);
        return m_recorder.pieces.value(0);
    };
    QCOMPARE(piece().element, QStyle::PE_IndicatorCheckBox);
    QCOMPARE(piece().rect, QRect(7, 8, 14, 14));
    QCOMPARE(piece().state, enabled);
    option.checked = true;
    option.direction = Qt::RightToLeft;
    QCOMPARE(piece().rect, QRect(79, 8, 14, 14));
    QCOMPARE(piece().state, enabled | QStyle::State_On);

    // With an icon, a sunken panel behind it stands for the check mark.
    option.direction = Qt::LeftToRight;
    option.icon = redIcon();
    option.state |= QStyle::State_Selected;
    QCOMPARE(painted(record(QStyle::CE_MenuItem, option)), QRegion(6, 7, 16, 16));
    QCOMPARE(piece().element, QStyle::PE_PanelButtonCommand);
    QCOMPARE(piece().rect, QRect(4, 0, 20, 30));
    QVERIFY(piece().state & QStyle::State_Sunken);
    QCOMPARE(piece().palette.color(QPalette::Button), merged(window, highlight));
}

void TestStyleControls::menuItemRadioDot()
{
    auto option = makeOption<QStyleOptionMenuItem>(QRect(0, 0, 100, 30));
    option.checkType = QStyleOptionMenuItem::Exclusive;
    QVERIFY(painted(paint(QStyle::CE_MenuItem, option)).isEmpty());
    option.checked = true;
    const auto dot = [&](const QColor &color) {
        return picture([&](QPainter &painter) {
            painter.setRenderHint(QPainter::Antialiasing);
            drawDisc(painter, QPoint(14, 15), 3, Qt::NoPen, color);
        });
    };
    QCOMPARE(paint(QStyle::CE_MenuItem, option), dot(QColor(0xbb, 0xbb, 0xbb)));
    option.state |= QStyle::State_Selected;
    QCOMPARE(paint(QStyle::CE_MenuItem, option), dot(lit));
    option.state = QStyle::State_Selected;
    option.palette = themePalette(QPalette::Disabled);
    option.palette.setColor(QPalette::Disabled, QPalette::Text, Qt::green);
    QCOMPARE(paint(QStyle::CE_MenuItem, option), dot(Qt::green));
}

void TestStyleControls::subMenu()
{
    auto option =
        makeOption<QStyleOptionMenuItem>(QRect(0, 0, 100, 30), enabled | QStyle::State_Selected);
    option.menuItemType = QStyleOptionMenuItem::SubMenu;
    record(QStyle::CE_MenuItem, option);
    const Recorder::Piece arrow = m_recorder.pieces.value(0);
    QCOMPARE(arrow.element, QStyle::PE_IndicatorArrowRight);
    QCOMPARE(arrow.rect, QRect(100 - 3 - 13, 15 - 6, 13, 13));
    QCOMPARE(arrow.state, QStyle::State(QStyle::State_Enabled));
    QCOMPARE(arrow.palette.color(QPalette::WindowText), lit);
    option.direction = Qt::RightToLeft;
    record(QStyle::CE_MenuItem, option);
    QCOMPARE(m_recorder.pieces.first().element, QStyle::PE_IndicatorArrowLeft);
    QCOMPARE(m_recorder.pieces.first().rect, QRect(3, 9, 13, 13));
}

void TestStyleControls::menuBar()
{
    auto option = makeOption<QStyleOptionMenuItem>(QRect(4, 5, 60, 26));
    const QImage resting = picture([&](QPainter &painter) {
        painter.fillRect(option.rect, window);
        painter.fillRect(4, 30, 60, 1, merged(window.darker(120), outline.lighter(140), 60));
    });
    QCOMPARE(paint(QStyle::CE_MenuBarItem, option), resting);
    QCOMPARE(paint(QStyle::CE_MenuBarEmptyArea, option), resting);
    const auto text = [&] {
        record(QStyle::CE_MenuBarItem, option);
        return m_recorder.texts.last();
    };
    option.text = QStringLiteral("File");
    QCOMPARE(text().rect, QRect(4, 6, 60, 22));
    option.state |= QStyle::State_Selected | QStyle::State_Sunken;
    QCOMPARE(text().role, QPalette::HighlightedText);
    QVERIFY(isFilled(record(QStyle::CE_MenuBarItem, option), option.rect, window)); // no line
    option.state &= ~QStyle::State_Enabled;
    QCOMPARE(text().role, QPalette::Text);

    for (const auto element :
         {QStyle::CE_MenuVMargin, QStyle::CE_MenuHMargin, QStyle::CE_MenuEmptyArea})
        QVERIFY(painted(paint(element, option)).isEmpty());
}

void TestStyleControls::gripAndSplitter()
{
    auto option = makeOption<QStyleOption>(QRect(0, 0, 41, 41)); // the middle is 20, 20
    const auto dots = [](bool (*isDot)(int x, int y)) {
        QVector<QPoint> places;
        for (int x = -6; x < 12; x += 3) {
            for (int y = -6; y < 12; y += 3) {
                if (isDot(x, y))
                    places << QPoint(20 + x, 20 + y);
            }
        }
        return picture([&](QPainter &painter) { fillDots(painter, places); });
    };
    QCOMPARE(paint(QStyle::CE_SizeGrip, option), dots([](int x, int y) { return x + y > 0; }));
    QCOMPARE(paint(QStyle::CE_Splitter, option), dots([](int, int y) { return y == 0; }));
    option.direction = Qt::RightToLeft;
    QCOMPARE(paint(QStyle::CE_SizeGrip, option), dots([](int x, int y) { return y > x; }));
    option.state |= QStyle::State_Horizontal;
    option.rect.moveLeft(-1);
    QCOMPARE(paint(QStyle::CE_Splitter, option), dots([](int x, int) { return x == 0; }));
    option.rect.setWidth(1);
    QVERIFY(painted(paint(QStyle::CE_Splitter, option)).isEmpty());
}

void TestStyleControls::rubberBand()
{
    auto option = makeOption<QStyleOptionRubberBand>(QRect(4, 5, 60, 30));
    option.palette = themePalette(QPalette::Disabled); // the band is always in active colours
    QWidget top;
    const QWidget child(&top);
    const auto band = [&](int alpha) {
        return picture([&](QPainter &painter) {
            beginSharp(painter);
            painter.setBrush(QColor(0x67 / 2 + 110, 0x9d / 2 + 110, 0xcd / 2 + 110, alpha));
            painter.setPen(withAlpha(highlight.darker(120), 180));
            painter.drawRoundedRect(option.rect.adjusted(0, 0, -1, -1), 1, 1);
            painter.setPen(QColor(255, 255, 255, 40));
            painter.drawRoundedRect(option.rect.adjusted(1, 1, -2, -2), 1, 1);
        });
    };
    QCOMPARE(paint(QStyle::CE_RubberBand, option), band(80));
    QCOMPARE(paint(QStyle::CE_RubberBand, option, &child), band(80));
    QCOMPARE(paint(QStyle::CE_RubberBand, option, &top), band(255));
}

void TestStyleControls::dockWidgetTitle()
{
    auto option = makeOption<QStyleOptionDockWidget>(QRect(0, 0, 100, 22));
    record(QStyle::CE_DockWidgetTitle, option);
    QVERIFY(m_recorder.texts.isEmpty());
    option.title = QStringLiteral("A title that is far too long for its dock widget");
    record(QStyle::CE_DockWidgetTitle, option);
    const QRect title = m_style->subElementRect(QStyle::SE_DockWidgetTitleBarText, &option);
    QCOMPARE(m_recorder.texts.first().rect, title);
    QVERIFY(m_recorder.texts.first().text.endsWith(QChar(0x2026)));
    QCOMPARE(m_recorder.texts.first().role, QPalette::WindowText);

    // Upright: the text begins at the lower end of the bar and runs upwards.
    option.rect = QRect(10, 5, 22, 50);
    option.verticalTitleBar = true;
    option.title = QStringLiteral("HH");
    const QRect upright = m_style->subElementRect(QStyle::SE_DockWidgetTitleBarText, &option);
    QCOMPARE(paint(QStyle::CE_DockWidgetTitle, option), picture([&](QPainter &painter) {
                 painter.translate(upright.left(), upright.bottom() + 1);
                 painter.rotate(-90);
                 painter.setPen(option.palette.color(QPalette::WindowText));
                 painter.drawText(QRect(QPoint(), upright.size().transposed()),
                                  Qt::AlignLeft | Qt::AlignVCenter, option.title);
             }));
}

void TestStyleControls::toolBarLines()
{
    // l, s or - at the four outermost rows or columns, for each position of the bar's line.
    const QVector<QPair<Qt::ToolBarArea, QStringList>> areas = {
        {Qt::TopToolBarArea, {"l--s", "l--s", "l-sl", "l-sl"}},
        {Qt::BottomToolBarArea, {"l-sl", "l--s", "sl-s", "l-sl"}},
        {Qt::LeftToolBarArea, {"---s", "l--s", "l-sl", "---s"}},
        {Qt::RightToolBarArea, {"l---", "l--s", "sl-s", "sl--"}},
        {Qt::NoToolBarArea, {"----", "----", "----", "----"}}};
    for (const auto &area : areas) {
        const bool lies = !(area.first & (Qt::LeftToolBarArea | Qt::RightToolBarArea));
        auto option =
            makeOption<QStyleOptionToolBar>(lies ? QRect(4, 5, 60, 20) : QRect(4, 5, 20, 50));
        option.state.setFlag(QStyle::State_Horizontal, lies);
        option.toolBarArea = area.first;
        for (int position = 0; position < 4; ++position) {
            option.positionOfLine = QStyleOptionToolBar::ToolBarPosition(position);
            const QImage expected = picture([&](QPainter &painter) {
                const QRect &r = option.rect;
                QLinearGradient gradient(r.topLeft(), lies ? r.bottomLeft() : r.topRight());
                gradient.setStops({{0.0, window.lighter(104)}, {1.0, window}});
                painter.fillRect(r, gradient);
                for (int i = 0; i < 4; ++i) {
                    const QChar line = area.second.at(position).at(i);
                    const int across = i < 2 ? i : i + 16;
                    if (line != QLatin1Char('-')) {
                        painter.fillRect(lies ? QRect(4, 5 + across, 60, 1)
                                              : QRect(4 + across, 5, 1, 50),
                                         line == QLatin1Char('l') ? QColor(255, 255, 255, 90)
                                                                  : QColor(0, 0, 0, 60));
                    }
                }
            });
            QCOMPARE(paint(QStyle::CE_ToolBar, option), expected);
        }
    }
}

void TestStyleControls::toolBarOutsideMainWindow()
{
    const auto option = makeOption<QStyleOptionToolBar>(QRect(0, 0, 60, 20));
    QWidget plain;
    const QWidget child(&plain);
    QMainWindow mainWindow;
    const QWidget docked(&mainWindow);
    QVERIFY(painted(paint(QStyle::CE_ToolBar, option, &plain)).isEmpty());
    QVERIFY(painted(paint(QStyle::CE_ToolBar, option, &child)).isEmpty());
    QVERIFY(!painted(paint(QStyle::CE_ToolBar, option, &docked)).isEmpty());
}

NOCTURNE_TEST_MAIN(TestStyleControls)
#include "tst_style_controls.moc"
