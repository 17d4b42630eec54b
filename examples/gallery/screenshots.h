#ifndef SCREENSHOTS_H
#define SCREENSHOTS_H

#include <QtCore/QString>

/// Renders every page, or only the one named \a only, into PNG files in \a directory: in the exact
/// and the readable face, left to right, right to left and disabled. Prints each path; false when
/// one cannot be written or there is no such page.
bool renderScreenshots(const QString &directory, const QString &only);

#endif
