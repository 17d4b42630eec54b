#include "rangeslider_p.h"

#include "groovemapping_p.h"
#include "handlemove_p.h"

#include <nocturne/painting/themepaint_p.h>

#include <QtCore/QPointer>
#include <QtGui/QHelpEvent>
#include <QtWidgets/QStyleOptionSlider>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QToolTip>

#include <limits>
#include <utility>

namespace {

constexpr QRgb barOutline = 0xff0b0b0b;
constexpr int barAlpha = 200;
constexpr int hoveredBarAlpha = 255;
constexpr qreal barRadius = 2.0;

/// A slider position no handle can be at, for painting the groove alone: below the range, also
/// when all of it is below zero.
int outsideRange(int minimum, int maximum)
{
    const qint64 position = qint64(minimum) - qMax(maximum, 1);
    return int(qMax<qint64>(position, std::numeric_limits<int>::min()));
}

/// Bar and handles are painted smoothly and half a unit off the pixel grid. Undone at the end of
/// the scope without the cost of saving everything else a painter knows.
class HalfUnitShift
{
public:
    explicit HalfUnitShift(QPainter *painter)
        : m_painter(painter)
    {
        m_painter->setRenderHint(QPainter::Antialiasing);
        m_painter->translate(0.5, 0.5);
    }
    ~HalfUnitShift()
    {
        m_painter->translate(-0.5, -0.5);
        m_painter->setRenderHint(QPainter::Antialiasing, false);
    }

private:
    Q_DISABLE_COPY(HalfUnitShift)

    QPainter *m_painter;
};

} // namespace

RangeSliderPrivate::RangeSliderPrivate(RangeSlider *slider)
    : q_ptr(slider)
    , gesture(slider, [this] { endGesture(); })
{}

RangeSliderPrivate::Triple RangeSliderPrivate::bounded(int minimum, int maximum, int main) const
{
    return {qBound(q_ptr->minimum(), qMin(minimum, maximum), q_ptr->maximum()),
            qBound(q_ptr->minimum(), qMax(minimum, maximum), q_ptr->maximum()), main};
}

QRect RangeSliderPrivate::handleRect(Handle handle, QStyleOptionSlider *option) const
{
    option->sliderPosition = positions[handle];
    option->sliderValue = values[handle];
    return q_ptr->style()->subControlRect(QStyle::CC_Slider, option, QStyle::SC_SliderHandle,
                                          q_ptr);
}

bool RangeSliderPrivate::isOn(Handle handle, const QPoint &point, QStyleOptionSlider *option) const
{
    option->sliderPosition = positions[handle];
    option->sliderValue = values[handle];
    return q_ptr->style()->hitTestComplexControl(QStyle::CC_Slider, option, point, q_ptr)
           == QStyle::SC_SliderHandle;
}

RangeSliderPrivate::Hit RangeSliderPrivate::hitTest(const QPoint &point,
                                                    QStyleOptionSlider *option) const
{
    const QRect minimumRect = handleRect(MinimumHandle, option);
    const QRect maximumRect = handleRect(MaximumHandle, option);

    if (isOn(MinimumHandle, point, option)) {
        if (isOn(MaximumHandle, point, option) && isOn(MainHandle, point, option)) {
            const bool horizontal = isHorizontal();
            const int toMinimum =
                horizontal ? point.x() - minimumRect.left() : minimumRect.bottom() - point.y();
            const int toMaximum =
                horizontal ? maximumRect.right() - point.x() : point.y() - maximumRect.top();
            if (toMinimum >= toMaximum)
                return {MaximumHandle, maximumRect};
        }
        return {MinimumHandle, minimumRect};
    }
    if (isOn(MaximumHandle, point, option))
        return {MaximumHandle, maximumRect};
    if (isOn(MainHandle, point, option))
        return {MainHandle, handleRect(MainHandle, option)};
    return {NoHandle, minimumRect.united(maximumRect)};
}

void RangeSliderPrivate::grab(const Hit &hit, const QPoint &point)
{
    pressPosition = positions[hit.handle];
    clickOffset = along(point) - along(hit.rect.topLeft());
    q_ptr->setSliderDown(true);
    if (!gesture.isRunning())
        return; // A receiver ended the gesture.
    if (grabbed != hit.handle) {
        grabbed = hit.handle;
        q_ptr->update(hit.rect);
    }
}

/// Moves the main handle to the pointer and grabs it there.
void RangeSliderPrivate::jumpTo(const QPoint &point, QStyleOptionSlider *option)
{
    const Nocturne::GrooveMapping mapping(q_ptr->style(), *option, q_ptr->orientation(), nullptr);
    const Triple before = values;
    const QPointer<RangeSlider> slider(q_ptr);
    q_ptr->setValues(positions[MinimumHandle], positions[MaximumHandle],
                     mapping.valueAtMiddle(along(point)));
    if (!slider)
        return;
    gestureChangedValue = values != before;
    if (!gesture.isRunning())
        return;

    pressPosition = positions[MainHandle];
    clickOffset = along(point) - along(hitTest(point, option).rect.topLeft());
    q_ptr->setSliderDown(true);
    if (!gesture.isRunning())
        return;
    grabbed = MainHandle;
    q_ptr->update();
}

void RangeSliderPrivate::dragTo(const QPoint &point, const QStyleOptionSlider &option)
{
    if (!isHandleEnabled(grabbed))
        return; // The range was turned off meanwhile.
    const int target = valueUnderDrag(point, option);
    const Triple before = values;
    Triple moved = positions;

    if (grabbed == MainHandle) {
        moved[MainHandle] = target;
    } else {
        const Handle other = grabbed == MinimumHandle ? MaximumHandle : MinimumHandle;
        moved[grabbed] = grabbed == MinimumHandle ? qMin(target, positions[other])
                                                  : qMax(target, positions[other]);
        // May lead out of the numbers a handle can have.
        if (symmetricMoves) {
            moved[other] = int(qBound<double>(
                q_ptr->minimum(), double(positions[other]) + positions[grabbed] - moved[grabbed],
                q_ptr->maximum()));
        }
    }
    const QPointer<RangeSlider> slider(q_ptr);
    q_ptr->setPositions(moved[MinimumHandle], moved[MaximumHandle], moved[MainHandle]);

    if (slider && values != before)
        gestureChangedValue = true;
}

int RangeSliderPrivate::valueUnderDrag(const QPoint &point, const QStyleOptionSlider &option) const
{
    const int distance =
        q_ptr->style()->pixelMetric(QStyle::PM_MaximumDragDistance, &option, q_ptr);
    const QRect area = q_ptr->rect().adjusted(-distance, -distance, distance, distance);
    if (distance >= 0 && !area.contains(point))
        return pressPosition;
    return Nocturne::GrooveMapping(q_ptr->style(), option, q_ptr->orientation(), q_ptr)
        .valueAtLeadingEdge(along(point) - clickOffset);
}

void RangeSliderPrivate::updateHandles(QStyleOptionSlider *option)
{
    for (Handle handle : {MinimumHandle, MaximumHandle, MainHandle}) {
        if (positions[handle] != shown[handle])
            Nocturne::repaintMove(q_ptr, shownRects[handle], handleRect(handle, option));
    }
}

void RangeSliderPrivate::endGesture()
{
    gesture.end();
    const QPointer<RangeSlider> slider(q_ptr);
    Q_EMIT q_ptr->mouseReleased(code(grabbed));
    if (!slider)
        return;
    q_ptr->setSliderDown(false);
    grabbed = NoHandle;
    q_ptr->update();

    if (gestureChangedValue) {
        gestureChangedValue = false;
        Q_EMIT q_ptr->valuesChanged(values[MinimumHandle], values[MaximumHandle],
                                    values[MainHandle]);
    }
}

void RangeSliderPrivate::reportHover(const QPoint &point, const QStyleOptionSlider &option)
{
    // Along x values grow with the coordinate, whatever the appearance; down a vertical slider they
    // run the way they are drawn.
    const int length = isHorizontal() ? q_ptr->width() : q_ptr->height();
    const bool upsideDown = !isHorizontal() && option.upsideDown;
    const int hoverValue = QStyle::sliderValueFromPosition(q_ptr->minimum(), q_ptr->maximum(),
                                                           along(point), length, upsideDown);
    if (hoverValue == lastHoverValue)
        return;
    lastHoverValue = hoverValue;
    Q_EMIT q_ptr->sliderMoveChanged(point.x(), point.y(), hoverValue);
}

bool RangeSliderPrivate::showHandleToolTip(const QHelpEvent *event,
                                           QStyleOptionSlider *option) const
{
    if (handleToolTip.isEmpty())
        return false;
    for (Handle handle : {MinimumHandle, MaximumHandle}) {
        if (isOn(handle, event->pos(), option)) {
            QToolTip::showText(event->globalPos(),
                               QString(handleToolTip)
                                   .replace(QLatin1String("%1"), QString::number(values[handle])));
            return true;
        }
    }
    return false;
}

/// Where the bar between the range handles goes: four units thick on the middle of the groove,
/// from handle centre to handle centre, a little longer while there are no handles to cover its
/// ends.
QRect RangeSliderPrivate::barRect(QStyleOptionSlider *option) const
{
    const QPoint a = shownRects[MinimumHandle].center();
    const QPoint b = shownRects[MaximumHandle].center();
    const QRect groove =
        q_ptr->style()->subControlRect(QStyle::CC_Slider, option, QStyle::SC_SliderGroove, q_ptr);
    const QPoint middle = groove.center();

    QRect box;
    if (isHorizontal()) {
        box = QRect(QPoint(qMin(a.x(), b.x()), middle.y() - 2),
                    QPoint(qMax(a.x(), b.x()), middle.y() + 1));
    } else {
        box = QRect(QPoint(middle.x() - 2, qMin(a.y(), b.y())),
                    QPoint(middle.x() + 1, qMax(a.y(), b.y())));
    }
    const int overhang = rangeEnabled ? 0 : 4;
    return box.intersected(groove).adjusted(-overhang, 1, overhang, 2);
}

void RangeSliderPrivate::drawGroove(QStylePainter *painter, QStyleOptionSlider *option) const
{
    option->subControls = QStyle::SC_SliderGroove;
    option->sliderValue = option->sliderPosition = outsideRange(q_ptr->minimum(), q_ptr->maximum());
    // Styles put what is outside the range where the pixels start. Upside down that would be the
    // far end, with the whole groove filled.
    const bool upsideDown = std::exchange(option->upsideDown, false);
    painter->drawComplexControl(QStyle::CC_Slider, *option);
    option->upsideDown = upsideDown;

    for (Handle handle : {MinimumHandle, MaximumHandle, MainHandle})
        shownRects[handle] = handleRect(handle, option);
    shown = positions;
    QColor fill(Nocturne::ThemePaint::accentBlue);
    fill.setAlpha(option->state & QStyle::State_MouseOver ? hoveredBarAlpha : barAlpha);
    bar.drawStretched(painter, barRect(option), q_ptr->orientation(), {fill.rgba()},
                      [&fill](QPainter *target, const QRect &rect) {
                          const HalfUnitShift shift(target);
                          target->setPen(QColor(barOutline));
                          target->setBrush(fill);
                          target->drawRoundedRect(rect, barRadius, barRadius, Qt::AbsoluteSize);
                      });
}

void RangeSliderPrivate::drawHandle(Handle handle, QStylePainter *painter,
                                    QStyleOptionSlider *option) const
{
    option->sliderPosition = positions[handle];
    option->sliderValue = values[handle];
    if (handle == MainHandle) {
        option->subControls = QStyle::SC_SliderHandle;
        if (grabbed == MainHandle) {
            option->activeSubControls = QStyle::SC_SliderHandle;
            option->state |= QStyle::State_Sunken;
        }
        const HalfUnitShift shift(painter);
        painter->drawComplexControl(QStyle::CC_Slider, *option);
        return;
    }

    // A range handle is an upright bar in the middle of where the style would put a knob.
    const QRect knob =
        q_ptr->style()->subControlRect(QStyle::CC_Slider, option, QStyle::SC_SliderHandle, q_ptr);
    rangeHandle.draw(painter, knob.adjusted(5, 0, -6, 0), {},
                     [](QPainter *target, const QRect &rect) {
                         const HalfUnitShift shift(target);
                         target->setPen(Qt::NoPen);
                         target->setBrush(Qt::green);
                         target->drawRect(rect);
                     });
}
