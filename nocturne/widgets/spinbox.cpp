#include "spinbox.h"

#include "gestureend_p.h"

#include <nocturne/theme/qtversion_p.h>

#include <QtCore/QPointer>
#include <QtGui/QCursor>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <utility>

SpinBox::SpinBox(QWidget *parent)
    : QSpinBox(parent)
    , m_gesture(new Nocturne::Gesture(this, [this] { abandonDrag(); }))
{
    setButtonSymbols(QAbstractSpinBox::NoButtons);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setAttribute(Qt::WA_Hover, true);

    installEventFilter(this);
    lineEdit()->installEventFilter(this);
    lineEdit()->setReadOnly(true);
    lineEdit()->setFrame(false);

    connect(this, QOverload<int>::of(&QSpinBox::valueChanged), this,
            QOverload<int>::of(&SpinBox::valueChanged));
}

SpinBox::~SpinBox()
{
    dropCursor();
}

void SpinBox::setValue(double val)
{
    if (!qIsFinite(val))
        return;
    const int rounded = boundedRound(val);
    if (rounded != value())
        QSpinBox::setValue(rounded);
}

void SpinBox::setValue(double val, bool relative)
{
    if (!qIsFinite(val))
        return;
    const int rounded = boundedRound(val);
    if (relative == m_relativeMode && rounded == value())
        return;
    m_relativeMode = relative;
    QSpinBox::setValue(rounded);
}

void SpinBox::valueChanged(int value)
{
    if (!m_dragging)
        Q_EMIT valueChanged(double(value), true);
}

bool SpinBox::isDragging() const
{
    return QWidget::mouseGrabber() == this;
}

void SpinBox::dragStart(QMouseEvent *event)
{
    m_lastPos = event->pos();
    m_moved = false;
    m_firstStep = true;
    m_dragging = true;
    m_gesture->press(event->button());
    grabMouse();
}

void SpinBox::dragMove(QMouseEvent *event)
{
    if (!isDragging())
        return;

    const QPoint position = event->pos();
    int delta = (position.x() - m_lastPos.x()) + (m_lastPos.y() - position.y());
    if (event->modifiers() == Qt::ControlModifier)
        delta *= 2;
    else if (event->modifiers() == Qt::ShiftModifier)
        delta /= 2;

    m_moved = true;
    m_lastPos = position;
    event->accept();

    const double target = qBound(double(minimum()), double(value()) + delta, double(maximum()));
    if (target == value())
        return;
    // A receiver of the first signal may delete the spin box.
    const QPointer<SpinBox> self(this);
    setValue(target);
    if (!self)
        return;
    const bool first = m_firstStep;
    m_firstStep = false;
    Q_EMIT valueChanged(target, first);
}

void SpinBox::dragEnd(QMouseEvent *event)
{
    m_gesture->end();
    m_dragging = false;
    m_moved = false;
    if (isDragging() && event->button() == Qt::LeftButton) {
        event->accept();
        releaseMouse();
    }
}

bool SpinBox::eventFilter(QObject *watched, QEvent *event)
{
    if (!isEnabled()) {
        if (watched == this) // may have been disabled beneath the pointer
            dropCursor();
        return false;
    }
    if (event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    if (watched == lineEdit()) {
        if (event->type() == QEvent::MouseButtonPress) {
            auto *press = static_cast<QMouseEvent *>(event);
            pressed(press, lineEdit()->mapTo(this, press->pos()));
        }
        return false;
    }
    if (watched == this)
        return filterOwnEvent(event);
    return QSpinBox::eventFilter(watched, event);
}

bool SpinBox::filterOwnEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        pressed(static_cast<QMouseEvent *>(event), static_cast<QMouseEvent *>(event)->pos());
        break;
    case QEvent::MouseMove: {
        // The event must not reach a spin box that a receiver of its signals has deleted.
        const QPointer<SpinBox> self(this);
        dragMove(static_cast<QMouseEvent *>(event));
        return !self;
    }
    case QEvent::MouseButtonRelease:
        released(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::Enter:
        if (lineEdit()->isReadOnly())
            showCursor(Qt::SizeHorCursor);
        break;
    case QEvent::Leave:
        dropCursor();
        break;
    case QEvent::FocusIn:
        if (!isCursorInside())
            lineEdit()->setReadOnly(false);
        break;
    case QEvent::FocusOut:
        if (!isCursorInside())
            lineEdit()->setReadOnly(true);
        break;
    case QEvent::HoverMove:
        returnUnfocusedSiblingsToDragging();
        break;
    default:
        break;
    }
    return false;
}

// Only the left button drags: the right one opens the field's menu, and another button that comes
// and goes during a drag neither restarts nor ends it.
void SpinBox::pressed(QMouseEvent *event, const QPoint &position)
{
    if (m_dragging || event->button() != Qt::LeftButton || !lineEdit()->isReadOnly())
        return;
    QMouseEvent press = Nocturne::QtVersion::movedEvent(event, position);
    dragStart(&press);
}

void SpinBox::released(QMouseEvent *event)
{
    if (!m_dragging || event->button() != Qt::LeftButton)
        return;
    if (!rect().contains(event->pos())) {
        dragEnd(event);
        dropCursor();
        return;
    }
    if (!m_moved)
        startEditing();
    dragEnd(event);
}

void SpinBox::startEditing()
{
    showCursor(Qt::IBeamCursor);
    m_relativeMode = false;
    QSpinBox::setValue(value());
    lineEdit()->setReadOnly(false);
    lineEdit()->selectAll();
}

/// Gives up the mouse and the cursor; the value stays where the drag has brought it.
void SpinBox::abandonDrag()
{
    m_dragging = false;
    m_moved = false;
    if (isDragging())
        releaseMouse();
    dropCursor();
}

void SpinBox::returnUnfocusedSiblingsToDragging()
{
    QList<SpinBox *> siblings{this};
    if (parentWidget())
        siblings = parentWidget()->findChildren<SpinBox *>(QString(), Qt::FindDirectChildrenOnly);
    for (SpinBox *sibling : std::as_const(siblings)) {
        if (!sibling->lineEdit()->hasFocus())
            sibling->lineEdit()->setReadOnly(true);
    }
}

QString SpinBox::textFromValue(int value) const
{
    return m_relativeMode ? QStringLiteral("--") : QString::number(value);
}

void SpinBox::paintEvent(QPaintEvent *event)
{
    QAbstractSpinBox::paintEvent(event);
}

bool SpinBox::isCursorInside() const
{
    return rect().contains(mapFromGlobal(QCursor::pos()));
}

int SpinBox::boundedRound(double value) const
{
    return qRound(qBound(double(minimum()), value, double(maximum())));
}

void SpinBox::showCursor(Qt::CursorShape shape)
{
    if (m_ownsOverrideCursor)
        QApplication::restoreOverrideCursor();
    QApplication::setOverrideCursor(shape);
    m_ownsOverrideCursor = true;
}

void SpinBox::dropCursor()
{
    if (!m_ownsOverrideCursor)
        return;
    m_ownsOverrideCursor = false;
    QApplication::restoreOverrideCursor();
}
