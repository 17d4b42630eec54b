#ifndef GALLERYFACE_H
#define GALLERYFACE_H

/// The looks that the gallery can take on while it runs.
enum class GalleryFace {
    Exact,    ///< DarkFusionStyle and the theme's palette
    Readable, ///< DarkReadableStyle and its palette
    Dimmed    ///< the same at half the brightness, for the dark of a show
};

/// Gives the application the style and the palette of \a face, and repaints every window. The
/// style that was installed before is gone.
void showGalleryFace(GalleryFace face);

#endif
