// Ports under fire for as long as wanted: soak_midi --minutes 10 --seed 1
//
// A JACK server is killed, started anew and flooded at random moments while ports are opened,
// closed, renamed and destroyed. Two ports in the midst of it count: what one sends is to arrive at
// the other without a gap for as long as the server lives.

#include "jackserver.h"

#include <nocturne/QMidiIn>
#include <nocturne/QMidiOut>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QRandomGenerator>
#include <QtCore/QThread>

#include <atomic>
#include <cstdio>
#include <memory>
#include <thread>
#include <vector>

namespace {

constexpr int countTo = 128 * 128;
constexpr int countChannel = 16;

QRandomGenerator dice;

/// 0 to \a count - 1.
int roll(int count)
{
    return int(dice.bounded(count));
}

int threadCount()
{
    return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

/// The two ports that count, for the life of one server.
struct Count
{
    explicit Count(int server)
    {
        const QString name = QString("count %1").arg(server);
        const auto receive = [this](const QMidiMessage &message) {
            if (message.channel() != countChannel || message.type() != QMidiMessage::NoteOn)
                return; // of an output that has been connected here as well
            const int number = message.note() * 128 + message.velocity();
            gaps += number != received++ % countTo;
        };
        QObject::connect(&input, &QMidiIn::midiMessageReceived, &input, receive,
                         Qt::DirectConnection);
        output.openVirtualPort(name);
        isConnected = input.openPort(input.portNames().filter(name).value(0));
    }

    void send()
    {
        if (isConnected)
            output.sendNoteOn(countChannel, quint8(sent % countTo / 128), quint8(sent % 128));
        sent += isConnected;
    }

    /// Whether everything that was sent has come within a few seconds.
    bool hasArrived() const
    {
        for (int i = 0; i < 1000 && received < sent; ++i)
            QThread::msleep(20);
        return received == sent;
    }

    bool isConnected = false;
    int sent = 0;
    std::atomic<int> received{0};
    std::atomic<int> gaps{0};
    QMidiOut output;
    QMidiIn input; // the first to end, as it calls back
};

/// Any port that does not count. The counting input is the first of its name. Where several outputs
/// meet at one input JACK loses what is more than a cycle carries, and the whole cycle when one of
/// them has just been opened; whose loss that is could not be told.
template <typename Port>
QString freePort(Port &port)
{
    const QStringList names = port.portNames();
    const QString name = names.value(roll(names.size() + 1));
    const bool counts = name.contains("count") || name.startsWith("RtMidi Input Client:");
    return counts ? QString() : name;
}

/// Makes, ends or opens one of a few ports, in one of several ways.
template <typename Port>
void change(std::vector<std::unique_ptr<Port>> &ports)
{
    const int way = roll(4);
    const int at = roll(qMax(1, int(ports.size())));
    if (ports.empty() || (way == 0 && ports.size() < 6))
        ports.push_back(std::make_unique<Port>());
    else if (way == 1)
        ports.erase(ports.begin() + at);
    else if (way == 2)
        ports[size_t(at)]->openVirtualPort(QString("port %1").arg(roll(20)));
    else
        ports[size_t(at)]->openPort(freePort(*ports[size_t(at)]));
}

void flood(QMidiOut &output)
{
    if (roll(3) == 0)
        output.openPort(freePort(output));
    for (int i = roll(200); i > 0; --i)
        output.sendControlChange(1, 7, quint8(i % 128));
    QMidiMessage dump;
    QMidiMessage::Bytes bytes(size_t(2 + roll(3000)), 0x40);
    bytes.front() = 0xF0;
    bytes.back() = 0xF7;
    dump.setRawMessage(bytes);
    output.sendMessage(dump);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{"minutes", "How long.", "number", "10"},
                       {"seed", "The first random number.", "number", "1"}});
    parser.process(app);
    const qint64 length = qint64(parser.value("minutes").toDouble() * 60000);
    dice.seed(parser.value("seed").toUInt());

    std::thread([] {}).join(); // the thread checker starts one of its own with the first
    const int threadsBefore = threadCount();
    int failures = 0;
    int servers = 0;
    qint64 steps = 0;
    qint64 counted = 0;
    QElapsedTimer timer;
    timer.start();
    while (!timer.hasExpired(length)) {
        JackServer server;
        if (!server.start())
            qFatal("no JACK server comes up");
        Count count(++servers);
        std::vector<std::unique_ptr<QMidiOut>> outputs;
        std::vector<std::unique_ptr<QMidiIn>> inputs;
        for (int left = 200 + roll(800); left > 0 && !timer.hasExpired(length); --left, ++steps) {
            count.send();
            const int kind = roll(10);
            if (kind < 4)
                change(outputs);
            else if (kind < 8)
                change(inputs);
            else if (!outputs.empty())
                flood(*outputs[size_t(roll(int(outputs.size())))]);
            QCoreApplication::processEvents();
        }

        const bool crash = roll(2) == 0;
        const bool arrived = crash || count.hasArrived();
        if (!arrived || count.gaps > 0) {
            std::printf("server %d: %d sent, %d received, %d gaps\n", servers, count.sent,
                        count.received.load(), count.gaps.load());
            ++failures;
        }
        counted += count.received;
        if (crash)
            server.kill();
        else if (roll(2) == 0)
            server.stop();
        // Some ports outlive their server, and are used without it.
        for (const auto &output : outputs)
            output->sendNoteOn(1, 60, 100);
        for (const auto &input : inputs)
            input->portNames();
    }
    QThread::msleep(500);
    std::printf("%d servers, %lld steps, %lld messages counted, %d threads left, %d failures\n",
                servers, steps, counted, threadCount() - threadsBefore, failures);
    return failures ? 1 : 0;
}
