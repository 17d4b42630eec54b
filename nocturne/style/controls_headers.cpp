#include "stylecolors_p.h"
#include "styleelements_p.h"
#include "stylehelpers_p.h"

#include <nocturne/painting/themepaint_p.h>

namespace Nocturne::StylePaint {

namespace {

constexpr QRgb sectionSeparator = 0x28000000; // black, alpha 40

/// The stops of the window's own gradient, or else a soft step across the middle.
QGradientStops sectionStops(const QPalette &palette)
{
    if (const QGradient *gradient = palette.window().gradient())
        return gradient->stops();
    const QColor button = StyleColors::buttonColor(palette);
    const QColor start = button.lighter(104);
    const QColor stop = button.darker(102);
    return {{0.0, start},
            {0.5, StyleColors::mergedColors(start, stop, 60)},
            {0.501, StyleColors::mergedColors(start, stop, 40)},
            {0.92, stop},
            {1.0, stop.darker(104)}};
}

bool hasNextSection(const QStyleOptionHeader &header)
{
    return header.position != QStyleOptionHeader::End
           && header.position != QStyleOptionHeader::OnlyOneSection;
}

void paintSectionEdges(QPainter *painter, const QStyleOptionHeader &header, const QRect &r)
{
    const QColor outline = StyleColors::outlineColor(header.palette);
    const QColor contrast = QColor::fromRgba(StyleColors::innerContrastLine);
    painter->setPen(contrast);
    painter->drawLine(r.topLeft(), r.topRight());
    painter->setPen(outline);
    painter->drawLine(r.bottomLeft(), r.bottomRight());
    if (header.orientation == Qt::Vertical) {
        painter->drawLine(r.topRight(), r.bottomRight());
    } else if (hasNextSection(header)) {
        painter->setPen(QColor::fromRgba(sectionSeparator));
        painter->drawLine(r.topRight(), r.bottomRight() + QPoint(0, -1));
        painter->setPen(contrast);
        painter->drawLine(r.topRight() + QPoint(-1, 0), r.bottomRight() + QPoint(-1, -1));
    }
}

void paintSection(QPainter *painter, const QStyleOptionHeader &header)
{
    const QRect r(QPoint(), header.rect.size());
    painter->fillRect(
        r, ThemePaint::verticalGradient(r.top(), r.bottom(), sectionStops(header.palette)));
    paintSectionEdges(painter, header, r);
}

} // namespace

void paintHeaderSection(const PaintCall &call)
{
    const auto *header = call.as<QStyleOptionHeader>();
    if (!header)
        return;
    QString key =
        StyleHelpers::styleCacheKey(QStringLiteral("headersection"), header, header->rect.size());
    key += QString::number(-int(header->position));
    key += QString::number(-int(header->orientation));
    StyleHelpers::drawCached(call.painter, header->rect.topLeft(), key, header->rect.size(),
                             [header](QPainter *painter) { paintSection(painter, *header); });
}

} // namespace Nocturne::StylePaint
