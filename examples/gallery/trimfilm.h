#ifndef TRIMFILM_H
#define TRIMFILM_H

class QString;

/// Drags the three handles of the clip on the page of ranges with a simulated pointer and writes
/// what changes from one picture to the next into \a directory: "frame-007+120+31.png" is the
/// eighth, at 120, 31. scripts/update-docs makes an animated picture of them.
bool filmTrim(const QString &directory);

#endif
