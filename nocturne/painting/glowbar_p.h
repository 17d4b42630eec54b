#ifndef NOCTURNE_GLOWBAR_P_H
#define NOCTURNE_GLOWBAR_P_H

#include <QtCore/QMarginsF>
#include <QtCore/QSizeF>

class QPainter;
class QPoint;

namespace Nocturne {

/// A rounded bar in the accent blue, blurred: the size it is blurred within, the space left free
/// around the bar inside that size, and the radius of its corners.
struct GlowBar
{
    QSizeF size;
    QMarginsF margins;
    qreal cornerRadius;
};

/// Draws \a bar with its top left corner at \a topLeft. Fractions of its width show at its right
/// end only. Costs a blur of the two ends, not of the whole length.
void drawGlowBar(QPainter *painter, const QPoint &topLeft, const GlowBar &bar);

} // namespace Nocturne

#endif
