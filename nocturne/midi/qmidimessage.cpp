#include "qmidimessage.h"

#include <QtCore/QLatin1String>

namespace {

constexpr unsigned char endOfExclusiveByte = 0xF7;

struct TypeName
{
    int type;
    const char *name;
};

// Hosts store and compare these names: the spelling of "Unknow" and "Afterouch" stays.
constexpr TypeName typeNames[] = {
    {QMidiMessage::None, "Unknow"},
    {QMidiMessage::NoteOff, "NoteOff"},
    {QMidiMessage::NoteOn, "NoteOn"},
    {QMidiMessage::ControlChange, "ControlChange"},
    {QMidiMessage::ChannelPressure, "Afterouch"},
    {QMidiMessage::PitchBend, "PitchBend"},
    {QMidiMessage::SystemExclusive, "SysEx"},
    {QMidiMessage::TimeCode, "TimeCode"},
    {QMidiMessage::SongPositionPointer, "SongPosPointer"},
    {QMidiMessage::SongSelect, "SongSelect"},
    {QMidiMessage::TuneRequest, "TuneRequest"},
    {QMidiMessage::EndOfExclusive, "SysExEnd"},
    {QMidiMessage::TimingClock, "TimeClock"},
    {QMidiMessage::Start, "Start"},
    {QMidiMessage::Continue, "Continue"},
    {QMidiMessage::Stop, "Stop"},
    {QMidiMessage::ActiveSensing, "ActiveSensing"},
    {QMidiMessage::SystemReset, "SystemReset"},
};

QMidiMessage::Bytes channelMessage(int type, int channel, int data1, int data2)
{
    // Unsigned, because nobody has checked the fields and an int could overflow.
    const unsigned status = static_cast<unsigned>(type) + static_cast<unsigned>(channel) - 1u;
    return {static_cast<unsigned char>(status), static_cast<unsigned char>(data1),
            static_cast<unsigned char>(data2)};
}

} // namespace

QMidiMessage::Bytes QMidiMessage::rawMessage()
{
    if (!m_rawMessage.empty())
        return m_rawMessage;

    switch (m_type) {
    case NoteOff:
    case NoteOn:
        m_rawMessage = channelMessage(m_type, m_channel, m_note, m_velocity);
        break;
    case ControlChange:
    case ProgramChange: // three bytes as well, although the wire format has two
        m_rawMessage = channelMessage(m_type, m_channel, m_key, m_value);
        break;
    case SystemExclusive:
        m_rawMessage = m_sysExData;
        if (!m_rawMessage.empty() && m_rawMessage.back() != endOfExclusiveByte)
            m_rawMessage.push_back(endOfExclusiveByte);
        break;
    default:
        break;
    }
    return m_rawMessage;
}

QString QMidiMessage::typeName(int type)
{
    for (const TypeName &entry : typeNames) {
        if (entry.type == type)
            return QLatin1String(entry.name);
    }
    return QString();
}
