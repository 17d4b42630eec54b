#ifndef NOCTURNE_DROPPEDITEMS_P_H
#define NOCTURNE_DROPPEDITEMS_P_H

class QDropEvent;

namespace Nocturne {

/// Whether a drop brings no items, items of this program, or such that the toolkit can take
/// safely. Anybody can drop anything: for impossible places it writes outside its memory.
bool hasSoundItems(const QDropEvent *event);

} // namespace Nocturne

#endif
