#include "jackserver.h"

#include <nocturne/QMidiIn>
#include <nocturne/QMidiOut>
#include <nocturne/midi/midiport_p.h>

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QRandomGenerator>
#include <QtCore/QStorageInfo>
#include <QtCore/QTemporaryFile>
#include <QtTest/QtTest>

#include <atomic>
#include <cstdio>
#include <dlfcn.h>
#include <mutex>
#include <thread>
#include <unistd.h>

#include <utility>

using Bytes = QMidiMessage::Bytes;

namespace {

QStringList logged;
std::mutex logMutex;

void keepLine(QtMsgType, const QMessageLogContext &, const QString &text)
{
    const std::lock_guard<std::mutex> lock(logMutex);
    logged << text;
}

/// Collects what is logged and what anybody writes to the standard error stream while it lives.
class Diagnostics
{
public:
    Diagnostics()
        : m_handler(qInstallMessageHandler(keepLine))
        , m_realError(dup(STDERR_FILENO))
    {
        m_written.open();
        dup2(m_written.handle(), STDERR_FILENO);
        logged.clear();
    }
    ~Diagnostics()
    {
        dup2(m_realError, STDERR_FILENO);
        close(m_realError);
        qInstallMessageHandler(m_handler);
    }

    QString standardError() const
    {
        QFile file(m_written.fileName());
        return file.open(QIODevice::ReadOnly) ? QString(file.readAll()) : QString();
    }

private:
    QtMessageHandler m_handler;
    QTemporaryFile m_written;
    int m_realError;
};

/// A device of the service that sends bytes as they are.
struct Sender : RtMidiOut
{
    explicit Sender(const std::string &client)
        : RtMidiOut(RtMidi::UNIX_JACK, client)
    {
        openVirtualPort("out");
    }
    void send(const Bytes &bytes) { sendMessage(&bytes); }
};

/// A device of the service that keeps what it is sent, as bytes, with nothing filtered.
class Listener
{
public:
    explicit Listener(const std::string &client)
        : m_input(RtMidi::UNIX_JACK, client)
    {
        const auto keep = [](double, Bytes *bytes, void *self) {
            auto *listener = static_cast<Listener *>(self);
            const std::lock_guard<std::mutex> lock(listener->m_mutex);
            listener->m_received.push_back(*bytes);
        };
        m_input.ignoreTypes(false, false, false);
        m_input.setCallback(keep, this);
        m_input.openVirtualPort("in");
    }

    bool has(size_t count)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_received.size() >= count;
    }

    /// Waits until \a count messages are there and for a while after, and takes all.
    std::vector<Bytes> take(size_t count)
    {
        if (QTest::qWaitFor([this, count] { return has(count); }))
            QTest::qWait(100);
        const std::lock_guard<std::mutex> lock(m_mutex);
        return std::exchange(m_received, {});
    }

private:
    std::mutex m_mutex; // destroyed after the device that calls back
    std::vector<Bytes> m_received;
    RtMidiIn m_input;
};

/// A connection carries messages from one of the next cycles of the service on.
void settle()
{
    QTest::qWait(250);
}

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
        output.sendNoteOn(countChannel, quint8(sent % countTo / 128), quint8(sent % 128));
        ++sent;
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

#define NEED_JACK() \
    if (!JackServer::isInstalled()) \
        QSKIP("jackd is not installed"); \
    QVERIFY2(needJack(), "jackd does not start")

class TestMidiPorts : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    /// Receives by queued delivery; a QSignalSpy would record on the thread of the service.
    void keep(const QMidiMessage &message)
    {
        QCOMPARE(QThread::currentThread(), thread());
        m_kept << message;
    }

private Q_SLOTS:
    void init()
    {
        m_kept.clear();
        if (!m_server)
            qputenv("JACK_DEFAULT_SERVER", "nocturne-none");
        qputenv("JACK_NO_START_SERVER", "1");
    }

    void isInertWithoutService()
    {
        if (QFile::exists("/dev/snd/seq"))
            QSKIP("this machine has a MIDI service");
        const Diagnostics diagnostics;
        QMidiIn input;
        QMidiOut output;
        QCOMPARE(logged.size(), 2);
        QVERIFY(logged.first().startsWith("There is no MIDI input: Midi"));
        QVERIFY(logged.last().startsWith("There is no MIDI output: Midi"));
        // What RtMidi itself has written, each text once; ALSA and JACK add nothing.
        const QString written = diagnostics.standardError();
        for (const QString &line : written.split('\n', Qt::SkipEmptyParts)) {
            QVERIFY2(line.startsWith("Midi"), qPrintable(line));
            QCOMPARE(written.count(line), 1);
        }
        for (int i = 0; i < 3; ++i)
            QVERIFY(input.portNames().isEmpty() && output.portNames().isEmpty());
        QCOMPARE(diagnostics.standardError(), written);
        QVERIFY(!input.openPort(QString()) && !output.openPort("Desk"));
        input.openVirtualPort("in");
        output.openVirtualPort("out");
        output.openPort(~0u);
        for (int i = 0; i < 20000; ++i) // more than the buffer to a service holds
            output.sendNoteOn(1, 60, 100);
        QCOMPARE(logged.filter("There is no MIDI").size(), 3); // and no port with that index
        QCOMPARE(diagnostics.standardError().count("no port is open"), 1);
    }

    void silencesItsOwnThreadOnly()
    {
        using Setter = void (*)(void (*)(const char *));
        const auto setHandler =
            reinterpret_cast<Setter>(dlsym(RTLD_DEFAULT, "jack_set_error_function"));
        if (!setHandler)
            QSKIP("RtMidi knows no JACK");
        const Diagnostics diagnostics;
        const auto ask = [] { RtMidiOut(RtMidi::UNIX_JACK, "client").getPortCount(); };
        const QString line = "jack server is not running";
        QMidiOut output;
        {
            const Nocturne::DriverSilence silence;
            ask();
            QVERIFY(!diagnostics.standardError().contains(line));
            std::thread(ask).join();
            QVERIFY(diagnostics.standardError().contains(line));
        }
        const int before = diagnostics.standardError().count(line);
        ask();
        QVERIFY(diagnostics.standardError().count(line) > before);

        // The host's own handler stays.
        static int heard;
        setHandler([](const char *) { ++heard; });
        output.portNames();
        QVERIFY(std::exchange(heard, 0) > 0);
        ask();
        QVERIFY(heard > 0);
        setHandler(nullptr);
    }

    void hidesExceptions()
    {
        const Diagnostics diagnostics;
        Nocturne::MidiPort port("port");
        QVector<RtMidi::Api> tried;
        const auto create = [&tried](RtMidi::Api interface) -> std::unique_ptr<RtMidiOut> {
            tried << interface;
            throw RtMidiError("no such thing", RtMidiError::DRIVER_ERROR);
        };
        QVERIFY(!port.createDevice<RtMidiOut>("output", create));
        QCOMPARE(logged, QStringList("There is no MIDI output: no such thing"));
        std::vector<RtMidi::Api> compiled;
        RtMidi::getCompiledApi(compiled);
        QCOMPARE(tried.size(), int(compiled.size()) + 1);
        QCOMPARE(tried.first(), RtMidi::UNSPECIFIED);
        port.guarded([] { throw RtMidiError("without a device", RtMidiError::SYSTEM_ERROR); });
        QVERIFY(port.portNames().isEmpty() && !port.openPort("x") && !port.isOpen());

        const auto device = port.createDevice<RtMidiOut>("output", [](RtMidi::Api) {
            return std::make_unique<RtMidiOut>(RtMidi::UNIX_JACK, "client");
        });
        port.guarded([] { throw RtMidiError("100% of it %s lost", RtMidiError::SYSTEM_ERROR); });
        port.guarded([] { throw RtMidiError("a warning", RtMidiError::WARNING); });
        port.guarded([] { throw RtMidiError("details", RtMidiError::DEBUG_WARNING); });
        port.guarded([] { throw std::out_of_range("beyond"); });
        const QString written = diagnostics.standardError();
        QVERIFY(written.endsWith("\n100% of it %s lost\n\n\na warning\n\n\nbeyond\n\n"));
        QCOMPARE(logged.mid(2), QStringList({"100% of it %s lost", "beyond"}));
    }

    void listsAndOpens()
    {
        NEED_JACK();
        const Diagnostics diagnostics;
        // JACK keeps full names apart; a name that is part of an earlier one is what remains.
        Listener first("Stage Synth");
        Listener second("Synth");
        QMidiOut output;
        QCOMPARE(output.portNames(), QStringList({"Stage Synth:in", "Synth:in 2"}));
        const auto reaches = [&output](Listener &listener, Listener &other) {
            settle();
            output.sendNoteOn(1, 60, 100);
            return listener.take(1).size() == 1 && other.take(0).empty();
        };
        QVERIFY(output.openPort("Synth:in 2"));
        QVERIFY(reaches(second, first));
        QVERIFY(output.openPort("Stage Synth:in"));
        QVERIFY(reaches(first, second));
        QVERIFY(!output.openPort("synth:in 2"));
        output.sendNoteOn(1, 60, 100);
        QVERIFY(diagnostics.standardError().contains("no port is open"));
        output.openPort(1u);
        QVERIFY(reaches(second, first));
        output.openPort(99u);
        QCOMPARE(logged.last(), QString("There is no MIDI port with the index 99"));
    }

    void sendsEveryMessage()
    {
        NEED_JACK();
        const Diagnostics diagnostics;
        Listener device("Device");
        QMidiOut output;
        QVERIFY(output.openPort("Device:in"));
        settle();
        logged.clear();
        output.sendControlChange(1, 2, 3);
        for (quint8 type : {144, 128, 160})
            output.sendNote(type, 16, 60, 100);
        output.sendNoteOff(2, 61, 0);
        for (int type : {0, 128, 144, 176, 224, 240}) {
            QMidiMessage message;
            message.setType(type);
            message.setNote(60);
            message.setSysExData({0xF0, 1, 2});
            output.sendMessage(message);
        }
        QCOMPARE(logged, QStringList({"QMidiOut: a message of type 0 has no bytes to send",
                                      "send message 128", "send message 144", "send message 176",
                                      "QMidiOut: a message of type 224 has no bytes to send",
                                      "send message 240"}));
        const std::vector<Bytes> expected = {{0xB0, 2, 3},  {0x9F, 60, 100},   {0x8F, 60, 100},
                                             {0x81, 61, 0}, {0x80, 60, 0},     {0x90, 60, 0},
                                             {0xB0, 0, 0},  {0xF0, 1, 2, 0xF7}};
        QCOMPARE(device.take(expected.size()), expected);

        // What is longer than a cycle of the service is lost there, and nothing else with it.
        for (size_t size : {1u, 3u, 4u, 127u, 4096u, 16000u, 65536u, 127u}) {
            QMidiMessage message;
            message.setType(QMidiMessage::SystemExclusive);
            Bytes data(size, 0x2A);
            data.front() = 0xF0;
            message.setSysExData(data);
            output.sendMessage(message);
            const std::vector<Bytes> received = device.take(size <= 16000 ? 1 : 0);
            QVERIFY(received == std::vector<Bytes>{message.rawMessage()}
                    || (size > 16000 && received.empty()));
        }
    }

    void receivesEveryMessage()
    {
        NEED_JACK();
        Sender sender("Keys");
        QMidiIn input;
        QVERIFY(input.openPort("Keys:out"));
        QVector<QMidiMessage> direct; // filled on the service's thread, read when it is quiet
        std::atomic<Qt::HANDLE> thread{nullptr};
        const auto receive = [&](const QMidiMessage &message) {
            direct << message;
            thread = QThread::currentThreadId();
        };
        connect(&input, &QMidiIn::midiMessageReceived, &input, receive, Qt::DirectConnection);
        // Queued delivery, by name.
        connect(&input, SIGNAL(midiMessageReceived(QMidiMessage)), SLOT(keep(QMidiMessage)));
        settle();
        const QSet<int> undefined = {0xF4, 0xF5, 0xF7, 0xF9, 0xFD};
        const QSet<int> filtered = {0xF0, 0xF1, 0xF8, 0xFE};
        QVector<int> expected;
        for (int status = 0x80; status < 0x100; ++status) {
            if (undefined.contains(status))
                continue;
            const int kind = status < 0xF0 ? status & 0xF0 : status;
            const bool twoBytes = kind == 0xC0 || kind == 0xD0 || kind == 0xF1 || kind == 0xF3;
            Bytes bytes(kind >= 0xF6 ? 1 : twoBytes ? 2 : 3, status == 0xF0 ? 0xF7 : 0x40);
            bytes.front() = static_cast<unsigned char>(status);
            sender.send(bytes);
            if (!filtered.contains(status))
                expected << status;
        }
        QTRY_VERIFY(m_kept.size() >= expected.size());
        QTest::qWait(100);
        for (const auto &received : {direct, m_kept}) {
            QVector<int> statuses;
            for (const QMidiMessage &message : received)
                statuses << message.type() + qMax(0, message.channel() - 1);
            QCOMPARE(statuses, expected);
        }
        QVERIFY(thread.load() && thread.load() != QThread::currentThreadId());
        QCOMPARE(direct.first().deltaTime(), 0.0);
        QCOMPARE(direct.first().velocity(), 0x40);
        QVERIFY(!input.openPort("none")); // and closes what was open
        sender.send({0x92, 60, 100});
        QTest::qWait(200);
        QCOMPARE(direct.size(), expected.size());
    }

    void losesNothingAtFullRate()
    {
        NEED_JACK();
        const Diagnostics diagnostics;
        QMidiOut output;
        output.openVirtualPort("Flood");
        QMidiIn input;
        QVERIFY(input.openPort(input.portNames().filter("Flood").value(0)));
        connect(&input, &QMidiIn::midiMessageReceived, this, &TestMidiPorts::keep);
        settle();
        const int count = 60000;
        for (int i = 0; i < count; ++i)
            output.sendNoteOn(quint8(1 + i / 128 / 128), quint8(i / 128 % 128), quint8(i % 128));
        QTRY_VERIFY_WITH_TIMEOUT(m_kept.size() == count, 60000);
        QTest::qWait(100);
        QCOMPARE(m_kept.size(), count);
        for (int i = 0; i < count; ++i) {
            const QMidiMessage &message = m_kept.at(i);
            QCOMPARE(
                (message.channel() - 1) * 128 * 128 + message.note() * 128 + message.velocity(), i);
        }
    }

    void survivesTheServer()
    {
        NEED_JACK();
        const Diagnostics diagnostics;
        auto input = std::make_unique<QMidiIn>();
        auto output = std::make_unique<QMidiOut>();
        auto device = std::make_unique<Listener>("Device");
        input->openVirtualPort("in");
        QVERIFY(output->openPort("Device:in"));
        for (int i = 0; i < 5000; ++i)
            output->sendNoteOn(1, 60, 100);
        QTRY_VERIFY(device->has(100));
        m_server->kill();

        // None of these may hang; a send that waits for the dead server would do so without end.
        QElapsedTimer timer;
        timer.start();
        const auto isTold = [] { return !logged.filter("stopped taking messages").isEmpty(); };
        for (int i = 0; i < 300 && !isTold(); ++i) {
            QElapsedTimer call;
            call.start();
            for (int j = 0; j < 100; ++j)
                output->sendNoteOn(1, 60, 100);
            QVERIFY2(call.elapsed() < 500, qPrintable(QString("%1 ms").arg(call.elapsed())));
            QTest::qWait(10);
        }
        QVERIFY(isTold());
        QVERIFY(output->portNames().isEmpty() && !output->openPort("Device:in"));
        input->openPort("none");
        input->openVirtualPort("again");
        input.reset();
        output.reset();
        device.reset();
        QVERIFY(timer.elapsed() < 20000);

        m_server.reset();
        if (QStorageInfo("/dev/shm").bytesAvailable() < JackServer::sharedMemory)
            QSKIP("what clients keep of the dead server leaves no shared memory for another");
        QVERIFY(needJack());
        Sender sender("Keys");
        QMidiIn fresh;
        connect(&fresh, &QMidiIn::midiMessageReceived, this, &TestMidiPorts::keep);
        QVERIFY(fresh.openPort("Keys:out"));
        settle();
        m_kept.clear(); // also of what was still queued
        sender.send({0x90, 1, 2});
        QTRY_COMPARE(m_kept.size(), 1);
    }

    /// A server is killed, started anew and flooded at random moments while ports are opened,
    /// closed, renamed and destroyed. What one port sends arrives at another without a gap for as
    /// long as the server lives. NOCTURNE_SOAK=<minutes> asks for more than a few seconds of it,
    /// and NOCTURNE_SOAK_SEED for other dice. More than five need
    /// QTEST_FUNCTION_TIMEOUT=<milliseconds> as well.
    void soak()
    {
        NEED_JACK();
        m_server.reset();
        const Diagnostics diagnostics;
        dice.seed(quint32(qEnvironmentVariableIntValue("NOCTURNE_SOAK_SEED")));
        std::thread([] {}).join(); // the thread checker starts one of its own with the first
        const int threadsBefore = threadCount();
        int servers = 0;
        int counted = 0;
        const QDeadlineTimer end(qMax(4000, qEnvironmentVariableIntValue("NOCTURNE_SOAK") * 60000));
        while (!end.hasExpired()) {
            JackServer server;
            QVERIFY2(server.start(), "no JACK server comes up");
            Count count(++servers);
            QVERIFY(count.isConnected);
            std::vector<std::unique_ptr<QMidiOut>> outputs;
            std::vector<std::unique_ptr<QMidiIn>> inputs;
            for (int left = 200 + roll(800); left > 0 && !end.hasExpired(); --left) {
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
            if (!crash)
                QTRY_COMPARE_WITH_TIMEOUT(count.received.load(), count.sent, 20000);
            QCOMPARE(count.gaps.load(), 0);
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
        QTRY_VERIFY(threadCount() <= threadsBefore);
        std::printf("%d servers, %d messages counted\n", servers, counted);
    }

private:
    bool needJack()
    {
        if (!m_server) {
            m_server = std::make_unique<JackServer>();
            m_serverRuns = m_server->start();
        }
        return m_serverRuns;
    }

    QVector<QMidiMessage> m_kept;
    std::unique_ptr<JackServer> m_server;
    bool m_serverRuns = false;
};

QTEST_GUILESS_MAIN(TestMidiPorts)

#include "tst_midiports.moc"
