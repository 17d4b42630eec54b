#include "jackserver.h"

#include <nocturne/QMidiIn>
#include <nocturne/QMidiOut>
#include <nocturne/midi/midiport_p.h>

#include <QtCore/QStorageInfo>
#include <QtCore/QTemporaryFile>
#include <QtTest/QtTest>

#include <atomic>
#include <dlfcn.h>
#include <mutex>
#include <thread>
#include <unistd.h>

#include <utility>

using Bytes = QMidiMessage::Bytes;

namespace {

QStringList warnings;
QStringList debugLines;
std::mutex linesMutex;

void keepLines(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const std::lock_guard<std::mutex> lock(linesMutex);
    if (type == QtWarningMsg)
        warnings << text;
    else if (type == QtDebugMsg)
        debugLines << text;
}

/// Collects what is logged and what anybody writes to the standard error stream while it lives.
class Diagnostics
{
public:
    Diagnostics()
        : m_handler(qInstallMessageHandler(keepLines))
        , m_realError(dup(STDERR_FILENO))
    {
        m_written.open();
        dup2(m_written.handle(), STDERR_FILENO);
        warnings.clear();
        debugLines.clear();
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

/// A device of the service that keeps what it is sent, as bytes, with nothing filtered.
class Listener
{
public:
    explicit Listener(const std::string &client)
        : m_input(RtMidi::UNIX_JACK, client)
    {
        m_input.ignoreTypes(false, false, false);
        m_input.setCallback(
            [](double, std::vector<unsigned char> *bytes, void *self) {
                auto *listener = static_cast<Listener *>(self);
                const std::lock_guard<std::mutex> lock(listener->m_mutex);
                listener->m_received.push_back(*bytes);
            },
            this);
    }

    RtMidiIn *operator->() { return &m_input; }

    size_t count()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_received.size();
    }
    std::vector<Bytes> take()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return std::exchange(m_received, {});
    }

private:
    std::mutex m_mutex; // destroyed after the device that calls back
    std::vector<Bytes> m_received;
    RtMidiIn m_input;
};

/// A device of the service that sends bytes as they are.
class Sender
{
public:
    explicit Sender(const std::string &client)
        : m_output(RtMidi::UNIX_JACK, client)
    {
        m_output.openVirtualPort("out");
    }
    void send(const Bytes &bytes) { m_output.sendMessage(bytes.data(), bytes.size()); }

private:
    RtMidiOut m_output;
};

/// Three bytes that carry \a number, which is below 2^18.
Bytes numbered(int number)
{
    return {static_cast<unsigned char>(0x90 | (number >> 14)),
            static_cast<unsigned char>((number >> 7) & 0x7F),
            static_cast<unsigned char>(number & 0x7F)};
}

int numberOf(const QMidiMessage &message)
{
    return ((message.channel() - 1) << 14) | (message.note() << 7) | message.velocity();
}

/// A connection carries messages from one of the next cycles of the service on.
void settle()
{
    QTest::qWait(250);
}

template <typename Port>
QString listed(Port &port, const QString &part)
{
    return port.portNames().filter(part).value(0);
}

/// Sends numbered messages from a thread of its own until it ends.
class Fire
{
public:
    Fire()
        : m_sender("Fire")
        , m_thread([this] {
            for (int i = 0; !m_stop; i = (i + 1) % 100000) {
                m_sender.send(numbered(i));
                QThread::usleep(20);
            }
        })
    {}
    ~Fire()
    {
        m_stop = true;
        m_thread.join();
    }

private:
    std::atomic<bool> m_stop{false};
    Sender m_sender;
    std::thread m_thread;
};

} // namespace

/// Receives by queued delivery; a QSignalSpy would record on the thread of the service.
class MessageCounter : public QObject
{
    Q_OBJECT

public:
    MessageCounter() = default;
    explicit MessageCounter(QMidiIn &input)
    {
        connect(&input, &QMidiIn::midiMessageReceived, this, &MessageCounter::receive);
    }

    int count = 0;
    int wrongThread = 0;
    QMidiMessage last;

public Q_SLOTS:
    void receive(QMidiMessage message)
    {
        ++count;
        wrongThread += QThread::currentThread() != thread();
        last = message;
    }
};

#define NEED_JACK() \
    if (!JackServer::isInstalled()) \
        QSKIP("jackd is not installed"); \
    QVERIFY2(needJack(), "jackd does not start")

class TestMidiPorts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        if (!m_server)
            qputenv("JACK_DEFAULT_SERVER", "nocturne-none");
        qputenv("JACK_NO_START_SERVER", "1");
    }

    void routesErrors()
    {
        for (auto type : {RtMidiError::DEBUG_WARNING, RtMidiError::WARNING,
                          RtMidiError::UNSPECIFIED, RtMidiError::DRIVER_ERROR})
        {
            const Diagnostics diagnostics;
            Nocturne::MidiPort::report(type, "100% of it %s failed");
            QCOMPARE(diagnostics.standardError().contains("\n100% of it %s failed\n\n"),
                     type != RtMidiError::DEBUG_WARNING);
            QCOMPARE(warnings.contains("100% of it %s failed"), type >= RtMidiError::UNSPECIFIED);
        }
    }

    void isInertWithoutService()
    {
        if (QFile::exists("/dev/snd/seq"))
            QSKIP("this machine has a MIDI service");
        const Diagnostics diagnostics;
        QMidiIn input;
        QMidiOut output;
        QCOMPARE(warnings.size(), 2);
        QVERIFY(warnings.first().startsWith("There is no MIDI input: Midi"));
        QVERIFY(warnings.last().startsWith("There is no MIDI output: Midi"));
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
        output.openPort(0u);
        output.openPort(~0u);
        for (int i = 0; i < 20000; ++i) // more than the buffer to a service holds
            output.sendNoteOn(1, 60, 100);
        QMidiMessage message;
        output.sendMessage(message);
        message.setType(QMidiMessage::NoteOn);
        output.sendMessage(message);
        QCOMPARE(warnings.filter(QRegularExpression("no MIDI (in|out)put")).size(), 2);
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

        static int heard;
        heard = 0;
        setHandler([](const char *) { ++heard; });
        output.portNames();
        QVERIFY(heard > 0);
        heard = 0;
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
        std::vector<RtMidi::Api> compiled;
        RtMidi::getCompiledApi(compiled);
        QCOMPARE(tried.size(), int(compiled.size()) + 1);
        QCOMPARE(tried.first(), RtMidi::UNSPECIFIED);
        port.guarded([] { throw RtMidiError("lost", RtMidiError::SYSTEM_ERROR); }); // no device
        QVERIFY(port.portNames().isEmpty() && !port.openPort("x") && !port.isOpen());
        QCOMPARE(warnings, QStringList{"There is no MIDI output: no such thing"});

        const auto device = port.createDevice<RtMidiOut>("output", [](RtMidi::Api) {
            return std::make_unique<RtMidiOut>(RtMidi::RTMIDI_DUMMY, "client");
        });
        if (!device)
            return;
        warnings.clear();
        port.guarded([] { throw RtMidiError("lost", RtMidiError::SYSTEM_ERROR); });
        port.guarded([] { throw std::out_of_range("beyond"); });
        QCOMPARE(warnings, QStringList({"lost", "beyond"}));
    }

    void listsAndOpens()
    {
        NEED_JACK();
        const Diagnostics diagnostics;
        // JACK keeps full names apart; a name that is part of an earlier one is what remains.
        Listener first("Stage Synth");
        Listener second("Synth");
        first->openVirtualPort("in");
        second->openVirtualPort("in");
        QMidiOut output;
        QCOMPARE(output.portNames(), QStringList({"Stage Synth:in", "Synth:in 2"}));
        const auto reaches = [&output](Listener &listener, Listener &other) {
            settle();
            listener.take();
            other.take();
            output.sendNoteOn(1, 60, 100);
            const bool arrived = QTest::qWaitFor([&listener] { return listener.count() == 1; });
            QTest::qWait(100);
            return arrived && other.count() == 0;
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
        QVERIFY(!warnings.filter("no MIDI port with the index 99").isEmpty());

        Sender sender("Keys");
        QMidiIn input;
        MessageCounter messages(input);
        QVERIFY(!input.openPort("Keys"));
        for (int round = 1; round < 3; ++round) {
            QVERIFY(input.openPort(listed(input, "Keys:out")));
            settle();
            sender.send({0x92, 60, 100});
            QTRY_COMPARE(messages.count, round);
            QVERIFY(!input.openPort("none"));
            sender.send({0x92, 60, 100});
            QTest::qWait(200);
            QCOMPARE(messages.count, round);
        }
    }

    void sendsEveryMessage()
    {
        NEED_JACK();
        const Diagnostics diagnostics;
        Listener device("Device");
        device->openVirtualPort("in");
        QMidiOut output;
        QVERIFY(output.openPort(listed(output, "Device:in")));
        settle();

        std::vector<Bytes> expected = {
            {0xB0, 2, 3}, {0x9F, 60, 100}, {0x8F, 60, 100}, {0x81, 61, 0}, {0x9F, 62, 1}};
        output.sendControlChange(1, 2, 3);
        for (quint8 type : {144, 128, 160})
            output.sendNote(type, 16, 60, 100);
        output.sendNoteOff(2, 61, 0);
        output.sendNoteOn(16, 62, 1);
        debugLines.clear();
        warnings.clear();
        QStringList expectedLines;
        for (int type = 0; type < 256; ++type) {
            QMidiMessage message;
            message.setType(type);
            message.setNote(60);
            message.setVelocity(100);
            message.setSysExData({0xF0, 1, 2});
            output.sendMessage(message);
            const Bytes bytes = message.rawMessage();
            if (bytes.empty())
                continue;
            // A program change is three bytes here, of which the service carries all or none.
            if (type != QMidiMessage::ProgramChange)
                expected.push_back(bytes);
            expectedLines << QString("send message %1").arg(bytes.front());
        }
        QCOMPARE(debugLines, expectedLines);
        QCOMPARE(warnings.filter("no bytes").size(), 256 - expectedLines.size());
        QVERIFY(warnings.contains("QMidiOut: a message of type 224 has no bytes to send"));
        QTRY_VERIFY(device.count() >= expected.size());
        std::vector<Bytes> received = device.take();
        received.erase(std::remove_if(received.begin(), received.end(),
                                      [](const Bytes &bytes) { return (bytes[0] & 0xF0) == 0xC0; }),
                       received.end());
        QCOMPARE(received, expected);

        // What is longer than a cycle of the service is lost there, and nothing else with it.
        for (size_t size : {1u, 3u, 4u, 127u, 4096u, 16000u, 65536u, 127u}) {
            QMidiMessage message;
            message.setType(QMidiMessage::SystemExclusive);
            Bytes data(size, 0x2A);
            data.front() = 0xF0;
            message.setSysExData(data);
            const std::vector<Bytes> sent = {message.rawMessage()};
            output.sendMessage(message);
            if (size <= 16000)
                QTRY_COMPARE(device.count(), size_t(1));
            QTest::qWait(100);
            received = device.take();
            QVERIFY(received == sent || (size > 16000 && received.empty()));
        }
    }

    void receivesEveryMessage()
    {
        NEED_JACK();
        Sender sender("Keys");
        QMidiIn input;
        QVERIFY(input.openPort(listed(input, "Keys:out")));
        QVector<QMidiMessage> received; // filled on the service's thread, read when it is quiet
        std::atomic<Qt::HANDLE> thread{nullptr};
        const auto keep = [&](const QMidiMessage &message) {
            received << message;
            thread = QThread::currentThreadId();
        };
        connect(&input, &QMidiIn::midiMessageReceived, &input, keep, Qt::DirectConnection);
        // Queued delivery, by pointer and by name.
        MessageCounter byPointer(input);
        MessageCounter byName;
        connect(&input, SIGNAL(midiMessageReceived(QMidiMessage)), &byName,
                SLOT(receive(QMidiMessage)));
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
        QTRY_VERIFY(byName.count >= expected.size());
        QTest::qWait(100);
        QVector<int> statuses;
        for (const QMidiMessage &message : std::as_const(received))
            statuses << message.type() + qMax(0, message.channel() - 1);
        QCOMPARE(statuses, expected);
        QVERIFY(thread.load() && thread.load() != QThread::currentThreadId());
        QCOMPARE(received.first().deltaTime(), 0.0);
        QCOMPARE(received.first().velocity(), 0x40);
        for (const MessageCounter *counter : {&byName, &byPointer}) {
            QCOMPARE(counter->count, expected.size());
            QCOMPARE(counter->wrongThread, 0);
            QCOMPARE(counter->last.type(), expected.last());
        }
    }

    void losesNothingAtFullRate()
    {
        NEED_JACK();
        const Diagnostics diagnostics;
        QMidiOut output;
        output.openVirtualPort("Flood");
        QMidiIn input;
        QVERIFY(input.openPort(listed(input, "Flood")));
        std::vector<int> expected(60000);
        std::iota(expected.begin(), expected.end(), 0);
        std::vector<int> queued;
        connect(&input, &QMidiIn::midiMessageReceived, this,
                [&queued](const QMidiMessage &message) { queued.push_back(numberOf(message)); });
        settle();
        for (int i : expected) {
            const Bytes bytes = numbered(i);
            output.sendNoteOn(static_cast<quint8>((bytes[0] & 0x0F) + 1), bytes[1], bytes[2]);
        }
        QTRY_VERIFY_WITH_TIMEOUT(queued.size() == expected.size(), 60000);
        QTest::qWait(100);
        QVERIFY(queued == expected);
    }

    void reopensAndDiesUnderFire()
    {
        NEED_JACK();
        const Diagnostics diagnostics;
        Fire fire;
        QMidiIn kept;
        MessageCounter messages(kept);
        for (int i = 0; i < 8; ++i) {
            QVERIFY(kept.openPort(listed(kept, "Fire")));
            auto input = std::make_unique<QMidiIn>();
            MessageCounter queued(*input);
            std::atomic<int> direct{0};
            const auto count = [&direct](const QMidiMessage &) { ++direct; };
            connect(input.get(), &QMidiIn::midiMessageReceived, input.get(), count,
                    Qt::DirectConnection);
            QVERIFY(input->openPort(listed(*input, "Fire")));
            const int before = messages.count;
            QTRY_VERIFY(direct > 0 && messages.count > before + 10);
            input.reset();
            const int after = direct;
            QThread::msleep(30);
            QCOMPARE(direct.load(), after);
        }
    }

    void survivesTheServer()
    {
        NEED_JACK();
        const Diagnostics diagnostics;
        auto input = std::make_unique<QMidiIn>();
        auto output = std::make_unique<QMidiOut>();
        auto device = std::make_unique<Listener>("Device");
        (*device)->openVirtualPort("in");
        input->openVirtualPort("in");
        const QString name = listed(*output, "Device:in");
        QVERIFY(output->openPort(name));
        for (int i = 0; i < 5000; ++i)
            output->sendNoteOn(1, 60, 100);
        QTRY_VERIFY(device->count() > 100);
        m_server->kill();

        // None of these may hang; a send that waits for the dead server would do so without end.
        QElapsedTimer timer;
        timer.start();
        const auto isTold = [] { return !warnings.filter("stopped taking messages").isEmpty(); };
        for (int i = 0; i < 300 && !isTold(); ++i) {
            QElapsedTimer call;
            call.start();
            for (int j = 0; j < 100; ++j)
                output->sendNoteOn(1, 60, 100);
            QVERIFY2(call.elapsed() < 500, qPrintable(QString("%1 ms").arg(call.elapsed())));
            QTest::qWait(10);
        }
        QVERIFY(isTold());
        QVERIFY(output->portNames().isEmpty());
        QVERIFY(!output->openPort(name));
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
        MessageCounter messages(fresh);
        QVERIFY(fresh.openPort(listed(fresh, "Keys:out")));
        settle();
        sender.send({0x90, 1, 2});
        QTRY_COMPARE(messages.count, 1);
    }

private:
    bool needJack()
    {
        if (!m_server && !m_serverFailed) {
            m_server = std::make_unique<JackServer>();
            m_serverFailed = !m_server->start();
            if (m_serverFailed)
                m_server.reset();
        }
        return m_server != nullptr;
    }

    std::unique_ptr<JackServer> m_server;
    bool m_serverFailed = false;
};

QTEST_GUILESS_MAIN(TestMidiPorts)

#include "tst_midiports.moc"
