#include "splitterhandle.h"

#include <nocturne/painting/themepaint_p.h>

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

SplitterHandle::SplitterHandle(Qt::Orientation orientation, QSplitter *parent)
    : QSplitterHandle(orientation, parent)
{
    setMouseTracking(true);
}

bool SplitterHandle::event(QEvent *event)
{
    // Widgets on the handle are there to be clicked, so the pointer does not promise a drag.
    if ((event->type() == QEvent::Enter || event->type() == QEvent::Leave) && !children().isEmpty())
        setCursor(Qt::ArrowCursor);
    return QSplitterHandle::event(event);
}

void SplitterHandle::mousePressEvent(QMouseEvent *event)
{
    Q_EMIT handlePressed();
    m_pressed = true;
    QSplitterHandle::mousePressEvent(event);
}

void SplitterHandle::mouseMoveEvent(QMouseEvent *event)
{
    if (m_pressed)
        QSplitterHandle::mouseMoveEvent(event);
    else
        event->ignore();
}

void SplitterHandle::mouseReleaseEvent(QMouseEvent *event)
{
    Q_EMIT handleReleased();
    m_pressed = false;
    QSplitterHandle::mouseReleaseEvent(event);
}

void SplitterHandle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Nocturne::ThemePaint::window());
}
