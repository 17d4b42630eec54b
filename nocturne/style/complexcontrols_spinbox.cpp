#include "stylecolors_p.h"
#include "styleelements_p.h"

namespace Nocturne::StylePaint {
namespace {

constexpr int wellShift = -11; // from the Window colour

void paintSpinBoxWell(QPainter *painter, const QStyleOptionSpinBox &option)
{
    const PainterSaver saver(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(0.5, 0.5);
    painter->setPen(Qt::NoPen);
    painter->setBrush(StyleColors::window(option.palette, wellShift));
    const QRect field = option.rect.adjusted(0, 1, 0, -1);
    painter->drawRoundedRect(field.adjusted(2, 1, -2, -1), 6, 6);
}

void paintSpinBoxSeparator(QPainter *painter, const QStyleOptionSpinBox &option, const QRect &up,
                           const QRect &down)
{
    painter->setPen(StyleColors::outlineColor(option.palette));
    const int x = option.direction == Qt::RightToLeft ? up.right() : up.left();
    painter->drawLine(x, up.top() - 1, x, down.bottom() + 1);
}

void paintSpinBoxSunkenEdges(QPainter *painter, const QStyleOptionSpinBox &option, const QRect &up,
                             const QRect &down)
{
    if (!(option.state & QStyle::State_Sunken))
        return;
    const QColor edge = StyleColors::gradientStopColor(option.palette);
    if (option.activeSubControls == QStyle::SC_SpinBoxUp) {
        painter->setPen(edge.darker(130));
        painter->drawLine(down.left() + 1, down.top(), down.right(), down.top());
        painter->drawLine(up.left() + 1, up.top(), up.left() + 1, up.bottom());
        painter->drawLine(up.left() + 1, up.top() - 1, up.right(), up.top() - 1);
    } else if (option.activeSubControls == QStyle::SC_SpinBoxDown) {
        painter->setPen(edge.darker(130));
        painter->drawLine(down.left() + 1, down.top(), down.left() + 1, down.bottom() + 1);
        painter->drawLine(down.left() + 1, down.top(), down.right(), down.top());
        painter->setPen(edge.darker(110));
        painter->drawLine(down.left() + 1, down.bottom() + 1, down.right(), down.bottom() + 1);
    }
}

void paintSpinBoxPlusMinus(QPainter *painter, const QRect &up, const QColor &upColor,
                           const QRect &down, const QColor &downColor)
{
    const QPoint plus = up.center();
    painter->setPen(upColor);
    painter->drawLine(plus.x() - 1, plus.y(), plus.x() + 3, plus.y());
    painter->drawLine(plus.x() + 1, plus.y() - 2, plus.x() + 1, plus.y() + 2);

    const QPoint minus = down.center();
    painter->setPen(downColor);
    painter->drawLine(minus.x() - 1, minus.y(), minus.x() + 3, minus.y());
}

void paintSpinBoxArrow(QPainter *painter, const QRect &button, const QColor &color, int rotation)
{
    drawArrow(painter, QPointF(button.center()) + QPointF(1.0, 1.0), color, rotation);
}

void paintSpinBoxGlyphs(QPainter *painter, const QStyleOptionSpinBox &option, const QRect &up,
                        const QRect &down)
{
    const QColor arrow = StyleColors::arrowColor(option.palette);
    const QColor disabled =
        StyleColors::mergedColors(arrow, option.palette.color(QPalette::Button), 50);
    const QColor upColor = option.stepEnabled & QAbstractSpinBox::StepUpEnabled ? arrow : disabled;
    const QColor downColor =
        option.stepEnabled & QAbstractSpinBox::StepDownEnabled ? arrow : disabled;
    if (option.buttonSymbols == QAbstractSpinBox::PlusMinus) {
        paintSpinBoxPlusMinus(painter, up, upColor, down, downColor);
    } else {
        const PainterSaver saver(painter);
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        paintSpinBoxArrow(painter, up, upColor, 0);
        paintSpinBoxArrow(painter, down, downColor, 180);
    }
}

} // namespace

void paintSpinBox(const PaintCall &call)
{
    const auto *option = call.as<QStyleOptionSpinBox>();
    if (!option)
        return;
    const QSize size = option->rect.size();
    const QString key = StyleHelpers::styleCacheKey(QStringLiteral("spinbox"), option, size);
    const auto paint = [&](QPainter *cached) {
        QStyleOptionSpinBox local(*option);
        local.rect = QRect(QPoint(), size);
        if (local.frame)
            paintSpinBoxWell(cached, local);
        // Without buttons there is nothing to separate, and no place for the line.
        if (local.buttonSymbols == QAbstractSpinBox::NoButtons)
            return;

        const QRect up = call.subControlRect(QStyle::CC_SpinBox, local, QStyle::SC_SpinBoxUp);
        const QRect down = call.subControlRect(QStyle::CC_SpinBox, local, QStyle::SC_SpinBoxDown);
        paintSpinBoxSeparator(cached, local, up, down);
        paintSpinBoxSunkenEdges(cached, local, up, down);
        paintSpinBoxGlyphs(cached, local, up, down);
    };
    StyleHelpers::drawCached(call.painter, option->rect.topLeft(), key, size, paint);
}

} // namespace Nocturne::StylePaint
