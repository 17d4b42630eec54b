#include "glowbar_p.h"

#include <nocturne/painting/themepaint_p.h>
#include <nocturne/painting/toolkitexports_p.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>

namespace Nocturne {

namespace {

constexpr qreal blurRadius = 3.0;

// So far from an end the blur has settled, and every column is like the one beside it.
constexpr int endWidth = 48;

QPixmap blurred(const GlowBar &bar)
{
    QImage sharp(int(bar.size.width()), int(bar.size.height()), QImage::Format_ARGB32);
    if (sharp.isNull())
        return QPixmap();
    sharp.fill(Qt::transparent);
    QPainter sharpPainter(&sharp);
    sharpPainter.setRenderHint(QPainter::Antialiasing);
    sharpPainter.setPen(Qt::NoPen);
    sharpPainter.setBrush(QColor(ThemePaint::accentBlue));
    sharpPainter.drawRoundedRect(QRectF(QPointF(), bar.size).marginsRemoved(bar.margins),
                                 bar.cornerRadius, bar.cornerRadius);
    sharpPainter.end();

    QPixmap soft(sharp.size());
    soft.fill(Qt::transparent);
    QPainter softPainter(&soft);
    qt_blurImage(&softPainter, sharp, blurRadius, false, false);
    return soft;
}

} // namespace

void drawGlowBar(QPainter *painter, const QPoint &topLeft, const GlowBar &bar)
{
    const int width = int(bar.size.width());
    const int repeated = width - 2 * endWidth;
    if (repeated <= 0) {
        painter->drawPixmap(topLeft, blurred(bar));
        return;
    }

    GlowBar ends = bar;
    ends.size.rwidth() -= repeated;
    const QPixmap pixmap = blurred(ends);
    const int height = pixmap.height();
    painter->drawPixmap(topLeft, pixmap, QRect(0, 0, endWidth, height));
    painter->drawPixmap(QRect(topLeft.x() + endWidth, topLeft.y(), repeated, height), pixmap,
                        QRect(endWidth, 0, 1, height));
    painter->drawPixmap(topLeft + QPoint(endWidth + repeated, 0), pixmap,
                        QRect(endWidth, 0, pixmap.width() - endWidth, height));
}

} // namespace Nocturne
