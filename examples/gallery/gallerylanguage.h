#ifndef GALLERYLANGUAGE_H
#define GALLERYLANGUAGE_H

#include <QtCore/QFileInfoList>
#include <QtCore/QString>

class QComboBox;

/// The catalogues that the library brings along, by name.
QFileInfoList galleryCatalogues();

/// The file of the catalogue that the gallery runs in; empty in English.
QString galleryCatalogue();

/// Replaces the catalogue that the gallery runs in; an empty path is back to English. False when
/// the file is no catalogue, which is back to English as well.
bool setGalleryCatalogue(const QString &path);

/// A list of the languages in their own names, which switches to the chosen one.
QComboBox *createGalleryLanguageBox();

#endif
