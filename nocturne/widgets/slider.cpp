#include "slider.h"

#include "gestureend_p.h"
#include "groovemapping_p.h"

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>

Slider::Slider(QWidget *parent)
    : QSlider(parent)
    , m_gesture(new Nocturne::Gesture(this, [this] { letGo(); }))
{
    setAttribute(Qt::WA_MouseTracking);
}

Slider::Slider(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
    , m_gesture(new Nocturne::Gesture(this, [this] { letGo(); }))
{
    setAttribute(Qt::WA_MouseTracking);
}

Slider::~Slider() = default;

void Slider::setEnableDirectJump(bool enable)
{
    m_directJump = enable;
}

void Slider::setJumpButtons(Qt::MouseButtons buttons)
{
    m_jumpButtons = buttons;
}

Qt::MouseButtons Slider::jumpButtons() const
{
    return m_jumpButtons;
}

void Slider::setKeyPressed(bool pressed)
{
    m_keyPressed = pressed;
}

bool Slider::isKeyPressed() const
{
    return m_keyPressed;
}

bool Slider::isMousePressed() const
{
    return m_gesture->isRunning();
}

void Slider::positionChange(int value)
{
    blockSignals(true);
    setValue(value);
    blockSignals(false);
}

bool Slider::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Wheel:
        event->ignore();
        return true;
    case QEvent::MouseButtonPress: {
        const Qt::MouseButton button = static_cast<QMouseEvent *>(event)->button();
        if (!m_jumpButtons.testFlag(button)) {
            event->ignore();
            return true;
        }
        if (isEnabled()) {
            m_firstChange = m_firstChange || !isMousePressed(); // Later buttons start nothing.
            m_gesture->press(button);
        }
        break;
    }
    case QEvent::MouseButtonRelease: {
        auto *release = static_cast<QMouseEvent *>(event);
        // The base class goes on as long as any button is held, also one that was not taken.
        if (m_gesture->release(release->button()) && release->buttons() != Qt::NoButton)
            letGo();
        break;
    }
    case QEvent::KeyPress:
        m_keyPressed = isEnabled();
        break;
    case QEvent::KeyRelease:
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

void Slider::mousePressEvent(QMouseEvent *event)
{
    const bool wasPressed = isMousePressed();
    const QPointer<Slider> self(this);
    // A receiver that hides, disables or deletes the slider or opens a popup ends the gesture.
    const auto gestureEnded = [self, wasPressed] {
        return !self || (wasPressed && !self->isMousePressed());
    };
    Q_EMIT mousePressed();
    if (gestureEnded())
        return;

    if (m_directJump)
        setValue(valueForClick(event->pos().x()));
    if (gestureEnded())
        return;
    QSlider::mousePressEvent(event);
    if (self && gestureEnded())
        letGo();
}

void Slider::mouseMoveEvent(QMouseEvent *event)
{
    const QPointer<Slider> self(this);
    if (!isMousePressed() && m_directJump) {
        const QPoint pos = event->pos();
        const int value =
            QStyle::sliderValueFromPosition(minimum(), maximum(), pos.x(), width(), false);
        if (value != m_lastHoverValue) {
            // Stored first, so that a receiver that moves the pointer does not get the value twice.
            m_lastHoverValue = value;
            Q_EMIT sliderMoveChanged(pos.x(), pos.y(), value);
        }
    }
    if (self)
        QSlider::mouseMoveEvent(event);
}

void Slider::mouseReleaseEvent(QMouseEvent *event)
{
    QSlider::mouseReleaseEvent(event);
}

void Slider::mouseDoubleClickEvent(QMouseEvent *)
{
    Q_EMIT mouseDoubleClick();
}

void Slider::paintEvent(QPaintEvent *event)
{
    QSlider::paintEvent(event);
}

void Slider::resizeEvent(QResizeEvent *) {}

void Slider::sliderChange(SliderChange change)
{
    // What nobody hears of leaves the first change to be reported.
    if (change == SliderValueChange && isMousePressed() && !signalsBlocked()) {
        const bool firstChange = m_firstChange;
        m_firstChange = false;
        Q_EMIT valueChanged(value(), firstChange);
    }
    QAbstractSlider::sliderChange(change);
}

int Slider::valueForClick(int x) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    return Nocturne::GrooveMapping(style(), option, Qt::Horizontal, this).valueAtMiddle(x);
}

/// Lets go of the handle as a release would. The toolkit keeps what it holds on to private, and a
/// release is the only thing that makes it forget.
void Slider::letGo()
{
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), QPointF(), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QSlider::mouseReleaseEvent(&release);
}
