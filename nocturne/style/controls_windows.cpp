#include "stylecolors_p.h"
#include "styleelements_p.h"
#include "stylehelpers_p.h"

#include <nocturne/painting/devicepixels_p.h>
#include <nocturne/painting/kepttext_p.h>
#include <nocturne/painting/themepaint_p.h>

#include <QtGui/QPainterPath>
#include <QtWidgets/QMainWindow>

namespace Nocturne::StylePaint {
namespace {

// Dots of a grip lie three units apart, from six left of and above its middle.
constexpr int firstDot = -6;
constexpr int dotsEnd = 12;
constexpr int dotStep = 3;

constexpr int rubberBandOutlineAlpha = 180;
constexpr int rubberBandFillAlpha = 80;
constexpr QRgb rubberBandContrast = 0x28ffffff; // white, alpha 40

QColor rubberBandFill(const QColor &highlight, bool isOpaque)
{
    const auto channel = [](int value) { return qMin(value / 2 + 110, 255); };
    return QColor(channel(highlight.red()), channel(highlight.green()), channel(highlight.blue()),
                  isOpaque ? 255 : rubberBandFillAlpha);
}

constexpr int bandCorner = 4; // beyond this, the edges of a band look the same all along

/// The corners of the rectangle \a r, rounded by one unit and begun where drawRoundedRect() begins.
QPainterPath bandCorners(const QRectF &r)
{
    constexpr qreal reach = bandCorner - 0.5;
    constexpr qreal bend = 1 - 0.5522847498; // of the curve that comes closest to a circle
    QPainterPath path;
    path.moveTo(r.left() + 1, r.top());
    path.lineTo(r.left() + reach, r.top());
    path.moveTo(r.right() - reach, r.top());
    path.lineTo(r.right() - 1, r.top());
    path.cubicTo(r.right() - bend, r.top(), r.right(), r.top() + bend, r.right(), r.top() + 1);
    path.lineTo(r.right(), r.top() + reach);
    path.moveTo(r.right(), r.bottom() - reach);
    path.lineTo(r.right(), r.bottom() - 1);
    path.cubicTo(r.right(), r.bottom() - bend, r.right() - bend, r.bottom(), r.right() - 1,
                 r.bottom());
    path.lineTo(r.right() - reach, r.bottom());
    path.moveTo(r.left() + reach, r.bottom());
    path.lineTo(r.left() + 1, r.bottom());
    path.cubicTo(r.left() + bend, r.bottom(), r.left(), r.bottom() - bend, r.left(),
                 r.bottom() - 1);
    path.lineTo(r.left(), r.bottom() - reach);
    path.moveTo(r.left(), r.top() + reach);
    path.lineTo(r.left(), r.top() + 1);
    path.cubicTo(r.left(), r.top() + bend, r.left() + bend, r.top(), r.left() + 1, r.top());
    return path;
}

/// Draws the outermost units of \a r as a rounded rectangle. On whole pixels only the corners need
/// smoothing, and smoothing the rest is what takes time. (A clip may cut a long line in other
/// places than a short one.)
void drawBandLine(QPainter *painter, const QRect &r, const QColor &color)
{
    const bool isLarge = r.width() > 2 * bandCorner && r.height() > 2 * bandCorner;
    const bool isOnPixels = isLarge && wholeRatio(*painter) == 1 && !painter->hasClipping();
    const QRect straight = r.adjusted(bandCorner, bandCorner, -bandCorner, -bandCorner);
    if (isOnPixels) {
        fillRow(painter, straight.left(), straight.right(), r.top(), color);
        fillRow(painter, straight.left(), straight.right(), r.bottom(), color);
        fillColumn(painter, r.left(), straight.top(), straight.bottom(), color);
        fillColumn(painter, r.right(), straight.top(), straight.bottom(), color);
    }
    const PainterSaver saver(painter);
    beginSharpAntialiasing(painter);
    painter->setBrush(Qt::NoBrush);
    const QRectF line = r.adjusted(0, 0, -1, -1);
    if (isOnPixels) {
        painter->setPen(QPen(color, 1, Qt::SolidLine, Qt::FlatCap));
        painter->drawPath(bandCorners(line));
    } else {
        painter->setPen(color);
        painter->drawRoundedRect(line, 1, 1);
    }
}

void fillBand(QPainter *painter, const QRect &r, const QColor &color)
{
    const PainterSaver saver(painter);
    beginSharpAntialiasing(painter);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawRoundedRect(r.adjusted(0, 0, -1, -1), 1, 1);
}

/// Turns the painter by a quarter to the left within the option's rectangle; what is painted then
/// has the width and height of the rectangle exchanged. Returns \a title as the painter sees it.
QRect turnTitle(const PaintCall &call, const QRect &title)
{
    const QRect &r = call.rect();
    call.painter->translate(r.left(), r.top() + r.height());
    call.painter->rotate(-90);
    call.painter->translate(-r.left(), -r.top());
    return QRect(r.left() + r.bottom() - title.bottom(), r.top() + title.left() - r.left(),
                 title.height(), title.width());
}

enum Edge { Top, Bottom, Left, Right };

using ToolBarOption = QStyleOptionToolBar;

/// A set of positions of a line of tool bars.
constexpr uint at(ToolBarOption::ToolBarPosition position)
{
    return 1U << position;
}
constexpr uint beginning = at(ToolBarOption::Beginning);
constexpr uint middle = at(ToolBarOption::Middle);
constexpr uint end = at(ToolBarOption::End);
constexpr uint onlyOne = at(ToolBarOption::OnlyOne);

/// A line along an edge of a tool bar, drawn when the bar lies in the area at one of the positions.
struct ToolBarLine
{
    Qt::ToolBarArea area;
    uint positions;
    QRgb color;
    Edge edge;
    int distance; ///< from the edge inwards
};

constexpr QRgb light = StyleColors::lightShade;
constexpr QRgb shadow = StyleColors::darkShade;

constexpr ToolBarLine toolBarLines[] = {
    {Qt::TopToolBarArea, end | onlyOne, light, Bottom, 0},
    {Qt::TopToolBarArea, end | onlyOne, shadow, Bottom, 1},
    {Qt::TopToolBarArea, beginning | middle, shadow, Bottom, 0},
    {Qt::TopToolBarArea, beginning | middle | end | onlyOne, light, Top, 0},
    {Qt::BottomToolBarArea, end | middle, shadow, Bottom, 0},
    {Qt::BottomToolBarArea, beginning | onlyOne, shadow, Bottom, 1},
    {Qt::BottomToolBarArea, beginning | onlyOne, light, Bottom, 0},
    {Qt::BottomToolBarArea, end, shadow, Top, 0},
    {Qt::BottomToolBarArea, end, light, Top, 1},
    {Qt::BottomToolBarArea, beginning | middle | onlyOne, light, Top, 0},
    {Qt::LeftToolBarArea, middle | end, light, Left, 0},
    {Qt::LeftToolBarArea, end, shadow, Right, 1},
    {Qt::LeftToolBarArea, end, light, Right, 0},
    {Qt::LeftToolBarArea, beginning | middle | onlyOne, shadow, Right, 0},
    {Qt::RightToolBarArea, middle | end, shadow, Right, 0},
    {Qt::RightToolBarArea, end | onlyOne, shadow, Left, 0},
    {Qt::RightToolBarArea, end | onlyOne, light, Left, 1},
    {Qt::RightToolBarArea, beginning | middle, light, Left, 0},
};

/// The row or column of units \a distance inwards from an edge of \a r.
QRect edgeUnits(const QRect &r, Edge edge, int distance)
{
    switch (edge) {
    case Top:
        return QRect(r.left(), r.top() + distance, r.width(), 1);
    case Bottom:
        return QRect(r.left(), r.bottom() - distance, r.width(), 1);
    case Left:
        return QRect(r.left() + distance, r.top(), 1, r.height());
    case Right:
        break;
    }
    return QRect(r.right() - distance, r.top(), 1, r.height());
}

void paintToolBarLines(QPainter *painter, const QStyleOptionToolBar &toolBar)
{
    for (const ToolBarLine &line : toolBarLines) {
        if (line.area == toolBar.toolBarArea && (line.positions & at(toolBar.positionOfLine))) {
            painter->fillRect(edgeUnits(toolBar.rect, line.edge, line.distance),
                              QColor::fromRgba(line.color));
        }
    }
}

QBrush toolBarFill(const PaintCall &call)
{
    const QRect &r = call.rect();
    const QColor window = call.color(QPalette::Window);
    QLinearGradient gradient = ThemePaint::verticalGradient(
        r.top(), r.bottom(), {{0.0, window.lighter(104)}, {1.0, window}});
    if (!call.has(QStyle::State_Horizontal)) {
        gradient.setStart(r.left(), r.center().y());
        gradient.setFinalStop(r.right(), r.center().y());
    }
    return gradient;
}

template <typename Shows>
QVector<QPoint> sizeGripCorners(Shows shows)
{
    QVector<QPoint> corners;
    for (int x = firstDot; x < dotsEnd; x += dotStep) {
        for (int y = firstDot; y < dotsEnd; y += dotStep) {
            if (shows(x, y))
                corners << QPoint(x, y);
        }
    }
    return corners;
}

template <typename At>
QVector<QPoint> splitterCorners(At at)
{
    QVector<QPoint> corners;
    for (int position = firstDot; position < dotsEnd; position += dotStep)
        corners << at(position);
    return corners;
}

} // namespace

void paintSizeGrip(const PaintCall &call)
{
    static const GripDots leftToRight(sizeGripCorners([](int x, int y) { return x > -y; }));
    static const GripDots rightToLeft(sizeGripCorners([](int x, int y) { return y > x; }));
    (call.isRightToLeft() ? rightToLeft : leftToRight).paint(call.painter, call.rect().center());
}

void paintSplitter(const PaintCall &call)
{
    static const GripDots across(splitterCorners([](int position) { return QPoint(1, position); }));
    static const GripDots along(splitterCorners([](int position) { return QPoint(position, 0); }));
    const QRect &r = call.rect();
    if (r.width() > 1 && r.height() > 1)
        (call.has(QStyle::State_Horizontal) ? across : along).paint(call.painter, r.center());
}

void paintRubberBand(const PaintCall &call)
{
    if (!call.as<QStyleOptionRubberBand>())
        return;
    const QColor highlight = call.palette().color(QPalette::Active, QPalette::Highlight);
    const bool isTopLevel = call.widget && call.widget->isWindow();
    const QColor fill = rubberBandFill(highlight, isTopLevel);
    const QRect &r = call.rect();
    const QRect inner = r.adjusted(1, 1, -1, -1);
    fillBand(call.painter, r, fill);
    drawBandLine(call.painter, r,
                 StyleColors::withAlpha(highlight.darker(120), rubberBandOutlineAlpha));
    fillBand(call.painter, inner, fill);
    drawBandLine(call.painter, inner, QColor::fromRgba(rubberBandContrast));
}

void paintDockWidgetTitle(const PaintCall &call)
{
    const auto *dockWidget = call.as<QStyleOptionDockWidget>();
    if (!dockWidget || dockWidget->title.isEmpty())
        return;
    const PainterSaver saver(call.painter);
    QRect title =
        call.style->subElementRect(QStyle::SE_DockWidgetTitleBarText, dockWidget, call.widget);
    if (dockWidget->verticalTitleBar)
        title = turnTitle(call, title);
    const QString text =
        KeptText::elided(call.painter->font(), dockWidget->title, Qt::ElideRight, title.width());
    call.drawText(title, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text,
                  QPalette::WindowText);
}

void paintToolBar(const PaintCall &call)
{
    const auto *toolBar = call.as<QStyleOptionToolBar>();
    if (!toolBar || (call.widget && !qobject_cast<QMainWindow *>(call.widget->parentWidget())))
        return;
    call.painter->fillRect(toolBar->rect, toolBarFill(call));
    paintToolBarLines(call.painter, *toolBar);
}

} // namespace Nocturne::StylePaint
