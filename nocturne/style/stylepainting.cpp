#include "stylepainting_p.h"

#include "darkfusionstyle_p.h"
#include "stylecolors_p.h"

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

void paintGripDot(QPainter *painter, int x, int y)
{
    painter->fillRect(x, y, 2, 2, QColor::fromRgba(StyleColors::lightShade));
    painter->fillRect(x, y, 1, 1, QColor::fromRgba(StyleColors::darkShade));
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
