#ifndef NOCTURNE_MEDIAFILTER_P_H
#define NOCTURNE_MEDIAFILTER_P_H

#include "openfiletype.h"

#include <QtCore/QString>

/// The filter of a file dialog for media files: \a format with "%1" replaced by the extensions of
/// \a types, separated by " *.".
QString mediaFilter(const QString &format, QFlags<OpenFileType> types);

#endif
