#include "gallerypage.h"

#include <algorithm>

namespace {

QVector<GalleryPage> &registeredPages()
{
    static QVector<GalleryPage> pages;
    return pages;
}

} // namespace

QVector<GalleryPage> galleryPages()
{
    QVector<GalleryPage> pages = registeredPages();
    std::sort(pages.begin(), pages.end(),
              [](const GalleryPage &a, const GalleryPage &b) { return a.order < b.order; });
    return pages;
}

bool addGalleryPage(const GalleryPage &page)
{
    registeredPages() << page;
    return true;
}
