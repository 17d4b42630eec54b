#include "stylecolors_p.h"
#include "styleelements_p.h"
#include "stylehelpers_p.h"

#include <nocturne/painting/themepaint_p.h>

#include <QtCore/QtMath>

#include <QtGui/QPainterPath>
#include <initializer_list>

namespace Nocturne::StylePaint {

namespace {

constexpr int pressedBaseShare = 85; // percent; the rest is WindowText

constexpr qreal checkMarkWidth = 1.8;
constexpr int checkMarkMargin = 3;
constexpr int partialTopAlpha = 80;
constexpr int partialBottomAlpha = 140;
constexpr int partialOutlineAlpha = 180;

constexpr qreal radioDotShare = 2.32; // the radio button's radius over its dot's
constexpr int radioDotOutlineAlpha = 200;
constexpr int radioDotAlpha = 180;

constexpr int toolBarSeparatorMargin = 6;

QColor pressedColor(const PaintCall &call)
{
    return StyleColors::mergedColors(call.color(QPalette::Base), call.color(QPalette::WindowText),
                                     pressedBaseShare);
}

QColor checkColor(const PaintCall &call)
{
    return call.color(QPalette::Text).darker(120);
}

void paintCheckBoxField(QPainter *painter, const PaintCall &call, const QRect &r)
{
    if (call.has(QStyle::State_Sunken)) {
        painter->setBrush(pressedColor(call));
    } else {
        const QColor base = call.color(QPalette::Base);
        const QLinearGradient gradient = ThemePaint::verticalGradient(
            r.top(), r.bottom(), {{0.0, base.darker(115)}, {0.15, base}, {1.0, base}});
        painter->setBrush(gradient);
    }
    painter->setPen(call.hasKeyboardFocus()
                        ? StyleColors::highlightedOutlineColor(call.palette())
                        : StyleColors::outlineColor(call.palette()).lighter(110));
    painter->drawRect(r);
}

void paintPartialMark(QPainter *painter, const QColor &check, const QRect &r, int margin)
{
    const QLinearGradient gradient =
        ThemePaint::verticalGradient(r.top(), r.bottom(),
                                     {{0.0, StyleColors::withAlpha(check, partialTopAlpha)},
                                      {1.0, StyleColors::withAlpha(check, partialBottomAlpha)}});
    painter->setPen(StyleColors::withAlpha(check, partialOutlineAlpha));
    painter->setBrush(gradient);
    painter->drawRect(r.adjusted(margin, margin, -margin, -margin));
}

void paintCheckMark(QPainter *painter, const QColor &check, const QRect &r, int margin)
{
    QPainterPath mark;
    mark.moveTo(margin + 2, r.height() * 0.5);
    mark.lineTo(r.width() * 0.5, r.height() - margin);
    mark.lineTo(r.width() - margin - 0.5, margin);
    mark.translate(r.topLeft());

    painter->setPen(QPen(check, StyleHelpers::dpiScaled(checkMarkWidth)));
    painter->setBrush(Qt::NoBrush);
    painter->translate(-0.8, 0.5);
    painter->drawPath(mark);
}

void paintCheckBox(QPainter *painter, const PaintCall &call)
{
    const QRect r(0, 0, call.rect().width() - 1, call.rect().height() - 1);
    const int margin = int(StyleHelpers::dpiScaled(checkMarkMargin));
    beginSharpAntialiasing(painter);
    paintCheckBoxField(painter, call, r);
    if (call.has(QStyle::State_NoChange))
        paintPartialMark(painter, checkColor(call), r, margin);
    else if (call.has(QStyle::State_On))
        paintCheckMark(painter, checkColor(call), r, margin);
}

void paintRadioButton(QPainter *painter, const PaintCall &call, const QPointF &centre, qreal radius)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(call.has(QStyle::State_Sunken) ? pressedColor(call)
                                                     : call.color(QPalette::Base));
    painter->setPen(call.hasKeyboardFocus() ? StyleColors::highlightedOutlineColor(call.palette())
                                            : call.color(QPalette::Window).darker(150));
    painter->drawEllipse(centre, radius, radius);
    if (call.has(QStyle::State_On)) {
        const QColor check = checkColor(call);
        painter->setPen(StyleColors::withAlpha(check, radioDotOutlineAlpha));
        painter->setBrush(StyleColors::withAlpha(check, radioDotAlpha));
        painter->drawEllipse(centre, radius / radioDotShare, radius / radioDotShare);
    }
}

QVector<QPoint> dotGrid(std::initializer_list<int> columns, std::initializer_list<int> rows)
{
    QVector<QPoint> corners;
    for (const int x : columns) {
        for (const int y : rows)
            corners << QPoint(x, y);
    }
    return corners;
}

} // namespace

void paintIndicatorArrowDown(const PaintCall &call)
{
    StyleHelpers::drawArrowImage(QStyle::PE_IndicatorArrowDown, call.painter, call.option);
}

void paintIndicatorArrowLeft(const PaintCall &call)
{
    StyleHelpers::drawArrowImage(QStyle::PE_IndicatorArrowLeft, call.painter, call.option);
}

void paintIndicatorArrowRight(const PaintCall &call)
{
    StyleHelpers::drawArrowImage(QStyle::PE_IndicatorArrowRight, call.painter, call.option);
}

void paintIndicatorArrowUp(const PaintCall &call)
{
    StyleHelpers::drawArrowImage(QStyle::PE_IndicatorArrowUp, call.painter, call.option);
}

void paintIndicatorBranch(const PaintCall &call)
{
    if (!call.has(QStyle::State_Children))
        return;
    const auto arrow = call.has(QStyle::State_Open) ? QStyle::PE_IndicatorArrowDown
                                                    : QStyle::PE_IndicatorArrowRight;
    call.style->drawPrimitive(arrow, call.option, call.painter, call.widget);
}

void paintIndicatorCheckBox(const PaintCall &call)
{
    if (!call.as<QStyleOptionButton>())
        return;
    const QRect &r = call.rect();
    StyleHelpers::drawKept(call.painter, r.topLeft(), QStringLiteral("checkbox"), call.option,
                           r.size(), [&call](QPainter *painter) { paintCheckBox(painter, call); });
}

void paintIndicatorDockWidgetResizeHandle(const PaintCall &call)
{
    QStyleOption splitter(*call.option);
    splitter.state ^= QStyle::State_Horizontal;
    call.drawControl(QStyle::CE_Splitter, splitter);
}

void paintIndicatorHeaderArrow(const PaintCall &call)
{
    const auto *header = call.as<QStyleOptionHeader>();
    if (!header || header->sortIndicator == QStyleOptionHeader::None)
        return;
    const int rotation = header->sortIndicator == QStyleOptionHeader::SortUp ? 180 : 0;
    const QPixmap arrow = StyleHelpers::colorizedImage(StyleHelpers::arrowImageFileName(),
                                                       call.color(QPalette::WindowText), rotation);
    if (arrow.isNull())
        return;
    QRect target(0, 0, arrow.width() / 2, arrow.height() / 2);
    target.moveCenter(call.rect().center());
    call.painter->drawPixmap(target.translated(0, -1), arrow);
}

void paintIndicatorItemViewItemCheck(const PaintCall &call)
{
    QStyleOptionButton button;
    button.state = call.option->state & ~QStyle::State_MouseOver;
    button.direction = call.option->direction;
    button.rect = call.option->rect;
    button.fontMetrics = call.option->fontMetrics;
    button.palette = call.option->palette;
    button.styleObject = call.option->styleObject;
    call.drawPrimitive(QStyle::PE_IndicatorCheckBox, button);
}

void paintIndicatorRadioButton(const PaintCall &call)
{
    const int width = call.rect().width();
    const QPoint centre = call.rect().center() + QPoint(1, 1);
    // An even width has no middle unit: the circle is that of the next odd one.
    const qreal radius = (width + (width + 1) % 2) * 0.5 - 1.0;
    // The square around the circle and its line, which may reach out of the rectangle.
    const int reach = qCeil(radius + 0.5);
    const QSize size(2 * reach, 2 * reach);
    StyleHelpers::drawKept(
        call.painter, centre - QPoint(reach, reach), QStringLiteral("radiobutton"), call.option,
        size,
        [&](QPainter *painter) { paintRadioButton(painter, call, QPointF(reach, reach), radius); });
}

void paintIndicatorToolBarHandle(const PaintCall &call)
{
    static const GripDots upright(dotGrid({-3, 0}, {-8, -5, -2, 1, 4, 7}));
    static const GripDots lying(dotGrid({-6, -3, 0, 3, 6, 9}, {-3, 0}));
    (call.has(QStyle::State_Horizontal) ? upright : lying)
        .paint(call.painter, call.rect().center());
}

void paintIndicatorToolBarSeparator(const PaintCall &call)
{
    const QRect &r = call.rect();
    const QColor window = call.color(QPalette::Window);
    const int margin = toolBarSeparatorMargin;
    QLine dark;
    QPoint lightOffset;
    if (call.has(QStyle::State_Horizontal)) {
        const int x = r.left() + r.width() / 2;
        dark = QLine(x, r.bottom() - margin, x, r.top() + margin);
        lightOffset = QPoint(1, 0);
    } else {
        const int y = r.top() + r.height() / 2;
        dark = QLine(r.left() + margin, y, r.right() - margin, y);
        lightOffset = QPoint(0, 1);
    }
    call.painter->setPen(window.darker(110));
    call.painter->drawLine(dark);
    call.painter->setPen(window.lighter(110));
    call.painter->drawLine(dark.translated(lightOffset));
}

} // namespace Nocturne::StylePaint
