#include "artwork.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

namespace {

struct State
{
    const char *suffix;
    const char *styleClass;
};

constexpr State states[] = {
    {"_on", "on"},
    {"_enable", "on"},
    {"_1", "alternative"},
    {"_active", "busy"},
};

constexpr int jpegQuality = 92;
constexpr int smallestPng = 0; // the writer's quality is the inverse of its effort

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void paint(QImage *image, const QByteArray &svg)
{
    QSvgRenderer renderer(svg);
    QPainter painter(image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
}

} // namespace

Artwork::Artwork(const QString &directory)
    : m_directory(directory)
    , m_style(contentsOf(m_directory.filePath(QStringLiteral("style.css"))))
{}

QString Artwork::bake(const QString &imagePath) const
{
    const QFileInfo target(imagePath);
    const Drawing drawing = drawingOf(target.completeBaseName());
    if (drawing.path.isEmpty())
        return QStringLiteral("there is no drawing for it");
    if (m_style.isEmpty())
        return QStringLiteral("there is no style sheet");

    if (target.suffix() == QLatin1String("svg")) {
        QFile file(imagePath);
        const QByteArray svg = styled(drawing.path, drawing.states);
        const bool written = file.open(QIODevice::WriteOnly) && file.write(svg) == svg.size();
        return written ? QString() : file.errorString();
    }

    QImage image = rendered(drawing);
    if (image.isNull())
        return QStringLiteral("%1 is not a drawing").arg(drawing.path);
    const bool opaque = target.suffix() == QLatin1String("jpg");
    if (opaque)
        image = image.convertToFormat(QImage::Format_RGB32);
    if (!image.save(imagePath, nullptr, opaque ? jpegQuality : smallestPng))
        return QStringLiteral("cannot be written");
    return QString();
}

Artwork::Drawing Artwork::drawingOf(const QString &baseName) const
{
    Drawing drawing;
    QString name = baseName;
    drawing.path = pathOf(name);
    while (drawing.path.isEmpty()) {
        const QString before = name;
        for (const State &state : states) {
            const QLatin1String suffix(state.suffix);
            if (name.endsWith(suffix)) {
                name.chop(suffix.size());
                drawing.states.prepend(QLatin1String(state.styleClass));
                break;
            }
        }
        if (name == before)
            break;
        drawing.path = pathOf(name);
    }
    return drawing;
}

QString Artwork::pathOf(const QString &baseName) const
{
    for (const char *folder : {"icons", "editions"}) {
        QString path = m_directory.filePath(QLatin1String(folder) + QLatin1Char('/') + baseName)
                       + QStringLiteral(".svg");
        if (QFile::exists(path))
            return path;
    }
    return QString();
}

/// The drawing with the style sheet in it, and with the states as classes of its root.
QByteArray Artwork::styled(const QString &path, const QStringList &states) const
{
    QByteArray svg = contentsOf(path);
    const int root = svg.indexOf("<svg");
    const int rootEnd = svg.indexOf('>', root);
    if (root < 0 || rootEnd < 0)
        return QByteArray();
    svg.insert(rootEnd + 1, "\n<style>\n" + m_style + "</style>");
    if (!states.isEmpty())
        svg.insert(rootEnd, " class=\"" + states.join(QLatin1Char(' ')).toUtf8() + '"');
    return svg;
}

QImage Artwork::rendered(const Drawing &drawing) const
{
    const QByteArray svg = styled(drawing.path, drawing.states);
    const QSvgRenderer renderer(svg);
    if (!renderer.isValid())
        return QImage();

    QImage image(renderer.defaultSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    paint(&image, svg);
    for (const QString &state : drawing.states) {
        const QString overlay = m_directory.filePath(QStringLiteral("states/%1.svg").arg(state));
        if (QFile::exists(overlay))
            paint(&image, styled(overlay, {}));
    }
    return image;
}
