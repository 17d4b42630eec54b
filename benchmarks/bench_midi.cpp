#include "../tests/support/jackserver.h"
#include "benchmark.h"

#include <nocturne/QMidiIn>
#include <nocturne/QMidiOut>
#include <nocturne/midi/midiport_p.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>

#include <atomic>
#include <memory>

// What a received message costs on its way through QMidiIn, beside a callback that RtMidi calls
// directly and that only looks at the bytes.

namespace {

using Bytes = std::vector<unsigned char>;

constexpr int messagesPerBatch = 2000;
constexpr int jackMessages = 30000;

std::atomic<int> bareCount{0};
std::atomic<unsigned> bareSum{0};

void bareCallback(double, Bytes *bytes, void *)
{
    bareSum += bytes->front();
    ++bareCount;
}

class Receiver : public QObject
{
public:
    void receive(const QMidiMessage &message)
    {
        m_sum += static_cast<unsigned>(message.type());
        ++count;
    }

    std::atomic<int> count{0};

private:
    unsigned m_sum = 0;
};

void processEventsUntil(const std::atomic<int> &count, int wanted, int timeout)
{
    QElapsedTimer timer;
    timer.start();
    while (count < wanted && !timer.hasExpired(timeout))
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

/// From the callback to a slot on the same thread.
void measureSignals(Benchmark *benchmark, const char *name, Bytes bytes)
{
    QMidiIn input;
    Receiver receiver;
    QObject::connect(&input, &QMidiIn::midiMessageReceived, &receiver, &Receiver::receive,
                     Qt::DirectConnection);
    benchmark->compare(
        QLatin1String(name), [&] { Nocturne::receiveMidiMessage(0.001, &bytes, &input); },
        [&] { bareCallback(0.001, &bytes, nullptr); }, messagesPerBatch);
}

/// From the callback on a thread of its own to a slot on this one, a batch at a time.
void measureQueued(Benchmark *benchmark)
{
    QMidiIn input;
    Receiver receiver;
    QObject::connect(&input, &QMidiIn::midiMessageReceived, &receiver, &Receiver::receive);
    Bytes bytes = {0x90, 60, 100};
    const auto batch = [](const std::function<void()> &call) {
        std::unique_ptr<QThread> thread(QThread::create([call] {
            for (int i = 0; i < messagesPerBatch; ++i)
                call();
        }));
        thread->start();
        return thread;
    };
    QVector<double> ours;
    QVector<double> bare;
    for (int i = 0; i < 21; ++i) {
        QElapsedTimer timer;
        timer.start();
        receiver.count = 0;
        auto thread = batch([&] { Nocturne::receiveMidiMessage(0.001, &bytes, &input); });
        processEventsUntil(receiver.count, messagesPerBatch, 10000);
        ours << timer.nsecsElapsed() / 1000.0 / messagesPerBatch;
        thread->wait();

        timer.start();
        thread = batch([&] { bareCallback(0.001, &bytes, nullptr); });
        thread->wait();
        bare << timer.nsecsElapsed() / 1000.0 / messagesPerBatch;
    }
    benchmark->add(QStringLiteral("callback thread to slot on the GUI thread"),
                   Benchmark::median(ours), Benchmark::median(bare));
}

/// One stream on a JACK server, received by both.
void measureJack()
{
    JackServer server;
    if (!JackServer::isInstalled() || !server.start()) {
        std::printf("\nno JACK server: the stream over a real service is not measured\n");
        return;
    }
    QMidiOut output;
    output.openVirtualPort(QStringLiteral("stream"));
    QMidiIn input;
    const QString name = input.portNames().filter(QStringLiteral("stream")).value(0);
    const int index = input.portNames().indexOf(name);
    RtMidiIn bare(RtMidi::UNIX_JACK, "bare");
    bare.setCallback(bareCallback);
    bare.openPort(static_cast<unsigned int>(index), "in");
    input.openPort(name);
    Receiver receiver;
    QObject::connect(&input, &QMidiIn::midiMessageReceived, &receiver, &Receiver::receive);
    QThread::msleep(200);

    bareCount = 0;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < jackMessages; ++i)
        output.sendNoteOn(1, 60, 100);
    processEventsUntil(receiver.count, jackMessages, 30000);
    const double seconds = timer.nsecsElapsed() / 1.0e9;
    std::printf("\nover JACK: %d messages sent, %d in slots of the GUI thread, %d in the bare "
                "callback, %.0f messages/s\n",
                jackMessages, receiver.count.load(), bareCount.load(), jackMessages / seconds);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    Benchmark benchmark;
    measureSignals(&benchmark, "callback to slot, note", {0x90, 60, 100});
    measureSignals(&benchmark, "callback to slot, control change", {0xB0, 7, 127});
    measureSignals(&benchmark, "callback to slot, 128 bytes of SysEx", Bytes(128, 0xF0));
    measureQueued(&benchmark);
    benchmark.print("QMidiIn", "bare callback");

    std::printf("\n");
    for (const Benchmark::Result &result : benchmark.results()) {
        std::printf("%-44s adds %.3f us a message, %.2f million messages/s\n",
                    qPrintable(result.name), result.ours - result.peer, 1.0 / result.ours);
    }
    measureJack();
    return 0;
}
