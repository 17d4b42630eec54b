#include "artwork.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

#include <cstdio>

namespace {

/// The files below "appicons/" that a resource description lists.
QStringList listedImages(QIODevice *description)
{
    QStringList images;
    QXmlStreamReader xml(description);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("file"))
        {
            const QString file = xml.readElementText();
            if (file.startsWith(QLatin1String("appicons/")))
                images << file;
        }
    }
    return images;
}

} // namespace

/// Bakes every image that the resource description lists from its drawing:
/// nocturne-bake <artwork folder> <resource description> <output folder>
int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.size() != 4) {
        std::fprintf(stderr, "usage: nocturne-bake artwork-folder description.qrc output-folder\n");
        return 2;
    }

    QFile description(arguments.at(2));
    if (!description.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(description.fileName()));
        return 1;
    }
    const QDir output(arguments.at(3));
    output.mkpath(QStringLiteral("appicons"));

    const Artwork artwork(arguments.at(1));
    for (const QString &image : listedImages(&description)) {
        const QString error = artwork.bake(output.absoluteFilePath(image));
        if (!error.isEmpty()) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(image), qPrintable(error));
            return 1;
        }
    }
    return 0;
}
