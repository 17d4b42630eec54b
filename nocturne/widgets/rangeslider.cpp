#include "rangeslider.h"

#include "handleaccessible_p.h"
#include "rangeslider_p.h"

#include <QtCore/QPointer>
#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QStyleOptionSlider>
#include <QtWidgets/QStylePainter>

namespace {

constexpr int handleCount = 3;

using Signal = void (RangeSlider::*)(int);
constexpr Signal valueSignals[handleCount] = {&RangeSlider::minimumValueChanged,
                                              &RangeSlider::maximumValueChanged,
                                              &RangeSlider::mainValueChanged};
constexpr Signal positionSignals[handleCount] = {&RangeSlider::minimumPositionChanged,
                                                 &RangeSlider::maximumPositionChanged,
                                                 &RangeSlider::mainPositionChanged};

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
    m_private->values = m_private->positions = {minimum(), maximum(), 50};
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
    return m_private->values[RangeSliderPrivate::MinimumHandle];
}

int RangeSlider::maximumValue() const
{
    return m_private->values[RangeSliderPrivate::MaximumHandle];
}

int RangeSlider::mainValue() const
{
    return m_private->values[RangeSliderPrivate::MainHandle];
}

int RangeSlider::minimumPosition() const
{
    return m_private->positions[RangeSliderPrivate::MinimumHandle];
}

int RangeSlider::maximumPosition() const
{
    return m_private->positions[RangeSliderPrivate::MaximumHandle];
}

int RangeSlider::mainPosition() const
{
    return m_private->positions[RangeSliderPrivate::MainHandle];
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
    const RangeSliderPrivate::Triple oldPositions = d->positions;
    const RangeSliderPrivate::Triple oldValues = d->values;
    const RangeSliderPrivate::Triple now = d->bounded(min, max, main);
    d->positions = d->values = now;
    // Before anybody hears of it, since a receiver may have the slider painted elsewhere.
    if (now != oldPositions)
        updateHandles();

    const QPointer<RangeSlider> self(this);
    if (isSliderDown() && now != oldPositions) {
        Q_EMIT positionsChanged(now[0], now[1], now[2]);
        for (int handle = 0; self && handle < handleCount; ++handle) {
            if (now[handle] != oldPositions[handle])
                emitChange(positionSignals[handle], now[handle]);
        }
    }
    for (int handle = 0; self && handle < handleCount; ++handle) {
        if (now[handle] == oldValues[handle])
            continue;
        Nocturne::HandleAccessibility::valueChanged(this, handle, now[handle]);
        emitChange(valueSignals[handle], now[handle]);
    }
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
    const RangeSliderPrivate::Triple old = d->positions;
    const RangeSliderPrivate::Triple now = d->bounded(min, max, main);
    if (now == old)
        return;
    d->positions = now;

    updateHandles();

    const QPointer<RangeSlider> self(this);
    if (isSliderDown()) {
        for (int handle = 0; self && handle < handleCount; ++handle) {
            if (now[handle] != old[handle])
                emitChange(positionSignals[handle], now[handle]);
        }
        if (self)
            Q_EMIT positionsChanged(now[0], now[1], now[2]);
    }

    if (self && hasTracking()) {
        triggerAction(SliderMove);
        setValues(d->positions[0], d->positions[1], d->positions[2]);
    }
}

void RangeSlider::emitChange(void (RangeSlider::*signal)(int), int number)
{
    Q_EMIT(this->*signal)(number);
}

void RangeSlider::updateHandles()
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    m_private->updateHandles(&option);
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
    return m_private->grabbed == RangeSliderPrivate::MinimumHandle;
}

bool RangeSlider::isMaximumSliderDown() const
{
    return m_private->grabbed == RangeSliderPrivate::MaximumHandle;
}

bool RangeSlider::isMainSliderDown() const
{
    return m_private->grabbed == RangeSliderPrivate::MainHandle;
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
    if (m_private->rangeEnabled == enable)
        return;
    m_private->rangeEnabled = enable;
    update();
}

bool RangeSlider::isRangeEnabled() const
{
    return m_private->rangeEnabled;
}

double RangeSlider::frameRate() const
{
    return m_private->frameRate;
}

void RangeSlider::setFrameRate(double framesPerSecond)
{
    m_private->frameRate = framesPerSecond;
}

bool RangeSlider::isMousePressed() const
{
    return m_private->gesture.isRunning();
}

bool RangeSlider::isKeyPressed() const
{
    return m_private->keyPressed;
}

bool RangeSlider::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ToolTip: {
        QStyleOptionSlider option;
        initStyleOption(&option);
        if (m_private->showHandleToolTip(static_cast<QHelpEvent *>(event), &option)) {
            event->accept();
            return true;
        }
        break;
    }
    case QEvent::FocusOut: // The release goes elsewhere now.
    case QEvent::Hide:
    case QEvent::WindowBlocked:
        m_private->keyPressed = false;
        break;
    case QEvent::EnabledChange:
        m_private->keyPressed = m_private->keyPressed && isEnabled();
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

    QStyleOptionSlider option;
    initStyleOption(&option);
    const RangeSliderPrivate::Hit hit = d->hitTest(event->pos(), &option);
    const QPointer<RangeSlider> self(this);
    Q_EMIT mousePressed(RangeSliderPrivate::code(hit.handle));
    if (!self || !isMousePressed())
        return; // A receiver deleted or hid the slider or opened a popup.

    initStyleOption(&option); // A receiver may have changed the slider.
    if (hit.handle != RangeSliderPrivate::NoHandle && d->isHandleEnabled(hit.handle))
        d->grab(hit, event->pos());
    else
        d->jumpTo(event->pos(), &option);
    event->accept();
}

void RangeSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (!isMousePressed())
        return;

    RangeSliderPrivate *d = d_func();
    QStyleOptionSlider option;
    initStyleOption(&option);
    if (d->grabbed == RangeSliderPrivate::NoHandle) {
        const QPointer<RangeSlider> self(this);
        d->reportHover(event->pos(), option);
        // An ignored event goes on to the parent, which would be asked of a slider that is gone.
        if (self)
            event->ignore();
    } else {
        d->dragTo(event->pos(), option);
        event->accept();
    }
}

void RangeSlider::mouseReleaseEvent(QMouseEvent *event)
{
    QSlider::mouseReleaseEvent(event);
    // The base class held nothing and passes the release on, but the press was taken here.
    if (m_private->grabbed != RangeSliderPrivate::NoHandle)
        event->accept();
    const QPointer<RangeSlider> self(this);
    m_private->endGesture();
    if (!self)
        event->accept();
}

void RangeSlider::keyPressEvent(QKeyEvent *)
{
    m_private->keyPressed = true;
}

void RangeSlider::keyReleaseEvent(QKeyEvent *)
{
    m_private->keyPressed = false;
}

void RangeSlider::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void RangeSlider::paintEvent(QPaintEvent *)
{
    using Private = RangeSliderPrivate;
    const Private *d = d_func();
    QStylePainter painter(this);

    QStyleOptionSlider groove;
    initStyleOption(&groove);
    d->drawGroove(&painter, &groove);

    const auto draw = [this, d, &painter](Private::Handle handle) {
        using Init = void (RangeSlider::*)(QStyleOptionSlider *) const;
        static constexpr Init inits[handleCount] = {&RangeSlider::initMinimumSliderStyleOption,
                                                    &RangeSlider::initMaximumSliderStyleOption,
                                                    &RangeSlider::initMainSliderStyleOption};
        if (!d->isHandleEnabled(handle))
            return;
        QStyleOptionSlider option;
        const Init init = inits[handle];
        (this->*init)(&option);
        d->drawHandle(handle, &painter, &option);
    };
    // The handle that is dragged lies on top.
    const bool rangeOnTop = isMinimumSliderDown() || isMaximumSliderDown();
    if (rangeOnTop)
        draw(Private::MainHandle);
    draw(isMinimumSliderDown() ? Private::MaximumHandle : Private::MinimumHandle);
    draw(isMinimumSliderDown() ? Private::MinimumHandle : Private::MaximumHandle);
    if (!rangeOnTop)
        draw(Private::MainHandle);
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
