#ifndef NOCTURNE_OPENFILETYPE_H
#define NOCTURNE_OPENFILETYPE_H

#include <QtCore/QFlags>

/// Kinds of media files that a file chooser offers.
enum OpenFileType { OpenImageFile = 1, OpenVideoFile = 2, OpenAudioFile = 4 };

Q_DECLARE_OPERATORS_FOR_FLAGS(QFlags<OpenFileType>)

#endif
