#include "stylepainting_p.h"

#include "darkfusionstyle_p.h"
#include "stylecolors_p.h"

#include <nocturne/painting/devicepixels_p.h>

#include <QtGui/QPainterPath>

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

constexpr int outlineCorner = 4; // beyond this, an edge looks the same all along

/// The corners of the rectangle \a r, rounded by one unit and begun where drawRoundedRect() begins.
QPainterPath outlineCorners(const QRectF &r)
{
    constexpr qreal reach = outlineCorner - 0.5;
    constexpr qreal bend = 1 - 0.5522847498; // of the curve that comes closest to a circle
    QPainterPath path;
    path.moveTo(r.left() + 1, r.top());
    path.lineTo(r.left() + reach, r.top());
    path.moveTo(r.right() - reach, r.top());
    path.lineTo(r.right() - 1, r.top());
    path.cubicTo(r.right() - bend, r.top(), r.right(), r.top() + bend, r.right(), r.top() + 1);
    path.lineTo(r.right(), r.top() + reach);
    path.moveTo(r.right(), r.bottom() - reach);
    path.lineTo(r.right(), r.bottom() - 1);
    path.cubicTo(r.right(), r.bottom() - bend, r.right() - bend, r.bottom(), r.right() - 1,
                 r.bottom());
    path.lineTo(r.right() - reach, r.bottom());
    path.moveTo(r.left() + reach, r.bottom());
    path.lineTo(r.left() + 1, r.bottom());
    path.cubicTo(r.left() + bend, r.bottom(), r.left(), r.bottom() - bend, r.left(),
                 r.bottom() - 1);
    path.lineTo(r.left(), r.bottom() - reach);
    path.moveTo(r.left(), r.top() + reach);
    path.lineTo(r.left(), r.top() + 1);
    path.cubicTo(r.left(), r.top() + bend, r.left() + bend, r.top(), r.left() + 1, r.top());
    return path;
}

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

void drawRoundedOutline(QPainter *painter, const QRect &r, const QColor &color)
{
    const bool isLarge = r.width() > 2 * outlineCorner && r.height() > 2 * outlineCorner;
    const bool isOnPixels = isLarge && wholeRatio(*painter) == 1 && !painter->hasClipping();
    const QRect straight = r.adjusted(outlineCorner, outlineCorner, -outlineCorner, -outlineCorner);
    if (isOnPixels) {
        fillRow(painter, straight.left(), straight.right(), r.top(), color);
        fillRow(painter, straight.left(), straight.right(), r.bottom(), color);
        fillColumn(painter, r.left(), straight.top(), straight.bottom(), color);
        fillColumn(painter, r.right(), straight.top(), straight.bottom(), color);
    }
    const PainterSaver saver(painter);
    beginSharpAntialiasing(painter);
    painter->setBrush(Qt::NoBrush);
    const QRectF line = r.adjusted(0, 0, -1, -1);
    if (isOnPixels) {
        painter->setPen(QPen(color, 1, Qt::SolidLine, Qt::FlatCap));
        painter->drawPath(outlineCorners(line));
    } else {
        painter->setPen(color);
        painter->drawRoundedRect(line, 1, 1);
    }
}

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
