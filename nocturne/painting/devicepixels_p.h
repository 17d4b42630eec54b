#ifndef NOCTURNE_DEVICEPIXELS_P_H
#define NOCTURNE_DEVICEPIXELS_P_H

class QPainter;

namespace Nocturne {

/// How many device pixels a unit of \a painter has, for whoever draws a kept picture: its pixels
/// land whole where this is its device pixel ratio. 0 where a unit is no whole number of pixels,
/// or does not begin at a whole one.
int wholeRatio(const QPainter &painter);

} // namespace Nocturne

#endif
