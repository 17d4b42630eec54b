#include "gallerypreview.h"

#include "gallerylanguage.h"

#include <QtCore/QHash>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <memory>

namespace {

constexpr int previewedWidth = 680; // of a page, whose upper corner is shown
constexpr QSize smallestPage(900, 560);

/// Whatever changes the looks of all pages.
QString generation()
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(quintptr(QApplication::style()))
        .arg(QApplication::palette().cacheKey())
        .arg(QApplication::layoutDirection())
        .arg(galleryCatalogue());
}

GalleryPreview makePreview(const GalleryPage &page)
{
    const std::unique_ptr<QWidget> widget(page.create(nullptr));
    const QSize shown =
        galleryPreviewSize.scaled(previewedWidth, previewedWidth, Qt::KeepAspectRatio);
    widget->resize(widget->sizeHint().expandedTo(smallestPage));
    const bool mirrored = widget->layoutDirection() == Qt::RightToLeft;
    const QRect area(QPoint(mirrored ? widget->width() - shown.width() : 0, 0), shown);

    GalleryPreview preview;
    const qreal ratio = qApp->devicePixelRatio();
    preview.picture = widget->grab(area).scaled(galleryPreviewSize * ratio, Qt::IgnoreAspectRatio,
                                                Qt::SmoothTransformation);
    preview.picture.setDevicePixelRatio(ratio);
    const QList<QWidget *> children = widget->findChildren<QWidget *>();
    for (const QWidget *child : children)
        preview.classes << QString::fromLatin1(child->metaObject()->className());
    preview.classes.removeDuplicates();
    return preview;
}

} // namespace

const GalleryPreview &galleryPreview(const GalleryPage &page)
{
    static QString made;
    static QHash<QString, GalleryPreview> previews;
    const QString now = generation();
    if (made != now)
        previews.clear();
    made = now;
    const QString name = QLatin1String(page.name);
    auto found = previews.find(name);
    if (found == previews.end())
        found = previews.insert(name, makePreview(page));
    return *found;
}
