#ifndef NOCTURNE_RINGACCESSIBLE_P_H
#define NOCTURNE_RINGACCESSIBLE_P_H

class RoundProgressBar;

/// Shows the value of a progress ring to assistive technology.
namespace Nocturne::RingAccessibility {

/// Makes the rings known. Called by every ring as it is made.
void install();

/// Tells those who listen that \a ring has a new value.
void valueChanged(RoundProgressBar *ring);

} // namespace Nocturne::RingAccessibility

#endif
