#ifndef NOCTURNE_STYLECOLORS_P_H
#define NOCTURNE_STYLECOLORS_P_H

#include <QtGui/QPalette>

class QWidget;

/// Every colour that the style derives from a palette, and every fixed one it paints with.
///
/// Unless said otherwise a colour is taken from the palette's current group, and sums are clamped
/// to 0 to 255.
namespace StyleColors {

/// \a color with \a shift added to red, green and blue; the result has the alpha given.
QColor shifted(const QColor &color, int shift, int alpha = 255);

/// The palette's Window colour, shifted.
QColor window(const QPalette &palette, int shift = 0, int alpha = 255);

QColor outlineColor(const QPalette &palette);
QColor buttonColor(const QPalette &palette);
QColor highlightedOutlineColor(const QPalette &palette);

/// \a factor percent of \a a and the rest of \a b, channel by channel in whole numbers; alpha is
/// that of \a a.
QColor mergedColors(const QColor &a, const QColor &b, int factor = 50);

/// What a scroll bar stands on: the Base colour of the scroll area it belongs to, or else of
/// \a palette.
QColor scrollBarBackgroundColor(const QPalette &palette, const QWidget *widget);

} // namespace StyleColors

#endif
