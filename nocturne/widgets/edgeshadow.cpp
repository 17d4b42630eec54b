#include "edgeshadow_p.h"

#include <nocturne/theme/toolkitexports_p.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtGui/QPixmapCache>

namespace {

constexpr int barHeight = 6;
constexpr qreal blurRadius = 30.0;

QPixmap blurredShadow()
{
    QImage bar(edgeShadowHeight, edgeShadowHeight, QImage::Format_ARGB32);
    bar.fill(Qt::transparent);
    QPainter barPainter(&bar);
    barPainter.fillRect(0, 0, edgeShadowHeight, barHeight, Qt::black);
    barPainter.end();

    QPixmap shadow(edgeShadowHeight, edgeShadowHeight);
    shadow.fill(Qt::transparent);
    QPainter shadowPainter(&shadow);
    qt_blurImage(&shadowPainter, bar, blurRadius, false, false);
    return shadow;
}

QPixmap shadowPixmap()
{
    const QString key = QStringLiteral("nocturne-edge-shadow");
    QPixmap shadow;
    if (!QPixmapCache::find(key, &shadow)) {
        shadow = blurredShadow();
        QPixmapCache::insert(key, shadow);
    }
    return shadow;
}

} // namespace

void paintEdgeShadows(QPainter *painter, const QSize &size, bool top, bool bottom)
{
    if (!top && !bottom)
        return;

    const QPixmap shadow = shadowPixmap();
    const QPainter::PixmapFragment fragment = QPainter::PixmapFragment::create(
        QRectF(0, 0, size.width(), edgeShadowHeight).center(), QRectF(shadow.rect()),
        qreal(size.width()) / shadow.width(), 1.0);

    if (top)
        painter->drawPixmapFragments(&fragment, 1, shadow);
    if (bottom) {
        painter->save();
        painter->translate(0, size.height());
        painter->scale(1, -1);
        painter->drawPixmapFragments(&fragment, 1, shadow);
        painter->restore();
    }
}
