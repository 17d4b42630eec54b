#ifndef NOCTURNE_GESTUREEND_P_H
#define NOCTURNE_GESTUREEND_P_H

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace Nocturne {

/// Whether after \a event the release of a button pressed on \a widget may never arrive, so that a
/// drag has to end now: the widget is hidden, disabled, or shut out by a modal window. A window
/// that merely loses the focus still gets the rest of the drag.
inline bool endsGesture(const QEvent *event, const QWidget *widget)
{
    switch (event->type()) {
    case QEvent::Hide:
        return true;
    case QEvent::EnabledChange:
        return !widget->isEnabled();
    case QEvent::WindowDeactivate: {
        const QWidget *modal = QApplication::activeModalWidget();
        return modal && modal != widget->window() && !modal->isAncestorOf(widget->window());
    }
    default:
        return false;
    }
}

} // namespace Nocturne

#endif
