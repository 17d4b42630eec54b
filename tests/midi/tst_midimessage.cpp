#include "gestures.h"
#include "probes.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/KeySequenceEdit>
#include <nocturne/MidiSequenceEdit>
#include <nocturne/QMidiMessage>
#include <nocturne/midi/midiport_p.h>

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <random>

using Bytes = QMidiMessage::Bytes;
using Ints = QVector<int>;

namespace {

/// type, channel, note, velocity, key, value
QMidiMessage filled(const Ints &fields)
{
    QMidiMessage message;
    message.setType(fields[0]);
    message.setChannel(fields[1]);
    message.setNote(fields[2]);
    message.setVelocity(fields[3]);
    message.setKey(fields[4]);
    message.setValue(fields[5]);
    return message;
}

Ints fields(const QMidiMessage &message)
{
    return {message.type(),     message.channel(), message.note(),
            message.velocity(), message.key(),     message.value()};
}

QString shownText(const QWidget &field)
{
    return field.findChild<QLabel *>("edit")->text();
}

} // namespace

class TestMidiMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buildsWireBytesOnce()
    {
        const QVector<QPair<Ints, Bytes>> rows = {
            {{144, 16, 60, 100, 1, 2}, {0x9F, 60, 100}},
            {{128, 1, 60, 64, 1, 2}, {0x80, 60, 64}},
            {{176, 3, 1, 2, 7, 127}, {0xB2, 7, 127}},
            {{192, 4, 1, 2, 0, 5}, {0xC3, 0, 5}},
            {{144, 257, 0x13C, -1, 0, 0}, {0x90, 0x3C, 0xFF}}, // eight bits of each
            {{144, std::numeric_limits<int>::min(), 1, 2, 0, 0}, {0x8F, 1, 2}}};
        for (const auto &row : rows) {
            QMidiMessage message = filled(row.first);
            QCOMPARE(message.rawMessage(), row.second);
            message.setType(208);
            QCOMPARE(QMidiMessage(message).rawMessage(), row.second);
            message.setRawMessage({});
            QVERIFY(message.rawMessage().empty());
            message.setRawMessage({0xFE});
            QCOMPARE(message.rawMessage(), Bytes{0xFE});
            message.setDeltaTime(7.5);
            message.setSysExData({0xF0, 0xF7});
            message.clear();
            QCOMPARE(fields(message), fields(QMidiMessage()));
            QVERIFY(message.sysExData().empty() && message.rawMessage().empty());
            QCOMPARE(message.deltaTime(), 0.0);
        }
        QCOMPARE(fields(QMidiMessage()), Ints({0, 1, 0, 0, 0, 0}));
    }

    void decodes()
    {
        const QVector<QPair<Bytes, Ints>> rows = {{{0x92, 60, 100}, {144, 3, 60, 100, 60, 100}},
                                                  {{0x8F, 60, 100}, {128, 16, 60, 100, 60, 100}},
                                                  {{0xA1, 60, 100}, {160, 2, 60, 0, 0, 100}},
                                                  {{0xB0, 7, 127}, {176, 1, 0, 0, 7, 127}},
                                                  {{0xC5, 7}, {192, 6, 0, 0, 0, 7}},
                                                  {{0xD0, 9}, {208, 1, 0, 0, 0, 9}},
                                                  {{0xE0, 0, 64}, {224, 1, 0, 0, 0, 64}},
                                                  {{0xF2, 5, 6}, {242, 0, 0, 0, 0, 0}},
                                                  {{0x90, 60}, {144, 1, 60, 0, 60, 0}},
                                                  {{0x3C, 1, 2}, {0x30, 13, 0, 0, 0, 0}}};
        for (const auto &row : rows) {
            const QMidiMessage message = Nocturne::decodeMidiMessage(0.0125, row.first);
            QCOMPARE(fields(message), row.second);
            QCOMPARE(message.deltaTime(), 12.5);
        }
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
            const int type = status < 0xF0 ? status & 0xF0 : status;
            QCOMPARE(message.type(), type);
            QCOMPARE(message.channel(), status < 0xF0 ? (status & 0x0F) + 1 : 0);
            QCOMPARE(message.sysExData(), status == 0xF0 ? bytes : Bytes());
            const Bytes raw = message.rawMessage();
            if ((type == 128 || type == 144 || type == 176) && length == 3)
                QCOMPARE(raw, bytes);
            else if (type == 240)
                QCOMPARE(raw.size(), length + (bytes.back() != 0xF7));
            else
                QCOMPARE(raw.size(), size_t(QSet<int>{128, 144, 176, 192}.contains(type) ? 3 : 0));
        }
    }

    void namesPortsApart()
    {
        const QVector<QPair<QString, QString>> rows = {
            {"Synth,Synth,Synth", "Synth,Synth 2,Synth 3"},
            {"USB MIDI,USB MIDI,MIDI", "USB MIDI,USB MIDI 2,MIDI 3"},
            {"MIDI,USB MIDI,midi", "MIDI,USB MIDI,midi"},
            {"%2,%2", "%2,%2 2"},
            {",", ", 2"}};
        for (const auto &row : rows) {
            const auto names = Nocturne::MidiPort::distinctNames(row.first.split(','));
            QCOMPARE(QStringList(names.values()).join(','), row.second);
        }
    }

    void fieldShowsMessages()
    {
        const QVector<QPair<Ints, QString>> rows = {
            {{144, 1, 0, 0, 60, 100}, "NoteOn Channel 1, Key 60, Value 100"},
            {{192, 2, 0, 0, 0, 5}, " Channel 2, Key 0, Value 5"},
            {{208, 0, 0, 0, -1, 1000}, "Afterouch Channel 0, Key -1, Value 1000"},
            {{0, 3, 0, 0, 4, 5}, ""}};
        QCOMPARE(QMidiMessage::typeName(0), QString("Unknow"));
        MidiSequenceEdit field;
        for (const auto &row : rows) {
            QMidiMessage message = filled(row.first);
            field.setKeySequence(&message);
            QCOMPARE(shownText(field), row.second);
            field.setKeySequence(nullptr);
            QCOMPARE(shownText(field), QString());
        }
    }

    void fieldEditsTheHostsMessage()
    {
        MidiSequenceEdit field;
        QMidiMessage received = filled({176, 4, 11, 22, 5, 6});
        received.setRawMessage({55});
        // Without a message nothing is edited.
        field.updateKeySequence(&received);
        field.clearKeySequence();
        field.restoreKeySequence();
        field.updateOldKeySequence();
        QCOMPARE(shownText(field), QString());

        // What is shown is copied, and nothing else.
        QMidiMessage bound = filled({144, 2, 0, 0, 60, 90});
        field.setKeySequence(&bound);
        field.updateOldKeySequence();
        field.updateKeySequence(&received);
        field.updateKeySequence(nullptr);
        QCOMPARE(shownText(field), QString("ControlChange Channel 4, Key 5, Value 6"));
        QCOMPARE(fields(bound), Ints({176, 4, 0, 0, 5, 6}));
        field.restoreKeySequence();
        QCOMPARE(shownText(field), QString("NoteOn Channel 2, Key 60, Value 90"));
        field.setOldKeySequence(received);
        field.updateOldKeySequence();
        QMidiMessage old = field.oldKeySequence();
        QCOMPARE(fields(old), Ints({144, 2, 11, 22, 60, 90}));
        QCOMPARE(old.rawMessage(), Bytes{55});
        field.clearKeySequence();
        QCOMPARE(shownText(field), QString());
        QCOMPARE(fields(bound), Ints({0, 1, 0, 0, 0, 0}));
    }

    /// As the field of shortcuts, which looks the same.
    void fieldsTakeFocusByClickOnly()
    {
        const DarkUX theme;
        const std::unique_ptr<QStyle> style(theme.style());
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        const QVector<QWidget *> widgets = {new QLineEdit, new MidiSequenceEdit,
                                            new KeySequenceEdit, new QLineEdit};
        for (QWidget *widget : widgets)
            layout->addWidget(widget);
        QVERIFY(TestSupport::showActive(&window));
        widgets.first()->setFocus();
        QTest::keyClick(widgets.first(), Qt::Key_Tab);
        QVERIFY(widgets.last()->hasFocus());
        for (QWidget *field : widgets.mid(1, 2)) {
            // The frame covers 1 to 98 across and 1 to 22 down: a unit is left before, two after.
            // The ring's pen is a unit wide, half inside and half outside: whole device pixels.
            field->resize(100, 24);
            TestSupport::compareProbes(TestSupport::render(*field, 2),
                                       "#14161b 100,2 100,43 2,24 195,24; "
                                       "none 100,1 100,44 1,24 196,24 2,2");
            QTest::mouseClick(field->childAt(field->rect().center()), Qt::LeftButton);
            QVERIFY(field->hasFocus() && !field->testAttribute(Qt::WA_InputMethodEnabled));
            QCOMPARE(field->findChild<QLabel *>("edit")->geometry(), field->rect());
            TestSupport::compareProbes(TestSupport::render(*field, 2),
                                       "#419bf9 100,1 100,2 100,43 100,44 196,24; none 100,0; "
                                       "#14161b 100,3 100,24");
        }
    }
};

NOCTURNE_TEST_MAIN(TestMidiMessage)

#include "tst_midimessage.moc"
