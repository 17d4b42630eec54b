#ifndef ARTWORK_H
#define ARTWORK_H

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QStringList>

class QImage;

/// The folder of drawings: icons/ and editions/ hold one SVG each for a base form, states/ what is
/// laid over an icon in a state, and style.css how everything is painted.
///
/// An image whose name has no drawing of its own is derived: the state suffixes of its name
/// ("_on", "_enable", "_1", "_active") are taken off until a drawing is found, and the drawing is
/// painted in those states.
class Artwork
{
public:
    explicit Artwork(const QString &directory);

    /// Writes the image of that file name; the extension chooses the kind. Returns what went
    /// wrong, or an empty text.
    QString bake(const QString &imagePath) const;

private:
    struct Drawing
    {
        QString path;       ///< empty when there is none
        QStringList states; ///< classes of the style sheet
    };

    Drawing drawingOf(const QString &baseName) const;
    QString pathOf(const QString &baseName) const;
    QByteArray styled(const QString &path, const QStringList &states) const;
    QImage rendered(const Drawing &drawing) const;

    QDir m_directory;
    QByteArray m_style;
};

#endif
