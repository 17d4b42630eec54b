#ifndef NOCTURNE_HANDLEMOVE_P_H
#define NOCTURNE_HANDLEMOVE_P_H

#include <QtWidgets/QSlider>

namespace Nocturne {

/// Asks for a repaint of what changes when a handle of \a slider that is shown at \a before goes to
/// \a after: from one side to the other, with room for what a style paints around a handle.
inline void repaintMove(QSlider *slider, const QRect &before, const QRect &after)
{
    constexpr int room = 10;
    const QRect moved = before.united(after).adjusted(-room, -room, room, room);
    if (slider->orientation() == Qt::Horizontal)
        slider->update(moved.left(), 0, moved.width(), slider->height());
    else
        slider->update(0, moved.top(), slider->width(), moved.height());
}

} // namespace Nocturne

#endif
