#ifndef NOCTURNE_QTVERSION_P_H
#define NOCTURNE_QTVERSION_P_H

#include <QtGui/QDropEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QIcon>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtGui/QWindow>
#include <QtWidgets/QStyleOption>

// Everything that Qt 5 and Qt 6 call differently. Nothing else in the library asks for the version.

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
/// Where a virtual function of the toolkit was const and is no longer.
#define NOCTURNE_QT5_CONST const
#else
#define NOCTURNE_QT5_CONST
#endif

namespace Nocturne::QtVersion {

/// Whether text is shaped once and drawn from its glyphs afterwards. Qt 6 rounds the place of some
/// texts in a way that kept ones do not follow, so there the toolkit draws all of them itself.
constexpr bool keepsText = QT_VERSION < QT_VERSION_CHECK(6, 0, 0);

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

/// Lines without antialiasing half a pixel to the lower right. What has no such hint paints as if
/// it was not given.
constexpr QPainter::RenderHint offsetLines = QPainter::Qt4CompatiblePainting;

/// Gives \a palette the colour of place holders where the toolkit does not derive it: the text's,
/// half transparent, in all groups.
inline void setPlaceholderText(QPalette *) {}

inline QPoint position(const QDropEvent *event)
{
    return event->pos();
}

inline Qt::KeyboardModifiers modifiers(const QDropEvent *event)
{
    return event->keyboardModifiers();
}

/// \a event as it would be at \a position of its widget. On the screen it stays where it is.
inline QMouseEvent movedEvent(const QMouseEvent *event, const QPointF &position)
{
    return QMouseEvent(event->type(), position, event->windowPos(), event->screenPos(),
                       event->button(), event->buttons(), event->modifiers(), event->source());
}

/// Of the density of \a window, or of the application's when there is none.
inline QPixmap iconPixmap(const QIcon &icon, QWindow *window, const QSize &size, QIcon::Mode mode,
                          QIcon::State state)
{
    return icon.pixmap(window, size, mode, state);
}

/// The width that a menu sets aside for the shortcuts of its items.
inline int shortcutWidth(const QStyleOptionMenuItem &option)
{
    return option.tabWidth;
}

inline bool isVertical(const QStyleOptionProgressBar &option)
{
    return option.orientation == Qt::Vertical;
}

#else

constexpr QPainter::RenderHint offsetLines{};

inline void setPlaceholderText(QPalette *palette)
{
    QColor color = palette->color(QPalette::Active, QPalette::Text);
    color.setAlpha(128);
    palette->setColor(QPalette::PlaceholderText, color);
}

inline QPoint position(const QDropEvent *event)
{
    return event->position().toPoint();
}

inline Qt::KeyboardModifiers modifiers(const QDropEvent *event)
{
    return event->modifiers();
}

inline QMouseEvent movedEvent(const QMouseEvent *event, const QPointF &position)
{
    return QMouseEvent(event->type(), position, event->scenePosition(), event->globalPosition(),
                       event->button(), event->buttons(), event->modifiers(), event->source(),
                       event->pointingDevice());
}

inline QPixmap iconPixmap(const QIcon &icon, QWindow *window, const QSize &size, QIcon::Mode mode,
                          QIcon::State state)
{
    const qreal ratio = window ? window->devicePixelRatio() : qGuiApp->devicePixelRatio();
    return icon.pixmap(size, ratio, mode, state);
}

inline int shortcutWidth(const QStyleOptionMenuItem &option)
{
    return option.reservedShortcutWidth;
}

inline bool isVertical(const QStyleOptionProgressBar &option)
{
    return !(option.state & QStyle::State_Horizontal);
}

#endif

} // namespace Nocturne::QtVersion

#endif
