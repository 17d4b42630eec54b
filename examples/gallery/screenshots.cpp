#include "screenshots.h"

#include "galleryface.h"
#include "gallerypage.h"

#include <QtCore/QDir>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <utility>

namespace {

constexpr QSize smallestPage(900, 240);

enum class Variant { LeftToRight, RightToLeft, Disabled };

QString suffixOf(GalleryFace face, Variant variant)
{
    QString suffix;
    if (face == GalleryFace::Readable)
        suffix = QStringLiteral("-readable");
    if (variant == Variant::RightToLeft)
        suffix += QStringLiteral("-rtl");
    else if (variant == Variant::Disabled)
        suffix += QStringLiteral("-disabled");
    if (qApp->devicePixelRatio() > 1.0)
        suffix += QStringLiteral("@%1x").arg(qApp->devicePixelRatio());
    return suffix;
}

bool renderPage(const GalleryPage &page, GalleryFace face, Variant variant, const QDir &directory)
{
    QApplication::setLayoutDirection(variant == Variant::RightToLeft ? Qt::RightToLeft
                                                                     : Qt::LeftToRight);
    const std::unique_ptr<QWidget> widget(page.create(nullptr));
    widget->setEnabled(variant != Variant::Disabled);
    widget->resize(widget->sizeHint().expandedTo(smallestPage));
    widget->show();
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);

    const QString path = directory.absoluteFilePath(
        QLatin1String(page.name) + suffixOf(face, variant) + QStringLiteral(".png"));
    const bool saved = widget->grab().save(path);
    if (saved)
        std::printf("%s\n", qPrintable(path));
    else
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
    return saved;
}

} // namespace

bool renderScreenshots(const QString &directory, const QString &only)
{
    const QDir target(directory);
    if (!target.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "cannot create the folder %s\n", qPrintable(directory));
        return false;
    }

    QVector<GalleryPage> pages = galleryPages();
    if (!only.isEmpty()) {
        pages.erase(std::remove_if(pages.begin(), pages.end(),
                                   [&only](const GalleryPage &page) {
                                       return only != QLatin1String(page.name);
                                   }),
                    pages.end());
        if (pages.isEmpty())
            std::fprintf(stderr, "there is no page named %s\n", qPrintable(only));
    }
    bool isDone = !pages.isEmpty();
    for (GalleryFace face : {GalleryFace::Exact, GalleryFace::Readable}) {
        showGalleryFace(face);
        for (const GalleryPage &page : std::as_const(pages)) {
            for (Variant variant : {Variant::LeftToRight, Variant::RightToLeft, Variant::Disabled})
                isDone = isDone && renderPage(page, face, variant, target);
        }
    }
    std::fflush(stdout);
    return isDone;
}
