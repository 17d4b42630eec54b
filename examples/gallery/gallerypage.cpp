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
    std::sort(pages.begin(), pages.end(), [](const GalleryPage &a, const GalleryPage &b) {
        return std::make_pair(a.isStandard(), a.order) < std::make_pair(b.isStandard(), b.order);
    });
    return pages;
}

QString galleryHeading(bool standard)
{
    return standard ? Gallery::tr("Standard controls") : Gallery::tr("The library's own");
}

bool Gallery::isPhotographed()
{
    const QStringList arguments = QCoreApplication::arguments();
    return std::any_of(arguments.cbegin(), arguments.cend(), [](const QString &argument) {
        return argument.startsWith(QLatin1String("--screenshots"));
    });
}

bool addGalleryPage(const GalleryPage &page)
{
    registeredPages() << page;
    return true;
}
