#include "testsupport.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>

#include <QtCore/QElapsedTimer>
#include <QtCore/QtMath>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

#include <algorithm>
#include <limits>
#include <memory>

Q_DECLARE_METATYPE(QStyle::State)

namespace {

/// Stands on top of the style, notes which pieces it is asked to paint and paints none of them.
class Recorder : public QProxyStyle
{
public:
    struct Piece
    {
        PrimitiveElement element;
        QRect rect;
        State state;
    };

    explicit Recorder(QStyle *style)
        : QProxyStyle(style)
    {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *,
                       const QWidget *) const override
    {
        m_pieces << Piece{element, option->rect, option->state};
    }
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        if (hint == SH_ScrollBar_Transient)
            return m_transient;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }

    void setTransient(bool transient) { m_transient = transient; }
    QVector<Piece> takePieces()
    {
        QVector<Piece> pieces;
        pieces.swap(m_pieces);
        return pieces;
    }

private:
    mutable QVector<Piece> m_pieces;
    int m_transient = 1;
};

QColor shifted(const QColor &color, int shift)
{
    return QColor(color.red() + shift, color.green() + shift, color.blue() + shift);
}

QColor withAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

/// What of a painter's state a caller can notice.
struct PainterState
{
    explicit PainterState(const QPainter &painter)
        : pen(painter.pen())
        , brush(painter.brush())
        , hints(painter.renderHints())
        , transform(painter.transform())
        , hasClipping(painter.hasClipping())
        , clip(painter.clipRegion())
        , font(painter.font())
        , opacity(painter.opacity())
    {}
    bool operator==(const PainterState &other) const
    {
        return pen == other.pen && brush == other.brush && hints == other.hints
               && transform == other.transform && hasClipping == other.hasClipping
               && clip == other.clip && font == other.font && opacity == other.opacity;
    }

    QPen pen;
    QBrush brush;
    QPainter::RenderHints hints;
    QTransform transform;
    bool hasClipping;
    QRegion clip;
    QFont font;
    qreal opacity;
};

const QColor accentBlue(65, 155, 249);
const QColor ink(11, 11, 11);
const QColor innerContrast(255, 255, 255, 30);

/// Which letter stands for which colour where a picture is written down.
using Legend = QVector<QPair<char, QColor>>;

} // namespace

class TestStyleComplexPainting : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_theme = std::make_unique<DarkUX>(); }
    void cleanupTestCase()
    {
        delete m_theme->style();
        m_theme.reset();
    }
    void init() { QPixmapCache::clear(); }

    void spinBoxWell()
    {
        auto option = themed<QStyleOptionSpinBox>(QRect(0, 0, 100, 30));
        option.frame = true;
        const QImage framed = paint(QStyle::CC_SpinBox, option);
        compare(framed, 50, 15, shifted(windowColor(), -11));
        // It reaches half a unit beyond (2, 2, 96, 26).
        for (const QPoint &place : {QPoint(3, 15), QPoint(97, 15), QPoint(50, 3), QPoint(50, 27)})
            compare(framed, place.x(), place.y(), shifted(windowColor(), -11));
        for (const QPoint &place : {QPoint(1, 15), QPoint(99, 15), QPoint(50, 1), QPoint(50, 29)})
            compare(framed, place.x(), place.y(), m_background);
        // Its corners are round: a circle of radius 6.
        compare(framed, 5, 5, shifted(windowColor(), -11));
        for (const QPoint &place : {QPoint(2, 2), QPoint(4, 4), QPoint(2, 5), QPoint(5, 2)})
            QVERIFY(at(framed, place.x(), place.y()) != shifted(windowColor(), -11));

        option.frame = false;
        compare(paint(QStyle::CC_SpinBox, option), 50, 15, m_background);
    }

    void spinBoxSeparatorIsMirrored()
    {
        auto option = themed<QStyleOptionSpinBox>(QRect(0, 0, 100, 30));
        option.frame = true;
        const QColor outline = windowColor().darker(140);
        QImage image = paint(QStyle::CC_SpinBox, option);
        compare(image, 85, 8, outline);
        compare(image, 85, 27, outline);
        option.direction = Qt::RightToLeft;
        image = paint(QStyle::CC_SpinBox, option);
        compare(image, 14, 8, outline);
        compare(image, 85, 8, shifted(windowColor(), -11));
    }

    void spinBoxPressedEdges()
    {
        // The buttons are (85, 3, 14, 12) and (85, 15, 14, 12), their signs far from the edges.
        auto option = themed<QStyleOptionSpinBox>(QRect(0, 0, 100, 30));
        option.frame = true;
        option.buttonSymbols = QAbstractSpinBox::PlusMinus;
        const QImage resting = paint(QStyle::CC_SpinBox, option);
        option.state |= QStyle::State_Sunken;
        QCOMPARE(paint(QStyle::CC_SpinBox, option), resting);

        const QColor dark = buttonColor().darker(130);
        const QRegion shared(86, 15, 13, 1); // the upper edge of the lower button
        option.activeSubControls = QStyle::SC_SpinBoxUp;
        QImage image = paint(QStyle::CC_SpinBox, option);
        QCOMPARE(changedCells(resting, image), shared + QRect(86, 3, 1, 12) + QRect(86, 2, 13, 1));
        for (const QPoint &place : {QPoint(98, 15), QPoint(86, 14), QPoint(98, 2)})
            compare(image, place.x(), place.y(), dark);

        option.activeSubControls = QStyle::SC_SpinBoxDown;
        image = paint(QStyle::CC_SpinBox, option);
        QCOMPARE(changedCells(resting, image),
                 shared + QRect(86, 15, 1, 12) + QRect(86, 27, 13, 1));
        for (const QPoint &place : {QPoint(98, 15), QPoint(86, 26)})
            compare(image, place.x(), place.y(), dark);
        for (const QPoint &place : {QPoint(86, 27), QPoint(98, 27)})
            compare(image, place.x(), place.y(), buttonColor().darker(110));

        option.activeSubControls = QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown;
        QCOMPARE(paint(QStyle::CC_SpinBox, option), resting);
    }

    void spinBoxPlusMinus()
    {
        auto option = themed<QStyleOptionSpinBox>(QRect(0, 0, 100, 30));
        option.buttonSymbols = QAbstractSpinBox::PlusMinus;
        option.stepEnabled = QAbstractSpinBox::StepUpEnabled;
        const QColor arrow = withAlpha(color(QPalette::WindowText), 220);
        const QColor disabled(merged(arrow, color(QPalette::Button), 50));
        const QColor plus = TestSupport::blended(arrow, m_background);
        const QColor minus = TestSupport::blended(withAlpha(disabled, 220), m_background);

        // The frameless buttons are (88, 0, 14, 15) and (88, 15, 14, 15).
        const QImage image = paint(QStyle::CC_SpinBox, option);
        const Legend legend = {{'+', plus}, {'-', minus}};
        // The middle of the plus is drawn twice.
        QCOMPARE(drawn(image, QRect(92, 4, 7, 7), legend),
                 QStringList({"       ", "   +   ", "   +   ", " ++ ++ ", "   +   ", "   +   ",
                              "       "}));
        QCOMPARE(drawn(image, QRect(92, 21, 7, 3), legend),
                 QStringList({"       ", " ----- ", "       "}));
    }

    void spinBoxArrowsPointAway()
    {
        auto option = themed<QStyleOptionSpinBox>(QRect(0, 0, 100, 30));
        option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
        option.frame = true;
        const QImage image = paint(QStyle::CC_SpinBox, option);
        const QColor well = shifted(windowColor(), -11);
        const QRect up = changedIn(image, QRect(87, 6, 9, 7), well);
        const QRect down = changedIn(image, QRect(87, 17, 9, 7), well);
        QVERIFY(up.isValid());
        QVERIFY(down.isValid());
        QVERIFY(changed(image, up.top(), up, well) < changed(image, up.bottom(), up, well));
        QVERIFY(changed(image, down.top(), down, well) > changed(image, down.bottom(), down, well));
    }

    void spinBoxWithoutButtonsIsBare()
    {
        auto option = themed<QStyleOptionSpinBox>(QRect(0, 0, 100, 30));
        option.buttonSymbols = QAbstractSpinBox::NoButtons;
        for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            option.direction = direction;
            QVERIFY(
                changedIn(paint(QStyle::CC_SpinBox, option), option.rect, m_background).isNull());
        }
    }

    void comboBoxPieces()
    {
        auto option = themed<QStyleOptionComboBox>(QRect(10, 20, 120, 26));
        option.state |= QStyle::State_MouseOver | QStyle::State_HasFocus | QStyle::State_Selected;
        option.editable = false;
        const QRect local(0, 0, 120, 26);
        const QStyle::State enabled = QStyle::State_Enabled | QStyle::State_HasFocus;

        QVector<Recorder::Piece> pieces = recordedPieces(QStyle::CC_ComboBox, option);
        QCOMPARE(pieces.size(), 1);
        QCOMPARE(pieces.at(0).element, QStyle::PE_PanelButtonCommand);
        QCOMPARE(pieces.at(0).rect, local);
        QCOMPARE(pieces.at(0).state, enabled | QStyle::State_MouseOver);

        option.state |= QStyle::State_On;
        pieces = recordedPieces(QStyle::CC_ComboBox, option);
        QCOMPARE(pieces.size(), 1);
        QCOMPARE(pieces.at(0).state, enabled | QStyle::State_Sunken);
    }

    void editableComboBoxPieces()
    {
        auto option = themed<QStyleOptionComboBox>(QRect(10, 20, 120, 26));
        option.editable = true;
        const QRect local(0, 0, 120, 26);
        for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            option.direction = direction;
            const QVector<Recorder::Piece> pieces = recordedPieces(QStyle::CC_ComboBox, option);
            const QRect arrow =
                m_recorder
                    .subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, nullptr)
                    .translated(-10, -20);
            QCOMPARE(pieces.size(), 2);
            QCOMPARE(pieces.at(0).element, QStyle::PE_FrameLineEdit);
            QCOMPARE(pieces.at(0).rect, local);
            QCOMPARE(pieces.at(0).state, QStyle::State_Enabled | QStyle::State_KeyboardFocusChange);
            QCOMPARE(pieces.at(1).element, QStyle::PE_PanelButtonCommand);
            const int left = direction == Qt::LeftToRight ? arrow.left() - 6 : arrow.right() + 6;
            QCOMPARE(pieces.at(1).rect, QRect(QPoint(left, 0), local.bottomRight()));
        }
    }

    void editableComboBoxSeparator_data()
    {
        QTest::addColumn<QStyle::State>("state");
        QTest::addColumn<QColor>("line");
        QTest::addColumn<int>("inset");

        const QColor outline = windowColor().darker(140).lighter(110);
        const QStyle::State focus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
        QTest::newRow("resting") << QStyle::State(QStyle::State_Enabled) << outline << 1;
        QTest::newRow("clicked focus")
            << QStyle::State(QStyle::State_Enabled | QStyle::State_HasFocus) << outline << 1;
        QTest::newRow("focus") << QStyle::State(QStyle::State_Enabled | focus)
                               << color(QPalette::Highlight) << 1;
        QTest::newRow("open") << QStyle::State(QStyle::State_Enabled | QStyle::State_On) << outline
                              << 2;
    }

    void editableComboBoxSeparator()
    {
        QFETCH(QStyle::State, state);
        QFETCH(QColor, line);
        QFETCH(int, inset);
        auto option = themed<QStyleOptionComboBox>(QRect(0, 0, 120, 26));
        option.editable = true;
        option.state = state;
        option.subControls = QStyle::SC_ComboBoxFrame;
        for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            option.direction = direction;
            const QRect arrow = m_recorder.subControlRect(QStyle::CC_ComboBox, &option,
                                                          QStyle::SC_ComboBoxArrow, nullptr);
            int x = arrow.left();
            if (direction == Qt::RightToLeft)
                x = state & QStyle::State_On ? arrow.right() : arrow.right() - 1;
            const QImage image = paint(QStyle::CC_ComboBox, option, &m_recorder);
            compare(image, x, arrow.top() + inset, line);
            compare(image, x, arrow.bottom() - inset, line);
            QCOMPARE(changedIn(image, option.rect, m_background),
                     QRect(x, arrow.top() + inset, 1, arrow.height() - 2 * inset));
        }
    }

    void comboBoxArrow()
    {
        auto option = themed<QStyleOptionComboBox>(QRect(0, 0, 120, 26));
        option.editable = false;
        const QRect arrow = m_recorder.subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxArrow, nullptr);
        QImage image = paint(QStyle::CC_ComboBox, option, &m_recorder);
        const int left = arrow.right() - 12;
        const int top = arrow.height() / 2 - 2;
        compare(image, left + 3, top + 1, color(QPalette::ButtonText));
        compare(image, left + 4, top + 3, color(QPalette::ButtonText));
        QCOMPARE(changedIn(image, option.rect, m_background), QRect(left, top, 8, 6));

        // The drawing without an arrow is not taken for the one with it.
        option.subControls = QStyle::SC_ComboBoxFrame;
        image = paint(QStyle::CC_ComboBox, option, &m_recorder);
        QVERIFY(changedIn(image, option.rect, m_background).isNull());
    }

    void transientScrollBar_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::newRow("horizontal") << Qt::Horizontal;
        QTest::newRow("vertical") << Qt::Vertical;
    }

    void transientScrollBar()
    {
        QFETCH(Qt::Orientation, orientation);
        const bool horizontal = orientation == Qt::Horizontal;
        auto option = themedScrollBar(orientation);
        const auto moved = [&](QStyle::SubControl part) {
            QRect rect = m_style.subControlRect(QStyle::CC_ScrollBar, &option, part);
            return horizontal ? rect.adjusted(0, 5, 0, 0) : rect.adjusted(5, 0, 0, 0);
        };
        const QRect groove = moved(QStyle::SC_ScrollBarGroove);
        // The handle is a unit wider to the left, whichever way the bar runs.
        const QRect slider = moved(QStyle::SC_ScrollBarSlider);
        const QRect handle =
            horizontal ? slider.adjusted(0, 2, -1, -1) : slider.adjusted(1, 1, -1, -1);
        const qreal radius = 3.0; // half of the six units across that it had before
        QCOMPARE(handle.size(),
                 horizontal ? QSize(slider.width() - 1, 6) : QSize(7, slider.height() - 2));
        const auto expected = [&](int shift) {
            return paintWith(option.rect.size(), [&](QPainter &painter) {
                painter.fillRect(groove, shifted(windowColor(), -12));
                if (shift == 0)
                    return;
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setPen(Qt::NoPen);
                painter.setBrush(shifted(windowColor(), shift));
                painter.drawRoundedRect(handle, radius, radius);
            });
        };
        QCOMPARE(paint(QStyle::CC_ScrollBar, option), expected(20));
        option.state |= QStyle::State_MouseOver;
        QCOMPARE(paint(QStyle::CC_ScrollBar, option), expected(40));
        option.subControls = QStyle::SC_ScrollBarGroove;
        QCOMPARE(paint(QStyle::CC_ScrollBar, option), expected(0));
    }

    void transientScrollBarRemembersWhatItShowed()
    {
        QObject object;
        auto option = themed<QStyleOptionSlider>(QRect(0, 0, 200, 14));
        option.maximum = 100;
        option.sliderPosition = 40;
        option.styleObject = &object;
        option.activeSubControls = QStyle::SC_ScrollBarSlider;
        paint(QStyle::CC_ScrollBar, option);
        QCOMPARE(object.property("_q_stylepos").toInt(), 40);
        QCOMPARE(object.property("_q_stylemin").toInt(), 0);
        QCOMPARE(object.property("_q_stylemax").toInt(), 100);
        QCOMPARE(object.property("_q_stylerect").toRect(), option.rect);
        QCOMPARE(object.property("_q_stylestate").toInt(), int(option.state));
        QCOMPARE(object.property("_q_stylecontrols").toUInt(), uint(QStyle::SC_ScrollBarSlider));

        option.activeSubControls = QStyle::SC_None;
        paint(QStyle::CC_ScrollBar, option);
        QCOMPARE(object.property("_q_stylecontrols").toUInt(), 0u);

        // Whatever changes alone is kept up with.
        option.sliderPosition = 41;
        paint(QStyle::CC_ScrollBar, option);
        QCOMPARE(object.property("_q_stylepos").toInt(), 41);
        option.minimum = -1;
        paint(QStyle::CC_ScrollBar, option);
        QCOMPARE(object.property("_q_stylemin").toInt(), -1);
        option.maximum = 99;
        paint(QStyle::CC_ScrollBar, option);
        QCOMPARE(object.property("_q_stylemax").toInt(), 99);
        option.rect.setWidth(180);
        paint(QStyle::CC_ScrollBar, option);
        QCOMPARE(object.property("_q_stylerect").toRect(), option.rect);
        option.state |= QStyle::State_MouseOver;
        paint(QStyle::CC_ScrollBar, option);
        QCOMPARE(object.property("_q_stylestate").toInt(), int(option.state));
    }

    void solidScrollBarLeavesNoTrace()
    {
        QObject object;
        auto option = themed<QStyleOptionSlider>(QRect(0, 0, 200, 14));
        option.styleObject = &object;
        m_recorder.setTransient(false);
        paint(QStyle::CC_ScrollBar, option, &m_recorder);
        m_recorder.setTransient(true);
        QVERIFY(object.dynamicPropertyNames().isEmpty());
    }

    void solidScrollBarHandle_data() { transientScrollBar_data(); }

    void solidScrollBarHandle()
    {
        QFETCH(Qt::Orientation, orientation);
        const bool horizontal = orientation == Qt::Horizontal;
        auto option = themedScrollBar(orientation);
        option.activeSubControls = QStyle::SC_ScrollBarSlider;
        const QRect slider = part(option, QStyle::SC_ScrollBarSlider);
        const int first = horizontal ? slider.left() : slider.top();
        const int last = horizontal ? slider.right() : slider.bottom();
        const auto unit = [&](const QImage &image, int along, int across) {
            return horizontal ? at(image, along, across) : at(image, across, along);
        };

        // Pressed, the handle is of one colour.
        option.state |= QStyle::State_Sunken;
        const QColor start = buttonColor().lighter(118);
        const QColor fill = merged(start, buttonColor(), 40);
        const QColor contrast = TestSupport::blended(innerContrast, fill);
        const QColor rim = withAlpha(windowColor().darker(140), 180);
        const QColor groove = shifted(windowColor(), -12);
        QImage image = paintSolid(option);
        QCOMPARE(unit(image, first - 2, 7), groove);
        QCOMPARE(unit(image, first - 1, 7), TestSupport::blended(rim, fill));
        QCOMPARE(unit(image, first + 3, 0), TestSupport::blended(rim, fill));
        QCOMPARE(unit(image, last + 1, 7), TestSupport::blended(rim, groove));
        QCOMPARE(unit(image, last + 2, 7), groove);
        QCOMPARE(unit(image, first, 7), contrast);
        QCOMPARE(unit(image, last, 7), contrast);
        QCOMPARE(unit(image, first + 3, 1), contrast);
        QCOMPARE(unit(image, first + 3, 13), contrast);
        for (int across = 2; across < 13; ++across)
            QCOMPARE(unit(image, first + 3, across), fill);

        // At rest and hovered it is a gradient across the bar.
        const auto compareGradient = [&](const QColor &from, const QColor &to) {
            QLinearGradient gradient(0, 0, horizontal ? 0 : 13, horizontal ? 13 : 0);
            gradient.setStops({{0.0, from}, {1.0, to}});
            const QImage fills = paintWith(option.rect.size(), [&](QPainter &painter) {
                painter.fillRect(option.rect, gradient);
            });
            image = paintSolid(option);
            for (int across = 2; across < 13; ++across)
                QCOMPARE(unit(image, first + 3, across), unit(fills, first + 3, across));
        };
        option.state = QStyle::State_Enabled | QStyle::State_MouseOver;
        compareGradient(start.darker(102), buttonColor().lighter(102));
        option.activeSubControls = QStyle::SC_ScrollBarAddLine;
        compareGradient(buttonColor().lighter(108), buttonColor());
    }

    void solidScrollBarButtons_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QStyle::SubControl>("button");
        QTest::addColumn<QStringList>("edges"); // rows 0, 1, 2, 12 and 13
        QTest::addColumn<QRect>("arrow");

        // o: outline, c: contrast line, x: both, f: fill; O: outline beside the fill.
        const auto row = [](const char *name, Qt::Orientation orientation,
                            Qt::LayoutDirection direction, QStyle::SubControl button,
                            const QStringList &edges, const QRect &arrow) {
            QTest::newRow(name) << orientation << direction << button << edges << arrow;
        };
        const QStyle::SubControl subLine = QStyle::SC_ScrollBarSubLine;
        const QStyle::SubControl addLine = QStyle::SC_ScrollBarAddLine;
        row("left", Qt::Horizontal, Qt::LeftToRight, subLine,
            {".............O", "ccccccccccccco", "cfffffffffffco", "cfffffffffffco",
             "ccccccccccccco"},
            QRect(4, 3, 4, 8));
        row("right", Qt::Horizontal, Qt::LeftToRight, addLine,
            {"O.............", "occccccccccccc", "ocfffffffffffc", "ocfffffffffffc",
             "occccccccccccc"},
            QRect(5, 3, 4, 8));
        row("right, mirrored", Qt::Horizontal, Qt::RightToLeft, subLine,
            {"O.............", "xccccccccccccf", "xfffffffffffcf", "xfffffffffffcf",
             "xccccccccccccf"},
            QRect(4, 3, 4, 8));
        row("left, mirrored", Qt::Horizontal, Qt::RightToLeft, addLine,
            {".............O", "fccccccccccccx", "fcfffffffffffx", "fcfffffffffffx",
             "fccccccccccccx"},
            QRect(5, 3, 4, 8));
        row("up", Qt::Vertical, Qt::LeftToRight, subLine,
            {".ccccccccccccc", ".cfffffffffffc", ".cfffffffffffc", ".ccccccccccccc",
             "Oooooooooooooo"},
            QRect(3, 5, 8, 4));
        row("down", Qt::Vertical, Qt::LeftToRight, addLine,
            {"Oooooooooooooo", ".ccccccccccccc", ".cfffffffffffc", ".cfffffffffffc",
             ".ccccccccccccc"},
            QRect(3, 5, 8, 4));
    }

    void solidScrollBarButtons()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(QStyle::SubControl, button);
        QFETCH(QStringList, edges);
        QFETCH(QRect, arrow);
        auto option = themedScrollBar(orientation);
        option.direction = direction;
        option.activeSubControls = button;
        option.state |= QStyle::State_Sunken;
        const QRect rect = part(option, button);
        QCOMPARE(rect.size(), QSize(14, 14));

        const QColor rim = withAlpha(windowColor().darker(140), 180);
        const QColor rimmed = TestSupport::blended(rim, buttonColor());
        const Legend legend = {{'.', m_background},
                               {'O', TestSupport::blended(rim, m_background)},
                               {'o', rimmed},
                               {'c', TestSupport::blended(innerContrast, buttonColor())},
                               {'x', TestSupport::blended(innerContrast, rimmed)},
                               {'f', buttonColor()}};
        QImage image = paintSolid(option);
        const QStringList rows = drawn(image, rect, legend);
        QCOMPARE(rows.mid(0, 3) + rows.mid(12), edges);

        // What changes with the colour of the text is the arrow.
        option.palette.setColor(QPalette::WindowText, Qt::green);
        const QRect changes = (changedCells(image, paintSolid(option)) & rect).boundingRect();
        QVERIFY(arrow.translated(rect.topLeft()).contains(changes));
        QVERIFY(changes.width() >= arrow.width() - 1 && changes.height() >= arrow.height() - 1);

        // Hovered only.
        option.state &= ~QStyle::State_Sunken;
        const bool isSubLine = button == QStyle::SC_ScrollBarSubLine;
        const QColor start = buttonColor().lighter(118);
        image = paintSolid(option);
        const QPoint first = rect.topLeft() + QPoint(2, 2);
        if (isSubLine)
            QVERIFY(at(image, first.x(), first.y()).red() > buttonColor().lighter(108).red());
        else
            compare(image, first.x(), first.y(), merged(start, buttonColor(), 40));
        option.activeSubControls = QStyle::SC_None;
        const QImage resting = paintSolid(option);
        QVERIFY(at(resting, first.x(), first.y()).red() <= buttonColor().lighter(108).red());
        QVERIFY(at(resting, first.x(), first.y()).red() > buttonColor().red());
    }

    void sliderFill()
    {
        auto option = themedSlider(Qt::Horizontal, QRect(0, 0, 200, 40));
        option.subControls = QStyle::SC_SliderGroove;
        const QColor groove = TestSupport::blended(withAlpha(ink, 128), m_background);

        // At the minimum there is nothing to fill.
        QImage image = paint(QStyle::CC_Slider, option);
        for (int x = 0; x < 200; ++x)
            QVERIFY(at(image, x, 19).blue() <= m_background.blue());
        compare(image, 100, 19, groove);
        compare(image, 100, 16, m_background);

        option.sliderPosition = 50;
        image = paint(QStyle::CC_Slider, option);
        const QColor resting = TestSupport::blended(withAlpha(accentBlue, 200), groove);
        compareNear(image, 50, 19, resting);
        compare(image, 150, 19, groove);
        option.state |= QStyle::State_MouseOver;
        compare(paint(QStyle::CC_Slider, option), 50, 19, accentBlue);

        option.upsideDown = true;
        image = paint(QStyle::CC_Slider, option);
        compare(image, 50, 19, groove);
        compare(image, 150, 19, accentBlue);
    }

    void verticalSliderFillsFromTheMinimum()
    {
        auto option = themedSlider(Qt::Vertical, QRect(0, 0, 40, 200));
        option.state |= QStyle::State_MouseOver;
        option.sliderPosition = 50;
        const QColor groove = TestSupport::blended(withAlpha(ink, 128), m_background);
        QImage image = paint(QStyle::CC_Slider, option);
        compare(image, 18, 40, accentBlue);
        compare(image, 18, 160, groove);
        option.upsideDown = true;
        image = paint(QStyle::CC_Slider, option);
        compare(image, 18, 40, groove);
        compare(image, 18, 160, accentBlue);
    }

    void sliderGrooveIsSoftAtTheEdges_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<double>("start"); // of the groove, across
        QTest::addColumn<double>("end");
        QTest::addColumn<int>("rim"); // the first line of the fill
        QTest::newRow("horizontal") << Qt::Horizontal << 2.5 << 6.5 << 1;
        QTest::newRow("vertical") << Qt::Vertical << 0.5 << 5.5 << 0;
    }

    void sliderGrooveIsSoftAtTheEdges()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(double, start);
        QFETCH(double, end);
        QFETCH(int, rim);
        const bool horizontal = orientation == Qt::Horizontal;
        auto option =
            themedSlider(orientation, horizontal ? QRect(0, 0, 200, 40) : QRect(0, 0, 40, 200));
        option.subControls = QStyle::SC_SliderGroove;
        option.state |= QStyle::State_MouseOver;
        option.sliderPosition = 50;
        option.upsideDown = false;
        const QRect groove =
            m_style.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove);
        const QImage image = paint(QStyle::CC_Slider, option);
        const double ratio = image.devicePixelRatio();
        const int first = int((horizontal ? groove.top() : groove.left()) * ratio);
        const int along = int(150 * ratio);
        for (int i = 0; i < int(7 * ratio); ++i) {
            const double covered =
                qBound(0.0, qMin((i + 1) / ratio, end) - qMax(i / ratio, start), 1 / ratio) * ratio;
            const QColor expected =
                TestSupport::blended(withAlpha(ink, qRound(128 * covered)), m_background);
            const QPoint place = horizontal ? QPoint(along, first + i) : QPoint(first + i, along);
            verifyNear(image.pixelColor(place), expected);
        }

        // The fill has a rim of ink around it and four or five lines of blue in it.
        const int last = horizontal ? 6 : 5;
        const auto fill = [&](int across) {
            const int offset = horizontal ? groove.top() : groove.left();
            return horizontal ? at(image, 40, offset + across) : at(image, offset + across, 40);
        };
        QCOMPARE(fill(rim), ink);
        for (int across = rim + 1; across < last; ++across)
            QCOMPARE(fill(across), accentBlue);
        QCOMPARE(fill(last), ink);
    }

    void sliderFillEndsAtTheHandle_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<bool>("upsideDown");
        QTest::newRow("horizontal") << Qt::Horizontal << false;
        QTest::newRow("horizontal, upside down") << Qt::Horizontal << true;
        QTest::newRow("vertical") << Qt::Vertical << false;
        QTest::newRow("vertical, upside down") << Qt::Vertical << true;
    }

    void sliderFillEndsAtTheHandle()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(bool, upsideDown);
        const bool horizontal = orientation == Qt::Horizontal;
        auto option =
            themedSlider(orientation, horizontal ? QRect(0, 0, 200, 40) : QRect(0, 0, 40, 200));
        option.subControls = QStyle::SC_SliderGroove;
        option.state |= QStyle::State_MouseOver;
        option.upsideDown = upsideDown;
        option.sliderPosition = 30;
        const QRect groove =
            m_style.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove);
        const QRect handle =
            m_style.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle);
        const QImage image = paint(QStyle::CC_Slider, option);
        QVector<int> blue;
        for (int along = 10; along < 190; ++along) {
            const QPoint place =
                horizontal ? QPoint(along, groove.top() + 4) : QPoint(groove.left() + 3, along);
            if (at(image, place.x(), place.y()) == accentBlue)
                blue << along;
        }
        if (upsideDown)
            QCOMPARE(blue.first(), horizontal ? handle.right() : handle.bottom());
        else
            QCOMPARE(blue.last(), horizontal ? handle.left() : handle.top());
        QCOMPARE(blue.last() - blue.first() + 1, blue.size());
        QCOMPARE(upsideDown ? blue.last() : blue.first(), upsideDown ? 189 : 10);
    }

    void sliderFillKeepsTheCallersClip()
    {
        auto option = themedSlider(Qt::Horizontal, QRect(0, 0, 200, 40));
        option.sliderPosition = 100;
        const QImage image = paintWith(option.rect.size(), [&](QPainter &painter) {
            painter.setClipRect(0, 0, 60, 40);
            m_style.drawComplexControl(QStyle::CC_Slider, &option, &painter);
        });
        QVERIFY(at(image, 50, 19) != m_background);
        QVERIFY(changedIn(image, QRect(60, 0, 140, 40), m_background).isNull());
    }

    void sliderHandle()
    {
        auto option = themedSlider(Qt::Horizontal, QRect(0, 0, 200, 40));
        option.subControls = QStyle::SC_SliderHandle;
        const QImage image = paint(QStyle::CC_Slider, option);
        // The handle is (0, 12, 15, 15); its disc of radius 6 stands around the corner (7, 20).
        QCOMPARE(changedIn(image, option.rect, m_background), QRect(1, 14, 12, 12));
        compare(image, 3, 20, Qt::gray);
        compare(image, 6, 19, ink);
        compare(image, 7, 20, ink);
        compare(image, 10, 20, Qt::gray);
    }

    void sliderTicks_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<bool>("upsideDown");
        QTest::newRow("horizontal") << Qt::Horizontal << false;
        QTest::newRow("mirrored") << Qt::Horizontal << true;
        QTest::newRow("vertical") << Qt::Vertical << false;
    }

    void sliderTicks()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(bool, upsideDown);
        const bool horizontal = orientation == Qt::Horizontal;
        auto option =
            themedSlider(orientation, horizontal ? QRect(0, 0, 200, 40) : QRect(0, 0, 40, 200));
        option.subControls = QStyle::SC_SliderTickmarks;
        option.tickPosition = QSlider::TicksBothSides;
        option.tickInterval = 40;
        option.upsideDown = upsideDown;
        QVector<int> expected = {7, 81, 155}; // 0, 40 and 80 of 100 on 185 pixels
        if (upsideDown)
            expected = {44, 118, 192};

        const QColor outline = windowColor().darker(140);
        const QImage image = paint(QStyle::CC_Slider, option);
        QCOMPARE(tickPositions(image, orientation), expected);
        for (int across : {2, 3, 4, 37, 36, 35})
            compare(image, horizontal ? expected.at(1) : across,
                    horizontal ? across : expected.at(1), outline);
        const int minimum = upsideDown ? expected.last() : expected.first();
        compare(image, horizontal ? minimum : 1, horizontal ? 1 : minimum, outline);
        compare(image, horizontal ? expected.at(1) : 1, horizontal ? 1 : expected.at(1),
                m_background);

        option.state |= QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
        option.tickPosition = QSlider::TicksAbove;
        const QImage focused = paint(QStyle::CC_Slider, option);
        QColor focus = color(QPalette::Highlight).darker(125);
        focus.setHsl(focus.hue(), focus.saturation(), 160);
        compare(focused, horizontal ? expected.at(1) : 3, horizontal ? 3 : expected.at(1), focus);
        compare(focused, horizontal ? expected.at(1) : 36, horizontal ? 36 : expected.at(1),
                m_background);
    }

    void sliderTickInterval_data()
    {
        QTest::addColumn<int>("interval");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("singleStep");
        QTest::addColumn<int>("count");

        QTest::newRow("given") << 25 << 100 << 1 << 5;
        QTest::newRow("single step wide enough") << 0 << 20 << 1 << 21;
        QTest::newRow("single step of three pixels") << 0 << 70 << 1 << 71;
        QTest::newRow("single step of two pixels") << 0 << 80 << 1 << 9;
        QTest::newRow("single step too narrow") << 0 << 100 << 1 << 11; // the page step is ten
        QTest::newRow("last one clamped") << 3 << 11 << 1 << 5;         // 0 3 6 9 11
        QTest::newRow("not reached") << 40 << 100 << 1 << 3;
    }

    void sliderTickInterval()
    {
        QFETCH(int, interval);
        QFETCH(int, maximum);
        QFETCH(int, singleStep);
        QFETCH(int, count);
        auto option = themedSlider(Qt::Horizontal, QRect(0, 0, 200, 40));
        option.subControls = QStyle::SC_SliderTickmarks;
        option.tickPosition = QSlider::TicksBelow;
        option.maximum = maximum;
        option.tickInterval = interval;
        option.singleStep = singleStep;
        option.pageStep = 10;
        QCOMPARE(tickPositions(paint(QStyle::CC_Slider, option), Qt::Horizontal).size(), count);
    }

    void ticksOfAHugeRangeTakeNoTime()
    {
        auto option = themedSlider(Qt::Horizontal, QRect(0, 0, 200, 40));
        option.subControls = QStyle::SC_SliderTickmarks;
        option.tickPosition = QSlider::TicksAbove;
        option.minimum = std::numeric_limits<int>::min() / 2;
        option.maximum = std::numeric_limits<int>::max() / 2;
        option.tickInterval = 1;
        QElapsedTimer timer;
        timer.start();
        const QImage image = paint(QStyle::CC_Slider, option);
        QVERIFY(timer.elapsed() < 2000);
        // Every pixel from one end of the travel to the other.
        QCOMPARE(tickPositions(image, Qt::Horizontal).size(), 186);
    }

    void groupBoxPieces()
    {
        auto option = themed<QStyleOptionGroupBox>(QRect(0, 0, 200, 100));
        option.text = QStringLiteral("Key");
        option.state |= QStyle::State_On | QStyle::State_HasFocus;
        option.subControls =
            QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel | QStyle::SC_GroupBoxCheckBox;
        const QRect label =
            m_style.subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel);
        const QVector<Recorder::Piece> pieces = recordedPieces(QStyle::CC_GroupBox, option);
        QCOMPARE(pieces.size(), 3);
        QCOMPARE(pieces.at(0).element, QStyle::PE_FrameGroupBox);
        QCOMPARE(pieces.at(0).rect, option.rect);
        QCOMPARE(pieces.at(1).element, QStyle::PE_FrameFocusRect);
        QCOMPARE(pieces.at(1).rect, label.adjusted(-2, -1, 2, 1));
        QCOMPARE(pieces.at(2).element, QStyle::PE_IndicatorCheckBox);
        QCOMPARE(pieces.at(2).rect.size(), QSize(14, 14));
        QCOMPARE(pieces.at(2).state, option.state);

        const QImage image = paint(QStyle::CC_GroupBox, option, &m_recorder);
        QVERIFY(changedIn(image, label, m_background).isValid());
        option.text.clear();
        QVERIFY(
            changedIn(paint(QStyle::CC_GroupBox, option, &m_recorder), option.rect, m_background)
                .isNull());
    }

    void titleBarColours_data()
    {
        QTest::addColumn<bool>("active");
        QTest::newRow("active") << true;
        QTest::newRow("inactive") << false;
    }

    void titleBarColours()
    {
        QFETCH(bool, active);
        // The two differ in more than the state, which the cache goes by.
        paint(QStyle::CC_TitleBar, themedTitleBar(active ? 0 : int(QStyle::State_Active)));
        const auto option = themedTitleBar(active ? int(QStyle::State_Active) : 0);
        const QColor base = active ? color(QPalette::Highlight) : windowColor();
        const QColor border = active ? base.darker(180) : windowColor().darker(140).darker(110);
        const QColor glyph = active ? Qt::white : Qt::black;
        const QImage image = paint(QStyle::CC_TitleBar, option);

        compare(image, 150, 0, border);
        compare(image, 0, 12, border);
        compare(image, 299, 12, border);
        compare(image, 150, 23, border);
        compare(image, 3, 1, border);
        compare(image, 296, 1, border);
        compare(image, 4, 0, m_background);
        compare(image, 295, 0, m_background);
        compare(image, 0, 3, m_background);
        compare(image, 150, 1, base.lighter(120));

        // The close button is (276, 3, 18, 18), its cross (281, 8, 8, 8).
        compare(image, 282, 9, glyph);
        compare(image, 287, 14, glyph);
        compare(image, 287, 9, glyph);
        QVERIFY(at(image, 284, 9) != glyph);
    }

    void titleBarCorners()
    {
        auto option = themedTitleBar(int(QStyle::State_Active));
        option.text.clear();
        option.subControls = QStyle::SC_TitleBarLabel;
        const QColor highlight = color(QPalette::Highlight);
        const Legend legend = {
            {'.', m_background}, {'#', highlight.darker(180)}, {'h', highlight.lighter(120)}};
        const QStringList corner = {".....###", ".  ## hh", ". #     ",
                                    ".#      ", "##      ", "#       "};
        const QImage image = paint(QStyle::CC_TitleBar, option);
        QStringList right = drawn(image, QRect(292, 0, 8, 6), legend);
        for (QString &row : right)
            std::reverse(row.begin(), row.end());
        QCOMPARE(drawn(image, QRect(0, 0, 8, 6), legend), corner);
        QCOMPARE(right, corner);
    }

    void titleBarSymbols_data()
    {
        QTest::addColumn<int>("flag");
        QTest::addColumn<int>("state");
        QTest::addColumn<QStyle::SubControl>("button");
        QTest::addColumn<QStringList>("rows"); // of the inner part of the button

        const QString empty = QStringLiteral("        ");
        const QString full = QStringLiteral("########");
        const QString sides = QStringLiteral("#      #");
        const QStringList window = {full, full, sides, sides, sides, sides, sides, full};
        const QStringList cross = {"##    ##", "###  ###", " ###### ", "  ####  ",
                                   "  ####  ", " ###### ", "###  ###", "##    ##"};
        const QStringList twoWindows = {"   #####", "   #####", "   #   #", "#####  #",
                                        "########", "#   #   ", "#   #   ", "#####   "};
        const QStringList nothing = {empty, empty, empty, empty, empty, empty, empty, empty};
        const int minimize = Qt::WindowMinimizeButtonHint;
        const int maximize = Qt::WindowMaximizeButtonHint;
        QTest::newRow("minimize") << minimize << 0 << QStyle::SC_TitleBarMinButton
                                  << nothing.mid(0, 6) + QStringList{full, full};
        QTest::newRow("maximize") << maximize << 0 << QStyle::SC_TitleBarMaxButton << window;
        if (qApp->devicePixelRatio() == 1.0) { // slanting lines cross the units anyhow
            QTest::newRow("close")
                << int(Qt::WindowSystemMenuHint) << 0 << QStyle::SC_TitleBarCloseButton << cross;
        }
        QTest::newRow("restore minimized") << minimize << int(Qt::WindowMinimized)
                                           << QStyle::SC_TitleBarNormalButton << twoWindows;
        QTest::newRow("restore maximized") << maximize << int(Qt::WindowMaximized)
                                           << QStyle::SC_TitleBarNormalButton << twoWindows;
        QTest::newRow("not requested") << maximize << 0 << QStyle::SC_TitleBarLabel << nothing;
        QTest::newRow("not allowed") << 0 << 0 << QStyle::SC_TitleBarMaxButton << nothing;
    }

    void titleBarSymbols()
    {
        QFETCH(int, flag);
        QFETCH(int, state);
        QFETCH(QStyle::SubControl, button);
        auto option = themedTitleBar(state | int(QStyle::State_Active));
        option.titleBarFlags = Qt::WindowTitleHint | Qt::WindowFlags(flag);
        option.subControls = button;
        // The only button is (276, 3, 18, 18).
        QTEST(drawn(paint(QStyle::CC_TitleBar, option), QRect(281, 8, 8, 8), {{'#', Qt::white}}),
              "rows");
    }

    void titleBarPictures()
    {
        if (qApp->devicePixelRatio() != 1.0)
            QSKIP("Question mark and arrows are stretched.");
        auto option = themedTitleBar(int(QStyle::State_Active));
        option.titleBarFlags = Qt::WindowTitleHint | Qt::WindowContextHelpButtonHint;
        const Legend white = {{'#', Qt::white}};
        QCOMPARE(
            drawn(paint(QStyle::CC_TitleBar, option), QRect(280, 7, 10, 10), white),
            QStringList({"   ####   ", " ###  ### ", " ##    ## ", "      ##  ", "     ##   ",
                         "    ##    ", "    ##    ", "          ", "    ##    ", "    ##    "}));

        option.titleBarFlags = Qt::WindowTitleHint | Qt::WindowShadeButtonHint;
        const QRect arrow(281, 10, 8, 4);
        const auto lit = [&](int y) {
            return drawn(paint(QStyle::CC_TitleBar, option), QRect(281, y, 8, 1), white)
                .first()
                .count('#');
        };
        QVERIFY(lit(arrow.top()) < lit(arrow.bottom()));
        QCOMPARE(lit(arrow.top() - 1) + lit(arrow.bottom() + 1), 0);
        option.titleBarState |= Qt::WindowMinimized;
        QVERIFY(lit(arrow.top()) > lit(arrow.bottom()));
    }

    void titleBarButtonStates_data()
    {
        QTest::addColumn<QStyle::SubControl>("active");
        QTest::addColumn<QStyle::State>("state");
        QTest::addColumn<bool>("hovered");
        QTest::addColumn<bool>("sunken");
        const QStyle::SubControl close = QStyle::SC_TitleBarCloseButton;
        const QStyle::State over = QStyle::State_MouseOver;
        QTest::newRow("resting") << QStyle::SC_None << over << false << false;
        QTest::newRow("another one") << QStyle::SC_TitleBarMinButton << over << false << false;
        QTest::newRow("hovered") << close << over << true << false;
        QTest::newRow("pressed") << close << (over | QStyle::State_Sunken) << true << true;
    }

    void titleBarButtonStates()
    {
        QFETCH(QStyle::SubControl, active);
        QFETCH(QStyle::State, state);
        QFETCH(bool, hovered);
        QFETCH(bool, sunken);
        auto option = themedTitleBar(int(QStyle::State_Active));
        option.activeSubControls = active;
        option.state = QStyle::State_Enabled | state;
        const QImage image = paint(QStyle::CC_TitleBar, option);
        QColor expected = at(image, 150, 6); // no button, no text
        if (sunken)
            expected = color(QPalette::Highlight).darker(120);
        else if (hovered)
            expected = TestSupport::blended(QColor(255, 255, 255, 20), expected);
        compareNear(image, 285, 6, expected);
    }

    void titleBarText_data() { titleBarColours_data(); }

    void titleBarText()
    {
        QFETCH(bool, active);
        auto option = themedTitleBar(active ? int(QStyle::State_Active) : 0);
        const QRect label =
            m_style.subControlRect(QStyle::CC_TitleBar, &option, QStyle::SC_TitleBarLabel);
        const QFontMetrics metrics(QApplication::font());
        QString text;
        while (metrics.horizontalAdvance(text) <= label.width() - 14)
            text += QLatin1Char('i');
        const QString elided = metrics.elidedText(text, Qt::ElideRight, label.width() - 14);
        QVERIFY(elided != text);

        const QImage expected = paintWith(option.rect.size(), [&](QPainter &painter) {
            m_style.drawComplexControl(QStyle::CC_TitleBar, &option, &painter);
            const QColor text = color(QPalette::Text);
            painter.setPen(active ? text.lighter(120) : text);
            painter.drawText(label.translated(1, 1), Qt::AlignCenter, elided);
            painter.setPen(Qt::white);
            if (active)
                painter.drawText(label, Qt::AlignCenter, elided);
        });
        option.text = text;
        QCOMPARE(paint(QStyle::CC_TitleBar, option), expected);
    }

    void dialPieceByPiece_data()
    {
        QTest::addColumn<int>("extent");
        QTest::addColumn<QStyle::State>("state");
        const QStyle::State enabled = QStyle::State_Enabled;
        QTest::newRow("small") << 40 << enabled;
        QTest::newRow("large, with a pointer") << 160 << enabled;
        QTest::newRow("focused") << 61 << (enabled | QStyle::State_HasFocus);
        QTest::newRow("disabled") << 50 << QStyle::State(QStyle::State_None);
    }

    void dialPieceByPiece()
    {
        QFETCH(int, extent);
        QFETCH(QStyle::State, state);
        auto option = themedSlider(Qt::Horizontal, QRect(0, 0, extent + 7, extent));
        option.subControls = QStyle::SC_DialGroove | QStyle::SC_DialHandle;
        option.state = state;
        option.sliderPosition = 30;
        const auto colored = [](const QColor &from, int most, int least, int alpha = 255) {
            return QColor::fromHsv(from.hue(), qMin(most, from.saturation()),
                                   qMax(least, from.value()), alpha);
        };
        const QColor button = colored(color(QPalette::Button), 140, 180);
        const qreal half = extent / 2;
        const qreal r = half - half / 50;
        const qreal pen = r / 20;
        const qreal d = r / 6;
        const qreal x = d + (extent + 7 - 2 * r) / 2 + 1;
        const qreal y = d + (extent - 2 * r) / 2 + 1;
        const int side = int(2 * r - 2 * d - 2);
        const QRectF disc(x + 0.5, y + 0.5, side, side);

        const QImage kept = paintWith(option.rect.size(), Qt::transparent, [&](QPainter &painter) {
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
                light.setStops({{0.0, button.lighter(110)},
                                {0.5, button},
                                {0.501, button.darker(102)},
                                {1.0, button.darker(115)}});
                painter.setBrush(light);
            }
            painter.setPen(button.darker(280));
            painter.drawEllipse(disc);
            painter.setBrush(Qt::NoBrush);
            painter.setPen(button.lighter(110));
            painter.drawEllipse(disc.adjusted(1, 1, -1, -1));
            if (state & QStyle::State_HasFocus) {
                painter.setPen(QPen(colored(color(QPalette::Highlight), 160, 230, 127), 2));
                painter.drawEllipse(disc.adjusted(-1, -1, 1, 1));
            }
        });
        // 30 of 100 from 240 degrees down to -60; the dial counts from its other end.
        const qreal angle = qDegreesToRadians(240 - 300 * 0.7);
        const int bigLine = qMin(int(half) / 2, qMax(int(half) / 6, 4));
        const auto outwards = [&](qreal share) {
            const qreal length = (half - bigLine - 3) * share;
            return QPointF((extent + 7) / 2.0 + length * qCos(angle),
                           extent / 2.0 - length * qSin(angle));
        };
        const QImage expected = paintWith(option.rect.size(), [&](QPainter &painter) {
            painter.drawImage(0, 0, kept);
            painter.setRenderHint(QPainter::Antialiasing);
            if (pen > 3) {
                painter.setPen(QPen(QColor(0, 0, 0, 25), pen));
                painter.drawLine(outwards(0.90), outwards(0.96));
            }
            const qreal size = r / 7;
            const QPointF at = outwards(0.70);
            const QRectF knob(at.x() - size, at.y() - size, 2 * size, 2 * size);
            QColor tone = button.lighter(104);
            tone.setAlphaF(0.8);
            QRadialGradient shade(knob.center() + QPointF(size, 2 * size), 4 * size, knob.center());
            shade.setStops(
                {{0.0, tone.darker(110)}, {0.4, tone.darker(120)}, {1.0, tone.darker(140)}});
            painter.setBrush(shade);
            painter.setPen(QColor(255, 255, 255, 150));
            painter.drawEllipse(knob.adjusted(-1, -1, 1, 1));
            painter.setPen(QColor(0, 0, 0, 80));
            painter.drawEllipse(knob);
        });
        QCOMPARE(paint(QStyle::CC_Dial, option), expected);
        QCOMPARE(paint(QStyle::CC_Dial, option), expected); // from the cache
    }

    void wrongOptionsPaintNothing()
    {
        QStyleOptionComplex plain;
        plain.rect = QRect(0, 0, 100, 30);
        plain.subControls = QStyle::SC_All;
        plain.palette = m_theme->palette();
        for (QStyle::ComplexControl control : everyControl()) {
            QVERIFY(changedIn(paint(control, plain), plain.rect, m_background).isNull());
            paintWith(QSize(10, 10), [&](QPainter &painter) {
                m_style.drawComplexControl(control, nullptr, &painter);
                paintAnything(control, QRect(0, 0, 10, 10), m_theme->palette(), Qt::LeftToRight,
                              nullptr);
            });
        }
        QVERIFY(m_style.hitTestComplexControl(QStyle::CC_MdiControls, nullptr, QPoint())
                == QStyle::SC_None);
    }

    void anySizeAndPalette_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::newRow("null") << QRect();
        QTest::newRow("negative") << QRect(0, 0, -20, -20);
        QTest::newRow("one pixel") << QRect(0, 0, 1, 1);
        QTest::newRow("flat") << QRect(5, 5, 90, 2);
        QTest::newRow("thin") << QRect(5, 5, 2, 90);
        QTest::newRow("moved") << QRect(20, 20, 60, 30);
        QTest::newRow("huge") << QRect(-20000, -20000, 60000, 60000);
    }

    void anySizeAndPalette()
    {
        QFETCH(QRect, rect);
        const QPalette palettes[] = {m_theme->palette(), QPalette(Qt::black), QPalette(Qt::white),
                                     QPalette(QColor(0, 0, 0, 0))};
        for (const QPalette &palette : palettes) {
            for (QStyle::ComplexControl control : everyControl()) {
                for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                    const QImage image = paintWith(QSize(100, 100), [&](QPainter &painter) {
                        painter.setPen(QPen(Qt::green, 3));
                        painter.setBrush(Qt::yellow);
                        painter.translate(0.25, 0.0);
                        const PainterState before(painter);
                        paintAnything(control, rect, palette, direction, &painter);
                        QVERIFY(before == PainterState(painter));
                    });
                    if (rect.isEmpty())
                        QVERIFY(changedIn(image, QRect(0, 0, 100, 100), m_background).isNull());
                }
            }
        }
    }

private:
    template <typename Option>
    Option themed(const QRect &rect) const
    {
        Option option;
        option.rect = rect;
        option.palette = m_theme->palette();
        option.state = QStyle::State_Enabled | QStyle::State_Active;
        option.subControls = QStyle::SC_All;
        return option;
    }
    QStyleOptionSlider themedSlider(Qt::Orientation orientation, const QRect &rect) const
    {
        auto option = themed<QStyleOptionSlider>(rect);
        option.orientation = orientation;
        option.maximum = 100;
        option.tickPosition = QSlider::NoTicks;
        if (orientation == Qt::Horizontal)
            option.state |= QStyle::State_Horizontal;
        return option;
    }
    QStyleOptionTitleBar themedTitleBar(int state) const
    {
        auto option = themed<QStyleOptionTitleBar>(QRect(0, 0, 300, 24));
        option.titleBarFlags = Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                               | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint;
        option.titleBarState = state;
        return option;
    }

    QStyleOptionSlider themedScrollBar(Qt::Orientation orientation) const
    {
        const bool horizontal = orientation == Qt::Horizontal;
        auto option =
            themed<QStyleOptionSlider>(horizontal ? QRect(0, 0, 200, 14) : QRect(0, 0, 14, 200));
        option.orientation = orientation;
        option.maximum = 10;
        option.sliderPosition = 5;
        option.pageStep = 10;
        return option;
    }
    QImage paintSolid(const QStyleOptionSlider &option)
    {
        m_recorder.setTransient(false);
        const QImage image = paint(QStyle::CC_ScrollBar, option, &m_recorder);
        m_recorder.setTransient(true);
        return image;
    }

    QColor color(QPalette::ColorRole role) const { return m_theme->palette().color(role); }
    QColor windowColor() const { return color(QPalette::Window); }
    static QColor buttonColor() { return QColor(0x48, 0x48, 0x48); } // of the theme's #3c3c3c
    static QColor merged(const QColor &a, const QColor &b, int factor)
    {
        const auto channel = [factor](int x, int y) {
            return x * factor / 100 + y * (100 - factor) / 100;
        };
        return QColor(channel(a.red(), b.red()), channel(a.green(), b.green()),
                      channel(a.blue(), b.blue()));
    }

    template <typename Paint>
    QImage paintWith(const QSize &size, const QColor &background, Paint paint) const
    {
        return TestSupport::paintOn(size, background, paint, qApp->devicePixelRatio());
    }
    template <typename Paint>
    QImage paintWith(const QSize &size, Paint paint) const
    {
        return paintWith(size, m_background, paint);
    }
    template <typename Option>
    QImage paint(QStyle::ComplexControl control, const Option &option,
                 const QStyle *style = nullptr) const
    {
        const QSize size(option.rect.right() + 1, option.rect.bottom() + 1);
        return paintWith(size, [&](QPainter &painter) {
            const PainterState before(painter);
            (style ? style : &m_style)->drawComplexControl(control, &option, &painter);
            QVERIFY(before == PainterState(painter));
        });
    }
    template <typename Option>
    QVector<Recorder::Piece> recordedPieces(QStyle::ComplexControl control, const Option &option)
    {
        m_recorder.takePieces();
        paint(control, option, &m_recorder);
        return m_recorder.takePieces();
    }
    /// Where a part of a solid scroll bar lies.
    QRect part(const QStyleOptionSlider &option, QStyle::SubControl subControl)
    {
        m_recorder.setTransient(false);
        const QRect rect =
            m_recorder.subControlRect(QStyle::CC_ScrollBar, &option, subControl, nullptr);
        m_recorder.setTransient(true);
        return rect;
    }

    /// The colour of a unit, or rather of its first pixel.
    QColor at(const QImage &image, int x, int y) const
    {
        const int ratio = int(image.devicePixelRatio());
        return image.pixelColor(x * ratio, y * ratio);
    }
    void compare(const QImage &image, int x, int y, const QColor &expected) const
    {
        const int ratio = int(image.devicePixelRatio());
        COMPARE_PIXEL(image, x * ratio, y * ratio, expected);
    }
    /// For two translucent layers, which meet in the cache before they meet the background.
    void compareNear(const QImage &image, int x, int y, const QColor &expected) const
    {
        verifyNear(at(image, x, y), expected);
    }
    void verifyNear(const QColor &actual, const QColor &expected) const
    {
        QVERIFY(qAbs(actual.red() - expected.red()) <= 1);
        QVERIFY(qAbs(actual.green() - expected.green()) <= 1);
        QVERIFY(qAbs(actual.blue() - expected.blue()) <= 1);
    }
    int changed(const QImage &image, int y, const QRect &area, const QColor &background) const
    {
        int count = 0;
        for (int x = area.left(); x <= area.right(); ++x)
            count += at(image, x, y) != background;
        return count;
    }
    /// One letter a unit of \a area: that of its colour in \a legend, or a space.
    QStringList drawn(const QImage &image, const QRect &area, const Legend &legend) const
    {
        QStringList rows;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            QString row;
            for (int x = area.left(); x <= area.right(); ++x) {
                const QColor color = at(image, x, y);
                const auto entry = std::find_if(legend.cbegin(), legend.cend(), [&](auto &known) {
                    return known.second.rgba() == color.rgba();
                });
                row += QLatin1Char(entry == legend.cend() ? ' ' : entry->first);
            }
            rows << row;
        }
        return rows;
    }
    QRegion changedCells(const QImage &before, const QImage &after) const
    {
        const int ratio = int(before.devicePixelRatio());
        QRegion region;
        for (int y = 0; y < before.height() / ratio; ++y) {
            for (int x = 0; x < before.width() / ratio; ++x) {
                if (at(before, x, y) != at(after, x, y))
                    region += QRect(x, y, 1, 1);
            }
        }
        return region;
    }
    /// The smallest rectangle in \a area with everything that differs from \a background.
    QRect changedIn(const QImage &image, const QRect &area, const QColor &background) const
    {
        QRect bounds;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (at(image, x, y) != background)
                    bounds |= QRect(x, y, 1, 1);
            }
        }
        return bounds;
    }
    QVector<int> tickPositions(const QImage &image, Qt::Orientation orientation) const
    {
        QVector<int> positions;
        for (int along = 0; along < 200; ++along) {
            const bool horizontal = orientation == Qt::Horizontal;
            const QRect line = horizontal ? QRect(along, 0, 1, 40) : QRect(0, along, 40, 1);
            if (changedIn(image, line, m_background).isValid())
                positions << along;
        }
        return positions;
    }

    static QVector<QStyle::ComplexControl> everyControl()
    {
        return {QStyle::CC_SpinBox,  QStyle::CC_ComboBox, QStyle::CC_ScrollBar, QStyle::CC_Slider,
                QStyle::CC_GroupBox, QStyle::CC_TitleBar, QStyle::CC_Dial};
    }
    template <typename Option>
    void paintThing(QStyle::ComplexControl control, Option option, const QRect &rect,
                    const QPalette &palette, Qt::LayoutDirection direction, QPainter *painter) const
    {
        option.rect = rect;
        option.palette = palette;
        option.direction = direction;
        m_style.drawComplexControl(control, &option, painter);
    }
    void paintAnything(QStyle::ComplexControl control, const QRect &rect, const QPalette &palette,
                       Qt::LayoutDirection direction, QPainter *painter) const
    {
        switch (control) {
        case QStyle::CC_SpinBox:
            return paintThing(control, themed<QStyleOptionSpinBox>(rect), rect, palette, direction,
                              painter);
        case QStyle::CC_ComboBox:
            return paintThing(control, themed<QStyleOptionComboBox>(rect), rect, palette, direction,
                              painter);
        case QStyle::CC_GroupBox: {
            auto option = themed<QStyleOptionGroupBox>(rect);
            option.text = QStringLiteral("Title");
            return paintThing(control, option, rect, palette, direction, painter);
        }
        case QStyle::CC_TitleBar: {
            auto option = themedTitleBar(0);
            option.text = QStringLiteral("Title");
            return paintThing(control, option, rect, palette, direction, painter);
        }
        default: {
            auto option = themedSlider(Qt::Horizontal, rect);
            option.sliderPosition = 50;
            option.tickPosition = QSlider::TicksBothSides;
            return paintThing(control, option, rect, palette, direction, painter);
        }
        }
    }

    const QColor m_background = QColor(90, 20, 70);
    std::unique_ptr<DarkUX> m_theme;
    DarkFusionStyle m_style;
    Recorder m_recorder{new DarkFusionStyle};
};

NOCTURNE_TEST_MAIN(TestStyleComplexPainting)

#include "tst_style_complex_painting.moc"
