#include "stylepainting_p.h"

#include "darkfusionstyle_p.h"
#include "stylecolors_p.h"

#include <nocturne/painting/devicepixels_p.h>

namespace Nocturne::StylePaint {

void beginSharpAntialiasing(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(0.5, 0.5);
}

void fillOutline(QPainter *painter, const QRect &rect, const QColor &color)
{
    fillRow(painter, rect.left(), rect.right(), rect.top(), color);
    if (rect.height() > 1)
        fillRow(painter, rect.left(), rect.right(), rect.bottom(), color);
    fillColumn(painter, rect.left(), rect.top() + 1, rect.bottom() - 1, color);
    if (rect.width() > 1)
        fillColumn(painter, rect.right(), rect.top() + 1, rect.bottom() - 1, color);
}

namespace {

constexpr int gripDotExtent = 2;

void fillDots(QPainter *painter, const QVector<QPoint> &corners, const QPoint &origin, int extent,
              QRgb color)
{
    for (const QPoint &corner : corners)
        painter->fillRect(QRect(origin + corner, QSize(extent, extent)), QColor::fromRgba(color));
}

QImage dotsImage(const QVector<QPoint> &corners, const QRect &bounds, int extent, QRgb color)
{
    QImage image(bounds.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    fillDots(&painter, corners, -bounds.topLeft(), extent, color);
    return image;
}

} // namespace

GripDots::GripDots(const QVector<QPoint> &corners)
    : m_corners(corners)
{
    QRect bounds;
    for (const QPoint &corner : corners)
        bounds |= QRect(corner, QSize(gripDotExtent, gripDotExtent));
    m_topLeft = bounds.topLeft();
    m_light = dotsImage(corners, bounds, gripDotExtent, StyleColors::lightShade);
    m_dark = dotsImage(corners, bounds, 1, StyleColors::darkShade);
}

void GripDots::paint(QPainter *painter, const QPoint &centre) const
{
    if (wholeRatio(*painter) == 1) {
        painter->drawImage(centre + m_topLeft, m_light);
        painter->drawImage(centre + m_topLeft, m_dark);
    } else {
        fillDots(painter, m_corners, centre, gripDotExtent, StyleColors::lightShade);
        fillDots(painter, m_corners, centre, 1, StyleColors::darkShade);
    }
}

QPixmap arrowPixmap(const QColor &color, int rotation)
{
    return StyleHelpers::colorizedImage(StyleHelpers::arrowImageFileName(), color, rotation);
}

void drawArrow(QPainter *painter, const QPointF &centre, const QColor &color, int rotation)
{
    const QPixmap arrow = arrowPixmap(color, rotation);
    const QSizeF size = QSizeF(arrow.size()) / 2.0;
    const QRectF target(centre - QPointF(size.width(), size.height()) / 2.0, size);
    painter->drawPixmap(target, arrow, arrow.rect());
}

QIcon &tabCloseIcon(const DarkFusionStyle *style)
{
    return static_cast<const DarkFusionStylePrivate *>(QObjectPrivate::get(style))
        ->tabBarcloseButtonIcon;
}

} // namespace Nocturne::StylePaint
