#ifndef NOCTURNE_STYLEHELPERS_P_H
#define NOCTURNE_STYLEHELPERS_P_H

#include <QtCore/QLineF>
#include <QtCore/QVector>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/QStyle>

class QStyleOption;
class QStyleOptionSlider;
class QStyleOptionTitleBar;
class QStyleOptionToolButton;

/// The tools that the paint functions of the style share.
namespace StyleHelpers {

/// Saves a painter's state and restores it at the end of the scope.
class PainterSaver
{
public:
    explicit PainterSaver(QPainter *painter)
        : m_painter(painter)
    {
        m_painter->save();
    }
    ~PainterSaver() { m_painter->restore(); }

private:
    Q_DISABLE_COPY(PainterSaver)

    QPainter *m_painter;
};

/// \a value units at 96 DPI in units of the screen's logical DPI, which is read once per process.
qreal dpiScaled(qreal value);

/// Names what \a prefix and every field of \a option that a drawing may depend on look like:
/// state, direction, active sub-controls, palette, \a size, and for spin boxes the button symbols,
/// enabled steps and frame.
QString styleCacheKey(const QString &prefix, const QStyleOption *option, const QSize &size);

/// An uninitialised pixmap of \a size units at the application's device pixel ratio.
QPixmap styleCachePixmap(const QSize &size);

/// Draws at \a topLeft the cached drawing of \a key; paints it first when it is not in the cache.
/// \a paint is called as paint(QPainter *) on a transparent pixmap of \a size units whose origin
/// is its top left corner.
template <typename Paint>
void drawCached(QPainter *painter, const QPoint &topLeft, const QString &key, const QSize &size,
                Paint paint);

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

void drawDial(const QStyleOptionSlider *option, QPainter *painter);
int dialBigLineSize(int radius);
QVector<QLineF> dialTickLines(const QStyleOptionSlider *option);
/// A point on the line from the dial's centre to its value, \a offset of the way out.
QPointF dialRadialPos(const QStyleOptionSlider *option, qreal offset);

bool findCached(const QString &key, QPixmap *pixmap);
void insertCached(const QString &key, const QPixmap &pixmap);

template <typename Paint>
void drawCached(QPainter *painter, const QPoint &topLeft, const QString &key, const QSize &size,
                Paint paint)
{
    if (size.isEmpty())
        return;
    QPixmap pixmap;
    if (!findCached(key, &pixmap)) {
        pixmap = styleCachePixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter cachePainter(&pixmap);
        paint(&cachePainter);
        cachePainter.end();
        insertCached(key, pixmap);
    }
    painter->drawPixmap(topLeft, pixmap);
}

} // namespace StyleHelpers

#endif
