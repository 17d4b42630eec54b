#include "midiport_p.h"

#include <QtCore/QDebug>

#include <algorithm>
#include <iostream>
#include <utility>

namespace Nocturne {

void MidiPort::attach(RtMidi *device, const char *direction, QStringList errors)
{
    m_device = device;
    if (device) {
        // An interface whose service is not running is created all the same; it says so when asked.
        device->setErrorCallback(&MidiPort::keepAbsence, this);
        guarded([this] { m_device->getPortCount(); });
        device->setErrorCallback(&MidiPort::onError, this);
        for (const std::string &absence : m_absences)
            errors << QString::fromStdString(absence);
    }

    // RtMidi has written these to the standard error stream itself, while the device was created.
    errors.removeDuplicates();
    if (!device || !m_absences.empty()) {
        qWarning("There is no MIDI %s: %s", direction, qPrintable(errors.join(QLatin1Char(' '))));
    } else {
        for (const QString &error : std::as_const(errors))
            qWarning("%s", qPrintable(error));
    }
}

void MidiPort::detach()
{
    guarded([this] { m_device->setErrorCallback(nullptr, nullptr); });
    m_device = nullptr;
}

bool MidiPort::isOpen() const
{
    return m_device && (m_device->isPortOpen() || m_virtualPortOpen);
}

QStringList MidiPort::portNames()
{
    QStringList names;
    m_failed = false;
    m_listing = true;
    guarded([this, &names] {
        // Counted anew each time: devices come and go, and an index past the last is not safe.
        for (unsigned int i = 0; i < m_device->getPortCount(); ++i)
            names << QString::fromStdString(m_device->getPortName(i));
    });
    m_listing = false;
    if (!m_failed)
        m_absences.clear();
    m_names = distinctNames(names);
    return m_names.values();
}

QMap<int, QString> MidiPort::distinctNames(const QStringList &names)
{
    QMap<int, QString> result;
    for (int i = 0; i < names.size(); ++i) {
        const QString &name = names.at(i);
        const auto containsName = [&name](const QString &earlier) {
            return earlier.contains(name);
        };
        const auto count = std::count_if(result.cbegin(), result.cend(), containsName);
        result.insert(i, count > 0 ? QStringLiteral("%1 %2").arg(name, QString::number(count + 1))
                                   : name);
    }
    return result;
}

bool MidiPort::openPort(const QString &name)
{
    portNames();
    const int index = m_names.key(name, -1);
    closeOpenPort();
    if (index < 0)
        return false;
    openPort(static_cast<unsigned int>(index));
    return true;
}

void MidiPort::openPort(unsigned int index)
{
    m_closedReported = false;
    guarded([this, index] {
        // RtMidi reads past its list for an index that JACK does not have.
        if (index < m_device->getPortCount())
            m_device->openPort(index, m_portName);
        else
            report(RtMidiError::INVALID_PARAMETER,
                   "There is no MIDI port with the index " + std::to_string(index));
    });
}

void MidiPort::openVirtualPort(const QString &name)
{
    m_failed = false;
    m_closedReported = false;
    guarded([this, &name] {
        m_device->openVirtualPort(name.toStdString());
        m_virtualPortOpen = !m_failed;
    });
}

void MidiPort::closeOpenPort()
{
    guarded([this] {
        if (!m_device->isPortOpen())
            return;
        m_device->closePort();
        m_virtualPortOpen = false;
    });
}

void MidiPort::reportClosed()
{
    if (!m_closedReported)
        report(RtMidiError::WARNING, "QMidiOut: no port is open, nothing is sent");
    m_closedReported = true;
}

void MidiPort::onError(RtMidiError::Type type, const std::string &text, void *port)
{
    if (type == RtMidiError::DEBUG_WARNING)
        return;
    auto *self = static_cast<MidiPort *>(port);
    self->m_failed = true;
    // A host may ask for the ports every second; it is told of each reason once.
    if (self->m_absences.count(text) > 0)
        return;
    if (self->m_listing)
        self->m_absences.insert(text);
    report(type, text);
}

void MidiPort::keepAbsence(RtMidiError::Type type, const std::string &text, void *port)
{
    if (type != RtMidiError::DEBUG_WARNING)
        static_cast<MidiPort *>(port)->m_absences.insert(text);
}

void MidiPort::report(RtMidiError::Type type, const std::string &text)
{
    if (type == RtMidiError::DEBUG_WARNING)
        return;
    std::cerr << '\n' << text << "\n\n";
    if (type != RtMidiError::WARNING)
        qWarning("%s", text.c_str());
}

QMidiMessage decodeMidiMessage(double seconds, const std::vector<unsigned char> &bytes)
{
    const auto byteAt = [&bytes](size_t index) -> int {
        return index < bytes.size() ? bytes[index] : 0;
    };
    const int status = byteAt(0);
    const int data1 = byteAt(1);
    const int data2 = byteAt(2);
    const bool system = status >= QMidiMessage::SystemExclusive;

    QMidiMessage message;
    message.setType(system ? status : status & 0xF0);
    message.setChannel(system ? 0 : (status & 0x0F) + 1);
    message.setDeltaTime(seconds * 1000.0);

    switch (message.type()) {
    case QMidiMessage::NoteOff:
    case QMidiMessage::NoteOn:
        message.setNote(data1);
        message.setVelocity(data2);
        message.setKey(data1);
        message.setValue(data2);
        break;
    case QMidiMessage::PolyphonicPressure:
        message.setNote(data1);
        message.setValue(data2);
        break;
    case QMidiMessage::ControlChange:
    case QMidiMessage::PitchBend:
        message.setKey(data1);
        message.setValue(data2);
        break;
    case QMidiMessage::ProgramChange:
    case QMidiMessage::ChannelPressure:
        message.setValue(data1);
        break;
    case QMidiMessage::SystemExclusive:
        message.setSysExData(bytes);
        break;
    default:
        break;
    }
    return message;
}

} // namespace Nocturne
