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

#include <algorithm>
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

/// The two ports that count, for the life of one server.
class Count
{
public:
    explicit Count(int number)
    {
        const QString name = QStringLiteral("count %1").arg(number);
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
        m_output.openVirtualPort(name);
        for (const QString &known : m_input.portNames()) {
            if (known.contains(name))
                m_isConnected = m_input.openPort(known);
        }
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
    for (int i = 0; i < 1000 && count.received() < count.sent(); ++i)
        QThread::msleep(20);
    return count.received() == count.sent();
}

/// The ports that do not count. JACK loses what several outputs send to one input when it is more
/// than a cycle carries, and whose loss that is could not be told.
template <typename Port>
QStringList freePorts(Port &port)
{
    QStringList names = port.portNames();
    names.erase(std::remove_if(names.begin(), names.end(),
                               [](const QString &name) { return name.contains("count"); }),
                names.end());
    return names;
}

/// A few ports of a kind.
template <typename Port>
class Ports
{
public:
    explicit Ports(QRandomGenerator &dice)
        : m_dice(dice)
    {}

    Port *any() { return m_ports.empty() ? nullptr : m_ports[size_t(roll(m_ports.size()))].get(); }

    /// Makes, ends or opens one of them, in one of several ways.
    void change()
    {
        const int way = roll(4);
        Port *port = any();
        if (way == 0 && m_ports.size() < mostPorts) {
            m_ports.push_back(std::make_unique<Port>());
        } else if (way == 1 && port) {
            m_ports.erase(m_ports.begin() + roll(m_ports.size()));
        } else if (way == 2 && port) {
            port->openVirtualPort(QStringLiteral("port %1").arg(roll(20)));
        } else if (port) {
            const QStringList names = freePorts(*port);
            port->openPort(names.value(roll(size_t(names.size()) + 1)));
        }
    }

    auto begin() const { return m_ports.begin(); }
    auto end() const { return m_ports.end(); }

private:
    int roll(size_t count) { return int(m_dice.bounded(quint32(count))); }

    QRandomGenerator &m_dice;
    std::vector<std::unique_ptr<Port>> m_ports;
};

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{"minutes", "How long.", "number", "10"},
                       {"seed", "The first random number.", "number", "1"}});
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
        Ports<QMidiOut> outputs(dice);
        Ports<QMidiIn> inputs(dice);
        for (int left = 200 + roll(800); left > 0 && !timer.hasExpired(length); --left, ++steps) {
            count->send();
            const int kind = roll(10);
            if (kind < 4) {
                outputs.change();
            } else if (kind < 8) {
                inputs.change();
            } else if (QMidiOut *output = outputs.any()) {
                if (roll(3) == 0)
                    output->openPort(freePorts(*output).value(roll(8)));
                for (int i = roll(200); i > 0; --i)
                    output->sendControlChange(1, 7, quint8(i % 128));
                QMidiMessage dump;
                QMidiMessage::Bytes bytes(size_t(2 + roll(3000)), 0x40);
                bytes.front() = 0xF0;
                bytes.back() = 0xF7;
                dump.setRawMessage(bytes);
                output->sendMessage(dump);
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
