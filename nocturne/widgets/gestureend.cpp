#include "gestureend_p.h"

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <utility>

namespace {

/// Whether \a event, on its way to \a widget, takes the pointer away in the middle of a drag or
/// shows that its button is up already: the widget is hidden, disabled or shut out by a modal
/// window, or the pointer comes without a button. A window that merely loses the focus still gets
/// the rest of the drag.
bool endsGesture(const QEvent *event, const QWidget *widget)
{
    switch (event->type()) {
    case QEvent::Hide:
    case QEvent::WindowBlocked:
        return true;
    case QEvent::EnabledChange:
        return !widget->isEnabled();
    case QEvent::MouseMove:
        return static_cast<const QMouseEvent *>(event)->buttons() == Qt::NoButton;
    case QEvent::Enter:
    case QEvent::HoverEnter:
        return QGuiApplication::mouseButtons() == Qt::NoButton;
    default:
        return false;
    }
}

} // namespace

Nocturne::Gesture::Gesture(QWidget *widget, std::function<void()> interrupted)
    : m_widget(widget)
    , m_interrupted(std::move(interrupted))
{}

void Nocturne::Gesture::press(Qt::MouseButton button)
{
    if (!isRunning()) {
        m_isReal = QGuiApplication::mouseButtons() != Qt::NoButton;
        QCoreApplication::instance()->installEventFilter(this);
    }
    m_held |= button;
}

bool Nocturne::Gesture::release(Qt::MouseButton button)
{
    if (!isRunning())
        return false;
    m_held.setFlag(button, false);
    if (isRunning())
        return false;
    end();
    return true;
}

void Nocturne::Gesture::end()
{
    m_held = Qt::NoButton;
    QCoreApplication::instance()->removeEventFilter(this);
}

bool Nocturne::Gesture::eventFilter(QObject *watched, QEvent *event)
{
    if (!isInterruptedBy(watched, event))
        return false;
    end();
    // The end of a gesture is reported, and who hears of it may delete what the event is for and
    // this object too.
    const QPointer<QObject> receiver(watched);
    const std::function<void()> interrupted = m_interrupted;
    interrupted();
    return !receiver;
}

bool Nocturne::Gesture::isInterruptedBy(const QObject *watched, const QEvent *event) const
{
    if (watched != m_widget) {
        return event->type() == QEvent::Show && watched->isWidgetType()
               && static_cast<const QWidget *>(watched)->windowType() == Qt::Popup;
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return m_held & static_cast<const QMouseEvent *>(event)->button();
    case QEvent::HoverMove:
        // Comes with every move, also with one that a program makes up without pressing anything.
        return m_isReal && QGuiApplication::mouseButtons() == Qt::NoButton;
    default:
        return endsGesture(event, m_widget);
    }
}
