#ifndef NOCTURNE_LIVEPALETTE_H
#define NOCTURNE_LIVEPALETTE_H

#include <nocturne/nocturneglobal.h>

#include <QtGui/QPalette>

/// Palettes that change while the program runs, such as a darker one for the time of a show.
///
/// \code
/// app.setStyle(new DarkReadableStyle);
/// LivePalette::apply(DarkReadableStyle::palette(LivePalette::dimmed(theme.palette(), 0.6)));
/// \endcode
///
/// GUI thread only.
class NOCTURNE_HOSTKIT LivePalette
{
public:
    /// Gives \a palette to the theme, if there is one, and to the application, and repaints every
    /// window, whatever it took its colours from. Widgets with a palette of their own keep it.
    static void apply(const QPalette &palette);

    /// \a palette with the brightness of every colour times \a brightness, which is clamped to
    /// 0 to 1. Hues, saturations and alphas stay.
    static QPalette dimmed(const QPalette &palette, double brightness);
};

#endif
