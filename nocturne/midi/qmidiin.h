#ifndef NOCTURNE_QMIDIIN_H
#define NOCTURNE_QMIDIIN_H

#include <nocturne/midi/qmidimessage.h>
#include <nocturne/nocturneglobal.h>

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <memory>

class RtMidiIn;

namespace Nocturne {
class MidiPort;
} // namespace Nocturne

/// A MIDI input: lists the system's ports, opens one and emits what arrives on it.
///
/// \code
/// auto *input = new QMidiIn(window);
/// QObject::connect(input, &QMidiIn::midiMessageReceived, monitor, &Monitor::showMessage);
/// input->openPort(input->portNames().value(0));
/// \endcode
///
/// Create it, call it and destroy it on one thread, normally the GUI thread. The signal comes on
/// the thread of the MIDI service; a receiver that lives in another thread gets it queued.
///
/// Without a MIDI service the object works, lists nothing and opens nothing; one warning says so,
/// however often it is asked.
/// Errors are written to the standard error stream and, from the rank of an error on, logged as
/// warnings. System-exclusive, timing-clock and active-sensing messages are not received. An input
/// whose service was restarted stays silent: make a new one.
class NOCTURNE_HOSTKIT QMidiIn : public QObject
{
    Q_OBJECT

public:
    explicit QMidiIn(QObject *parent = nullptr);

    /// Closes the port. Returns when no message is being delivered any more, so it must not be
    /// called by a slot that runs on the thread of the MIDI service.
    ~QMidiIn() override;

    /// The ports there are now, each under a name of its own: of three devices called Synth the
    /// others are "Synth 2" and "Synth 3".
    QStringList portNames();

    /// Closes an open port and opens the one that portNames() lists as \a name; false when there
    /// is none.
    bool openPort(const QString &name);

    /// Opens a port called \a name that other programs can send to.
    void openVirtualPort(const QString &name);

Q_SIGNALS:
    /// Emitted once for each message received, on the thread of the MIDI service.
    void midiMessageReceived(QMidiMessage message);

private:
    std::unique_ptr<Nocturne::MidiPort> m_port; // first: its address is known to the device
    std::unique_ptr<RtMidiIn> m_device;
};

#endif
