#include "stylecolors_p.h"
#include "styleelements_p.h"
#include "stylehelpers_p.h"

#include <nocturne/painting/kepttext_p.h>
#include <nocturne/painting/themepaint_p.h>

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
    drawRoundedOutline(call.painter, r,
                       StyleColors::withAlpha(highlight.darker(120), rubberBandOutlineAlpha));
    fillBand(call.painter, inner, fill);
    drawRoundedOutline(call.painter, inner, QColor::fromRgba(rubberBandContrast));
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
