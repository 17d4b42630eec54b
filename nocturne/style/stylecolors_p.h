#ifndef NOCTURNE_STYLECOLORS_P_H
#define NOCTURNE_STYLECOLORS_P_H

#include <QtGui/QPalette>

class QWidget;

/// Every colour that the style derives from a palette, and every fixed one that several of its
/// elements share.
///
/// Unless said otherwise a colour is taken from the palette's current group, and sums are clamped
/// to 0 to 255.
namespace Nocturne::StyleColors {

/// Dark and light dots, and the line inside the outline of a raised part.
// QColor::fromRgba() makes colours of them; QColor(QRgb) would make them opaque.
constexpr QRgb darkShade = 0x3c000000;         // black, alpha 60
constexpr QRgb lightShade = 0x5affffff;        // white, alpha 90
constexpr QRgb innerContrastLine = 0x1effffff; // white, alpha 30

/// \a color at \a alpha.
QColor withAlpha(QColor color, int alpha);

/// The palette's Window colour, shifted.
QColor window(const QPalette &palette, int shift = 0, int alpha = 255);

QColor outlineColor(const QPalette &palette);
QColor buttonColor(const QPalette &palette);
QColor highlightedOutlineColor(const QPalette &palette);

/// The fill of a framed tab.
QColor tabFrameColor(const QPalette &palette);

/// \a factor percent of \a a and the rest of \a b, channel by channel in whole numbers; alpha is
/// that of \a a.
QColor mergedColors(const QColor &a, const QColor &b, int factor = 50);

/// The two ends of the gradients on the parts of complex controls, and the arrows on them.
QColor gradientStartColor(const QPalette &palette);
QColor gradientStopColor(const QPalette &palette);
QColor arrowColor(const QPalette &palette);

/// What a scroll bar stands on: the Base colour of the scroll area it belongs to, or else of
/// \a palette.
QColor scrollBarBackgroundColor(const QPalette &palette, const QWidget *widget);

} // namespace Nocturne::StyleColors

#endif
