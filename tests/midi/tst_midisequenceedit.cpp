#include "gestures.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/KeySequenceEdit>
#include <nocturne/MidiSequenceEdit>
#include <nocturne/QMidiMessage>

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

using TestSupport::comparePixels;

namespace {

QMidiMessage filled(int type, int channel, int key, int value)
{
    QMidiMessage message;
    message.setType(type);
    message.setChannel(channel);
    message.setKey(key);
    message.setValue(value);
    message.setNote(11);
    message.setVelocity(22);
    message.setDeltaTime(33.0);
    message.setSysExData({44});
    message.setRawMessage({55});
    return message;
}

QString shownText(const QWidget &field)
{
    return field.findChild<QLabel *>("edit")->text();
}

} // namespace

class TestMidiSequenceEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { delete m_theme.style(); }

    void showsMessages_data()
    {
        QTest::addColumn<QMidiMessage>("message");
        QTest::addColumn<QString>("expected");
        QTest::newRow("note") << filled(144, 1, 60, 100) << "NoteOn Channel 1, Key 60, Value 100";
        QTest::newRow("no name") << filled(192, 2, 0, 5) << " Channel 2, Key 0, Value 5";
        QTest::newRow("none") << filled(0, 3, 4, 5) << QString();
        QTest::newRow("system") << filled(243, 0, -1, 1000)
                                << "SongSelect Channel 0, Key -1, Value 1000";
    }

    void showsMessages()
    {
        QFETCH(QMidiMessage, message);
        QFETCH(QString, expected);
        MidiSequenceEdit field;
        field.setKeySequence(&message);
        QCOMPARE(shownText(field), expected);
        QCOMPARE(field.keySequence(), &message);
    }

    void copiesShownFieldsOnly()
    {
        MidiSequenceEdit field;
        QMidiMessage bound;
        field.setKeySequence(&bound);
        QMidiMessage received = filled(176, 4, 5, 6);
        field.updateKeySequence(&received);
        QCOMPARE(bound.rawMessage(), (QMidiMessage::Bytes{0xB3, 5, 6}));
        QCOMPARE(bound.note() + bound.velocity() + bound.deltaTime(), 0.0);
        QVERIFY(bound.sysExData().empty());

        field.setOldKeySequence(filled(144, 1, 2, 3));
        field.updateOldKeySequence();
        QMidiMessage old = field.oldKeySequence();
        QCOMPARE(old.type(), 176);
        QCOMPARE(old.value(), 6);
        QCOMPARE(old.note(), 11);
        QCOMPARE(old.sysExData(), QMidiMessage::Bytes{44});
        QCOMPARE(old.rawMessage(), QMidiMessage::Bytes{55});
    }

    void editsTheHostsMessage()
    {
        MidiSequenceEdit field;
        QSignalSpy changes(&field, &MidiSequenceEdit::keySequenceChanged);
        QMidiMessage bound = filled(176, 1, 7, 100);
        QMidiMessage note = filled(144, 2, 60, 90);
        field.setKeySequence(&bound);
        field.updateOldKeySequence();
        field.updateKeySequence(&note);
        QCOMPARE(shownText(field), QString("NoteOn Channel 2, Key 60, Value 90"));
        field.restoreKeySequence();
        QCOMPARE(shownText(field), QString("ControlChange Channel 1, Key 7, Value 100"));
        QCOMPARE(bound.type(), 176);
        QCOMPARE(note.type(), 144);
        field.clearKeySequence();
        QCOMPARE(shownText(field), QString());
        QCOMPARE(bound.type(), 0);
        QCOMPARE(bound.channel(), 1);
        QVERIFY(bound.sysExData().empty());
        QCOMPARE(changes.count(), 0);
    }

    void ignoresEditsWithoutMessage()
    {
        MidiSequenceEdit field;
        QMidiMessage note = filled(144, 2, 60, 90);
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(field.keySequence(), nullptr);
            field.updateKeySequence(&note);
            field.clearKeySequence();
            field.restoreKeySequence();
            field.updateOldKeySequence();
            QCOMPARE(shownText(field), QString());
            QCOMPARE(note.type(), 144);
            field.setKeySequence(&note);
            field.updateKeySequence(nullptr);
            QVERIFY(!shownText(field).isEmpty());
            field.setKeySequence(nullptr);
        }
    }

    // Queued and by name, as an old host connects: nothing has to be registered for it.
    void deliversMessagesByName()
    {
        MidiSequenceEdit sender;
        MidiSequenceEdit receiver;
        QVERIFY(connect(&sender, SIGNAL(keySequenceChanged(QMidiMessage)), &receiver,
                        SLOT(setOldKeySequence(QMidiMessage)), Qt::QueuedConnection));
        Q_EMIT sender.keySequenceChanged(filled(144, 2, 60, 90));
        QCOMPARE(receiver.oldKeySequence().type(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(receiver.oldKeySequence().type(), 144);
        QCOMPARE(receiver.oldKeySequence().sysExData(), QMidiMessage::Bytes{44});
    }

    void takesFocusByClickOnly()
    {
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
            QTest::mouseClick(field->childAt(field->rect().center()), Qt::LeftButton);
            QVERIFY(field->hasFocus());
            QVERIFY(!field->testAttribute(Qt::WA_InputMethodEnabled));
            const auto *label = field->findChild<QLabel *>("edit");
            QCOMPARE(label->indent(), 6);
            QCOMPARE(label->focusProxy(), field);
            QCOMPARE(label->geometry(), field->rect());
        }
    }

    void paintsFrameAndRing()
    {
        MidiSequenceEdit midi;
        KeySequenceEdit keys;
        const QColor fill(0x14, 0x16, 0x1b);
        const QColor ring(65, 155, 249);
        for (QWidget *field : {static_cast<QWidget *>(&midi), static_cast<QWidget *>(&keys)}) {
            // The frame covers 1 to 98 across and 1 to 22 down: a unit is left before, two after.
            field->resize(100, 24);
            QImage image = TestSupport::render(*field);
            comparePixels(image, fill, {{50, 12}, {50, 1}, {50, 21}, {1, 12}, {97, 12}});
            comparePixels(image, Qt::transparent, {{50, 0}, {50, 22}, {0, 12}, {98, 12}, {1, 1}});
            image = TestSupport::render(*field, 2);
            comparePixels(image, fill, {{100, 24}, {100, 2}, {100, 43}, {2, 24}, {195, 24}});
            comparePixels(image, Qt::transparent,
                          {{100, 1}, {100, 44}, {1, 24}, {196, 24}, {2, 2}});

            QVERIFY(TestSupport::showActive(field));
            QTest::mouseClick(field, Qt::LeftButton);
            QVERIFY(field->hasFocus());
            image = TestSupport::render(*field);
            for (const QPoint &edge : {QPoint(50, 1), QPoint(50, 22), QPoint(98, 12)})
                QVERIFY(image.pixelColor(edge).blue() > 100);
            // The pen is a unit wide, half inside and half outside: whole device pixels.
            image = TestSupport::render(*field, 2);
            comparePixels(image, ring, {{100, 1}, {100, 2}, {100, 43}, {100, 44}, {196, 24}});
            comparePixels(image, Qt::transparent, {{100, 0}});
            comparePixels(image, fill, {{100, 3}, {100, 24}});
        }
    }

private:
    DarkUX m_theme;
};

NOCTURNE_TEST_MAIN(TestMidiSequenceEdit)

#include "tst_midisequenceedit.moc"
