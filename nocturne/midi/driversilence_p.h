#ifndef NOCTURNE_DRIVERSILENCE_P_H
#define NOCTURNE_DRIVERSILENCE_P_H

#include <QtCore/qglobal.h>

#include <cstdarg>

namespace Nocturne {

/// Keeps ALSA and JACK from printing what this thread makes them do while it lives.
///
/// RtMidi tells in its own words what has failed. The two would add several lines each time, to a
/// host that asks for the ports every second as well. What other threads cause is printed as ever,
/// and a handler that the host has set is left alone.
class DriverSilence
{
public:
    DriverSilence();
    ~DriverSilence();
    Q_DISABLE_COPY(DriverSilence)

private:
    using AlsaHandler = void (*)(const char *file, int line, const char *function, int error,
                                 const char *format, va_list arguments);

    AlsaHandler m_alsaHandler = nullptr;
};

} // namespace Nocturne

#endif
