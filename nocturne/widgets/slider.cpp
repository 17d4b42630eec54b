#include "slider.h"

#include "gestureend_p.h"
#include "groovemapping_p.h"

#include <QtGui/QMouseEvent>

Slider::Slider(QWidget *parent)
    : QSlider(parent)
{
    setAttribute(Qt::WA_MouseTracking);
}

Slider::Slider(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
{
    setAttribute(Qt::WA_MouseTracking);
}

Slider::~Slider() = default;

void Slider::setEnableDirectJump(bool enable)
{
    m_directJump = enable;
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
    return m_mousePressed;
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
    case QEvent::MouseButtonPress:
        m_firstChange = true;
        m_mousePressed = true;
        break;
    case QEvent::MouseButtonRelease:
        m_firstChange = false;
        m_mousePressed = false;
        break;
    case QEvent::KeyPress:
        m_keyPressed = true;
        break;
    case QEvent::KeyRelease:
    case QEvent::FocusOut: // The release goes elsewhere now.
        m_keyPressed = false;
        break;
    default:
        if (Nocturne::endsGesture(event, this))
            endGesture();
        break;
    }
    return QSlider::event(event);
}

void Slider::mousePressEvent(QMouseEvent *event)
{
    const bool wasPressed = m_mousePressed;
    Q_EMIT mousePressed();
    if (wasPressed && !m_mousePressed)
        return; // A receiver hid or disabled the slider, which ended the gesture.

    if (m_directJump)
        setValue(valueForClick(event->pos().x()));
    QSlider::mousePressEvent(event);
}

void Slider::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_mousePressed && m_directJump) {
        const QPoint pos = event->pos();
        const int value =
            QStyle::sliderValueFromPosition(minimum(), maximum(), pos.x(), width(), false);
        if (value != m_lastHoverValue) {
            // Stored first, so that a receiver that moves the pointer does not get the value twice.
            m_lastHoverValue = value;
            Q_EMIT sliderMoveChanged(pos.x(), pos.y(), value);
        }
    }
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
    if (change == SliderValueChange && m_mousePressed) {
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
void Slider::endGesture()
{
    m_firstChange = false;
    m_mousePressed = false;
    m_keyPressed = false;
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QSlider::mouseReleaseEvent(&release);
}
