#include "jacksender_p.h"

#include <rtmidi/RtMidi.h>

#include <pthread.h>
#include <system_error>

namespace Nocturne {

JackSender::JackSender(RtMidiOut *device)
    : m_device(device)
{
    try {
        m_thread = std::thread([this] { run(); });
    } catch (const std::system_error &) {
        qWarning("QMidiOut: no thread for the MIDI output");
    }
#ifdef Q_OS_LINUX
    if (m_thread.joinable())
        pthread_setname_np(m_thread.native_handle(), "MIDI output");
#endif
}

JackSender::~JackSender()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_quit = true;
        m_changed.notify_all();
    }
    if (m_thread.joinable())
        m_thread.join();
}

bool JackSender::send(QMidiMessage::Bytes bytes)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
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
    m_changed.notify_all();
    return true;
}

bool JackSender::finish()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_queue.empty() || m_handingOver) {
        if (isStuck())
            return false;
        m_changed.wait_for(lock, std::chrono::milliseconds(50));
    }
    return true;
}

void JackSender::abandon()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_quit = true;
    m_queue.clear();
#ifdef SCHED_IDLE
    if (m_thread.joinable()) {
        const sched_param parameters = {};
        pthread_setschedparam(m_thread.native_handle(), SCHED_IDLE, &parameters);
    }
#endif
}

std::chrono::milliseconds JackSender::timeUntilRoom(double bytes)
{
    const double elapsed = m_backlogTime.isValid() ? m_backlogTime.nsecsElapsed() / 1.0e6 : 0.0;
    m_backlogTime.start();
    m_backlog = qMax(0.0, m_backlog - elapsed * bytesPerMillisecond);
    // A message longer than a burst goes alone.
    const double excess = qMin(m_backlog, m_backlog + bytes - burstBytes);
    return std::chrono::milliseconds(
        excess > 0.0 ? static_cast<qint64>(excess / bytesPerMillisecond) + 1 : 0);
}

void JackSender::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        while (m_queue.empty() && !m_quit)
            m_changed.wait(lock);
        if (m_quit)
            return;

        const double bytes = cost(m_queue.front());
        if (const auto pause = timeUntilRoom(bytes); pause.count() > 0) {
            lock.unlock();
            std::this_thread::sleep_for(pause);
            lock.lock();
            continue;
        }

        const QMidiMessage::Bytes message = std::move(m_queue.front());
        m_queue.pop_front();
        m_queuedBytes -= static_cast<size_t>(bytes);
        m_backlog += bytes;
        m_handingOver = true;
        m_handOverTime.start();
        lock.unlock();
        m_device->sendMessage(message.data(), message.size());
        lock.lock();
        m_handingOver = false;
        if (m_queue.empty())
            m_changed.notify_all();
    }
}

} // namespace Nocturne
