#ifndef NOCTURNE_STYLEHELPERS_P_H
#define NOCTURNE_STYLEHELPERS_P_H

#include <nocturne/painting/cacheuse_p.h>
#include <nocturne/painting/painterguards_p.h>

#include <QtGui/QPixmap>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QStyle>

class QStyleOption;
class QStyleOptionTitleBar;
class QStyleOptionToolButton;

/// The tools that the paint functions of the style share.
namespace Nocturne::StyleHelpers {

/// \a value units at 96 DPI in units of the screen's logical DPI, which is read once per process.
qreal dpiScaled(qreal value);

/// Names what \a prefix and every field of \a option that a drawing may depend on look like:
/// state, direction, active sub-controls, palette, \a size, and for spin boxes the button symbols,
/// enabled steps and frame. A null option leaves the prefix and the size. The application's device
/// pixel ratio is part of every key: it changes as screens come and go.
QString styleCacheKey(const QString &prefix, const QStyleOption *option, const QSize &size);

/// An uninitialised pixmap of \a size units at the application's device pixel ratio.
QPixmap styleCachePixmap(const QSize &size);

/// Draws at \a topLeft the cached drawing of \a key; paints it first when it is not in the cache.
/// \a paint is called as paint(QPainter *) on a transparent pixmap of \a size units whose origin
/// is its top left corner. A drawing too large for the cache is painted on \a painter instead,
/// with the origin moved to \a topLeft. An empty size paints nothing.
template <typename Paint>
void drawCached(QPainter *painter, const QPoint &topLeft, const QString &key, const QSize &size,
                Paint paint);

/// The same for drawings that would suffer as a pixmap: under a rotated or sheared painter \a paint
/// draws on \a painter itself.
template <typename Paint>
void drawCachedUnlessTransformed(QPainter *painter, const QPoint &topLeft, const QString &key,
                                 const QSize &size, Paint paint);

/// Paints as \a paint(QPainter *) does for an origin at \a topLeft, within \a size units, and keeps
/// the drawing for the next element with the same \a prefix, look and size. Under a painter that
/// would blur a kept drawing, \a paint draws on the painter itself.
template <typename Paint>
void drawKept(QPainter *painter, const QPoint &topLeft, const QString &prefix,
              const QStyleOption *option, const QSize &size, Paint paint);

/// The name of the toolkit's upward arrow, for colorizedImage(). Where the toolkit was built
/// without it, the style's own arrow answers to the name.
QString arrowImageFileName();

/// The name of the toolkit's group-box frame.
QString groupBoxImageFileName();

/// The image \a fileName with its green channel as grey and its blue less red as the share of
/// \a color, turned by \a rotation degrees. Null when there is no such image.
QPixmap colorizedImage(const QString &fileName, const QColor &color, int rotation = 0);

/// Draws the arrow of PE_IndicatorArrowUp, -Down, -Left or -Right in the middle of the option's
/// rectangle, in its palette's WindowText.
void drawArrowImage(QStyle::PrimitiveElement element, QPainter *painter,
                    const QStyleOption *option);

/// Draws the arrow of a tool button through \a style.
void drawToolButtonArrow(const QStyle *style, const QStyleOptionToolButton *option,
                         const QRect &rect, QPainter *painter, const QWidget *widget);

/// Draws the frame of a title-bar button, without its symbol.
void drawTitleBarButton(QPainter *painter, const QStyleOptionTitleBar *option, const QRect &rect,
                        bool hover, bool sunken);

/// Whether the pixmap cache can hold a drawing of \a size units.
bool fitsCache(const QSize &size);

/// Whether a kept drawing reaches the device pixel by pixel.
bool showsPixmapsUnchanged(const QPainter *painter);

template <typename Paint>
void paintAt(QPainter *painter, const QPoint &topLeft, Paint paint)
{
    const PainterSaver saver(painter);
    painter->translate(topLeft);
    paint(painter);
}

template <typename Paint>
void drawCached(QPainter *painter, const QPoint &topLeft, const QString &key, const QSize &size,
                Paint paint)
{
    if (size.isEmpty())
        return;
    QPixmap pixmap;
    const bool isKept = QPixmapCache::find(key, &pixmap);
    keptPixmapUse.count(isKept);
    if (!isKept) {
        if (!fitsCache(size)) {
            paintAt(painter, topLeft, paint);
            return;
        }
        pixmap = StyleHelpers::styleCachePixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter cachePainter(&pixmap);
        paint(&cachePainter);
        cachePainter.end();
        QPixmapCache::insert(key, pixmap);
    }
    painter->drawPixmap(topLeft, pixmap);
}

template <typename Paint>
void drawCachedUnlessTransformed(QPainter *painter, const QPoint &topLeft, const QString &key,
                                 const QSize &size, Paint paint)
{
    if (size.isEmpty())
        return;
    if (painter->deviceTransform().type() <= QTransform::TxScale)
        drawCached(painter, topLeft, key, size, paint);
    else
        paintAt(painter, topLeft, paint);
}

template <typename Paint>
void drawKept(QPainter *painter, const QPoint &topLeft, const QString &prefix,
              const QStyleOption *option, const QSize &size, Paint paint)
{
    if (showsPixmapsUnchanged(painter)) {
        drawCached(painter, topLeft, styleCacheKey(prefix, option, size), size, paint);
    } else {
        paintAt(painter, topLeft, paint);
    }
}

} // namespace Nocturne::StyleHelpers

#endif
