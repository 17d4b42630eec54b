#ifndef NOCTURNE_EDGESHADOW_P_H
#define NOCTURNE_EDGESHADOW_P_H

class QPainter;
class QSize;

namespace Nocturne {

/// The height of a shadow, in units.
constexpr int edgeShadowHeight = 30;

/// Draws the soft shadow that tells of more content above (\a top) or below (\a bottom) the edges
/// of an area of \a size. The shadow is 30 units high and stretched to the width; it is blurred
/// once and kept.
void paintEdgeShadows(QPainter *painter, const QSize &size, bool top, bool bottom);

} // namespace Nocturne

#endif
