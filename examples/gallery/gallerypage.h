#ifndef GALLERYPAGE_H
#define GALLERYPAGE_H

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QVector>

class QWidget;

/// Texts of the gallery: Gallery::tr("Hovered"). Stored ones are marked with
/// QT_TRANSLATE_NOOP("Gallery", "Hovered") and given to Gallery::tr() when they are shown.
class Gallery
{
    Q_DECLARE_TR_FUNCTIONS(Gallery)

public:
    /// Whether pictures of the pages are being taken, and nobody is there to press anything.
    static bool isPhotographed();
};

/// One page of the gallery. A page lives in a file of its own under pages/ and adds itself with
/// GALLERY_PAGE; the window creates it when it is first shown.
struct GalleryPage
{
    using Create = QWidget *(*)(QWidget *parent);

    int order;         ///< place in the list, ascending
    const char *name;  ///< for --page and for file names, lower-case
    const char *title; ///< for people; translated in the context "Gallery"
    Create create;

    QString translatedTitle() const { return Gallery::tr(title); }
    /// Whether it shows controls of the toolkit rather than the library's own.
    bool isStandard() const { return QByteArray(name).startsWith("std_"); }
};

/// What stands above the pages of the library's own, and above those of the standard controls.
QString galleryHeading(bool standard);

/// All pages in their order, those with standard controls behind the others.
QVector<GalleryPage> galleryPages();

bool addGalleryPage(const GalleryPage &page);

/// GALLERY_PAGE(120, "sliders", QT_TRANSLATE_NOOP("Gallery", "Sliders"), createSlidersPage)
#define GALLERY_PAGE(order, name, title, create) \
    static const bool galleryPageAdded = addGalleryPage({order, name, title, create});

#endif
