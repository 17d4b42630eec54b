#ifndef KEYBOARDWALK_H
#define KEYBOARDWALK_H

class QString;

/// Walks through every page with the Tab key alone, in the readable face, and writes a strip of
/// pictures of the steps to \a file. Says on the standard error stream where a step doesn't show;
/// false when there is such a step, or when the file can't be written.
bool filmKeyboardWalk(const QString &file);

#endif
