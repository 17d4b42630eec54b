#include "galleryface.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkReadableStyle>
#include <nocturne/DarkUX>
#include <nocturne/LivePalette>

#include <QtWidgets/QApplication>

namespace {

constexpr double dimmedBrightness = 0.5;

QPalette paletteOf(GalleryFace face, const QPalette &theme)
{
    switch (face) {
    case GalleryFace::Readable:
        return DarkReadableStyle::palette(theme);
    case GalleryFace::Dimmed:
        return DarkReadableStyle::palette(LivePalette::dimmed(theme, dimmedBrightness));
    default:
        return theme;
    }
}

} // namespace

void showGalleryFace(GalleryFace face)
{
    if (face == GalleryFace::Exact)
        QApplication::setStyle(new DarkFusionStyle);
    else
        QApplication::setStyle(new DarkReadableStyle);
    static const QPalette exact = DarkUX::getInstance().palette(); // what the program began with
    LivePalette::apply(paletteOf(face, exact));
}
