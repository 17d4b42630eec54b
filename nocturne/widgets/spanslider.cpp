#include "spanslider.h"

#include "gestureend_p.h"
#include "groovemapping_p.h"
#include "handleaccessible_p.h"
#include "handlemove_p.h"
#include <nocturne/painting/paintsample_p.h>

#include <QtCore/QDebug>
#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QStylePainter>

#include <utility>

SpanSlider::SpanSlider(QWidget *parent)
    : QSlider(parent)
    , m_gesture(new Nocturne::Gesture(this, [this] { endGesture(); }))
    , m_spanSample(new Nocturne::PaintSample)
{
    initialize();
}

SpanSlider::SpanSlider(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
    , m_gesture(new Nocturne::Gesture(this, [this] { endGesture(); }))
    , m_spanSample(new Nocturne::PaintSample)
{
    initialize();
}

SpanSlider::~SpanSlider() = default;

void SpanSlider::initialize()
{
    connect(this, &QAbstractSlider::rangeChanged, this, &SpanSlider::updateRange);
    connect(this, &QAbstractSlider::sliderReleased, this, &SpanSlider::movePressedHandle);
    Nocturne::HandleAccessibility::install();
}

int SpanSlider::lowerValue() const
{
    return qMin(m_lower, m_upper);
}

int SpanSlider::upperValue() const
{
    return qMax(m_lower, m_upper);
}

int SpanSlider::lowerPosition() const
{
    return m_lowerPosition;
}

int SpanSlider::upperPosition() const
{
    return m_upperPosition;
}

SpanSlider::HandleMovementMode SpanSlider::handleMovementMode() const
{
    return m_movement;
}

void SpanSlider::setHandleMovementMode(HandleMovementMode mode)
{
    m_movement = mode;
}

void SpanSlider::setLowerValue(int lower)
{
    setSpan(lower, m_upper);
}

void SpanSlider::setUpperValue(int upper)
{
    setSpan(m_lower, upper);
}

void SpanSlider::setSpan(int lower, int upper)
{
    const int low = qBound(minimum(), qMin(lower, upper), maximum());
    int upp = qBound(minimum(), qMax(lower, upper), maximum());
    if (low == m_lower && upp == m_upper)
        return;
    const QPointer<SpanSlider> self(this);

    if (low != m_lower) {
        m_lower = low;
        moveHandle(LowerHandle, low);
        Nocturne::HandleAccessibility::valueChanged(this, 0, low);
        Q_EMIT lowerValueChanged(low);
        if (!self || m_lower != low)
            return; // What a receiver has set meanwhile is newer.
        upp = qBound(low, upp, maximum());
    }
    if (upp != m_upper) {
        m_upper = upp;
        moveHandle(UpperHandle, upp);
        Nocturne::HandleAccessibility::valueChanged(this, 1, upp);
        Q_EMIT upperValueChanged(upp);
    }
    if (self)
        Q_EMIT spanChanged(m_lower, m_upper);
}

void SpanSlider::setLowerPosition(int lower)
{
    if (m_lowerPosition == lower)
        return;
    moveHandle(LowerHandle, lower);
    const QPointer<SpanSlider> self(this);
    if (isSliderDown())
        Q_EMIT lowerPositionChanged(lower);
    if (self && hasTracking() && !m_blockTracking)
        triggerAction(SliderMove, m_mainControl == LowerHandle);
}

void SpanSlider::setUpperPosition(int upper)
{
    if (m_upperPosition == upper)
        return;
    moveHandle(UpperHandle, upper);
    const QPointer<SpanSlider> self(this);
    if (isSliderDown())
        Q_EMIT upperPositionChanged(upper);
    if (self && hasTracking() && !m_blockTracking)
        triggerAction(SliderMove, m_mainControl == UpperHandle);
}

void SpanSlider::updateRange(int, int)
{
    setSpan(m_lower, m_upper);
}

void SpanSlider::movePressedHandle()
{
    if (m_lastPressed == LowerHandle && m_lowerPosition != m_lower)
        triggerAction(SliderMove, m_mainControl == LowerHandle);
    else if (m_lastPressed == UpperHandle && m_upperPosition != m_upper)
        triggerAction(SliderMove, m_mainControl == UpperHandle);
}

void SpanSlider::triggerAction(SliderAction action, bool main)
{
    m_blockTracking = true;
    bool moveUpper = main == (m_mainControl == UpperHandle);
    const int current = moveUpper ? m_upper : m_lower;
    const auto stepped = [this, current](qint64 step) {
        return int(qBound(qint64(minimum()), current + step, qint64(maximum())));
    };

    bool moves = true;
    int value = 0;
    switch (action) {
    case SliderSingleStepAdd:
        value = stepped(singleStep());
        break;
    case SliderSingleStepSub:
        value = stepped(-qint64(singleStep()));
        break;
    case SliderToMinimum:
        value = minimum();
        break;
    case SliderToMaximum:
        value = maximum();
        break;
    case SliderNoAction:
    case SliderMove:
        moves = false;
        break;
    default:
        qWarning("SpanSlider::triggerAction: Unknown action");
        moveUpper = false;
        break;
    }

    if (moves && moveUpper)
        moveUpperHandle(value, m_lower);
    else if (moves)
        moveLowerHandle(value, m_upper);

    m_blockTracking = false;
    setSpan(m_lowerPosition, m_upper);
    setSpan(m_lower, m_upperPosition);
}

/// Takes the lower handle to \a target, as far as the movement mode lets it go: \a upperBound is
/// the value of the handle that it must not pass.
void SpanSlider::moveLowerHandle(int target, int upperBound)
{
    if (m_movement == NoCrossing)
        target = qMin(target, upperBound);
    else if (m_movement == NoOverlapping)
        target = qMin(target, upperBound - 1);

    if (m_movement == FreeMovement && target > m_upper) {
        swapControls();
        setUpperPosition(target);
    } else {
        setLowerPosition(target);
    }
}

void SpanSlider::moveUpperHandle(int target, int lowerBound)
{
    if (m_movement == NoCrossing)
        target = qMax(target, lowerBound);
    else if (m_movement == NoOverlapping)
        target = qMax(target, lowerBound + 1);

    if (m_movement == FreeMovement && target < m_lower) {
        swapControls();
        setLowerPosition(target);
    } else {
        setUpperPosition(target);
    }
}

void SpanSlider::swapControls()
{
    const auto other = [](SpanHandle handle) {
        return handle == LowerHandle ? UpperHandle : LowerHandle;
    };
    std::swap(m_lower, m_upper);
    std::swap(m_lowerPressed, m_upperPressed);
    m_lastPressed = other(m_lastPressed);
    m_mainControl = other(m_mainControl);
    update();
}

int SpanSlider::pick(const QPoint &point) const
{
    return isHorizontal() ? point.x() : point.y();
}

int SpanSlider::pixelPosToRangeValue(int pos) const
{
    QStyleOptionSlider option;
    initStyleOption(&option, UpperHandle);
    return Nocturne::GrooveMapping(style(), option, orientation(), this).valueAtLeadingEdge(pos);
}

void SpanSlider::handleMousePress(const QPoint &pos, QStyle::SubControl &control, int value,
                                  SpanHandle handle)
{
    QStyleOptionSlider option;
    initStyleOption(&option, handle);
    const QStyle::SubControl oldControl = control;
    control = style()->hitTestComplexControl(QStyle::CC_Slider, &option, pos, this);
    const QRect rect =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    if (control == QStyle::SC_SliderHandle) {
        m_pressValue = value;
        m_offset = pick(pos - rect.topLeft());
        m_lastPressed = handle;
        if (!m_gesture->isRunning())
            m_gesture->press(Qt::LeftButton);
        setSliderDown(true);
    }
    if (control != oldControl)
        update(rect);
}

void SpanSlider::initStyleOption(QStyleOptionSlider *option, SpanHandle handle) const
{
    if (!option)
        return;

    option->initFrom(this);
    option->subControls = QStyle::SC_None;
    option->activeSubControls = QStyle::SC_None;
    option->orientation = orientation();
    option->minimum = minimum();
    option->maximum = maximum();
    option->tickPosition = tickPosition();
    option->tickInterval = tickInterval();
    option->upsideDown = isHorizontal()
                             ? invertedAppearance() != (option->direction == Qt::RightToLeft)
                             : !invertedAppearance();
    option->direction = Qt::LeftToRight; // It is in upsideDown now.
    placeHandle(option, handle);
    option->singleStep = singleStep();
    option->pageStep = pageStep();
    if (isHorizontal())
        option->state |= QStyle::State_Horizontal;
}

void SpanSlider::placeHandle(QStyleOptionSlider *option, SpanHandle handle) const
{
    option->sliderPosition = handle == LowerHandle ? m_lowerPosition : m_upperPosition;
    option->sliderValue = handle == LowerHandle ? m_lower : m_upper;
}

bool SpanSlider::isHandleDown() const
{
    return m_lowerPressed == QStyle::SC_SliderHandle || m_upperPressed == QStyle::SC_SliderHandle;
}

void SpanSlider::keyPressEvent(QKeyEvent *event)
{
    QAbstractSlider::keyPressEvent(event);

    const auto stepFor = [](bool add) { return add ? SliderSingleStepAdd : SliderSingleStepSub; };
    switch (event->key()) {
    case Qt::Key_Home:
        triggerAction(SliderToMinimum, m_mainControl == LowerHandle);
        break;
    case Qt::Key_End:
        triggerAction(SliderToMaximum, m_mainControl == UpperHandle);
        break;
    case Qt::Key_Left:
        triggerAction(stepFor(invertedAppearance()), isHorizontal());
        break;
    case Qt::Key_Right:
        triggerAction(stepFor(!invertedAppearance()), isHorizontal());
        break;
    case Qt::Key_Up:
        triggerAction(stepFor(!invertedControls()), !isHorizontal());
        break;
    case Qt::Key_Down:
        triggerAction(stepFor(invertedControls()), !isHorizontal());
        break;
    default:
        event->ignore();
        break;
    }
}

void SpanSlider::mousePressEvent(QMouseEvent *event)
{
    if (minimum() == maximum() || event->buttons() != event->button()) {
        event->ignore();
        return;
    }
    m_firstMovement = true;
    m_gesture->press(event->button());
    handleMousePress(event->pos(), m_upperPressed, m_upper, UpperHandle);
    // A receiver that hides the slider or opens a popup ends the gesture.
    if (m_gesture->isRunning() && m_upperPressed != QStyle::SC_SliderHandle)
        handleMousePress(event->pos(), m_lowerPressed, m_lower, LowerHandle);
    if (!isHandleDown())
        m_gesture->end();
    event->accept();
}

void SpanSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (!isHandleDown()) {
        event->ignore();
        return;
    }

    const int target = valueUnderDrag(event->pos());
    if (m_firstMovement) {
        // Two handles on one value look like one; the direction tells which was meant.
        if (m_lower != m_upper) {
            m_firstMovement = false;
        } else if (target < lowerValue()) {
            swapControls();
            m_firstMovement = false;
        }
    }

    if (m_lowerPressed == QStyle::SC_SliderHandle)
        moveLowerHandle(target, upperValue());
    else if (m_upperPressed == QStyle::SC_SliderHandle)
        moveUpperHandle(target, lowerValue());
    event->accept();
}

void SpanSlider::mouseReleaseEvent(QMouseEvent *event)
{
    QSlider::mouseReleaseEvent(event);
    // The base class held nothing and passes the release on, but the press was taken here.
    if (isHandleDown())
        event->accept();
    endGesture();
}

void SpanSlider::endGesture()
{
    // Before anything is reported: nothing may be dragged any more while a receiver works.
    m_gesture->end();
    m_lowerPressed = QStyle::SC_None;
    m_upperPressed = QStyle::SC_None;
    m_firstMovement = false;
    setSliderDown(false);
    update();
}

void SpanSlider::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

int SpanSlider::valueUnderDrag(const QPoint &point) const
{
    QStyleOptionSlider option;
    initStyleOption(&option, UpperHandle);
    const int distance = style()->pixelMetric(QStyle::PM_MaximumDragDistance, &option, this);
    const QRect area = rect().adjusted(-distance, -distance, distance, distance);
    if (distance >= 0 && !area.contains(point))
        return m_pressValue;
    return Nocturne::GrooveMapping(style(), option, orientation(), this)
        .valueAtLeadingEdge(pick(point) - m_offset);
}

void SpanSlider::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);

    QStyleOptionSlider option;
    initStyleOption(&option, UpperHandle);
    option.sliderPosition = option.sliderValue = 0;
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderTickmarks;
    painter.drawComplexControl(QStyle::CC_Slider, option);

    const QRect span = spanRect(&option);
    paintSpan(&painter, option, span);

    const bool lowerOnTop = m_lastPressed == LowerHandle;
    paintHandle(&painter, &option, lowerOnTop ? UpperHandle : LowerHandle);
    paintHandle(&painter, &option, lowerOnTop ? LowerHandle : UpperHandle);
}

/// Before anybody hears of it, since a receiver may have the slider painted elsewhere.
void SpanSlider::moveHandle(SpanHandle handle, int position)
{
    int &current = handle == LowerHandle ? m_lowerPosition : m_upperPosition;
    if (current == position)
        return;
    current = position;
    QStyleOptionSlider option;
    initStyleOption(&option, handle);
    const QRect now =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    Nocturne::repaintMove(this, handle == LowerHandle ? m_shownLower : m_shownUpper, now);
}

/// From one handle's centre to the other's, four units thick. Also notes where the handles are.
QRect SpanSlider::spanRect(QStyleOptionSlider *option)
{
    const auto rectAt = [&](int position) {
        option->sliderPosition = position;
        return style()->subControlRect(QStyle::CC_Slider, option, QStyle::SC_SliderHandle, this);
    };
    m_shownLower = rectAt(m_lowerPosition);
    m_shownUpper = rectAt(m_upperPosition);
    const QPoint lower = m_shownLower.center();
    const QPoint upper = m_shownUpper.center();
    const QPoint middle = QRect(lower, upper).center();
    const int from = qMin(pick(lower), pick(upper));
    const int to = qMax(pick(lower), pick(upper));
    if (isHorizontal())
        return QRect(QPoint(from, middle.y() - 2), QPoint(to, middle.y() + 1));
    return QRect(QPoint(middle.x() - 2, from), QPoint(middle.x() + 1, to));
}

void SpanSlider::drawSpan(QStylePainter *painter, const QRect &rect) const
{
    QStyleOptionSlider option;
    initStyleOption(&option, UpperHandle);
    paintSpan(painter, option, rect);
}

void SpanSlider::paintSpan(QStylePainter *painter, const QStyleOptionSlider &option,
                           const QRect &rect) const
{
    QRect groove =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const bool horizontal = isHorizontal();
    groove.adjust(0, 0, horizontal ? -1 : 0, horizontal ? 0 : -1);
    const QRect span = rect.intersected(groove);
    const QPoint centre = groove.center();
    const QLine gradient = horizontal
                               ? QLine(centre.x(), groove.top(), centre.x(), groove.bottom())
                               : QLine(groove.left(), centre.y(), groove.right(), centre.y());

    // Where in the gradient the span lies is part of its look.
    const Nocturne::PaintSample::Look look = {
        palette().color(QPalette::Highlight).rgba(), uint(horizontal),
        uint(horizontal ? span.top() - groove.top() : span.left() - groove.left()),
        uint(horizontal ? groove.height() : groove.width())};
    m_spanSample->drawStretched(painter, span, orientation(), look,
                                [&](QPainter *target, const QRect &part) {
                                    setupPainter(target, orientation(), gradient.x1(),
                                                 gradient.y1(), gradient.x2(), gradient.y2());
                                    target->drawRect(part);
                                });
}

void SpanSlider::setupPainter(QPainter *painter, Qt::Orientation orientation, qreal x1, qreal y1,
                              qreal x2, qreal y2) const
{
    const QColor highlight = palette().color(QPalette::Highlight);
    QLinearGradient gradient(x1, y1, x2, y2);
    gradient.setColorAt(0.0, highlight.darker(120));
    gradient.setColorAt(1.0, highlight.lighter(108));
    painter->setBrush(gradient);
    painter->setPen(QPen(highlight.darker(orientation == Qt::Horizontal ? 130 : 150), 0));
}

void SpanSlider::drawHandle(QStylePainter *painter, SpanHandle handle) const
{
    QStyleOptionSlider option;
    initStyleOption(&option, handle);
    paintHandle(painter, &option, handle);
}

void SpanSlider::paintHandle(QStylePainter *painter, QStyleOptionSlider *option,
                             SpanHandle handle) const
{
    placeHandle(option, handle);
    option->subControls = QStyle::SC_SliderHandle;
    const QStyle::SubControl pressed = handle == LowerHandle ? m_lowerPressed : m_upperPressed;
    const bool grabbed = pressed == QStyle::SC_SliderHandle;
    option->activeSubControls = grabbed ? QStyle::SC_SliderHandle : QStyle::SC_None;
    option->state.setFlag(QStyle::State_Sunken, grabbed);
    painter->drawComplexControl(QStyle::CC_Slider, *option);
}
