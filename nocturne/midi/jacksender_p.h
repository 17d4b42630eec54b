#ifndef NOCTURNE_JACKSENDER_P_H
#define NOCTURNE_JACKSENDER_P_H

#include <nocturne/midi/qmidimessage.h>

#include <QtCore/QElapsedTimer>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

class RtMidiOut;

namespace Nocturne {

/// Hands messages to a JACK device on a thread of its own.
///
/// RtMidi waits without end for room in its buffer to JACK, and once the server has died there will
/// never be any: the wait must not be the caller's. The thread also keeps to what JACK carries in a
/// process cycle, because JACK drops the rest.
///
/// Thread, mutex and condition are the language's own: the thread checker sees through those, and
/// not through the toolkit's.
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
    bool isStuck() const
    {
        return !m_thread.joinable() || (m_handingOver && m_handOverTime.hasExpired(longestWait));
    }
    std::chrono::milliseconds timeUntilRoom(double bytes);
    void run();

    RtMidiOut *m_device;
    std::thread m_thread; // none when the system has none left: then nothing is taken

    std::mutex m_mutex; // guards what follows
    std::condition_variable m_changed;
    std::deque<QMidiMessage::Bytes> m_queue;
    size_t m_queuedBytes = 0;
    bool m_queueFull = false;
    bool m_handingOver = false;
    QElapsedTimer m_handOverTime;
    bool m_quit = false;

    double m_backlog = 0.0; // used by the thread only: bytes that JACK may not have taken yet
    QElapsedTimer m_backlogTime;
};

} // namespace Nocturne

#endif
