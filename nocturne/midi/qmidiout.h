#ifndef NOCTURNE_QMIDIOUT_H
#define NOCTURNE_QMIDIOUT_H

#include <nocturne/midi/qmidimessage.h>
#include <nocturne/nocturneglobal.h>

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <memory>

class RtMidiOut;

namespace Nocturne {
class JackSender;
class MidiPort;
} // namespace Nocturne

/// A MIDI output: lists the system's ports, opens one and sends to it.
///
/// \code
/// QMidiOut output;
/// if (output.openPort(QStringLiteral("Desk")))
///     output.sendControlChange(1, 7, 127);
/// \endcode
///
/// Call it on one thread, normally the GUI thread. Channels count from 1 to 16; status bytes are
/// computed in eight bits and nothing checks the data bytes.
///
/// Without a MIDI service the object works, lists nothing, opens nothing and sends nothing; one
/// warning says so, however often it is asked. Errors are written to the standard error stream and,
/// from the rank of an error on, logged as warnings.
///
/// Over JACK a thread of the output's own hands the messages over, in order and no faster than the
/// service takes them without loss (some 30,000 short messages a second after a burst of 500).
/// When the service has died, messages are dropped after a warning and nothing waits for it.
class NOCTURNE_HOSTKIT QMidiOut : public QObject
{
    Q_OBJECT

public:
    explicit QMidiOut(QObject *parent = nullptr);

    /// Hands over what is still waiting, then closes the port.
    ~QMidiOut() override;

    /// The ports there are now, each under a name of its own: of three devices called Synth the
    /// others are "Synth 2" and "Synth 3".
    QStringList portNames();

    /// Closes an open port and opens the one that portNames() lists as \a name; false when there
    /// is none.
    bool openPort(const QString &name);

    /// Opens the port at \a index of the service's list. Does not close an open one.
    void openPort(unsigned int index);

    /// Opens a port called \a name that other programs can listen to.
    void openVirtualPort(const QString &name);

    /// Sends the bytes of \a message, which keeps them (QMidiMessage::rawMessage()). A message that
    /// yields none is not sent; a warning names its type.
    void sendMessage(QMidiMessage &message);

    void sendControlChange(quint8 channel, quint8 controller, quint8 value);

    /// Sends a note of \a type 128 (off) or 144 (on); nothing for any other type.
    void sendNote(int type, quint8 channel, quint8 note, quint8 velocity);
    void sendNoteOff(quint8 channel, quint8 note, quint8 velocity);
    void sendNoteOn(quint8 channel, quint8 note, quint8 velocity);

private:
    void sendChannelMessage(int type, quint8 channel, quint8 data1, quint8 data2);
    void send(QMidiMessage::Bytes bytes);
    void sendOverJack(QMidiMessage::Bytes bytes);
    void finishSending();
    void abandonDevice();

    std::unique_ptr<Nocturne::MidiPort> m_port; // first: its address is known to the device
    std::unique_ptr<RtMidiOut> m_device;
    std::unique_ptr<Nocturne::JackSender> m_sender;
};

#endif
