#include "jacksender_p.h"

#include <rtmidi/RtMidi.h>

namespace Nocturne {

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

} // namespace Nocturne
