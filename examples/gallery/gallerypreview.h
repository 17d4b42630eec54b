#ifndef GALLERYPREVIEW_H
#define GALLERYPREVIEW_H

#include "gallerypage.h"

#include <QtCore/QStringList>
#include <QtGui/QPixmap>

/// What a page shows, found out by making it once.
struct GalleryPreview
{
    QPixmap picture;     ///< galleryPreviewSize large
    QStringList classes; ///< of all widgets on it
};

constexpr QSize galleryPreviewSize(212, 136);

/// The preview of \a page in the face, the language and the direction of the moment. Kept until one
/// of them changes.
const GalleryPreview &galleryPreview(const GalleryPage &page);

#endif
