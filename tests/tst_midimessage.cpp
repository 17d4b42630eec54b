#include <nocturne/QMidiMessage>
#include <nocturne/midi/midiport_p.h>

#include <QtTest/QtTest>

#include <random>

using Bytes = QMidiMessage::Bytes;

namespace {

QMidiMessage filled(int type, int channel, int note, int velocity, int key, int value)
{
    QMidiMessage message;
    message.setType(type);
    message.setChannel(channel);
    message.setNote(note);
    message.setVelocity(velocity);
    message.setKey(key);
    message.setValue(value);
    return message;
}

/// type, channel, note, velocity, key, value
QVector<int> fields(const QMidiMessage &message)
{
    return {message.type(),     message.channel(), message.note(),
            message.velocity(), message.key(),     message.value()};
}

} // namespace

class TestMidiMessage : public QObject
{
    Q_OBJECT

private slots:
    void isEmptyAtFirstAndAfterClear();
    void buildsWireBytes_data();
    void buildsWireBytes();
    void keepsBytesOnceBuilt();
    void copiesAreIndependent();
    void namesTypes();
    void decodes_data();
    void decodes();
    void decodesSystemExclusive();
    void decodesWhateverArrives();
    void namesPortsApart_data();
    void namesPortsApart();
};

void TestMidiMessage::isEmptyAtFirstAndAfterClear()
{
    QMidiMessage message;
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(fields(message), (QVector<int>{0, 1, 0, 0, 0, 0}));
        QCOMPARE(message.deltaTime(), 0.0);
        QVERIFY(message.sysExData().empty());
        QVERIFY(message.rawMessage().empty());

        message = filled(144, 2, 3, 4, 5, 6);
        message.setDeltaTime(7.5);
        message.setSysExData({0xF0, 0xF7});
        message.setRawMessage({1, 2, 3});
        message.clear();
    }
}

void TestMidiMessage::buildsWireBytes_data()
{
    QTest::addColumn<QMidiMessage>("message");
    QTest::addColumn<QVector<int>>("expected");

    const auto row = [](const char *name, const QMidiMessage &message,
                        const QVector<int> &expected) {
        QTest::newRow(name) << message << expected;
    };
    row("note on", filled(144, 1, 60, 100, 1, 2), {0x90, 60, 100});
    row("note on, last channel", filled(144, 16, 60, 100, 1, 2), {0x9F, 60, 100});
    row("note off", filled(128, 1, 60, 64, 1, 2), {0x80, 60, 64});
    row("control change", filled(176, 3, 1, 2, 7, 127), {0xB2, 7, 127});
    row("program change", filled(192, 4, 1, 2, 0, 5), {0xC3, 0, 5});
    row("eight bits of each field", filled(144, 257, 0x13C, -1, 0, 0), {0x90, 0x3C, 0xFF});
    row("lowest channel", filled(144, std::numeric_limits<int>::min(), 1, 2, 0, 0), {0x8F, 1, 2});
    for (int type : {0, 100, 160, 208, 224, 241, 242, 243, 246, 247, 248, 250, 255})
        row(qPrintable(QStringLiteral("type %1").arg(type)), filled(type, 1, 1, 2, 3, 4), {});

    QMidiMessage exclusive;
    exclusive.setType(240);
    row("no exclusive data", exclusive, {});
    exclusive.setSysExData({0xF0, 0x7E, 0xF7});
    row("whole exclusive data", exclusive, {0xF0, 0x7E, 0xF7});
    exclusive.setSysExData({0xF0, 0x7E});
    row("exclusive data without its end", exclusive, {0xF0, 0x7E, 0xF7});
}

void TestMidiMessage::buildsWireBytes()
{
    QFETCH(QMidiMessage, message);
    QFETCH(QVector<int>, expected);
    const Bytes bytes = message.rawMessage();
    QCOMPARE(QVector<int>(bytes.begin(), bytes.end()), expected);
}

void TestMidiMessage::keepsBytesOnceBuilt()
{
    QMidiMessage message = filled(144, 1, 60, 100, 0, 0);
    QCOMPARE(message.rawMessage(), (Bytes{0x90, 60, 100}));
    message.setVelocity(1);
    message.setType(176);
    QCOMPARE(message.rawMessage(), (Bytes{0x90, 60, 100}));

    message.setRawMessage({0xFE});
    QCOMPARE(message.rawMessage(), (Bytes{0xFE}));
    message.setRawMessage({});
    QCOMPARE(message.rawMessage(), (Bytes{0xB0, 0, 0}));
}

void TestMidiMessage::copiesAreIndependent()
{
    QMidiMessage original = filled(144, 1, 60, 100, 0, 0);
    original.setSysExData({0xF0, 1});
    original.setDeltaTime(2.5);
    original.rawMessage();

    QMidiMessage copy = original;
    QCOMPARE(fields(copy), fields(original));
    QCOMPARE(copy.deltaTime(), 2.5);
    QCOMPARE(copy.sysExData(), (Bytes{0xF0, 1}));
    QCOMPARE(copy.rawMessage(), (Bytes{0x90, 60, 100}));

    copy.setRawMessage({1});
    copy.setSysExData({2});
    copy.setNote(3);
    QCOMPARE(original.rawMessage(), (Bytes{0x90, 60, 100}));
    QCOMPARE(original.sysExData(), (Bytes{0xF0, 1}));
    QCOMPARE(original.note(), 60);
}

void TestMidiMessage::namesTypes()
{
    const QMap<int, QString> names = {
        {0, QStringLiteral("Unknow")},           {128, QStringLiteral("NoteOff")},
        {144, QStringLiteral("NoteOn")},         {176, QStringLiteral("ControlChange")},
        {208, QStringLiteral("Afterouch")},      {224, QStringLiteral("PitchBend")},
        {240, QStringLiteral("SysEx")},          {241, QStringLiteral("TimeCode")},
        {242, QStringLiteral("SongPosPointer")}, {243, QStringLiteral("SongSelect")},
        {246, QStringLiteral("TuneRequest")},    {247, QStringLiteral("SysExEnd")},
        {248, QStringLiteral("TimeClock")},      {250, QStringLiteral("Start")},
        {251, QStringLiteral("Continue")},       {252, QStringLiteral("Stop")},
        {254, QStringLiteral("ActiveSensing")},  {255, QStringLiteral("SystemReset")}};
    for (int type = -1; type <= 256; ++type)
        QCOMPARE(QMidiMessage::typeName(type), names.value(type));
}

void TestMidiMessage::decodes_data()
{
    QTest::addColumn<QVector<int>>("bytes");
    QTest::addColumn<QVector<int>>("expected"); // type, channel, note, velocity, key, value

    using Row = QVector<int>;
    QTest::newRow("note on") << Row{0x92, 60, 100} << Row{144, 3, 60, 100, 60, 100};
    QTest::newRow("note off") << Row{0x8F, 60, 100} << Row{128, 16, 60, 100, 60, 100};
    QTest::newRow("key pressure") << Row{0xA1, 60, 100} << Row{160, 2, 60, 0, 0, 100};
    QTest::newRow("control change") << Row{0xB0, 7, 127} << Row{176, 1, 0, 0, 7, 127};
    QTest::newRow("program change") << Row{0xC5, 7} << Row{192, 6, 0, 0, 0, 7};
    QTest::newRow("channel pressure") << Row{0xD0, 9} << Row{208, 1, 0, 0, 0, 9};
    QTest::newRow("pitch bend") << Row{0xE0, 0, 64} << Row{224, 1, 0, 0, 0, 64};
    QTest::newRow("song select") << Row{0xF3, 5} << Row{243, 0, 0, 0, 0, 0};
    QTest::newRow("song position") << Row{0xF2, 5, 6} << Row{242, 0, 0, 0, 0, 0};
    QTest::newRow("reset") << Row{0xFF} << Row{255, 0, 0, 0, 0, 0};
    QTest::newRow("no velocity") << Row{0x90, 60} << Row{144, 1, 60, 0, 60, 0};
    QTest::newRow("status only") << Row{0x90} << Row{144, 1, 0, 0, 0, 0};
    QTest::newRow("data only") << Row{0x3C, 1, 2} << Row{0x30, 13, 0, 0, 0, 0};
}

void TestMidiMessage::decodes()
{
    QFETCH(QVector<int>, bytes);
    QFETCH(QVector<int>, expected);
    const QMidiMessage message = decodeMidiMessage(0.0125, Bytes(bytes.begin(), bytes.end()));
    QCOMPARE(fields(message), expected);
    QCOMPARE(message.deltaTime(), 12.5);
    QVERIFY(message.sysExData().empty());
}

void TestMidiMessage::decodesSystemExclusive()
{
    for (size_t size : {1u, 2u, 1024u, 65536u}) {
        Bytes bytes(size, 0x11);
        bytes.front() = 0xF0;
        QMidiMessage message = decodeMidiMessage(0.0, bytes);
        QCOMPARE(fields(message), (QVector<int>{240, 0, 0, 0, 0, 0}));
        QCOMPARE(message.sysExData(), bytes);
        bytes.push_back(0xF7);
        QCOMPARE(message.rawMessage(), bytes);
    }
}

// A seeded stream of byte sequences of every length; NOCTURNE_FUZZ_COUNT asks for more of them.
// Each is put into a heap block of exactly its length, so that a sanitizer sees a read past it.
void TestMidiMessage::decodesWhateverArrives()
{
    const int count = qMax(200000, qEnvironmentVariableIntValue("NOCTURNE_FUZZ_COUNT"));
    std::mt19937 random(20250117);
    for (int i = 0; i < count; ++i) {
        const unsigned kind = random() % 1000;
        const size_t length = kind < 950 ? random() % 5 : kind < 999 ? random() % 300 : 70000;
        Bytes bytes(length);
        bytes.shrink_to_fit();
        for (unsigned char &byte : bytes)
            byte = static_cast<unsigned char>(random());
        if (kind % 10 == 0 && !bytes.empty())
            bytes.front() = 0xF0;

        QMidiMessage message = decodeMidiMessage(i * 0.001, bytes);
        const int status = bytes.empty() ? 0 : bytes.front();
        QCOMPARE(message.type(), status < 0xF0 ? status & 0xF0 : status);
        QCOMPARE(message.channel(), status < 0xF0 ? (status & 0x0F) + 1 : 0);
        QCOMPARE(message.sysExData(), status == 0xF0 ? bytes : Bytes());

        const Bytes raw = message.rawMessage();
        const bool sameOnTheWire =
            message.type() == 128 || message.type() == 144 || message.type() == 176;
        if (sameOnTheWire && length == 3)
            QCOMPARE(raw, bytes);
        else if (sameOnTheWire || message.type() == 192)
            QCOMPARE(raw.size(), size_t(3));
        else if (message.type() == 240)
            QCOMPARE(raw.size(), length + (bytes.back() != 0xF7));
        else
            QVERIFY(raw.empty());
    }
}

void TestMidiMessage::namesPortsApart_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const QString &names, const QString &expected) {
        QTest::newRow(name) << names.split(QLatin1Char(','), Qt::SkipEmptyParts) << expected;
    };
    row("none", QString(), QString());
    row("equal", QStringLiteral("Synth,Synth,Synth"), QStringLiteral("Synth,Synth 2,Synth 3"));
    row("contained", QStringLiteral("USB MIDI,USB MIDI,MIDI"),
        QStringLiteral("USB MIDI,USB MIDI 2,MIDI 3"));
    row("containing", QStringLiteral("MIDI,USB MIDI"), QStringLiteral("MIDI,USB MIDI"));
    row("other case", QStringLiteral("midi,MIDI"), QStringLiteral("midi,MIDI"));
    row("like a format", QStringLiteral("%2,%2"), QStringLiteral("%2,%2 2"));
    QTest::newRow("nameless") << QStringList{QString(), QString()} << QStringLiteral(", 2");
}

void TestMidiMessage::namesPortsApart()
{
    QFETCH(QStringList, names);
    QFETCH(QString, expected);
    QCOMPARE(MidiPort::distinctNames(names).values().join(QLatin1Char(',')), expected);
}

QTEST_GUILESS_MAIN(TestMidiMessage)

#include "tst_midimessage.moc"
