#ifndef NOCTURNE_HANDLEACCESSIBLE_P_H
#define NOCTURNE_HANDLEACCESSIBLE_P_H

class QSlider;

/// Shows the handles of range and span sliders to assistive technology: the slider is a group, and
/// each handle a slider in it with a name, a value of its own and the room it can move in.
namespace Nocturne::HandleAccessibility {

/// Makes the handles known. Called by every slider with several handles as it is made.
void install();

/// Tells those who listen that a handle of \a slider, counted from 0, has a new value.
void valueChanged(QSlider *slider, int handle, int value);

} // namespace Nocturne::HandleAccessibility

#endif
