#ifndef NOCTURNE_GRADIENTTOOLACCESSIBLE_P_H
#define NOCTURNE_GRADIENTTOOLACCESSIBLE_P_H

class GradientToolSlider;

/// Shows the stops of a gradient editor to assistive technology: the editor is a group, and each
/// marker a slider in it whose value is the position of its stop.
namespace Nocturne::StopAccessibility {

/// Makes editors and markers known. Called by every editor as it is made.
void install();

/// Tells those who listen that the stop of \a marker has the focus of its editor.
void focused(GradientToolSlider *marker);

/// Tells those who listen that the stop of \a marker is now at \a position.
void moved(GradientToolSlider *marker, double position);

} // namespace Nocturne::StopAccessibility

#endif
