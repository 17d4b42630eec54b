#ifndef CONTAINERS_H
#define CONTAINERS_H

class QDesignerFormEditorInterface;

/// Tells Designer how a LetterBoxWidget takes its widget. Does nothing when it was told already.
void registerContainers(QDesignerFormEditorInterface *core);

#endif
