#ifndef NOCTURNE_FILEPICKING_P_H
#define NOCTURNE_FILEPICKING_P_H

#include "openfiletype.h"

#include <QtCore/QString>

class QWidget;

namespace Nocturne {

/// The filter of a file dialog for media files: \a format with "%1" replaced by the extensions of
/// \a types, separated by " *.".
QString mediaFilter(const QString &format, QFlags<OpenFileType> types);

/// Asks for an existing file, starting in \a directory. Empty when the user cancels, or when
/// \a parent is deleted meanwhile.
QString pickFile(QWidget *parent, const QString &caption, const QString &directory,
                 const QString &filter);

/// Asks for a folder; empty as above.
QString pickDirectory(QWidget *parent, const QString &caption);

} // namespace Nocturne

#endif
