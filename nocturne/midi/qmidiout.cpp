#include "qmidiout.h"

#include "midiport_p.h"

#include <QtCore/QDebug>
#include <QtCore/QElapsedTimer>
#include <QtCore/QMutex>
#include <QtCore/QThread>
#include <QtCore/QWaitCondition>

#include <deque>

/// Hands messages to a JACK device on a thread of its own.
///
/// RtMidi waits without end for room in its buffer to JACK, and once the server has died there will
/// never be any: the wait must not be the caller's. The thread also keeps to what JACK carries in a
/// process cycle, because JACK drops the rest.
class JackSender
{
public:
    explicit JackSender(RtMidiOut *device);
    ~JackSender();

    /// Queues \a bytes. False when JACK has stopped taking messages: then abandon().
    bool send(QMidiMessage::Bytes bytes);

    /// Waits until everything is handed over. False when JACK has stopped taking messages.
    bool finish();

    /// Leaves the thread behind in its endless wait, where it yields to everybody else. Neither
    /// this object nor its device may be destroyed afterwards.
    void abandon();

private:
    // A cycle of JACK carries 32 KiB of events, each with 12 bytes of its own; what RtMidi offers
    // beyond that is lost. With these figures a cycle of 2048 frames at 44.1 kHz stays below.
    static constexpr double burstBytes = 8192.0;
    static constexpr double bytesPerMillisecond = 500.0;
    static constexpr double bytesPerEvent = 12.0;
    static constexpr qint64 longestWait = 2000;                      // ms
    static constexpr size_t longestQueue = size_t(16) * 1024 * 1024; // bytes

    static double cost(const QMidiMessage::Bytes &bytes) { return bytes.size() + bytesPerEvent; }
    bool isStuck() const { return m_handingOver && m_handOverTime.hasExpired(longestWait); }
    unsigned long millisecondsUntilRoom(double bytes);
    void run();

    RtMidiOut *m_device;
    std::unique_ptr<QThread> m_thread;

    QMutex m_mutex; // guards what follows
    QWaitCondition m_changed;
    std::deque<QMidiMessage::Bytes> m_queue;
    size_t m_queuedBytes = 0;
    bool m_queueFull = false;
    bool m_handingOver = false;
    QElapsedTimer m_handOverTime;
    bool m_quit = false;

    double m_backlog = 0.0; // used by the thread only: bytes that JACK may not have taken yet
    QElapsedTimer m_backlogTime;
};

JackSender::JackSender(RtMidiOut *device)
    : m_device(device)
    , m_thread(QThread::create([this] { run(); }))
{
    m_thread->setObjectName(QStringLiteral("MIDI output"));
    m_thread->start();
}

JackSender::~JackSender()
{
    {
        const QMutexLocker locker(&m_mutex);
        m_quit = true;
        m_changed.wakeAll();
    }
    m_thread->wait();
}

bool JackSender::send(QMidiMessage::Bytes bytes)
{
    const QMutexLocker locker(&m_mutex);
    if (isStuck())
        return false;
    const auto size = static_cast<size_t>(cost(bytes));
    if (m_queuedBytes + size > longestQueue) {
        if (!m_queueFull)
            qWarning("QMidiOut: more messages than JACK takes; some are dropped");
        m_queueFull = true;
        return true;
    }
    m_queueFull = false;
    m_queuedBytes += size;
    m_queue.push_back(std::move(bytes));
    m_changed.wakeAll();
    return true;
}

bool JackSender::finish()
{
    const QMutexLocker locker(&m_mutex);
    while (!m_queue.empty() || m_handingOver) {
        if (isStuck())
            return false;
        m_changed.wait(&m_mutex, 50);
    }
    return true;
}

void JackSender::abandon()
{
    const QMutexLocker locker(&m_mutex);
    m_quit = true;
    m_queue.clear();
    m_thread->setPriority(QThread::IdlePriority);
}

unsigned long JackSender::millisecondsUntilRoom(double bytes)
{
    const double elapsed = m_backlogTime.isValid() ? m_backlogTime.nsecsElapsed() / 1.0e6 : 0.0;
    m_backlogTime.start();
    m_backlog = qMax(0.0, m_backlog - elapsed * bytesPerMillisecond);
    // A message longer than a burst goes alone.
    const double excess = qMin(m_backlog, m_backlog + bytes - burstBytes);
    return excess > 0.0 ? static_cast<unsigned long>(excess / bytesPerMillisecond) + 1 : 0;
}

void JackSender::run()
{
    QMutexLocker locker(&m_mutex);
    for (;;) {
        while (m_queue.empty() && !m_quit)
            m_changed.wait(&m_mutex);
        if (m_quit)
            return;

        const double bytes = cost(m_queue.front());
        if (const unsigned long pause = millisecondsUntilRoom(bytes)) {
            locker.unlock();
            QThread::msleep(pause);
            locker.relock();
            continue;
        }

        const QMidiMessage::Bytes message = std::move(m_queue.front());
        m_queue.pop_front();
        m_queuedBytes -= static_cast<size_t>(bytes);
        m_backlog += bytes;
        m_handingOver = true;
        m_handOverTime.start();
        locker.unlock();
        m_device->sendMessage(message.data(), message.size());
        locker.relock();
        m_handingOver = false;
        if (m_queue.empty())
            m_changed.wakeAll();
    }
}

namespace {

std::unique_ptr<RtMidiOut> createOutput(RtMidi::Api interface)
{
    return std::make_unique<RtMidiOut>(interface, "RtMidi Output Client");
}

} // namespace

QMidiOut::QMidiOut(QObject *parent)
    : QObject(parent)
    , m_port(std::make_unique<MidiPort>("RtMidi Output"))
    , m_device(m_port->createDevice<RtMidiOut>("output", createOutput))
{}

QMidiOut::~QMidiOut()
{
    finishSending();
    m_sender.reset();
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
        MidiPort::report(RtMidiError::WARNING, "QMidiOut: no port is open, nothing is sent");
        return;
    }
    if (!m_sender)
        m_sender = std::make_unique<JackSender>(m_device.get());
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
