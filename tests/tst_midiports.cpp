#include "jackserver.h"

#include <nocturne/QMidiIn>
#include <nocturne/QMidiOut>
#include <nocturne/midi/midiport_p.h>

#include <QtCore/QMutex>
#include <QtTest/QtTest>

#include <atomic>
#include <sstream>
#include <thread>

using Bytes = QMidiMessage::Bytes;

namespace {

QStringList warnings;
QStringList debugLines;
QMutex linesMutex;

void keepLines(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const QMutexLocker locker(&linesMutex);
    if (type == QtWarningMsg)
        warnings << text;
    else if (type == QtDebugMsg)
        debugLines << text;
}

/// Collects what is logged and what is written to std::cerr while it lives.
class Diagnostics
{
public:
    Diagnostics()
        : m_handler(qInstallMessageHandler(keepLines))
        , m_buffer(std::cerr.rdbuf(m_stream.rdbuf()))
    {
        warnings.clear();
        debugLines.clear();
    }
    ~Diagnostics()
    {
        std::cerr.rdbuf(m_buffer);
        qInstallMessageHandler(m_handler);
    }

    QString standardError() const { return QString::fromStdString(m_stream.str()); }

private:
    QtMessageHandler m_handler;
    std::ostringstream m_stream;
    std::streambuf *m_buffer;
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
                const QMutexLocker locker(&listener->m_mutex);
                listener->m_received.push_back(*bytes);
            },
            this);
    }

    RtMidiIn *operator->() { return &m_input; }

    std::vector<Bytes> received()
    {
        const QMutexLocker locker(&m_mutex);
        return m_received;
    }
    size_t count()
    {
        const QMutexLocker locker(&m_mutex);
        return m_received.size();
    }
    void forget()
    {
        const QMutexLocker locker(&m_mutex);
        m_received.clear();
    }

private:
    QMutex m_mutex; // destroyed after the device that calls back
    std::vector<Bytes> m_received;
    RtMidiIn m_input;
};

/// A device of the service that sends bytes as they are.
class Sender
{
public:
    explicit Sender(const std::string &client, const std::string &port = "out")
        : m_output(RtMidi::UNIX_JACK, client)
    {
        m_output.openVirtualPort(port);
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

int numberOf(const Bytes &bytes)
{
    return bytes.size() == 3 ? ((bytes[0] & 0x0F) << 14) | (bytes[1] << 7) | bytes[2] : -1;
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

QString listed(QMidiIn &input, const QString &part)
{
    return input.portNames().filter(part).value(0);
}

QString listed(QMidiOut &output, const QString &part)
{
    return output.portNames().filter(part).value(0);
}

} // namespace

/// Receives by queued delivery; a QSignalSpy would record on the thread of the service.
class MessageCounter : public QObject
{
    Q_OBJECT

public:
    int count = 0;
    int wrongThread = 0;
    QMidiMessage last;

public slots:
    void receive(QMidiMessage message)
    {
        ++count;
        wrongThread += QThread::currentThread() != thread();
        last = message;
    }
};

class TestMidiPorts : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void routesErrors_data();
    void routesErrors();
    void isInertWithoutService();
    void hidesExceptions();

    void listsAndOpens();
    void sendsEveryMessage();
    void receivesEveryMessage();
    void sendsLongMessages();
    void deliversQueued();
    void losesNothingAtFullRate();
    void reopensUnderFire();
    void diesUnderFire();
    void survivesTheServer();

private:
    bool needJack();
    std::unique_ptr<JackServer> m_server;
    bool m_serverFailed = false;
};

#define NEED_JACK() \
    if (!JackServer::isInstalled()) \
        QSKIP("jackd is not installed"); \
    QVERIFY2(needJack(), "jackd does not start")

bool TestMidiPorts::needJack()
{
    if (!m_server && !m_serverFailed) {
        m_server = std::make_unique<JackServer>();
        m_serverFailed = !m_server->start();
        if (m_serverFailed)
            m_server.reset();
    }
    return m_server != nullptr;
}

void TestMidiPorts::init()
{
    if (!m_server)
        qputenv("JACK_DEFAULT_SERVER", "nocturne-none");
    qputenv("JACK_NO_START_SERVER", "1");
}

void TestMidiPorts::routesErrors_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("written");
    QTest::addColumn<bool>("logged");
    QTest::newRow("debug") << int(RtMidiError::DEBUG_WARNING) << false << false;
    QTest::newRow("warning") << int(RtMidiError::WARNING) << true << false;
    QTest::newRow("unspecified") << int(RtMidiError::UNSPECIFIED) << true << true;
    QTest::newRow("driver") << int(RtMidiError::DRIVER_ERROR) << true << true;
    QTest::newRow("thread") << int(RtMidiError::THREAD_ERROR) << true << true;
}

void TestMidiPorts::routesErrors()
{
    QFETCH(int, type);
    QFETCH(bool, written);
    QFETCH(bool, logged);
    const Diagnostics diagnostics;
    MidiPort::report(static_cast<RtMidiError::Type>(type), "100% of it %s failed");
    QCOMPARE(diagnostics.standardError(),
             written ? QStringLiteral("\n100% of it %s failed\n\n") : QString());
    QCOMPARE(warnings,
             logged ? QStringList(QStringLiteral("100% of it %s failed")) : QStringList());
}

void TestMidiPorts::isInertWithoutService()
{
    if (QFile::exists(QStringLiteral("/dev/snd/seq")))
        QSKIP("this machine has a MIDI service");
    const Diagnostics diagnostics;
    QMidiIn input;
    QMidiOut output;
    const auto saysSo = [](const QString &direction) {
        return warnings.filter(QStringLiteral("There is no MIDI ") + direction).size();
    };
    QCOMPARE(saysSo(QStringLiteral("input")), 1);
    QCOMPARE(saysSo(QStringLiteral("output")), 1);

    QCOMPARE(input.portNames(), QStringList());
    QCOMPARE(output.portNames(), QStringList());
    QVERIFY(!input.openPort(QString()));
    QVERIFY(!output.openPort(QStringLiteral("Desk")));
    input.openVirtualPort(QStringLiteral("in"));
    output.openVirtualPort(QStringLiteral("out"));
    output.openPort(0u);
    output.openPort(~0u);
    for (int i = 0; i < 20000; ++i) // more than the buffer to a service holds
        output.sendNoteOn(1, 60, 100);
    QMidiMessage message;
    output.sendMessage(message);
    message.setType(QMidiMessage::NoteOn);
    output.sendMessage(message);
    QCOMPARE(saysSo(QStringLiteral("input")) + saysSo(QStringLiteral("output")), 2);
}

void TestMidiPorts::hidesExceptions()
{
    const Diagnostics diagnostics;
    MidiPort port("port");
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
    QCOMPARE(warnings, QStringList(QStringLiteral("There is no MIDI output: no such thing")));

    QCOMPARE(port.portNames(), QStringList());
    QVERIFY(!port.openPort(QStringLiteral("x")));
    QVERIFY(!port.isOpen());

    const auto createDummy = [](RtMidi::Api) {
        return std::make_unique<RtMidiOut>(RtMidi::RTMIDI_DUMMY, "client");
    };
    std::unique_ptr<RtMidiOut> device;
    MidiPort other("port");
    device = other.createDevice<RtMidiOut>("output", createDummy);
    if (!device)
        return;
    warnings.clear();
    other.guarded([] { throw RtMidiError("lost", RtMidiError::SYSTEM_ERROR); });
    other.guarded([] { throw std::out_of_range("beyond"); });
    QCOMPARE(warnings, (QStringList{QStringLiteral("lost"), QStringLiteral("beyond")}));
}

void TestMidiPorts::listsAndOpens()
{
    NEED_JACK();
    const Diagnostics diagnostics;
    // JACK keeps full names apart; a name that is part of an earlier one is what remains.
    Listener first("Stage Synth");
    first->openVirtualPort("in");
    Listener second("Synth");
    second->openVirtualPort("in");

    QMidiOut output;
    QCOMPARE(output.portNames(),
             (QStringList{QStringLiteral("Stage Synth:in"), QStringLiteral("Synth:in 2")}));

    const auto reaches = [&output](Listener &listener, Listener &other) {
        settle();
        listener.forget();
        other.forget();
        output.sendNoteOn(1, 60, 100);
        const bool arrived = QTest::qWaitFor([&listener] { return listener.count() == 1; });
        QTest::qWait(100);
        return arrived && other.count() == 0;
    };
    QVERIFY(output.openPort(QStringLiteral("Synth:in 2")));
    QVERIFY(reaches(second, first));
    QVERIFY(output.openPort(QStringLiteral("Stage Synth:in")));
    QVERIFY(reaches(first, second));

    QVERIFY(!output.openPort(QStringLiteral("synth:in 2")));
    output.sendNoteOn(1, 60, 100);
    QVERIFY(diagnostics.standardError().contains(QStringLiteral("no port is open")));
    output.openPort(1u);
    QVERIFY(reaches(second, first));
    output.openPort(99u);
    QVERIFY(!warnings.filter(QStringLiteral("no MIDI port with the index 99")).isEmpty());

    Sender sender("Keys");
    QMidiIn input;
    MessageCounter messages;
    connect(&input, &QMidiIn::midiMessageReceived, &messages, &MessageCounter::receive);
    QVERIFY(!input.openPort(QStringLiteral("Keys")));
    QVERIFY(input.openPort(listed(input, QStringLiteral("Keys:out"))));
    settle();
    sender.send({0x92, 60, 100});
    QTRY_COMPARE(messages.count, 1);
    QVERIFY(!input.openPort(QStringLiteral("none")));
    sender.send({0x92, 60, 100});
    QTest::qWait(200);
    QCOMPARE(messages.count, 1);
    QVERIFY(input.openPort(listed(input, QStringLiteral("Keys:out"))));
    settle();
    sender.send({0x92, 60, 100});
    QTRY_COMPARE(messages.count, 2);
}

void TestMidiPorts::sendsEveryMessage()
{
    NEED_JACK();
    const Diagnostics diagnostics;
    Listener device("Device");
    device->openVirtualPort("in");
    QMidiOut output;
    QVERIFY(output.openPort(listed(output, QStringLiteral("Device:in"))));
    settle();

    std::vector<Bytes> expected;
    QStringList expectedLines;
    for (int type = 0; type < 256; ++type) {
        QMidiMessage message;
        message.setType(type);
        message.setChannel(3);
        message.setNote(60);
        message.setVelocity(100);
        message.setKey(7);
        message.setValue(127);
        message.setSysExData({0xF0, 1, 2});
        output.sendMessage(message);
        const Bytes bytes = message.rawMessage();
        if (bytes.empty())
            continue;
        // A program change is three bytes here, of which the service carries all or none.
        if (type != QMidiMessage::ProgramChange)
            expected.push_back(bytes);
        expectedLines << QStringLiteral("send message %1").arg(bytes.front());
    }
    QCOMPARE(debugLines, expectedLines);
    QCOMPARE(warnings.filter(QStringLiteral("no bytes")).size(), 256 - expectedLines.size());
    QVERIFY(warnings.contains(QStringLiteral("QMidiOut: a message of type 224 has no bytes to "
                                             "send")));

    output.sendControlChange(1, 2, 3);
    output.sendNote(144, 16, 60, 100);
    output.sendNote(128, 1, 60, 100);
    output.sendNote(160, 1, 60, 100);
    output.sendNoteOff(2, 61, 0);
    output.sendNoteOn(16, 62, 1);
    const std::vector<Bytes> direct = {
        {0xB0, 2, 3}, {0x9F, 60, 100}, {0x80, 60, 100}, {0x81, 61, 0}, {0x9F, 62, 1}};
    expected.insert(expected.end(), direct.begin(), direct.end());

    QTRY_VERIFY(device.count() >= expected.size());
    std::vector<Bytes> received = device.received();
    received.erase(std::remove_if(received.begin(), received.end(),
                                  [](const Bytes &bytes) { return (bytes[0] & 0xF0) == 0xC0; }),
                   received.end());
    QCOMPARE(received, expected);
}

void TestMidiPorts::receivesEveryMessage()
{
    NEED_JACK();
    Sender sender("Keys");
    QMidiIn input;
    QVERIFY(input.openPort(listed(input, QStringLiteral("Keys:out"))));

    QMutex mutex;
    QVector<QMidiMessage> received;
    std::atomic<Qt::HANDLE> thread{nullptr};
    connect(
        &input, &QMidiIn::midiMessageReceived, &input,
        [&](QMidiMessage message) {
            const QMutexLocker locker(&mutex);
            received << message;
            thread = QThread::currentThreadId();
        },
        Qt::DirectConnection);

    settle();
    QVector<int> expected;
    for (int status = 0x80; status < 0x100; ++status) {
        const bool filtered = status == 0xF0 || status == 0xF1 || status == 0xF8 || status == 0xFE;
        const bool undefined =
            status == 0xF4 || status == 0xF5 || status == 0xF7 || status == 0xF9 || status == 0xFD;
        if (undefined)
            continue;
        Bytes bytes{static_cast<unsigned char>(status)};
        const int kind = status < 0xF0 ? status & 0xF0 : status;
        const bool oneByte = kind >= 0xF6;
        const bool twoBytes = kind == 0xC0 || kind == 0xD0 || kind == 0xF1 || kind == 0xF3;
        if (status == 0xF0)
            bytes = {0xF0, 1, 2, 0xF7};
        else if (!oneByte)
            bytes.insert(bytes.end(), twoBytes ? 1 : 2, 0x40);
        sender.send(bytes);
        if (!filtered)
            expected << status;
    }
    const auto complete = [&] {
        const QMutexLocker locker(&mutex);
        return received.size() >= expected.size();
    };
    QTRY_VERIFY(complete());
    QTest::qWait(100);

    const QMutexLocker locker(&mutex);
    QVector<int> statuses;
    for (const QMidiMessage &message : qAsConst(received)) {
        statuses << (message.channel() > 0 ? message.type() + message.channel() - 1
                                           : message.type());
    }
    QCOMPARE(statuses, expected);
    QVERIFY(thread.load() && thread.load() != QThread::currentThreadId());
    QCOMPARE(received.first().deltaTime(), 0.0);
    QCOMPARE(received.first().velocity(), 0x40);
}

void TestMidiPorts::sendsLongMessages()
{
    NEED_JACK();
    const Diagnostics diagnostics;
    Listener device("Device");
    device->openVirtualPort("in");
    RtMidiOut bare(RtMidi::UNIX_JACK, "Bare");
    QMidiOut output;
    const QString name = listed(output, QStringLiteral("Device:in"));
    QVERIFY(output.openPort(name));
    const int index = output.portNames().indexOf(name);
    bare.openPort(static_cast<unsigned int>(index), "out");
    settle();

    for (size_t size : {1u, 2u, 3u, 4u, 127u, 1024u, 4096u, 16000u, 32768u, 65536u}) {
        Bytes bytes(size, 0x2A);
        bytes.front() = 0xF0;
        if (size > 1)
            bytes.back() = 0xF7;
        QMidiMessage message;
        message.setType(QMidiMessage::SystemExclusive);
        message.setSysExData(bytes);
        const Bytes sent = message.rawMessage();

        device.forget();
        bare.sendMessage(&sent);
        QTest::qWait(150);
        const std::vector<Bytes> withoutUs = device.received();
        device.forget();
        output.sendMessage(message);
        QTRY_VERIFY(device.count() >= withoutUs.size());
        QTest::qWait(150);
        QCOMPARE(device.received(), withoutUs);
        if (size <= 16000)
            QCOMPARE(withoutUs, std::vector<Bytes>{sent});
    }
}

void TestMidiPorts::deliversQueued()
{
    NEED_JACK();
    Sender sender("Keys");
    QMidiIn input;
    QVERIFY(input.openPort(listed(input, QStringLiteral("Keys:out"))));
    MessageCounter byPointer;
    MessageCounter byName;
    connect(&input, &QMidiIn::midiMessageReceived, &byPointer, &MessageCounter::receive);
    connect(&input, SIGNAL(midiMessageReceived(QMidiMessage)), &byName,
            SLOT(receive(QMidiMessage)));
    settle();
    sender.send({0x95, 1, 2});
    sender.send({0xE0, 0, 0x40});
    QTRY_COMPARE(byName.count, 2);
    QCOMPARE(byPointer.count, 2);
    QCOMPARE(byPointer.wrongThread + byName.wrongThread, 0);
    QCOMPARE(byName.last.type(), 224);
    QCOMPARE(byName.last.value(), 0x40);
}

void TestMidiPorts::losesNothingAtFullRate()
{
    NEED_JACK();
    constexpr int count = 100000;
    const Diagnostics diagnostics;
    QMidiOut output;
    output.openVirtualPort(QStringLiteral("Flood"));
    QMidiIn input;
    const QString name = listed(input, QStringLiteral("Flood"));
    const int index = input.portNames().indexOf(name);
    QVERIFY(input.openPort(name));
    Listener bare("Bare");
    bare->openPort(static_cast<unsigned int>(index), "in");

    std::vector<int> direct; // filled on the service's thread, read when it is quiet
    direct.reserve(count);
    std::atomic<int> directCount{0};
    connect(
        &input, &QMidiIn::midiMessageReceived, &input,
        [&](const QMidiMessage &message) {
            direct.push_back(numberOf(message));
            ++directCount;
        },
        Qt::DirectConnection);
    std::vector<int> queued;
    connect(&input, &QMidiIn::midiMessageReceived, this,
            [&queued](const QMidiMessage &message) { queued.push_back(numberOf(message)); });

    settle();
    for (int i = 0; i < count; ++i) {
        const Bytes bytes = numbered(i);
        output.sendNoteOn(static_cast<quint8>((bytes[0] & 0x0F) + 1), bytes[1], bytes[2]);
    }
    QTRY_VERIFY_WITH_TIMEOUT(directCount == count && int(queued.size()) == count, 60000);
    QTest::qWait(100);

    std::vector<int> withoutUs;
    for (const Bytes &bytes : bare.received())
        withoutUs.push_back(numberOf(bytes));
    std::vector<int> expected(count);
    std::iota(expected.begin(), expected.end(), 0);
    QCOMPARE(direct.size(), withoutUs.size());
    QVERIFY(direct == withoutUs);
    QVERIFY(queued == direct);
    QCOMPARE(direct.size(), expected.size());
    QVERIFY(direct == expected);
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

void TestMidiPorts::reopensUnderFire()
{
    NEED_JACK();
    const Diagnostics diagnostics;
    Fire fire;
    QMidiIn input;
    MessageCounter messages;
    connect(&input, &QMidiIn::midiMessageReceived, &messages, &MessageCounter::receive);
    const QString name = listed(input, QStringLiteral("Fire"));
    for (int i = 0; i < 15; ++i) {
        QVERIFY(input.openPort(name));
        const int before = messages.count;
        QTRY_VERIFY(messages.count > before + 10);
    }
}

void TestMidiPorts::diesUnderFire()
{
    NEED_JACK();
    const Diagnostics diagnostics;
    Fire fire;
    MessageCounter counter;
    for (int i = 0; i < 15; ++i) {
        auto input = std::make_unique<QMidiIn>();
        std::atomic<int> direct{0};
        connect(
            input.get(), &QMidiIn::midiMessageReceived, input.get(),
            [&direct](const QMidiMessage &) { ++direct; }, Qt::DirectConnection);
        connect(input.get(), &QMidiIn::midiMessageReceived, &counter, &MessageCounter::receive);
        QVERIFY(input->openPort(listed(*input, QStringLiteral("Fire"))));
        QVERIFY(QTest::qWaitFor([&direct] { return direct > 0; }));
        input.reset();
        const int after = direct;
        QThread::msleep(30);
        QCOMPARE(direct.load(), after);
    }
    QTRY_VERIFY(counter.count > 0);
}

void TestMidiPorts::survivesTheServer()
{
    NEED_JACK();
    const Diagnostics diagnostics;
    auto input = std::make_unique<QMidiIn>();
    auto output = std::make_unique<QMidiOut>();
    auto device = std::make_unique<Listener>("Device");
    (*device)->openVirtualPort("in");
    input->openVirtualPort(QStringLiteral("in"));
    const QString name = listed(*output, QStringLiteral("Device:in"));
    QVERIFY(output->openPort(name));
    for (int i = 0; i < 5000; ++i)
        output->sendNoteOn(1, 60, 100);
    QTRY_VERIFY(device->count() > 100);
    m_server->kill();

    // None of these may hang; a send that waits for the dead server would do so without end.
    QElapsedTimer timer;
    timer.start();
    qint64 longest = 0;
    for (int i = 0; i < 300; ++i) {
        QElapsedTimer call;
        call.start();
        for (int j = 0; j < 100; ++j)
            output->sendNoteOn(1, 60, 100);
        longest = qMax(longest, call.elapsed());
        QTest::qWait(10);
    }
    QVERIFY2(longest < 500, qPrintable(QStringLiteral("%1 ms").arg(longest)));
    QVERIFY(!warnings.filter(QStringLiteral("stopped taking messages")).isEmpty());
    QVERIFY(output->portNames().isEmpty());
    QVERIFY(!output->openPort(name));
    input->openPort(QStringLiteral("none"));
    input->openVirtualPort(QStringLiteral("again"));
    input.reset();
    output.reset();
    device.reset();
    QVERIFY(timer.elapsed() < 20000);

    m_server.reset();
    QVERIFY(needJack());
    Sender sender("Keys");
    QMidiIn fresh;
    MessageCounter messages;
    connect(&fresh, &QMidiIn::midiMessageReceived, &messages, &MessageCounter::receive);
    QVERIFY(fresh.openPort(listed(fresh, QStringLiteral("Keys:out"))));
    settle();
    sender.send({0x90, 1, 2});
    QTRY_COMPARE(messages.count, 1);
}

QTEST_GUILESS_MAIN(TestMidiPorts)

#include "tst_midiports.moc"
