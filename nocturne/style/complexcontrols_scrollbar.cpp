#include "stylecolors_p.h"
#include "styleelements_p.h"

namespace Nocturne::StylePaint {
namespace {

// From the Window colour.
constexpr int grooveShift = -12;
constexpr int handleShift = 20;
constexpr int hoveredHandleShift = 40;

/// A scroll bar about to be painted: what its paint functions share.
struct ScrollBar
{
    const PaintCall &call;
    const QStyleOptionSlider &option;
    bool horizontal;
    bool rightToLeft;

    QRect part(QStyle::SubControl subControl) const
    {
        return call.subControlRect(QStyle::CC_ScrollBar, option, subControl);
    }
    bool isRequested(QStyle::SubControl subControl) const
    {
        return option.subControls & subControl;
    }
    bool isActive(QStyle::SubControl subControl) const
    {
        return option.activeSubControls & subControl;
    }
    bool isSunken() const { return option.state & QStyle::State_Sunken; }
    bool isHovered() const { return option.state & QStyle::State_MouseOver; }
};

/// Keeps what the bar last showed in dynamic properties of its style object, where the toolkit's
/// fading of transient bars looks for it.
void rememberTransientState(const QStyleOptionSlider &option)
{
    QObject *object = option.styleObject;
    const int state = int(option.state);
    const uint controls = uint(option.activeSubControls);
    const bool unchanged = controls == 0 && !(option.state & QStyle::State_On)
                           && object->property("_q_stylepos").toInt() == option.sliderPosition
                           && object->property("_q_stylemin").toInt() == option.minimum
                           && object->property("_q_stylemax").toInt() == option.maximum
                           && object->property("_q_stylerect").toRect() == option.rect
                           && object->property("_q_stylestate").toInt() == state
                           && object->property("_q_stylecontrols").toUInt() == 0;
    if (unchanged)
        return;
    object->setProperty("_q_stylepos", option.sliderPosition);
    object->setProperty("_q_stylemin", option.minimum);
    object->setProperty("_q_stylemax", option.maximum);
    object->setProperty("_q_stylerect", option.rect);
    object->setProperty("_q_stylestate", state);
    object->setProperty("_q_stylecontrols", controls);
}

/// The part of \a rect that a transient bar paints on; the rest shows the contents beneath.
QRect transientRect(const ScrollBar &bar, QRect rect)
{
    if (bar.horizontal)
        rect.setTop(int(rect.top() + 5.5));
    else
        rect.setLeft(int(rect.left() + 5.5));
    return rect;
}

void paintScrollBarGroove(const ScrollBar &bar, QPainter *painter, const QRect &groove)
{
    if (groove.isEmpty())
        return;
    const PainterSaver saver(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillRect(groove, StyleColors::window(bar.option.palette, grooveShift));
}

void paintTransientScrollBarHandle(const ScrollBar &bar, QPainter *painter, const QRect &slider)
{
    const QRect area =
        bar.horizontal ? slider.adjusted(1, 2, -1, -1) : slider.adjusted(2, 1, -1, -1);
    if (area.isEmpty())
        return;
    const qreal radius = qMin(area.width(), area.height()) / 2.0;
    const PainterSaver saver(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(StyleColors::window(bar.option.palette,
                                          bar.isHovered() ? hoveredHandleShift : handleShift));
    painter->drawRoundedRect(area.adjusted(-1, 0, 0, 0), radius, radius);
}

void paintTransientScrollBar(const ScrollBar &bar, QPainter *painter)
{
    if (bar.option.styleObject)
        rememberTransientState(bar.option);
    paintScrollBarGroove(bar, painter, transientRect(bar, bar.part(QStyle::SC_ScrollBarGroove)));
    if (bar.isRequested(QStyle::SC_ScrollBarSlider)) {
        paintTransientScrollBarHandle(bar, painter,
                                      transientRect(bar, bar.part(QStyle::SC_ScrollBarSlider)));
    }
}

/// The fills of a solid bar. The gradients run across the bar, along its slider.
struct SolidFills
{
    SolidFills(const ScrollBar &bar, const QRect &slider);

    QLinearGradient plain;
    QLinearGradient highlighted;
    QColor pressed; ///< gradientStopColor
    QColor middle;
    QColor outline;
};

SolidFills::SolidFills(const ScrollBar &bar, const QRect &slider)
    : plain(bar.horizontal ? QPointF(slider.center().x(), slider.top())
                           : QPointF(slider.left(), slider.center().y()),
            bar.horizontal ? QPointF(slider.center().x(), slider.bottom())
                           : QPointF(slider.right(), slider.center().y()))
    , highlighted(plain.start(), plain.finalStop())
    , pressed(StyleColors::gradientStopColor(bar.option.palette))
    , outline(StyleColors::withAlpha(StyleColors::outlineColor(bar.option.palette), 180))
{
    const QColor button = StyleColors::buttonColor(bar.option.palette);
    plain.setStops({{0.0, button.lighter(108)}, {1.0, button}});
    const QColor start = StyleColors::gradientStartColor(bar.option.palette);
    highlighted.setStops({{0.0, start.darker(102)}, {1.0, pressed.lighter(102)}});
    middle = StyleColors::mergedColors(start, pressed, 40);
}

void paintScrollBarHandle(const ScrollBar &bar, QPainter *painter, const QRect &slider,
                          const SolidFills &fills)
{
    const bool active = bar.isActive(QStyle::SC_ScrollBarSlider);
    painter->setPen(fills.outline);
    if (bar.isSunken() && active)
        painter->setBrush(fills.middle);
    else
        painter->setBrush(bar.isHovered() && active ? fills.highlighted : fills.plain);
    painter->drawRect(bar.horizontal ? slider.adjusted(-1, 0, 0, 1) : slider.adjusted(0, -1, 1, 0));

    painter->setBrush(Qt::NoBrush);
    painter->setPen(QColor::fromRgba(StyleColors::innerContrastLine));
    painter->drawRect(bar.horizontal ? slider.adjusted(0, 1, -1, -1)
                                     : slider.adjusted(1, 0, -1, -1));
}

void paintScrollBarButtonFill(const ScrollBar &bar, QPainter *painter, const QRect &button,
                              const QBrush &fill)
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(fill);
    painter->drawRect(bar.horizontal ? button.adjusted(0, 1, 0, 0) : button.adjusted(1, 0, 0, 0));
    painter->setBrush(Qt::NoBrush);
}

/// Where a bar ends that is bounded on the side of its sub-line button.
void paintScrollBarSubLineEdge(const ScrollBar &bar, QPainter *painter, QRect slider,
                               const QRect &button)
{
    if (!bar.horizontal) {
        slider.setBottom(button.bottom());
        painter->drawLine(slider.bottomLeft(), slider.bottomRight());
    } else if (bar.rightToLeft) {
        slider.setLeft(button.left());
        painter->drawLine(slider.topLeft(), slider.bottomLeft());
    } else {
        slider.setRight(button.right());
        painter->drawLine(slider.topRight(), slider.bottomRight());
    }
}

void paintScrollBarAddLineEdge(const ScrollBar &bar, QPainter *painter, QRect slider,
                               const QRect &button)
{
    if (!bar.horizontal) {
        slider.setTop(button.top());
        painter->drawLine(slider.topLeft(), slider.topRight());
    } else if (bar.rightToLeft) {
        slider.setRight(button.right());
        painter->drawLine(slider.topRight(), slider.bottomRight());
    } else {
        slider.setLeft(button.left());
        painter->drawLine(slider.topLeft(), slider.bottomLeft());
    }
}

void paintScrollBarSubLine(const ScrollBar &bar, QPainter *painter, const QRect &slider,
                           const SolidFills &fills)
{
    const QRect button = bar.part(QStyle::SC_ScrollBarSubLine);
    if (button.isEmpty())
        return;
    QBrush fill = fills.plain;
    if (bar.isActive(QStyle::SC_ScrollBarSubLine))
        fill = bar.isSunken() ? QBrush(fills.pressed) : QBrush(fills.highlighted);
    paintScrollBarButtonFill(bar, painter, button, fill);

    painter->setPen(fills.outline);
    paintScrollBarSubLineEdge(bar, painter, slider, button);
    painter->setPen(QColor::fromRgba(StyleColors::innerContrastLine));
    painter->drawRect(bar.horizontal ? button.adjusted(0, 1, -2, -1)
                                     : button.adjusted(1, 0, -1, -2));

    int rotation = 0;
    if (bar.horizontal)
        rotation = bar.rightToLeft ? 90 : -90;
    const QPoint centre = button.translated(bar.horizontal ? -2 : -1, 0).center();
    drawArrow(painter, QPointF(centre) + QPointF(2.0, 1.0),
              StyleColors::arrowColor(bar.option.palette), rotation);
}

void paintScrollBarAddLine(const ScrollBar &bar, QPainter *painter, const QRect &slider,
                           const SolidFills &fills)
{
    const QRect button = bar.part(QStyle::SC_ScrollBarAddLine);
    if (button.isEmpty())
        return;
    QBrush fill = fills.plain;
    if (bar.isActive(QStyle::SC_ScrollBarAddLine))
        fill = bar.isSunken() ? fills.pressed : fills.middle;
    paintScrollBarButtonFill(bar, painter, button, fill);

    painter->setPen(fills.outline);
    paintScrollBarAddLineEdge(bar, painter, slider, button);
    painter->setPen(QColor::fromRgba(StyleColors::innerContrastLine));
    painter->drawRect(button.adjusted(1, 1, -1, -1));

    int rotation = 180;
    if (bar.horizontal)
        rotation = bar.rightToLeft ? -90 : 90;
    const QPoint centre = button.translated(-1, 1).center();
    drawArrow(painter, QPointF(centre) + QPointF(2.0, 0.0),
              StyleColors::arrowColor(bar.option.palette), rotation);
}

void paintSolidScrollBar(const ScrollBar &bar, QPainter *painter)
{
    paintScrollBarGroove(bar, painter, bar.part(QStyle::SC_ScrollBarGroove));

    const PainterSaver saver(painter);
    const QRect slider = bar.part(QStyle::SC_ScrollBarSlider);
    const SolidFills fills(bar, slider);
    if (bar.isRequested(QStyle::SC_ScrollBarSlider) && !slider.isEmpty())
        paintScrollBarHandle(bar, painter, slider, fills);
    if (bar.isRequested(QStyle::SC_ScrollBarSubLine))
        paintScrollBarSubLine(bar, painter, slider, fills);
    if (bar.isRequested(QStyle::SC_ScrollBarAddLine))
        paintScrollBarAddLine(bar, painter, slider, fills);
}

} // namespace

void paintScrollBar(const PaintCall &call)
{
    const auto *option = call.as<QStyleOptionSlider>();
    if (!option)
        return;
    const ScrollBar bar{call, *option, option->orientation == Qt::Horizontal,
                        option->direction == Qt::RightToLeft};
    if (call.proxy()->styleHint(QStyle::SH_ScrollBar_Transient, option, call.widget))
        paintTransientScrollBar(bar, call.painter);
    else
        paintSolidScrollBar(bar, call.painter);
}

} // namespace Nocturne::StylePaint
