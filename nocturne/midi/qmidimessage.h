#ifndef NOCTURNE_QMIDIMESSAGE_H
#define NOCTURNE_QMIDIMESSAGE_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <vector>

/// One MIDI message: its decoded fields and, separately, its bytes on the wire.
///
/// An input port fills the fields; an output port sends what rawMessage() gives. The two forms are
/// not kept in step: bytes that are held once are not changed by the setters of the fields.
///
/// \code
/// QMidiMessage message;
/// message.setType(QMidiMessage::ControlChange);
/// message.setChannel(3);
/// message.setKey(7);
/// message.setValue(127);
/// output.sendMessage(message); // 0xB2, 7, 127
/// \endcode
///
/// A plain value, known to the meta-type system. Nothing checks the range of a field; rawMessage()
/// uses the low eight bits.
class NOCTURNE_HOSTKIT QMidiMessage
{
public:
    /// The codes of type(): the status byte, that of a channel message without its channel.
    enum Type {
        None = 0,
        NoteOff = 128,
        NoteOn = 144,
        PolyphonicPressure = 160,
        ControlChange = 176,
        ProgramChange = 192,
        ChannelPressure = 208,
        PitchBend = 224,
        SystemExclusive = 240,
        TimeCode = 241,
        SongPositionPointer = 242,
        SongSelect = 243,
        TuneRequest = 246,
        EndOfExclusive = 247,
        TimingClock = 248,
        Start = 250,
        Continue = 251,
        Stop = 252,
        ActiveSensing = 254,
        SystemReset = 255
    };

    using Bytes = std::vector<unsigned char>;

    /// No message: type 0, channel 1, everything else 0 or empty.
    QMidiMessage() = default;

    /// One of Type, or any other code.
    int type() const { return m_type; }
    void setType(int type) { m_type = type; }

    /// 1 to 16; an input port gives 0 for system messages.
    int channel() const { return m_channel; }
    void setChannel(int channel) { m_channel = channel; }

    /// Key number of a note or polyphonic-pressure message, 0 to 127.
    int note() const { return m_note; }
    void setNote(int note) { m_note = note; }

    /// Velocity of a note message, 0 to 127.
    int velocity() const { return m_velocity; }
    void setVelocity(int velocity) { m_velocity = velocity; }

    /// First data byte of a note, control-change (the controller) or pitch-bend message (its low
    /// seven bits).
    int key() const { return m_key; }
    void setKey(int key) { m_key = key; }

    /// Second data byte of a note, polyphonic-pressure, control-change or pitch-bend message; the
    /// only one of a program change or channel pressure.
    int value() const { return m_value; }
    void setValue(int value) { m_value = value; }

    /// Milliseconds since the message before on the same input port; 0 for the first.
    double deltaTime() const { return m_deltaTime; }
    void setDeltaTime(double milliseconds) { m_deltaTime = milliseconds; }

    /// A whole system-exclusive message, from 0xF0 to 0xF7.
    Bytes sysExData() const { return m_sysExData; }
    void setSysExData(Bytes data) { m_sysExData = std::move(data); }

    /// The bytes on the wire, which it builds from the fields and keeps when none are held yet.
    ///
    /// Built are notes (status, note, velocity), control and program changes (status, key, value)
    /// and system-exclusive messages with data, whose 0xF7 is added when it is missing. Every
    /// other message gives an empty sequence.
    Bytes rawMessage();

    /// Takes \a raw as the bytes on the wire, whatever the fields say. An empty sequence makes
    /// rawMessage() build them anew.
    void setRawMessage(Bytes raw) { m_rawMessage = std::move(raw); }

    /// Back to what the default constructor gives.
    void clear() { *this = QMidiMessage(); }

    /// The name shown for a message of \a type; empty for a code that has none.
    static QString typeName(int type);

private:
    int m_type = None;
    int m_channel = 1;
    int m_note = 0;
    int m_velocity = 0;
    int m_key = 0;
    int m_value = 0;
    double m_deltaTime = 0.0;
    Bytes m_sysExData;
    Bytes m_rawMessage;
};

Q_DECLARE_METATYPE(QMidiMessage)

#endif
