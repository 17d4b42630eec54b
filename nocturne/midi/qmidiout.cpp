#include "qmidiout.h"

#include "jacksender_p.h"
#include "midiport_p.h"

#include <QtCore/QDebug>

namespace {

std::unique_ptr<RtMidiOut> createOutput(RtMidi::Api interface)
{
    return std::make_unique<RtMidiOut>(interface, "RtMidi Output Client");
}

} // namespace

QMidiOut::QMidiOut(QObject *parent)
    : QObject(parent)
    , m_port(std::make_unique<Nocturne::MidiPort>("RtMidi Output"))
    , m_device(m_port->createDevice<RtMidiOut>("output", createOutput))
{}

QMidiOut::~QMidiOut()
{
    finishSending();
    m_sender.reset();
    const Nocturne::DriverSilence silence;
    m_device.reset();
}

QStringList QMidiOut::portNames()
{
    return m_port->portNames();
}

bool QMidiOut::openPort(const QString &name)
{
    finishSending();
    return m_port->openPort(name);
}

void QMidiOut::openPort(unsigned int index)
{
    finishSending();
    m_port->openPort(index);
}

void QMidiOut::openVirtualPort(const QString &name)
{
    finishSending();
    m_port->openVirtualPort(name);
}

void QMidiOut::sendMessage(QMidiMessage &message)
{
    QMidiMessage::Bytes bytes = message.rawMessage();
    if (bytes.empty()) {
        // Over JACK an empty message would end the process.
        qWarning("QMidiOut: a message of type %d has no bytes to send", message.type());
        return;
    }
    qDebug("send message %d", bytes.front());
    send(std::move(bytes));
}

void QMidiOut::sendControlChange(quint8 channel, quint8 controller, quint8 value)
{
    sendChannelMessage(QMidiMessage::ControlChange, channel, controller, value);
}

void QMidiOut::sendNote(int type, quint8 channel, quint8 note, quint8 velocity)
{
    if (type == QMidiMessage::NoteOn)
        sendNoteOn(channel, note, velocity);
    else if (type == QMidiMessage::NoteOff)
        sendNoteOff(channel, note, velocity);
}

void QMidiOut::sendNoteOff(quint8 channel, quint8 note, quint8 velocity)
{
    sendChannelMessage(QMidiMessage::NoteOff, channel, note, velocity);
}

void QMidiOut::sendNoteOn(quint8 channel, quint8 note, quint8 velocity)
{
    sendChannelMessage(QMidiMessage::NoteOn, channel, note, velocity);
}

void QMidiOut::sendChannelMessage(int type, quint8 channel, quint8 data1, quint8 data2)
{
    send({static_cast<unsigned char>(type + channel - 1), data1, data2});
}

void QMidiOut::send(QMidiMessage::Bytes bytes)
{
    if (!m_device)
        return;
    if (m_device->getCurrentApi() == RtMidi::UNIX_JACK)
        sendOverJack(std::move(bytes));
    else
        m_port->guarded([this, &bytes] { m_device->sendMessage(bytes.data(), bytes.size()); });
}

void QMidiOut::sendOverJack(QMidiMessage::Bytes bytes)
{
    // RtMidi would keep the message until a port is opened, and hang when it has kept too many.
    if (!m_port->isOpen()) {
        m_port->reportClosed();
        return;
    }
    if (!m_sender)
        m_sender = std::make_unique<Nocturne::JackSender>(m_device.get());
    if (!m_sender->send(std::move(bytes)))
        abandonDevice();
}

void QMidiOut::finishSending()
{
    if (m_sender && !m_sender->finish())
        abandonDevice();
}

void QMidiOut::abandonDevice()
{
    qWarning("QMidiOut: the MIDI service has stopped taking messages; the output is closed");
    m_port->detach();
    m_sender->abandon();
    // The thread that hangs in the device goes on using both.
    static_cast<void>(m_sender.release());
    static_cast<void>(m_device.release());
}

#include "moc_qmidiout.cpp"
