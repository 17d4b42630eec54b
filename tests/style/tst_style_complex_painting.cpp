#include "stylepainting.h"

#include <QtCore/QtMath>
#include <QtGui/QPixmapCache>

#include <limits>

using namespace StylePainting;

Q_DECLARE_METATYPE(QStyle::State)

namespace {

const QColor accentBlue(65, 155, 249);
const QColor ink(11, 11, 11);

const Qt::WindowFlags usualButtons =
    Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint;

/// One letter a unit of \a area: # where \a image has \a color, or a space.
QStringList unitsOf(const QImage &image, const QRect &area, const QColor &color)
{
    QStringList rows;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        QString row;
        for (int x = area.left(); x <= area.right(); ++x)
            row += QLatin1Char(unitColor(image, x, y) == color ? '#' : ' ');
        rows << row;
    }
    return rows;
}

} // namespace

class TestStyleComplexPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_style = m_theme.style(); }
    void cleanupTestCase() { delete m_style; }
    void init()
    {
        QPixmapCache::clear();
        m_recorder.forget();
        m_recorder.isTransient = true;
    }

    void spinBox_data();
    void spinBox();
    void spinBoxArrows();
    void comboBox();
    void framelessComboBox();
    void editableComboBox_data();
    void editableComboBox();
    void transientScrollBar();
    void rememberedScrollBar();
    void solidScrollBar_data();
    void solidScrollBar();
    void slider_data();
    void slider();
    void sliderInAClip();
    void sliderTicks();
    void sliderTickInterval_data();
    void sliderTickInterval();
    void groupBox();
    void titleBar();
    void titleBarText();
    void titleBarSymbols_data();
    void titleBarSymbols();
    void titleBarArrows();
    void titleBarButtonStates();
    void dial_data();
    void dial();

private:
    QImage paint(QStyle::ComplexControl control, const QStyleOptionComplex &option,
                 const QStyle *style = nullptr) const
    {
        return picture(option.rect.size(), [&](QPainter &painter) {
            (style ? style : m_style)->drawComplexControl(control, &option, &painter);
        });
    }
    QImage solidBar(const QStyleOptionSlider &option) const;
    QRect place(QStyle::ComplexControl control, const QStyleOptionComplex &option,
                QStyle::SubControl part) const
    {
        return m_recorder.subControlRect(control, &option, part, nullptr);
    }

    DarkUX m_theme;
    DarkFusionStyle *m_style = nullptr;
    Recorder m_recorder;
};

void TestStyleComplexPainting::spinBox_data()
{
    QTest::addColumn<bool>("hasFrame");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("pressed");
    const int up = QStyle::SC_SpinBoxUp;
    const int down = QStyle::SC_SpinBoxDown;
    QTest::newRow("framed") << true << Qt::LeftToRight << 0;
    QTest::newRow("mirrored") << true << Qt::RightToLeft << 0;
    QTest::newRow("frameless") << false << Qt::LeftToRight << 0;
    QTest::newRow("up") << true << Qt::LeftToRight << up;
    QTest::newRow("down") << true << Qt::LeftToRight << down;
    QTest::newRow("up, mirrored") << true << Qt::RightToLeft << up;
    QTest::newRow("both") << true << Qt::LeftToRight << (up | down);
}

void TestStyleComplexPainting::spinBox()
{
    QFETCH(bool, hasFrame);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, pressed);
    auto option = makeComplex<QStyleOptionSpinBox>(QRect(0, 0, 100, 30));
    option.frame = hasFrame;
    option.direction = direction;
    option.activeSubControls = QStyle::SubControls(pressed);
    option.state.setFlag(QStyle::State_Sunken, pressed != 0);
    option.buttonSymbols = QAbstractSpinBox::NoButtons;
    const auto drawWell = [&](QPainter &painter) {
        if (!hasFrame)
            return;
        painter.save();
        beginSharp(painter);
        drawBox(painter, QRect(2, 2, 96, 26), Qt::NoPen, shifted(window, -11), 6);
        painter.restore();
    };
    QCOMPARE(paint(QStyle::CC_SpinBox, option), keptPicture(option.rect.size(), drawWell));

    option.buttonSymbols = QAbstractSpinBox::PlusMinus;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled;
    const QRect up = place(QStyle::CC_SpinBox, option, QStyle::SC_SpinBoxUp);
    const QRect down = place(QStyle::CC_SpinBox, option, QStyle::SC_SpinBoxDown);
    const auto draw = [&](QPainter &painter) {
        drawWell(painter);
        painter.setPen(outline);
        const int x = direction == Qt::RightToLeft ? up.right() : up.left();
        painter.drawLine(x, up.top() - 1, x, down.bottom() + 1);
        const int left = up.left() + 1;
        painter.setPen(button.darker(130));
        if (pressed == QStyle::SC_SpinBoxUp) {
            painter.drawLine(left, down.top(), up.right(), down.top());
            painter.drawLine(left, up.top(), left, up.bottom());
            painter.drawLine(left, up.top() - 1, up.right(), up.top() - 1);
        } else if (pressed == QStyle::SC_SpinBoxDown) {
            painter.drawLine(left, down.top(), up.right(), down.top());
            painter.drawLine(left, down.top(), left, down.bottom() + 1);
            drawLine(painter, button.darker(110), left, down.bottom() + 1, up.right(),
                     down.bottom() + 1);
        }
        const QColor text = option.palette.color(QPalette::WindowText);
        const QPoint plus = up.center() + QPoint(1, 0);
        const QPoint minus = down.center() + QPoint(1, 0);
        painter.setPen(withAlpha(text, 220));
        painter.drawLine(plus - QPoint(2, 0), plus + QPoint(2, 0));
        painter.drawLine(plus - QPoint(0, 2), plus + QPoint(0, 2));
        painter.setPen(withAlpha(merged(text, option.palette.color(QPalette::Button)), 220));
        painter.drawLine(minus - QPoint(2, 0), minus + QPoint(2, 0));
    };
    QCOMPARE(paint(QStyle::CC_SpinBox, option), keptPicture(option.rect.size(), draw));
}

void TestStyleComplexPainting::spinBoxArrows()
{
    auto option = makeComplex<QStyleOptionSpinBox>(QRect(0, 0, 100, 30));
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    const QRegion arrows = painted(paint(QStyle::CC_SpinBox, option)) - QRect(88, 0, 1, 30);
    const QRegion up = arrows & place(QStyle::CC_SpinBox, option, QStyle::SC_SpinBoxUp);
    QCOMPARE(directionOf(up), Qt::UpArrow);
    QCOMPARE(directionOf(arrows - up), Qt::DownArrow);
}

void TestStyleComplexPainting::comboBox()
{
    auto option = makeComplex<QStyleOptionComboBox>(
        QRect(10, 20, 120, 26), enabled | QStyle::State_MouseOver | QStyle::State_HasFocus);
    const auto piece = [&] {
        m_recorder.forget();
        paint(QStyle::CC_ComboBox, option, &m_recorder);
        return m_recorder.pieces.value(0);
    };
    QCOMPARE(piece().element, QStyle::PE_PanelButtonCommand);
    QCOMPARE(piece().rect, QRect()); // from the cache now
    option.state |= QStyle::State_On;
    const Recorder::Piece open = piece();
    QCOMPARE(open.rect, QRect(0, 0, 120, 26));
    QCOMPARE(open.state, QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_Sunken);
    option.editable = true;
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        option.direction = direction;
        const QRect arrow =
            place(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxArrow).translated(-10, -20);
        QCOMPARE(piece().element, QStyle::PE_FrameLineEdit);
        QCOMPARE(m_recorder.pieces.size(), 2);
        const Recorder::Piece side = m_recorder.pieces.value(1);
        QCOMPARE(side.element, QStyle::PE_PanelButtonCommand);
        const int left = direction == Qt::LeftToRight ? arrow.left() - 6 : arrow.right() + 6;
        QCOMPARE(side.rect, QRect(QPoint(left, 0), QPoint(119, 25)));
        QCOMPARE(side.state, open.state | QStyle::State_KeyboardFocusChange);
    }
}

/// Without its frame a box has its arrow elsewhere, and does not share the other's drawing.
void TestStyleComplexPainting::framelessComboBox()
{
    auto option = makeComplex<QStyleOptionComboBox>(QRect(0, 0, 120, 26));
    const QImage framed = paint(QStyle::CC_ComboBox, option);
    option.frame = false;
    const QImage frameless = paint(QStyle::CC_ComboBox, option);
    QVERIFY(frameless != framed);
    QPixmapCache::clear();
    QCOMPARE(paint(QStyle::CC_ComboBox, option), frameless);
}

void TestStyleComplexPainting::editableComboBox_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QColor>("line");
    QTest::newRow("resting") << enabled << outline.lighter(110);
    QTest::newRow("clicked focus") << (enabled | QStyle::State_HasFocus) << outline.lighter(110);
    QTest::newRow("focus") << (enabled | keyboardFocus) << highlight;
    QTest::newRow("open") << (enabled | QStyle::State_On) << outline.lighter(110);
}

/// What the recorder leaves: a separator and an arrow.
void TestStyleComplexPainting::editableComboBox()
{
    QFETCH(QStyle::State, state);
    QFETCH(QColor, line);
    auto option = makeComplex<QStyleOptionComboBox>(QRect(0, 0, 120, 26), state);
    option.editable = true;
    const int open = state & QStyle::State_On ? 1 : 0;
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        option.direction = direction;
        const QRect arrow = place(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxArrow);
        const auto draw = [&](QPainter &painter) {
            const int x = direction == Qt::LeftToRight ? arrow.left() : arrow.right() - 1 + open;
            drawLine(painter, line, x, arrow.top() + 1 + open, x, arrow.bottom() - 1 - open);
            if (!(option.subControls & QStyle::SC_ComboBoxArrow))
                return;
            const QPointF tip(arrow.right() - 8, arrow.height() / 2 + 4);
            const QPointF triangle[] = {tip - QPointF(4, 6), tip - QPointF(-4, 6), tip};
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(option.palette.color(QPalette::ButtonText));
            painter.drawPolygon(triangle, 3);
        };
        for (const auto parts : {QStyle::SC_All, QStyle::SC_ComboBoxFrame}) {
            option.subControls = parts;
            QCOMPARE(paint(QStyle::CC_ComboBox, option, &m_recorder),
                     keptPicture(option.rect.size(), draw));
        }
    }
}

void TestStyleComplexPainting::transientScrollBar()
{
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        auto option = makeSlider(orientation, 200, 14);
        option.pageStep = 100;
        option.sliderPosition = 50;
        const bool isHorizontal = orientation == Qt::Horizontal;
        const auto expected = [&](int shift) {
            return picture(option.rect.size(), [&](QPainter &painter) {
                painter.fillRect(
                    option.rect.adjusted(isHorizontal ? 0 : 5, isHorizontal ? 5 : 0, 0, 0),
                    shifted(window, -12));
                // A unit wider to the left, whichever way the bar runs, after it was six across.
                painter.setRenderHint(QPainter::Antialiasing);
                if (shift > 0)
                    drawBox(painter, isHorizontal ? QRect(50, 7, 99, 6) : QRect(6, 51, 7, 98),
                            Qt::NoPen, shifted(window, shift), 3);
            });
        };
        QCOMPARE(paint(QStyle::CC_ScrollBar, option), expected(20));
        option.state |= QStyle::State_MouseOver;
        QCOMPARE(paint(QStyle::CC_ScrollBar, option), expected(40));
        option.subControls = QStyle::SC_ScrollBarGroove;
        QCOMPARE(paint(QStyle::CC_ScrollBar, option), expected(0));
    }
}

/// A transient bar notes what it showed, whatever changes alone; a solid one notes nothing.
void TestStyleComplexPainting::rememberedScrollBar()
{
    QObject object;
    auto option = makeSlider(Qt::Horizontal, 200, 14);
    option.styleObject = &object;
    m_recorder.isTransient = false;
    paint(QStyle::CC_ScrollBar, option, &m_recorder);
    QVERIFY(object.dynamicPropertyNames().isEmpty());

    const auto isRemembered = [&] {
        paint(QStyle::CC_ScrollBar, option);
        return object.property("_q_stylepos").toInt() == option.sliderPosition
               && object.property("_q_stylemin").toInt() == option.minimum
               && object.property("_q_stylemax").toInt() == option.maximum
               && object.property("_q_stylerect").toRect() == option.rect
               && object.property("_q_stylestate").toInt() == int(option.state)
               && object.property("_q_stylecontrols").toUInt() == uint(option.activeSubControls);
    };
    option.activeSubControls = QStyle::SC_ScrollBarSlider;
    QVERIFY(isRemembered());
    option.activeSubControls = QStyle::SC_None;
    QVERIFY(isRemembered());
    for (int *value : {&option.sliderPosition, &option.minimum, &option.maximum}) {
        ++*value;
        QVERIFY(isRemembered());
    }
    option.rect.setWidth(180);
    QVERIFY(isRemembered());
    option.state |= QStyle::State_MouseOver;
    QVERIFY(isRemembered());
}

void TestStyleComplexPainting::solidScrollBar_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("active");
    for (const int active : {int(QStyle::SC_None), int(QStyle::SC_ScrollBarSlider),
                             int(QStyle::SC_ScrollBarSubLine), int(QStyle::SC_ScrollBarAddLine)})
    {
        QTest::addRow("horizontal, %d", active) << Qt::Horizontal << Qt::LeftToRight << active;
        QTest::addRow("mirrored, %d", active) << Qt::Horizontal << Qt::RightToLeft << active;
        QTest::addRow("vertical, %d", active) << Qt::Vertical << Qt::LeftToRight << active;
    }
}

/// What a solid bar paints besides its arrows.
QImage TestStyleComplexPainting::solidBar(const QStyleOptionSlider &option) const
{
    const bool isHorizontal = option.orientation == Qt::Horizontal;
    const auto part = [&](QStyle::SubControl part) {
        return place(QStyle::CC_ScrollBar, option, part);
    };
    const auto gradient = [&](const QColor &from, const QColor &to) {
        QLinearGradient gradient(0, 0, isHorizontal ? 0 : 13, isHorizontal ? 13 : 0);
        gradient.setStops({{0.0, from}, {1.0, to}});
        return QBrush(gradient);
    };
    const auto fill = [&](QStyle::SubControl part, const QBrush &hovered, const QBrush &pressed) {
        if (!(option.activeSubControls & part))
            return gradient(button.lighter(108), button);
        return option.state & QStyle::State_Sunken ? pressed : hovered;
    };
    const QColor start = button.lighter(118);
    const QColor middle = merged(start, button, 40);
    const QBrush lighted = gradient(start.darker(102), button.lighter(102));
    const QColor rim = withAlpha(outline, 180);
    return picture(option.rect.size(), [&](QPainter &painter) {
        const auto drawButton = [&](const QRect &rect, const QRect &inner, const QBrush &brush,
                                    bool isFirst) {
            const QPoint across = isHorizontal ? QPoint(0, 13) : QPoint(13, 0);
            const QPoint edge = isFirst ? rect.bottomRight() - across : rect.topLeft();
            painter.fillRect(rect & option.rect.adjusted(!isHorizontal, isHorizontal, 0, 0), brush);
            painter.setPen(rim);
            painter.drawLine(edge, edge + across);
            drawBox(painter, inner, contrast, Qt::NoBrush);
        };
        painter.fillRect(part(QStyle::SC_ScrollBarGroove), shifted(window, -12));
        const QRect slider = part(QStyle::SC_ScrollBarSlider);
        drawBox(painter, isHorizontal ? slider.adjusted(-1, 0, 0, 1) : slider.adjusted(0, -1, 1, 0),
                rim, fill(QStyle::SC_ScrollBarSlider, lighted, middle));
        drawBox(painter,
                isHorizontal ? slider.adjusted(0, 1, -1, -1) : slider.adjusted(1, 0, -1, -1),
                contrast, Qt::NoBrush);
        const bool isMirrored = option.direction == Qt::RightToLeft;
        const QRect sub = part(QStyle::SC_ScrollBarSubLine);
        drawButton(sub, isHorizontal ? sub.adjusted(0, 1, -2, -1) : sub.adjusted(1, 0, -1, -2),
                   fill(QStyle::SC_ScrollBarSubLine, lighted, button), !isMirrored);
        const QRect add = part(QStyle::SC_ScrollBarAddLine);
        drawButton(add, add.adjusted(1, 1, -1, -1),
                   fill(QStyle::SC_ScrollBarAddLine, middle, button), isMirrored);
    });
}

void TestStyleComplexPainting::solidScrollBar()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, active);
    const bool isHorizontal = orientation == Qt::Horizontal;
    m_recorder.isTransient = false;
    auto option = makeSlider(orientation, 200, 14);
    option.direction = direction;
    option.sliderPosition = 50;
    option.pageStep = 100;
    option.activeSubControls = QStyle::SubControls(active);
    for (const QStyle::StateFlag state : {QStyle::State_MouseOver, QStyle::State_Sunken}) {
        option.state = QStyle::State_Enabled | QStyle::State_MouseOver | state;
        const QRegion arrows =
            differingUnits(paint(QStyle::CC_ScrollBar, option, &m_recorder), solidBar(option));
        const QRegion first = arrows & QRect(0, 0, 14, 14);
        const QRegion last = arrows - first;
        QCOMPARE(directionOf(first), isHorizontal ? Qt::LeftArrow : Qt::UpArrow);
        QCOMPARE(directionOf(last), isHorizontal ? Qt::RightArrow : Qt::DownArrow);
        for (const QRegion &arrow : {first, last}) {
            const QSize size = arrow.boundingRect().size();
            QVERIFY(QSize(8, 4).expandedTo(size) == QSize(8, 4)
                    || QSize(4, 8).expandedTo(size) == QSize(4, 8));
        }
    }
}

void TestStyleComplexPainting::slider_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("upsideDown");
    QTest::addColumn<QRect>("handle"); // at 30 of 100
    QTest::addColumn<QRect>("filled");
    QTest::newRow("horizontal") << Qt::Horizontal << false << QRect(56, 12, 15, 15)
                                << QRect(0, 16, 57, 8);
    QTest::newRow("horizontal, upside down")
        << Qt::Horizontal << true << QRect(130, 12, 15, 15) << QRect(144, 16, 56, 8);
    QTest::newRow("vertical") << Qt::Vertical << false << QRect(12, 56, 15, 15)
                              << QRect(16, 0, 8, 57);
    QTest::newRow("vertical, upside down")
        << Qt::Vertical << true << QRect(12, 130, 15, 15) << QRect(16, 144, 8, 57);
}

void TestStyleComplexPainting::slider()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(bool, upsideDown);
    QFETCH(QRect, handle);
    QFETCH(QRect, filled);
    auto option = makeSlider(orientation, 200, 40);
    option.upsideDown = upsideDown;
    option.sliderPosition = 30;
    const bool isHorizontal = orientation == Qt::Horizontal;
    const QRect groove = isHorizontal ? QRect(0, 16, 200, 7) : QRect(16, 0, 7, 200);
    // Insets of a groove that lies and one that stands.
    const auto drawShape = [&](QPainter &target, const QPen &pen, const QColor &brush,
                               const QMargins &lying, const QMargins &standing, int radius) {
        const QImage shape = layer(option.rect.size(), [&](QPainter &painter) {
            painter.setClipRect(groove);
            beginSharp(painter);
            drawBox(painter, groove - (isHorizontal ? lying : standing), pen, brush, radius);
        });
        target.drawImage(0, 0, shape);
    };
    for (const bool isHovered : {false, true}) {
        option.state.setFlag(QStyle::State_MouseOver, isHovered);
        const QImage expected = picture(option.rect.size(), [&](QPainter &painter) {
            drawShape(painter, Qt::NoPen, withAlpha(ink, 128), {1, 2, 2, 1}, {0, 1, 2, 2}, 3);
            painter.setClipRect(filled);
            drawShape(painter, ink, withAlpha(accentBlue, isHovered ? 255 : 200), {1, 1, 2, 1},
                      {0, 0, 2, 2}, 2);
            painter.setClipping(false);
            painter.setRenderHint(QPainter::Antialiasing);
            const QPoint centre = handle.center() + QPoint(0, 1);
            drawDisc(painter, centre, 6, Qt::NoPen, Qt::gray);
            drawDisc(painter, centre, 2, Qt::NoPen, ink);
        });
        QCOMPARE(paint(QStyle::CC_Slider, option), expected);
    }
}

void TestStyleComplexPainting::sliderInAClip()
{
    auto option = makeSlider(Qt::Horizontal, 200, 40);
    option.sliderPosition = 100;
    const QRegion shown = painted(picture(option.rect.size(), [&](QPainter &painter) {
        painter.setClipRect(0, 0, 60, 40);
        m_style->drawComplexControl(QStyle::CC_Slider, &option, &painter);
    }));
    QCOMPARE(shown.boundingRect().right(), 59);
}

void TestStyleComplexPainting::sliderTicks()
{
    auto option = makeSlider(Qt::Horizontal, 200, 40);
    option.subControls = QStyle::SC_SliderTickmarks;
    option.tickInterval = 40;
    const auto expected = [&](const QColor &color, bool hasLower) {
        return picture(option.rect.size(), [&](QPainter &painter) {
            painter.setPen(color);
            if (option.orientation == Qt::Vertical)
                painter.setTransform(QTransform(0, 1, 1, 0, 0, 0), true);
            // 0, 40 and 80 of 100 on 185 units; the mark at an end is longer.
            for (const int along :
                 option.upsideDown ? QVector<int>{192, 118, 44} : QVector<int>{7, 81, 155}) {
                const int outer = along == 7 || along == 192 ? 1 : 2;
                painter.drawLine(along, outer, along, 4);
                if (hasLower)
                    painter.drawLine(along, 39 - outer, along, 35);
            }
        });
    };
    option.tickPosition = QSlider::TicksBothSides;
    QCOMPARE(paint(QStyle::CC_Slider, option), expected(outline, true));
    option.upsideDown = true;
    QCOMPARE(paint(QStyle::CC_Slider, option), expected(outline, true));
    option.tickPosition = QSlider::TicksAbove;
    option.state |= keyboardFocus;
    QCOMPARE(paint(QStyle::CC_Slider, option), expected(focusOutline(), false));
    option.orientation = Qt::Vertical;
    option.rect = QRect(0, 0, 40, 200);
    QCOMPARE(paint(QStyle::CC_Slider, option), expected(focusOutline(), false));
}

void TestStyleComplexPainting::sliderTickInterval_data()
{
    QTest::addColumn<int>("interval");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("count");
    QTest::newRow("given") << 25 << 0 << 100 << 5;
    QTest::newRow("single step wide enough") << 0 << 0 << 20 << 21;
    QTest::newRow("single step of three pixels") << 0 << 0 << 70 << 71;
    QTest::newRow("single step of two pixels") << 0 << 0 << 80 << 9; // the page step is ten
    QTest::newRow("last one clamped") << 3 << 0 << 11 << 5;          // 0 3 6 9 11
    QTest::newRow("not reached") << 40 << 0 << 100 << 3;
    // Every pixel from one end of the travel to the other, and no more.
    QTest::newRow("huge range") << 1 << std::numeric_limits<int>::min() / 2
                                << std::numeric_limits<int>::max() / 2 << 186;
}

void TestStyleComplexPainting::sliderTickInterval()
{
    QFETCH(int, interval);
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    auto option = makeSlider(Qt::Horizontal, 200, 40);
    option.subControls = QStyle::SC_SliderTickmarks;
    option.tickPosition = QSlider::TicksAbove;
    option.minimum = minimum;
    option.maximum = maximum;
    option.tickInterval = interval;
    option.singleStep = 1;
    option.pageStep = 10;
    const QRegion marks = painted(paint(QStyle::CC_Slider, option)) & QRect(0, 3, 200, 1);
    QTEST(unitCount(marks), "count");
}

void TestStyleComplexPainting::groupBox()
{
    auto option = makeComplex<QStyleOptionGroupBox>(
        QRect(0, 0, 200, 100), enabled | QStyle::State_On | QStyle::State_HasFocus);
    option.text = QStringLiteral("Key");
    const QRect label = place(QStyle::CC_GroupBox, option, QStyle::SC_GroupBoxLabel);
    paint(QStyle::CC_GroupBox, option, &m_recorder);
    QCOMPARE(m_recorder.pieces.size(), 3);
    const Recorder::Piece &frame = m_recorder.pieces.at(0);
    QCOMPARE(frame.element, QStyle::PE_FrameGroupBox);
    QCOMPARE(frame.rect, option.rect);
    QCOMPARE(m_recorder.texts.first().rect, label);
    const Recorder::Piece &focus = m_recorder.pieces.at(1);
    QCOMPARE(focus.element, QStyle::PE_FrameFocusRect);
    QCOMPARE(focus.rect, label.adjusted(-2, -1, 2, 1));
    const Recorder::Piece &box = m_recorder.pieces.at(2);
    QCOMPARE(box.element, QStyle::PE_IndicatorCheckBox);
    QCOMPARE(box.rect, place(QStyle::CC_GroupBox, option, QStyle::SC_GroupBoxCheckBox));
    QCOMPARE(box.state, option.state);

    m_recorder.forget();
    option.text.clear();
    paint(QStyle::CC_GroupBox, option, &m_recorder);
    QVERIFY(m_recorder.texts.isEmpty());
}

void TestStyleComplexPainting::titleBar()
{
    for (const bool isActive : {true, false}) {
        auto option = makeTitleBar(isActive ? int(QStyle::State_Active) : 0, usualButtons);
        option.subControls = QStyle::SC_TitleBarLabel;
        const QColor color = isActive ? highlight : window;
        const QImage expected = picture(option.rect.size(), [&](QPainter &painter) {
            painter.fillRect(1, 1, 298, 23,
                             gradientDown(option.rect, {{0.0, color.lighter(114)},
                                                        {0.5, color.lighter(102)},
                                                        {0.51, color.darker(104)},
                                                        {1.0, color}}));
            drawLine(painter, isActive ? highlight.darker(180) : outline.darker(110), 5, 0, 294, 0);
            painter.drawLine(299, 23, 0, 23);
            for (const int x : {0, 299})
                painter.drawLine(x, 4, x, 23);
            for (const QPoint &corner :
                 {QPoint(4, 1), QPoint(3, 1), QPoint(2, 2), QPoint(1, 3), QPoint(1, 4)}) {
                painter.drawPoint(corner);
                painter.drawPoint(299 - corner.x(), corner.y());
            }
            drawLine(painter, color.lighter(120), 6, 1, 293, 1);
        });
        QCOMPARE(paint(QStyle::CC_TitleBar, option), expected);

        // The two differ in more than the state, which the cache goes by: the cross of the close
        // button.
        paint(QStyle::CC_TitleBar,
              makeTitleBar(isActive ? 0 : int(QStyle::State_Active), usualButtons));
        option.subControls = QStyle::SC_All;
        const QImage image = paint(QStyle::CC_TitleBar, option);
        QCOMPARE(unitColor(image, 282, 9), isActive ? QColor(Qt::white) : QColor(Qt::black));
    }
}

void TestStyleComplexPainting::titleBarText()
{
    for (const bool isActive : {true, false}) {
        auto option = makeTitleBar(isActive ? int(QStyle::State_Active) : 0, usualButtons);
        const QRect label = place(QStyle::CC_TitleBar, option, QStyle::SC_TitleBarLabel);
        const QString text(100, QLatin1Char('i'));
        const QImage expected = picture(option.rect.size(), [&](QPainter &painter) {
            m_style->drawComplexControl(QStyle::CC_TitleBar, &option, &painter);
            const QString elided =
                painter.fontMetrics().elidedText(text, Qt::ElideRight, label.width() - 14);
            const QColor color = option.palette.color(QPalette::Text);
            painter.setPen(isActive ? color.lighter(120) : color);
            painter.drawText(label.translated(1, 1), Qt::AlignCenter, elided);
            painter.setPen(Qt::white);
            if (isActive)
                painter.drawText(label, Qt::AlignCenter, elided);
        });
        option.text = text;
        QCOMPARE(paint(QStyle::CC_TitleBar, option), expected);
    }
}

void TestStyleComplexPainting::titleBarSymbols_data()
{
    QTest::addColumn<int>("flag");
    QTest::addColumn<int>("state");
    QTest::addColumn<QStringList>("rows"); // of the inner part of the button

    const QString empty = QStringLiteral("        ");
    const QString full = QStringLiteral("########");
    const QString sides = QStringLiteral("#      #");
    const QStringList nothing = {empty, empty, empty, empty, empty, empty, empty, empty};
    const QStringList twoWindows = {"   #####", "   #####", "   #   #", "#####  #",
                                    "########", "#   #   ", "#   #   ", "#####   "};
    const int minimize = Qt::WindowMinimizeButtonHint;
    const int maximize = Qt::WindowMaximizeButtonHint;
    QTest::newRow("minimize") << minimize << 0 << nothing.mid(2) + QStringList{full, full};
    QTest::newRow("maximize") << maximize << 0
                              << QStringList{full, full, sides, sides, sides, sides, sides, full};
    QTest::newRow("restore minimized") << minimize << int(Qt::WindowMinimized) << twoWindows;
    QTest::newRow("restore maximized") << maximize << int(Qt::WindowMaximized) << twoWindows;
    QTest::newRow("not allowed") << 0 << int(Qt::WindowMinimized) << nothing;
    if (qApp->devicePixelRatio() != 1.0)
        return; // slanting lines cross the units, and the question mark is stretched
    QTest::newRow("close") << int(Qt::WindowSystemMenuHint) << 0
                           << QStringList{"##    ##", "###  ###", " ###### ", "  ####  ",
                                          "  ####  ", " ###### ", "###  ###", "##    ##"};
    QTest::newRow("help") << int(Qt::WindowContextHelpButtonHint) << 0
                          << QStringList{"###  ###", "##    ##", "     ## ", "    ##  ",
                                         "   ##   ", "   ##   ", "        ", "   ##   "};
}

void TestStyleComplexPainting::titleBarSymbols()
{
    QFETCH(int, flag);
    QFETCH(int, state);
    auto option = makeTitleBar(state | int(QStyle::State_Active), Qt::WindowFlags(flag));
    // The only button is (276, 3, 18, 18).
    QTEST(unitsOf(paint(QStyle::CC_TitleBar, option), QRect(281, 8, 8, 8), Qt::white), "rows");
}

void TestStyleComplexPainting::titleBarArrows()
{
    auto option = makeTitleBar(int(QStyle::State_Active), Qt::WindowShadeButtonHint);
    const auto arrow = [&] {
        return unitsWhere(paint(QStyle::CC_TitleBar, option),
                          [](const QColor &color) { return color == Qt::white; });
    };
    QCOMPARE(directionOf(arrow()), Qt::UpArrow);
    QVERIFY(QRect(281, 10, 8, 4).contains(arrow().boundingRect()));
    option.titleBarState |= Qt::WindowMinimized;
    QCOMPARE(directionOf(arrow()), Qt::DownArrow);
}

void TestStyleComplexPainting::titleBarButtonStates()
{
    auto option = makeTitleBar(int(QStyle::State_Active), usualButtons);
    const auto change = [&](QStyle::SubControl active, QStyle::State state) {
        option.activeSubControls = active;
        option.state = QStyle::State_Enabled | QStyle::State_MouseOver | state;
        const QImage image = paint(QStyle::CC_TitleBar, option);
        // In the close button, against what is beside all buttons.
        return unitColor(image, 285, 6).red() - unitColor(image, 150, 6).red();
    };
    QCOMPARE(change(QStyle::SC_None, {}), 0);
    QCOMPARE(change(QStyle::SC_TitleBarMinButton, {}), 0);
    const int hovered = change(QStyle::SC_TitleBarCloseButton, {});
    QVERIFY(hovered > 8 && hovered < 16); // a twelfth of the way to white
    QVERIFY(change(QStyle::SC_TitleBarCloseButton, QStyle::State_Sunken) < 0);

    // A line on a dense screen starts half a unit outside.
    const QImage image = paint(QStyle::CC_TitleBar, option);
    const int ratio = qRound(qApp->devicePixelRatio());
    for (int pixel = 0; pixel < ratio; ++pixel) {
        COMPARE_PIXEL(image, 276 * ratio - ratio / 2 + pixel, 12 * ratio, highlight.darker(180));
        COMPARE_PIXEL(image, 285 * ratio, 3 * ratio - ratio / 2 + pixel, highlight.darker(180));
    }
}

void TestStyleComplexPainting::dial_data()
{
    QTest::addColumn<int>("extent");
    QTest::addColumn<QStyle::State>("state");
    QTest::newRow("small") << 40 << QStyle::State(QStyle::State_Enabled);
    QTest::newRow("large, with a pointer") << 160 << QStyle::State(QStyle::State_Enabled);
    QTest::newRow("focused") << 61 << (QStyle::State_Enabled | QStyle::State_HasFocus);
    QTest::newRow("disabled") << 50 << QStyle::State(QStyle::State_None);
}

void TestStyleComplexPainting::dial()
{
    QFETCH(int, extent);
    QFETCH(QStyle::State, state);
    auto option = makeSlider(Qt::Horizontal, extent + 7, extent);
    option.subControls = QStyle::SC_DialGroove | QStyle::SC_DialHandle;
    option.state = state;
    option.sliderPosition = 30;
    const auto colored = [](const QColor &from, int most, int least, int alpha = 255) {
        return QColor::fromHsv(from.hue(), qMin(most, from.saturation()), qMax(least, from.value()),
                               alpha);
    };
    const QColor tone = colored(option.palette.color(QPalette::Button), 140, 180);
    const qreal half = extent / 2;
    const qreal r = half - half / 50;
    const qreal pen = r / 20;
    const qreal d = r / 6;
    const qreal x = d + (extent + 7 - 2 * r) / 2 + 1;
    const qreal y = d + (extent - 2 * r) / 2 + 1;
    const int side = int(2 * r - 2 * d - 2);
    const QRectF disc(x + 0.5, y + 0.5, side, side);

    const QImage kept = layer(option.rect.size(), [&](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        if (state & QStyle::State_Enabled) {
            const qreal s = qMax(1.0, pen / 2);
            const QRectF shadow = disc.adjusted(-2 * s, -2 * s, 2 * s, 2 * s);
            QRadialGradient shade(shadow.center(), shadow.width() / 2);
            shade.setStops({{0.91, QColor(0, 0, 0, 40)}, {1.0, Qt::transparent}});
            painter.setPen(Qt::NoPen);
            painter.setBrush(shade);
            painter.translate(s, s);
            painter.drawEllipse(shadow);
            painter.translate(-s, -s);
            QRadialGradient light(disc.center().x() - disc.width() / 3, y, disc.width() * 1.3,
                                  disc.center().x(), disc.center().y() - disc.height() / 2);
            light.setStops({{0.0, tone.lighter(110)},
                            {0.5, tone},
                            {0.501, tone.darker(102)},
                            {1.0, tone.darker(115)}});
            painter.setBrush(light);
        }
        painter.setPen(tone.darker(280));
        painter.drawEllipse(disc);
        drawDisc(painter, disc.center(), side / 2.0 - 1, tone.lighter(110), Qt::NoBrush);
        const QPen focus(colored(highlight, 160, 230, 127), 2);
        if (state & QStyle::State_HasFocus)
            drawDisc(painter, disc.center(), side / 2.0 + 1, focus, Qt::NoBrush);
    });
    // 30 of 100 from 240 degrees down to -60; the dial counts from its other end.
    const qreal angle = qDegreesToRadians(240 - 300 * 0.7);
    const int bigLine = qMin(int(half) / 2, qMax(int(half) / 6, 4));
    const auto outwards = [&](qreal share) {
        const qreal length = (half - bigLine - 3) * share;
        return QPointF((extent + 7) / 2.0 + length * qCos(angle),
                       extent / 2.0 - length * qSin(angle));
    };
    const QImage expected = picture(option.rect.size(), [&](QPainter &painter) {
        painter.drawImage(0, 0, kept);
        painter.setRenderHint(QPainter::Antialiasing);
        if (pen > 3) {
            painter.setPen(QPen(QColor(0, 0, 0, 25), pen));
            painter.drawLine(outwards(0.90), outwards(0.96));
        }
        const qreal size = r / 7;
        const QPointF at = outwards(0.70);
        const QColor dark = withAlpha(tone.lighter(104), 204);
        QRadialGradient shade(at + QPointF(size, 2 * size), 4 * size, at);
        shade.setStops({{0.0, dark.darker(110)}, {0.4, dark.darker(120)}, {1.0, dark.darker(140)}});
        drawDisc(painter, at, size + 1, QColor(255, 255, 255, 150), shade);
        drawDisc(painter, at, size, QColor(0, 0, 0, 80), shade);
    });
    QCOMPARE(paint(QStyle::CC_Dial, option), expected);
    QCOMPARE(paint(QStyle::CC_Dial, option), expected); // from the cache
}

NOCTURNE_TEST_MAIN(TestStyleComplexPainting)
#include "tst_style_complex_painting.moc"
