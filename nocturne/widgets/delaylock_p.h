#ifndef NOCTURNE_DELAYLOCK_P_H
#define NOCTURNE_DELAYLOCK_P_H

#include <QtCore/QTimer>

/// What the two delay buttons share.
namespace Nocturne::DelayLock {

constexpr int defaultDelay = 500; // milliseconds

/// Disables \a button and calls its \a unlock once after \a delay milliseconds. Every call starts
/// a timer of its own.
template <typename Button>
void lock(Button *button, int delay, void (Button::*unlock)())
{
    button->setEnabled(false);
    QTimer::singleShot(delay, button, unlock);
}

} // namespace Nocturne::DelayLock

#endif
