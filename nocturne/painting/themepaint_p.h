#ifndef NOCTURNE_THEMEPAINT_P_H
#define NOCTURNE_THEMEPAINT_P_H

#include <QtGui/QBrush>
#include <QtGui/QPalette>

/// What the paint events of the library's own widgets take from the theme.
namespace Nocturne::ThemePaint {

/// The accent of value fills, progress and focus rings.
constexpr QRgb accentBlue = 0xff419bf9; // rgb(65, 155, 249)

/// A colour of the theme palette's current group.
QColor color(QPalette::ColorRole role);

/// The theme's ButtonText colour of the active or the disabled group: captions that a widget draws
/// itself.
QColor buttonText(bool enabled);

/// \a color with \a shift added to red, green and blue, clamped to 0 to 255, at \a alpha.
QColor shifted(const QColor &color, int shift, int alpha = 255);

/// The theme's Window colour, shifted.
QColor window(int shift = 0, int alpha = 255);

/// A gradient straight down from y = \a top to y = \a bottom. On panels and buttons it ends at
/// their height: where they do not start at 0 that is short of their lower edge, which is meant.
QLinearGradient verticalGradient(qreal top, qreal bottom, const QGradientStops &stops);

} // namespace Nocturne::ThemePaint

#endif
