#include "stylecolors_p.h"
#include "styleelements_p.h"
#include "stylehelpers_p.h"

#include <nocturne/painting/themepaint_p.h>

#include <QtWidgets/QTabBar>

namespace Nocturne::StylePaint {
namespace {

constexpr qreal tabRadius = 2.0;
constexpr int unselectedTabOffset = 2;

bool isLastTab(const QStyleOptionTab &tab)
{
    const bool runsLeft =
        tab.direction == Qt::RightToLeft
        && (tab.shape == QTabBar::RoundedNorth || tab.shape == QTabBar::RoundedSouth);
    return tab.position == (runsLeft ? QStyleOptionTab::Beginning : QStyleOptionTab::End);
}

/// The tab's rectangle reaching over the next tab's edge.
QRect overlappingRect(const PaintCall &call, const QStyleOptionTab &tab)
{
    if (tab.position == QStyleOptionTab::OnlyOneTab || isLastTab(tab))
        return tab.rect;
    const int overlap = call.style->pixelMetric(QStyle::PM_TabBarTabOverlap, &tab, call.widget);
    return tab.rect.adjusted(0, 0, overlap, 0);
}

QRect transposed(const QRect &rect)
{
    return QRect(rect.y(), rect.x(), rect.height(), rect.width());
}

bool isRounded(QTabBar::Shape shape)
{
    return shape >= QTabBar::RoundedNorth && shape <= QTabBar::RoundedEast;
}

/// What turns the painter so that a tab at any side is painted as one above its page.
QTransform uprightTurn(QTabBar::Shape shape, const QRect &rect)
{
    QTransform turn;
    switch (shape) {
    case QTabBar::RoundedSouth:
        turn.rotate(180);
        turn.translate(0, -rect.height() + 1);
        turn.scale(-1, 1);
        break;
    case QTabBar::RoundedWest:
        turn.rotate(270);
        turn.scale(-1, 1);
        break;
    case QTabBar::RoundedEast:
        turn.rotate(90);
        turn.translate(0, -rect.width() + 1);
        break;
    default:
        break;
    }
    return turn;
}

/// \a rect as the turned painter sees it.
QRect uprightRect(QTabBar::Shape shape, const QRect &rect)
{
    return shape == QTabBar::RoundedWest || shape == QTabBar::RoundedEast ? transposed(rect) : rect;
}

QGradientStops tabStops(const QColor &color, bool selected)
{
    if (selected)
        return {{0.0, color.lighter(104)}, {1.0, color}};
    return {{0.0, color.darker(108)}, {0.85, color.darker(108)}, {1.0, color.darker(116)}};
}

/// Outline, fill and the bright line inside, all cut off where the page begins.
void paintTabBody(QPainter *painter, const PaintCall &call, const QRect &rect, const QColor &color)
{
    const bool selected = call.has(QStyle::State_Selected);
    const QColor outline = StyleColors::outlineColor(call.palette());
    const QRect body = rect.adjusted(0, selected ? 0 : unselectedTabOffset, 0, 3);
    beginSharpAntialiasing(painter);
    painter->setClipRect(rect.adjusted(-1, -1, 1, selected ? -2 : -3));
    painter->setPen(selected ? outline : outline.lighter(110));
    painter->setBrush(
        ThemePaint::verticalGradient(rect.top(), rect.bottom(), tabStops(color, selected)));
    painter->drawRoundedRect(body.adjusted(0, 0, -1, -1), tabRadius, tabRadius);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QColor::fromRgba(StyleColors::innerContrastLine));
    painter->drawRoundedRect(body.adjusted(1, 1, -2, -1), tabRadius, tabRadius);
}

/// Opens a selected tab to its page: the fill runs on as far down as anything is visible.
void paintTabFoot(QPainter *painter, const QRect &rect, const QColor &color)
{
    beginSharpAntialiasing(painter);
    const QRect foot(rect.left() + 1, rect.bottom() - 1, rect.width() - 2, rect.bottom() - 1);
    if (!foot.isEmpty())
        painter->fillRect(foot, color);
    const QPoint bright[] = {rect.bottomRight() + QPoint(-2, -1), rect.bottomLeft() + QPoint(0, -1),
                             rect.bottomRight() + QPoint(-1, -1)};
    painter->setPen(QColor::fromRgba(StyleColors::innerContrastLine));
    painter->drawPoints(bright, 3);
}

} // namespace

void paintTabShape(const PaintCall &call)
{
    const auto *tab = call.as<QStyleOptionTab>();
    if (!tab)
        return;
    if (!isRounded(tab->shape)) {
        call.style->QCommonStyle::drawControl(QStyle::CE_TabBarTabShape, tab, call.painter,
                                              call.widget);
        return;
    }
    const bool hasFrame = tab->features & QStyleOptionTab::HasFrame;
    const QColor color =
        hasFrame ? StyleColors::tabFrameColor(call.palette()) : call.color(QPalette::Window);
    const QRect whole = overlappingRect(call, *tab);
    const QRect rect = uprightRect(tab->shape, whole);
    const QTransform turn = uprightTurn(tab->shape, whole);
    // What is painted may lie a unit beside the tab.
    const QRect area = turn.mapRect(rect.adjusted(-2, -2, 2, 2));
    const QString prefix =
        QLatin1String(hasFrame ? "framedtab" : "tab") + QChar(ushort(tab->shape));
    StyleHelpers::drawKept(call.painter, area.topLeft(), prefix, tab, area.size(),
                           [&](QPainter *painter) {
                               painter->translate(-area.topLeft());
                               painter->setTransform(turn, true);
                               paintTabBody(painter, call, rect, color);
                           });
    if (call.has(QStyle::State_Selected)) {
        const PainterSaver saver(call.painter);
        call.painter->setTransform(turn, true);
        paintTabFoot(call.painter, rect, color);
    }
}

} // namespace Nocturne::StylePaint
