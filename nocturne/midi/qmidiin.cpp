#include "qmidiin.h"

#include "midiport_p.h"

#include <atomic>

namespace {

constexpr unsigned int queueLimit = 100;

/// Ports opened by now. The service's thread reads it before each message, and so sees all that was
/// done before the port was opened.
std::atomic<int> openings{0};

std::unique_ptr<RtMidiIn> createInput(RtMidi::Api interface)
{
    return std::make_unique<RtMidiIn>(interface, "RtMidi Input Client", queueLimit);
}

} // namespace

void Nocturne::receiveMidiMessage(double seconds, std::vector<unsigned char> *bytes, void *input)
{
    openings.load(std::memory_order_acquire);
    if (bytes && !bytes->empty())
        Q_EMIT static_cast<QMidiIn *>(input)->midiMessageReceived(
            decodeMidiMessage(seconds, *bytes));
}

QMidiIn::QMidiIn(QObject *parent)
    : QObject(parent)
    , m_port(std::make_unique<Nocturne::MidiPort>("RtMidi Input"))
{
    // Queued delivery by a string-based connection finds the type by its name.
    qRegisterMetaType<QMidiMessage>();
    m_device = m_port->createDevice<RtMidiIn>("input", createInput);
    m_port->guarded([this] { m_device->setCallback(Nocturne::receiveMidiMessage, this); });
}

QMidiIn::~QMidiIn()
{
    // The service may be delivering a message at this moment; the device waits for it to finish,
    // while this object is still whole.
    const Nocturne::DriverSilence silence;
    m_device.reset();
}

QStringList QMidiIn::portNames()
{
    return m_port->portNames();
}

bool QMidiIn::openPort(const QString &name)
{
    openings.fetch_add(1, std::memory_order_release);
    return m_port->openPort(name);
}

void QMidiIn::openVirtualPort(const QString &name)
{
    openings.fetch_add(1, std::memory_order_release);
    m_port->openVirtualPort(name);
}

#include "moc_qmidiin.cpp"
