#include <nocturne/QMidiMessage>
#include <nocturne/midi/midiport_p.h>

#include <QtTest/QtTest>

#include <random>

using Bytes = QMidiMessage::Bytes;
using Ints = QVector<int>;

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
Ints fields(const QMidiMessage &message)
{
    return {message.type(),     message.channel(), message.note(),
            message.velocity(), message.key(),     message.value()};
}

} // namespace

Q_DECLARE_METATYPE(Bytes)

class TestMidiMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isEmptyAtFirstAndAfterClear()
    {
        QMidiMessage message;
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(fields(message), Ints({0, 1, 0, 0, 0, 0}));
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

    void buildsWireBytes_data()
    {
        QTest::addColumn<QMidiMessage>("message");
        QTest::addColumn<Bytes>("expected");
        const auto row = [](const char *name, const QMidiMessage &message, const Bytes &expected) {
            QTest::newRow(name) << message << expected;
        };
        const int lowest = std::numeric_limits<int>::min();
        row("note on", filled(144, 1, 60, 100, 1, 2), {0x90, 60, 100});
        row("note on, last channel", filled(144, 16, 60, 100, 1, 2), {0x9F, 60, 100});
        row("note off", filled(128, 1, 60, 64, 1, 2), {0x80, 60, 64});
        row("control change", filled(176, 3, 1, 2, 7, 127), {0xB2, 7, 127});
        row("program change", filled(192, 4, 1, 2, 0, 5), {0xC3, 0, 5});
        row("eight bits of each field", filled(144, 257, 0x13C, -1, 0, 0), {0x90, 0x3C, 0xFF});
        row("lowest channel", filled(144, lowest, 1, 2, 0, 0), {0x8F, 1, 2});
        for (int type : {0, 100, 160, 208, 224, 241, 242, 243, 246, 247, 248, 250, 255})
            row(qPrintable(QString("type %1").arg(type)), filled(type, 1, 1, 2, 3, 4), {});

        QMidiMessage exclusive = filled(240, 1, 1, 2, 3, 4);
        row("no exclusive data", exclusive, {});
        for (const Bytes &data : {Bytes{0xF0, 0x7E, 0xF7}, Bytes{0xF0, 0x7E}}) {
            exclusive.setSysExData(data);
            row(data.size() == 3 ? "whole" : "without its end", exclusive, {0xF0, 0x7E, 0xF7});
        }
    }

    void buildsWireBytes()
    {
        QFETCH(QMidiMessage, message);
        QFETCH(Bytes, expected);
        QCOMPARE(message.rawMessage(), expected);
    }

    void keepsBytesOnceBuilt()
    {
        QMidiMessage message = filled(144, 1, 60, 100, 0, 0);
        message.rawMessage();
        QMidiMessage copy = message;
        message.setVelocity(1);
        message.setType(176);
        QCOMPARE(message.rawMessage(), (Bytes{0x90, 60, 100}));
        message.setRawMessage({0xFE});
        QCOMPARE(message.rawMessage(), (Bytes{0xFE}));
        message.setRawMessage({});
        QCOMPARE(message.rawMessage(), (Bytes{0xB0, 0, 0}));
        QCOMPARE(copy.rawMessage(), (Bytes{0x90, 60, 100}));
        QCOMPARE(fields(copy), Ints({144, 1, 60, 100, 0, 0}));
    }

    void namesTypes()
    {
        const QMap<int, QString> names = {
            {0, "Unknow"},          {128, "NoteOff"},       {144, "NoteOn"},
            {176, "ControlChange"}, {208, "Afterouch"},     {224, "PitchBend"},
            {240, "SysEx"},         {241, "TimeCode"},      {242, "SongPosPointer"},
            {243, "SongSelect"},    {246, "TuneRequest"},   {247, "SysExEnd"},
            {248, "TimeClock"},     {250, "Start"},         {251, "Continue"},
            {252, "Stop"},          {254, "ActiveSensing"}, {255, "SystemReset"}};
        for (int type = -1; type <= 256; ++type)
            QCOMPARE(QMidiMessage::typeName(type), names.value(type));
    }

    void decodes_data()
    {
        QTest::addColumn<Bytes>("bytes");
        QTest::addColumn<Ints>("expected"); // type, channel, note, velocity, key, value
        QTest::newRow("note on") << Bytes{0x92, 60, 100} << Ints{144, 3, 60, 100, 60, 100};
        QTest::newRow("note off") << Bytes{0x8F, 60, 100} << Ints{128, 16, 60, 100, 60, 100};
        QTest::newRow("key pressure") << Bytes{0xA1, 60, 100} << Ints{160, 2, 60, 0, 0, 100};
        QTest::newRow("control change") << Bytes{0xB0, 7, 127} << Ints{176, 1, 0, 0, 7, 127};
        QTest::newRow("program change") << Bytes{0xC5, 7} << Ints{192, 6, 0, 0, 0, 7};
        QTest::newRow("channel pressure") << Bytes{0xD0, 9} << Ints{208, 1, 0, 0, 0, 9};
        QTest::newRow("pitch bend") << Bytes{0xE0, 0, 64} << Ints{224, 1, 0, 0, 0, 64};
        QTest::newRow("song select") << Bytes{0xF3, 5} << Ints{243, 0, 0, 0, 0, 0};
        QTest::newRow("song position") << Bytes{0xF2, 5, 6} << Ints{242, 0, 0, 0, 0, 0};
        QTest::newRow("no velocity") << Bytes{0x90, 60} << Ints{144, 1, 60, 0, 60, 0};
        QTest::newRow("data only") << Bytes{0x3C, 1, 2} << Ints{0x30, 13, 0, 0, 0, 0};
    }

    void decodes()
    {
        QFETCH(Bytes, bytes);
        QFETCH(Ints, expected);
        const QMidiMessage message = Nocturne::decodeMidiMessage(0.0125, bytes);
        QCOMPARE(fields(message), expected);
        QCOMPARE(message.deltaTime(), 12.5);
    }

    // A seeded stream of byte sequences of every length; NOCTURNE_FUZZ_COUNT asks for more of them.
    // Each is put into a heap block of exactly its length, so that a sanitizer sees a read past it.
    void decodesWhateverArrives()
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

            QMidiMessage message = Nocturne::decodeMidiMessage(i * 0.001, bytes);
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

    void namesPortsApart()
    {
        const QVector<QPair<QString, QString>> rows = {
            {"Synth,Synth,Synth", "Synth,Synth 2,Synth 3"},
            {"USB MIDI,USB MIDI,MIDI", "USB MIDI,USB MIDI 2,MIDI 3"},
            {"MIDI,USB MIDI", "MIDI,USB MIDI"},
            {"midi,MIDI", "midi,MIDI"},
            {"%2,%2", "%2,%2 2"},
            {",", ", 2"}};
        for (const auto &row : rows) {
            const QMap<int, QString> names =
                Nocturne::MidiPort::distinctNames(row.first.split(','));
            QCOMPARE(QStringList(names.values()).join(','), row.second);
        }
        QVERIFY(Nocturne::MidiPort::distinctNames({}).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestMidiMessage)

#include "tst_midimessage.moc"
