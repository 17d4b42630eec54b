#include "rangeslider.h"

#include "groovemapping_p.h"
#include "handleaccessible_p.h"
#include "rangeslider_p.h"

#include <nocturne/painting/themepaint_p.h>

#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QToolTip>

#include <algorithm>
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
    const qint64 position = static_cast<qint64>(minimum) - std::max(maximum, 1);
    return static_cast<int>(std::max<qint64>(position, std::numeric_limits<int>::min()));
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

RangeSlider::RangeSlider(QWidget *parent)
    : RangeSlider(new RangeSliderPrivate(this), parent)
{}

RangeSlider::RangeSlider(Qt::Orientation orientation, QWidget *parent)
    : RangeSlider(new RangeSliderPrivate(this), orientation, parent)
{}

RangeSlider::RangeSlider(RangeSliderPrivate *dd, QWidget *parent)
    : QSlider(parent)
    , m_private(dd)
{
    initialize();
}

RangeSlider::RangeSlider(RangeSliderPrivate *dd, Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
    , m_private(dd)
{
    initialize();
}

RangeSlider::~RangeSlider() = default;

void RangeSlider::initialize()
{
    m_private->minimumValue = m_private->minimumPosition = minimum();
    m_private->maximumValue = m_private->maximumPosition = maximum();
    setAttribute(Qt::WA_MouseTracking);
    Nocturne::HandleAccessibility::install();
}

RangeSliderPrivate *RangeSlider::d_func()
{
    return m_private.data();
}

const RangeSliderPrivate *RangeSlider::d_func() const
{
    return m_private.data();
}

int RangeSlider::minimumValue() const
{
    return m_private->minimumValue;
}

int RangeSlider::maximumValue() const
{
    return m_private->maximumValue;
}

int RangeSlider::mainValue() const
{
    return m_private->mainValue;
}

int RangeSlider::minimumPosition() const
{
    return m_private->minimumPosition;
}

int RangeSlider::maximumPosition() const
{
    return m_private->maximumPosition;
}

int RangeSlider::mainPosition() const
{
    return m_private->mainPosition;
}

void RangeSlider::setMinimumValue(int value)
{
    setValues(value, qMax(maximumValue(), value), mainValue());
}

void RangeSlider::setMaximumValue(int value)
{
    setValues(qMin(minimumValue(), value), value, mainValue());
}

void RangeSlider::setMainValue(int value)
{
    setValues(minimumValue(), maximumValue(), value);
}

void RangeSlider::setValues(int min, int max, int main)
{
    RangeSliderPrivate *d = d_func();
    const RangeSliderPrivate::Triple oldPositions = d->positions();
    const RangeSliderPrivate::Triple oldValues = d->values();
    const QPair<int, int> range = d->clampedRange(min, max);
    const RangeSliderPrivate::Triple now = {range.first, range.second, main};

    d->minimumPosition = d->minimumValue = now.minimum;
    d->maximumPosition = d->maximumValue = now.maximum;
    d->mainPosition = d->mainValue = now.main;

    if (isSliderDown() && now != oldPositions) {
        Q_EMIT positionsChanged(now.minimum, now.maximum, now.main);
        if (now.minimum != oldPositions.minimum)
            Q_EMIT minimumPositionChanged(now.minimum);
        if (now.maximum != oldPositions.maximum)
            Q_EMIT maximumPositionChanged(now.maximum);
        if (now.main != oldPositions.main)
            Q_EMIT mainPositionChanged(now.main);
    }

    if (now.minimum != oldValues.minimum) {
        Nocturne::HandleAccessibility::valueChanged(this, 0, now.minimum);
        Q_EMIT minimumValueChanged(now.minimum);
    }
    if (now.maximum != oldValues.maximum) {
        Nocturne::HandleAccessibility::valueChanged(this, 1, now.maximum);
        Q_EMIT maximumValueChanged(now.maximum);
    }
    if (now.main != oldValues.main) {
        Nocturne::HandleAccessibility::valueChanged(this, 2, now.main);
        Q_EMIT mainValueChanged(now.main);
    }

    if (now != oldPositions || now != oldValues)
        update();
}

void RangeSlider::setMinimumPosition(int position)
{
    setPositions(position, qMax(position, maximumPosition()), mainPosition());
}

void RangeSlider::setMaximumPosition(int position)
{
    setPositions(qMin(minimumPosition(), position), position, mainPosition());
}

void RangeSlider::setMainPosition(int position)
{
    setPositions(minimumPosition(), maximumPosition(), position);
}

void RangeSlider::setPositions(int min, int max, int main)
{
    RangeSliderPrivate *d = d_func();
    const RangeSliderPrivate::Triple old = d->positions();
    const QPair<int, int> range = d->clampedRange(min, max);
    const RangeSliderPrivate::Triple now = {range.first, range.second, main};
    if (now == old)
        return;

    d->minimumPosition = now.minimum;
    d->maximumPosition = now.maximum;
    d->mainPosition = now.main;

    if (!hasTracking())
        update();

    if (isSliderDown()) {
        if (now.minimum != old.minimum)
            Q_EMIT minimumPositionChanged(now.minimum);
        if (now.maximum != old.maximum)
            Q_EMIT maximumPositionChanged(now.maximum);
        if (now.main != old.main)
            Q_EMIT mainPositionChanged(now.main);
        Q_EMIT positionsChanged(now.minimum, now.maximum, now.main);
    }

    if (hasTracking()) {
        triggerAction(SliderMove);
        setValues(d->minimumPosition, d->maximumPosition, d->mainPosition);
    }
}

void RangeSlider::positionChange(int value)
{
    blockSignals(true);
    setValues(minimumValue(), maximumValue(), value);
    blockSignals(false);
}

void RangeSlider::onRangeChanged(int, int, int)
{
    setValues(minimumValue(), maximumValue(), mainValue());
}

bool RangeSlider::isMinimumSliderDown() const
{
    return m_private->selectedHandles & RangeSliderPrivate::MinimumHandle;
}

bool RangeSlider::isMaximumSliderDown() const
{
    return m_private->selectedHandles & RangeSliderPrivate::MaximumHandle;
}

bool RangeSlider::isMainSliderDown() const
{
    return m_private->selectedHandles & RangeSliderPrivate::MainHandle;
}

bool RangeSlider::symmetricMoves() const
{
    return m_private->symmetricMoves;
}

void RangeSlider::setSymmetricMoves(bool symmetric)
{
    m_private->symmetricMoves = symmetric;
}

QString RangeSlider::handleToolTip() const
{
    return m_private->handleToolTip;
}

void RangeSlider::setHandleToolTip(const QString &toolTip)
{
    m_private->handleToolTip = toolTip;
}

void RangeSlider::setEnableRange(bool enable)
{
    if (m_rangeEnabled == enable)
        return;
    m_rangeEnabled = enable;
    update();
}

double RangeSlider::frameRate() const
{
    return m_frameRate;
}

void RangeSlider::setFrameRate(double framesPerSecond)
{
    m_frameRate = framesPerSecond;
}

bool RangeSlider::isMousePressed() const
{
    return m_private->gesture.isRunning();
}

bool RangeSlider::isKeyPressed() const
{
    return m_keyPressed;
}

bool RangeSlider::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip
        && d_func()->showHandleToolTip(static_cast<QHelpEvent *>(event)))
    {
        event->accept();
        return true;
    }
    switch (event->type()) {
    case QEvent::FocusOut: // The release goes elsewhere now.
    case QEvent::Hide:
    case QEvent::WindowBlocked:
        m_keyPressed = false;
        break;
    case QEvent::EnabledChange:
        m_keyPressed = m_keyPressed && isEnabled();
        break;
    default:
        break;
    }
    return QSlider::event(event);
}

void RangeSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;

    RangeSliderPrivate *d = d_func();
    d->gesture.press(event->button());
    d->gestureChangedValue = false;
    if (minimum() == maximum() || event->button() != event->buttons()) {
        event->ignore();
        return;
    }

    const RangeSliderPrivate::Hit hit = d->hitTest(event->pos());
    Q_EMIT mousePressed(hit.handle);
    if (!isMousePressed())
        return; // A receiver hid the slider or opened a popup, which ended the gesture.

    if (hit.handle != RangeSliderPrivate::NoHandle && d->isHandleEnabled(hit.handle))
        d->grab(hit.handle, hit.rect, event->pos());
    else
        d->jumpTo(event->pos());
    event->accept();
}

void RangeSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (!isMousePressed())
        return;

    RangeSliderPrivate *d = d_func();
    if (d->selectedHandles == RangeSliderPrivate::NoHandle) {
        d->reportHover(event->pos());
        event->ignore();
    } else {
        d->dragTo(event->pos());
        event->accept();
    }
}

void RangeSlider::mouseReleaseEvent(QMouseEvent *event)
{
    QSlider::mouseReleaseEvent(event);
    // The base class held nothing and passes the release on, but the press was taken here.
    if (d_func()->selectedHandles != RangeSliderPrivate::NoHandle)
        event->accept();
    endGesture();
}

void RangeSlider::endGesture()
{
    RangeSliderPrivate *d = d_func();
    d->gesture.end();
    Q_EMIT mouseReleased(d->selectedHandles);
    setSliderDown(false);
    d->selectedHandles = RangeSliderPrivate::NoHandle;
    update();

    if (d->gestureChangedValue) {
        d->gestureChangedValue = false;
        Q_EMIT valuesChanged(d->minimumValue, d->maximumValue, d->mainValue);
    }
}

void RangeSlider::keyPressEvent(QKeyEvent *)
{
    m_keyPressed = true;
}

void RangeSlider::keyReleaseEvent(QKeyEvent *)
{
    m_keyPressed = false;
}

void RangeSlider::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void RangeSlider::paintEvent(QPaintEvent *)
{
    const RangeSliderPrivate *d = d_func();
    QStylePainter painter(this);

    QStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_SliderGroove;
    option.sliderValue = option.sliderPosition = outsideRange(minimum(), maximum());
    // Styles put what is outside the range where the pixels start. Upside down that would be the
    // far end, with the whole groove filled.
    const bool upsideDown = std::exchange(option.upsideDown, false);
    painter.drawComplexControl(QStyle::CC_Slider, option);
    option.upsideDown = upsideDown;
    d->drawBar(&painter, &option);

    using Private = RangeSliderPrivate;
    if (!m_rangeEnabled) {
        d->drawHandle(&painter, Private::MainHandle);
    } else if (isMinimumSliderDown()) {
        d->drawHandle(&painter, Private::MainHandle);
        d->drawHandle(&painter, Private::MaximumHandle);
        d->drawHandle(&painter, Private::MinimumHandle);
    } else if (isMaximumSliderDown()) {
        d->drawHandle(&painter, Private::MainHandle);
        d->drawHandle(&painter, Private::MinimumHandle);
        d->drawHandle(&painter, Private::MaximumHandle);
    } else {
        d->drawHandle(&painter, Private::MinimumHandle);
        d->drawHandle(&painter, Private::MaximumHandle);
        d->drawHandle(&painter, Private::MainHandle);
    }
}

void RangeSlider::initMinimumSliderStyleOption(QStyleOptionSlider *option) const
{
    initStyleOption(option);
}

void RangeSlider::initMaximumSliderStyleOption(QStyleOptionSlider *option) const
{
    initStyleOption(option);
}

void RangeSlider::initMainSliderStyleOption(QStyleOptionSlider *option) const
{
    initStyleOption(option);
}

int RangeSliderPrivate::value(Handle handle) const
{
    switch (handle) {
    case MinimumHandle:
        return minimumValue;
    case MaximumHandle:
        return maximumValue;
    default:
        return mainValue;
    }
}

int RangeSliderPrivate::position(Handle handle) const
{
    switch (handle) {
    case MinimumHandle:
        return minimumPosition;
    case MaximumHandle:
        return maximumPosition;
    default:
        return mainPosition;
    }
}

QPair<int, int> RangeSliderPrivate::clampedRange(int a, int b) const
{
    return {qBound(q_ptr->minimum(), qMin(a, b), q_ptr->maximum()),
            qBound(q_ptr->minimum(), qMax(a, b), q_ptr->maximum())};
}

bool RangeSliderPrivate::isHandleEnabled(Handle handle) const
{
    return q_ptr->m_rangeEnabled || handle == MainHandle;
}

QStyleOptionSlider RangeSliderPrivate::sliderOption() const
{
    QStyleOptionSlider option;
    q_ptr->initStyleOption(&option);
    return option;
}

QStyleOptionSlider RangeSliderPrivate::handleOption(Handle handle) const
{
    QStyleOptionSlider option = sliderOption();
    option.sliderPosition = position(handle);
    option.sliderValue = value(handle);
    return option;
}

QRect RangeSliderPrivate::handleRect(Handle handle) const
{
    const QStyleOptionSlider option = handleOption(handle);
    return q_ptr->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                          q_ptr);
}

RangeSliderPrivate::Hit RangeSliderPrivate::hitTest(const QPoint &point) const
{
    const auto isOn = [this, &point](Handle handle) {
        const QStyleOptionSlider option = handleOption(handle);
        return q_ptr->style()->hitTestComplexControl(QStyle::CC_Slider, &option, point, q_ptr)
               == QStyle::SC_SliderHandle;
    };
    const QRect minimumRect = handleRect(MinimumHandle);
    const QRect maximumRect = handleRect(MaximumHandle);

    if (isOn(MinimumHandle)) {
        if (isOn(MaximumHandle) && isOn(MainHandle)) {
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
    if (isOn(MaximumHandle))
        return {MaximumHandle, maximumRect};
    if (isOn(MainHandle))
        return {MainHandle, handleRect(MainHandle)};
    return {NoHandle, minimumRect.united(maximumRect)};
}

void RangeSliderPrivate::grab(Handle handle, const QRect &handleRect, const QPoint &point)
{
    pressPosition = position(handle);
    clickOffset = along(point) - along(handleRect.topLeft());
    q_ptr->setSliderDown(true);
    if (!gesture.isRunning())
        return; // A receiver ended the gesture.
    if (selectedHandles != handle) {
        selectedHandles = handle;
        q_ptr->update(handleRect);
    }
}

/// Moves the main handle to the pointer and grabs it there.
void RangeSliderPrivate::jumpTo(const QPoint &point)
{
    const Nocturne::GrooveMapping mapping(q_ptr->style(), sliderOption(), q_ptr->orientation(),
                                          nullptr);
    const Triple before = values();
    q_ptr->setValues(minimumPosition, maximumPosition, mapping.valueAtMiddle(along(point)));
    gestureChangedValue = values() != before;
    if (!gesture.isRunning())
        return;

    pressPosition = mainPosition;
    clickOffset = along(point) - along(hitTest(point).rect.topLeft());
    q_ptr->setSliderDown(true);
    if (!gesture.isRunning())
        return;
    selectedHandles = MainHandle;
    q_ptr->update();
}

void RangeSliderPrivate::dragTo(const QPoint &point)
{
    const int target = valueUnderDrag(point);
    const Triple before = values();

    // A symmetric move of the other handle may lead out of the numbers a handle can have.
    const auto moved = [this](int position, double delta) {
        return int(qBound<double>(q_ptr->minimum(), position + delta, q_ptr->maximum()));
    };
    if (selectedHandles == MainHandle) {
        q_ptr->setPositions(minimumPosition, maximumPosition, target);
    } else if (q_ptr->m_rangeEnabled && selectedHandles == MinimumHandle) {
        const int position = qMin(target, maximumPosition);
        const double delta = symmetricMoves ? double(minimumPosition) - position : 0.0;
        q_ptr->setPositions(position, moved(maximumPosition, delta), mainPosition);
    } else if (q_ptr->m_rangeEnabled && selectedHandles == MaximumHandle) {
        const int position = qMax(target, minimumPosition);
        const double delta = symmetricMoves ? double(position) - maximumPosition : 0.0;
        q_ptr->setPositions(moved(minimumPosition, -delta), position, mainPosition);
    }

    if (values() != before)
        gestureChangedValue = true;
}

int RangeSliderPrivate::valueUnderDrag(const QPoint &point) const
{
    const QStyleOptionSlider option = sliderOption();
    const int distance =
        q_ptr->style()->pixelMetric(QStyle::PM_MaximumDragDistance, &option, q_ptr);
    const QRect area = q_ptr->rect().adjusted(-distance, -distance, distance, distance);
    if (distance >= 0 && !area.contains(point))
        return pressPosition;
    return Nocturne::GrooveMapping(q_ptr->style(), option, q_ptr->orientation(), q_ptr)
        .valueAtLeadingEdge(along(point) - clickOffset);
}

void RangeSliderPrivate::reportHover(const QPoint &point)
{
    // Along x values grow with the coordinate, whatever the appearance; down a vertical slider they
    // run the way they are drawn.
    const int length = isHorizontal() ? q_ptr->width() : q_ptr->height();
    const bool upsideDown = !isHorizontal() && sliderOption().upsideDown;
    const int hoverValue = QStyle::sliderValueFromPosition(q_ptr->minimum(), q_ptr->maximum(),
                                                           along(point), length, upsideDown);
    if (hoverValue == lastHoverValue)
        return;
    lastHoverValue = hoverValue;
    Q_EMIT q_ptr->sliderMoveChanged(point.x(), point.y(), hoverValue);
}

bool RangeSliderPrivate::showHandleToolTip(const QHelpEvent *event) const
{
    if (handleToolTip.isEmpty())
        return false;
    for (Handle handle : {MinimumHandle, MaximumHandle}) {
        const QStyleOptionSlider option = handleOption(handle);
        if (q_ptr->style()->hitTestComplexControl(QStyle::CC_Slider, &option, event->pos(), q_ptr)
            == QStyle::SC_SliderHandle)
        {
            QToolTip::showText(event->globalPos(), handleToolTip.arg(value(handle)));
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
    const QStyle *style = q_ptr->style();
    const auto centreAt = [&](int position) {
        option->sliderPosition = position;
        return style->subControlRect(QStyle::CC_Slider, option, QStyle::SC_SliderHandle, q_ptr)
            .center();
    };
    const QPoint a = centreAt(minimumPosition);
    const QPoint b = centreAt(maximumPosition);
    const QRect groove =
        style->subControlRect(QStyle::CC_Slider, option, QStyle::SC_SliderGroove, q_ptr);
    const QPoint middle = groove.center();

    QRect box;
    if (isHorizontal()) {
        box = QRect(QPoint(qMin(a.x(), b.x()), middle.y() - 2),
                    QPoint(qMax(a.x(), b.x()), middle.y() + 1));
    } else {
        box = QRect(QPoint(middle.x() - 2, qMin(a.y(), b.y())),
                    QPoint(middle.x() + 1, qMax(a.y(), b.y())));
    }
    const int overhang = q_ptr->m_rangeEnabled ? 0 : 4;
    return box.intersected(groove).adjusted(-overhang, 1, overhang, 2);
}

void RangeSliderPrivate::drawBar(QStylePainter *painter, QStyleOptionSlider *option) const
{
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

void RangeSliderPrivate::drawHandle(QStylePainter *painter, Handle handle) const
{
    QStyleOptionSlider option;
    if (handle == MinimumHandle)
        q_ptr->initMinimumSliderStyleOption(&option);
    else if (handle == MaximumHandle)
        q_ptr->initMaximumSliderStyleOption(&option);
    else
        q_ptr->initMainSliderStyleOption(&option);
    option.sliderPosition = position(handle);
    option.sliderValue = value(handle);

    if (handle == MainHandle) {
        option.subControls = QStyle::SC_SliderHandle;
        if (selectedHandles == MainHandle) {
            option.activeSubControls = QStyle::SC_SliderHandle;
            option.state |= QStyle::State_Sunken;
        }
        const HalfUnitShift shift(painter);
        painter->drawComplexControl(QStyle::CC_Slider, option);
        return;
    }

    // A range handle is an upright bar in the middle of where the style would put a knob.
    const QRect knob =
        q_ptr->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, q_ptr);
    rangeHandle.draw(painter, knob.adjusted(5, 0, -6, 0), {},
                     [](QPainter *target, const QRect &rect) {
                         const HalfUnitShift shift(target);
                         target->setPen(Qt::NoPen);
                         target->setBrush(Qt::green);
                         target->drawRect(rect);
                     });
}
