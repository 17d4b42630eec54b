#include "edgeshadow_p.h"

#include "devicepixels_p.h"
#include "painterguards_p.h"
#include "toolkitexports_p.h"

#include <QtCore/QCache>
#include <QtCore/QPair>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>

namespace Nocturne {

namespace {

constexpr int barHeight = 6;
constexpr qreal blurRadius = 30.0;
constexpr int keptWidths = 8;

/// The shadow stretched to one width, as it stands at either edge.
struct StretchedShadow
{
    QImage top;
    QImage bottom;
};

QImage blurredShadow()
{
    QImage bar(edgeShadowHeight, edgeShadowHeight, QImage::Format_ARGB32);
    bar.fill(Qt::transparent);
    QPainter barPainter(&bar);
    barPainter.fillRect(0, 0, edgeShadowHeight, barHeight, Qt::black);
    barPainter.end();

    QImage shadow(edgeShadowHeight, edgeShadowHeight, QImage::Format_ARGB32_Premultiplied);
    shadow.fill(Qt::transparent);
    QPainter shadowPainter(&shadow);
    qt_blurImage(&shadowPainter, bar, blurRadius, false, false);
    return shadow;
}

/// Draws the shadow at the top edge, stretched to \a width.
void drawStretched(QPainter *painter, int width)
{
    static const QImage blurred = blurredShadow();
    const QPixmap shadow = QPixmap::fromImage(blurred);
    const QPainter::PixmapFragment fragment =
        QPainter::PixmapFragment::create(QRectF(0, 0, width, edgeShadowHeight).center(),
                                         QRectF(shadow.rect()), qreal(width) / shadow.width(), 1.0);
    painter->drawPixmapFragments(&fragment, 1, shadow);
}

/// Stretching costs more than everything else a scrolled view paints, so the last results stay.
StretchedShadow stretchedShadow(int width, int ratio)
{
    static QCache<QPair<int, int>, StretchedShadow> kept(keptWidths);
    const QPair<int, int> key(width, ratio);
    if (const StretchedShadow *known = kept.object(key))
        return *known;

    QImage top(QSize(width, edgeShadowHeight) * ratio, QImage::Format_ARGB32_Premultiplied);
    top.setDevicePixelRatio(ratio);
    top.fill(Qt::transparent);
    QPainter painter(&top);
    drawStretched(&painter, width);
    painter.end();

    StretchedShadow shadow{top, top.mirrored()};
    kept.insert(key, new StretchedShadow(shadow));
    return shadow;
}

} // namespace

void paintEdgeShadows(QPainter *painter, const QSize &size, bool top, bool bottom)
{
    if ((!top && !bottom) || size.isEmpty())
        return;

    if (const int ratio = wholeRatio(*painter)) {
        const StretchedShadow shadow = stretchedShadow(size.width(), ratio);
        if (top)
            painter->drawImage(0, 0, shadow.top);
        if (bottom)
            painter->drawImage(0, size.height() - edgeShadowHeight, shadow.bottom);
        return;
    }

    if (top)
        drawStretched(painter, size.width());
    if (bottom) {
        const PainterSaver saver(painter);
        painter->translate(0, size.height());
        painter->scale(1, -1);
        drawStretched(painter, size.width());
    }
}

} // namespace Nocturne
