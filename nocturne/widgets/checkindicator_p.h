#ifndef NOCTURNE_CHECKINDICATOR_P_H
#define NOCTURNE_CHECKINDICATOR_P_H

class QAbstractButton;
class QStyleOptionButton;

namespace Nocturne {

/// Paints \a button as a dark square, with a blue dot in it when it is on, and its caption. Radio
/// buttons and check boxes look alike; a partially checked box is empty.
void paintCheckIndicator(QAbstractButton *button, const QStyleOptionButton &option);

} // namespace Nocturne

#endif
