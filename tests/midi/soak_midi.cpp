// Ports under fire for as long as wanted: soak_midi --minutes 10 --seed 1
//
// A JACK server is killed, started anew and flooded at random moments while ports are opened,
// closed, renamed and destroyed. Two ports in the midst of it count: what one sends is to arrive at
// the other without a gap for as long as the server lives.

#include "jackserver.h"

#include <nocturne/QMidiIn>
#include <nocturne/QMidiOut>

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QRandomGenerator>

#include <atomic>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

constexpr int mostPorts = 6;
constexpr int countTo = 128 * 128;
constexpr int countChannel = 16;

int threadCount()
{
    return QDir(QStringLiteral("/proc/self/task"))
        .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
        .size();
}

QMidiMessage::Bytes systemExclusive(int length)
{
    QMidiMessage::Bytes bytes(size_t(length), 0x40);
    bytes.front() = 0xF0;
    bytes.back() = 0xF7;
    return bytes;
}

/// The two ports that count, for the life of one server.
class Count
{
public:
    explicit Count(int number)
    {
        const QString name = QStringLiteral("count %1").arg(number);
        m_output.openVirtualPort(name);
        for (const QString &known : m_input.portNames()) {
            if (known.contains(name))
                m_isConnected = m_input.openPort(known);
        }
        QObject::connect(
            &m_input, &QMidiIn::midiMessageReceived, &m_input,
            [this](const QMidiMessage &message) {
                if (message.channel() != countChannel || message.type() != QMidiMessage::NoteOn)
                    return; // of an output that has been connected here as well
                const int number = message.note() * 128 + message.velocity();
                m_gaps += number != m_received % countTo;
                m_received = m_received + 1;
            },
            Qt::DirectConnection);
    }

    void send()
    {
        if (!m_isConnected)
            return;
        m_output.sendNoteOn(countChannel, quint8(m_sent % countTo / 128), quint8(m_sent % 128));
        ++m_sent;
    }

    bool isConnected() const { return m_isConnected; }
    int sent() const { return m_sent; }
    int received() const { return m_received; }
    int gaps() const { return m_gaps; }

private:
    QMidiOut m_output;
    QMidiIn m_input;
    bool m_isConnected = false;
    int m_sent = 0;
    std::atomic<int> m_received{0};
    std::atomic<int> m_gaps{0};
};

/// Whether everything that was sent has come within a few seconds.
bool hasArrived(const Count &count)
{
    QElapsedTimer timer;
    timer.start();
    while (count.received() < count.sent() && !timer.hasExpired(20000))
        QThread::msleep(20);
    return count.received() == count.sent();
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{QStringLiteral("minutes"), QStringLiteral("How long."),
                        QStringLiteral("number"), QStringLiteral("10")},
                       {QStringLiteral("seed"), QStringLiteral("The first random number."),
                        QStringLiteral("number"), QStringLiteral("1")}});
    parser.process(app);
    const qint64 length = qint64(parser.value(QStringLiteral("minutes")).toDouble() * 60000);
    QRandomGenerator dice(parser.value(QStringLiteral("seed")).toUInt());
    const auto roll = [&dice](int count) { return int(dice.bounded(count)); };

    const int threadsBefore = threadCount();
    int failures = 0;
    int servers = 0;
    qint64 steps = 0;
    qint64 counted = 0;
    QElapsedTimer timer;
    timer.start();
    while (!timer.hasExpired(length)) {
        JackServer server;
        if (!server.start()) {
            std::fprintf(stderr, "no JACK server comes up\n");
            return 2;
        }
        ++servers;
        auto count = std::make_unique<Count>(servers);
        std::vector<std::unique_ptr<QMidiOut>> outputs;
        std::vector<std::unique_ptr<QMidiIn>> inputs;
        const auto name = [&] { return QStringLiteral("port %1").arg(roll(20)); };
        const auto some = [&](auto &ports) { return ports[size_t(roll(int(ports.size())))].get(); };

        for (int left = 200 + roll(800); left > 0 && !timer.hasExpired(length); --left, ++steps) {
            count->send();
            switch (roll(10)) {
            case 0:
                if (outputs.size() < mostPorts)
                    outputs.push_back(std::make_unique<QMidiOut>());
                break;
            case 1:
                if (inputs.size() < mostPorts)
                    inputs.push_back(std::make_unique<QMidiIn>());
                break;
            case 2:
                if (!outputs.empty())
                    outputs.erase(outputs.begin() + roll(int(outputs.size())));
                break;
            case 3:
                if (!inputs.empty())
                    inputs.erase(inputs.begin() + roll(int(inputs.size())));
                break;
            case 4:
                if (!outputs.empty())
                    some(outputs)->openVirtualPort(name());
                break;
            case 5:
                if (!inputs.empty())
                    some(inputs)->openVirtualPort(name());
                break;
            case 6:
                if (!inputs.empty()) {
                    QMidiIn *input = some(inputs);
                    const QStringList names = input->portNames();
                    if (!names.isEmpty())
                        input->openPort(names.at(roll(names.size())));
                }
                break;
            case 7:
                if (!outputs.empty())
                    some(outputs)->openPort(unsigned(roll(8)));
                break;
            default:
                if (!outputs.empty()) {
                    QMidiOut *output = some(outputs);
                    for (int i = roll(200); i > 0; --i)
                        output->sendControlChange(1, 7, quint8(i % 128));
                    QMidiMessage dump;
                    dump.setRawMessage(systemExclusive(2 + roll(3000)));
                    output->sendMessage(dump);
                }
            }
            QCoreApplication::processEvents();
        }

        const bool crash = roll(2) == 0;
        if (!crash && count->isConnected() && !hasArrived(*count)) {
            std::printf("server %d: %d sent, %d received\n", servers, count->sent(),
                        count->received());
            ++failures;
        }
        if (count->gaps() > 0) {
            std::printf("server %d: %d gaps\n", servers, count->gaps());
            ++failures;
        }
        counted += count->received();
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
    const int threadsLeft = threadCount() - threadsBefore;
    std::printf("%d servers, %lld steps, %lld messages counted, %d threads left, %d failures\n",
                servers, steps, counted, threadsLeft, failures);
    return failures ? 1 : 0;
}
