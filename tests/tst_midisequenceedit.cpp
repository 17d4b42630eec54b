#include "testsupport.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/KeySequenceEdit>
#include <nocturne/MidiSequenceEdit>
#include <nocturne/QMidiMessage>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

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
    return field.findChild<QLabel *>(QStringLiteral("edit"))->text();
}

} // namespace

class TestMidiSequenceEdit : public QObject
{
    Q_OBJECT

private slots:
    void cleanupTestCase() { delete m_theme.style(); }

    void showsMessages_data();
    void showsMessages();
    void copiesShownFieldsOnly();
    void editsTheHostsMessage();
    void ignoresEditsWithoutMessage();
    void deliversMessagesByName();
    void takesFocusByClickOnly();
    void paintsFrameAndRing_data();
    void paintsFrameAndRing();

private:
    DarkUX m_theme;
};

void TestMidiSequenceEdit::showsMessages_data()
{
    QTest::addColumn<QMidiMessage>("message");
    QTest::addColumn<QString>("expected");

    QTest::newRow("note") << filled(144, 1, 60, 100)
                          << QStringLiteral("NoteOn Channel 1, Key 60, Value 100");
    QTest::newRow("control change")
        << filled(176, 10, 7, 0) << QStringLiteral("ControlChange Channel 10, Key 7, Value 0");
    QTest::newRow("no name") << filled(192, 2, 0, 5)
                             << QStringLiteral(" Channel 2, Key 0, Value 5");
    QTest::newRow("none") << filled(0, 3, 4, 5) << QString();
    QTest::newRow("system") << filled(243, 0, -1, 1000)
                            << QStringLiteral("SongSelect Channel 0, Key -1, Value 1000");
}

void TestMidiSequenceEdit::showsMessages()
{
    QFETCH(QMidiMessage, message);
    QFETCH(QString, expected);
    MidiSequenceEdit field;
    field.setKeySequence(&message);
    QCOMPARE(shownText(field), expected);
    QCOMPARE(field.keySequence(), &message);
}

void TestMidiSequenceEdit::copiesShownFieldsOnly()
{
    MidiSequenceEdit field;
    QMidiMessage bound;
    field.setKeySequence(&bound);
    QMidiMessage received = filled(176, 4, 5, 6);
    field.updateKeySequence(&received);
    QCOMPARE(bound.type(), 176);
    QCOMPARE(bound.channel(), 4);
    QCOMPARE(bound.key(), 5);
    QCOMPARE(bound.value(), 6);
    QCOMPARE(bound.note(), 0);
    QCOMPARE(bound.velocity(), 0);
    QCOMPARE(bound.deltaTime(), 0.0);
    QVERIFY(bound.sysExData().empty());
    QCOMPARE(bound.rawMessage(), (QMidiMessage::Bytes{0xB3, 5, 6}));

    field.setOldKeySequence(filled(144, 1, 2, 3));
    QCOMPARE(field.oldKeySequence().note(), 11);
    QCOMPARE(field.oldKeySequence().sysExData(), QMidiMessage::Bytes{44});
    field.updateOldKeySequence();
    QCOMPARE(field.oldKeySequence().type(), 176);
    QCOMPARE(field.oldKeySequence().value(), 6);
    QCOMPARE(field.oldKeySequence().note(), 11);
    QCOMPARE(field.oldKeySequence().rawMessage(), QMidiMessage::Bytes{55});
}

void TestMidiSequenceEdit::editsTheHostsMessage()
{
    MidiSequenceEdit field;
    QSignalSpy changes(&field, &MidiSequenceEdit::keySequenceChanged);
    QMidiMessage bound = filled(176, 1, 7, 100);
    QMidiMessage note = filled(144, 2, 60, 90);
    field.setKeySequence(&bound);
    field.updateOldKeySequence();
    field.updateKeySequence(&note);
    QCOMPARE(shownText(field), QStringLiteral("NoteOn Channel 2, Key 60, Value 90"));

    field.restoreKeySequence();
    QCOMPARE(shownText(field), QStringLiteral("ControlChange Channel 1, Key 7, Value 100"));
    QCOMPARE(bound.type(), 176);
    QCOMPARE(note.type(), 144);

    field.clearKeySequence();
    QCOMPARE(shownText(field), QString());
    QCOMPARE(bound.type(), 0);
    QCOMPARE(bound.channel(), 1);
    QVERIFY(bound.sysExData().empty());
    QCOMPARE(changes.count(), 0);
}

void TestMidiSequenceEdit::ignoresEditsWithoutMessage()
{
    MidiSequenceEdit field;
    QMidiMessage note = filled(144, 2, 60, 90);
    QCOMPARE(field.keySequence(), nullptr);
    for (int round = 0; round < 2; ++round) {
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
void TestMidiSequenceEdit::deliversMessagesByName()
{
    MidiSequenceEdit sender;
    MidiSequenceEdit receiver;
    QVERIFY(connect(&sender, SIGNAL(keySequenceChanged(QMidiMessage)), &receiver,
                    SLOT(setOldKeySequence(QMidiMessage)), Qt::QueuedConnection));
    emit sender.keySequenceChanged(filled(144, 2, 60, 90));
    QCOMPARE(receiver.oldKeySequence().type(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(receiver.oldKeySequence().type(), 144);
    QCOMPARE(receiver.oldKeySequence().sysExData(), QMidiMessage::Bytes{44});
}

void TestMidiSequenceEdit::takesFocusByClickOnly()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *first = new QLineEdit;
    auto *midi = new MidiSequenceEdit;
    auto *keys = new KeySequenceEdit;
    auto *last = new QLineEdit;
    for (QWidget *widget : {static_cast<QWidget *>(first), static_cast<QWidget *>(midi),
                            static_cast<QWidget *>(keys), static_cast<QWidget *>(last)})
        layout->addWidget(widget);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    first->setFocus();
    QTest::keyClick(first, Qt::Key_Tab);
    QVERIFY(last->hasFocus());
    for (QWidget *field : {static_cast<QWidget *>(midi), static_cast<QWidget *>(keys)}) {
        QTest::mouseClick(field->childAt(field->rect().center()), Qt::LeftButton);
        QVERIFY(field->hasFocus());
        QVERIFY(!field->testAttribute(Qt::WA_InputMethodEnabled));
        const auto *label = field->findChild<QLabel *>(QStringLiteral("edit"));
        QCOMPARE(label->indent(), 6);
        QCOMPARE(label->focusProxy(), field);
        QCOMPARE(label->geometry(), field->rect());
    }
}

void TestMidiSequenceEdit::paintsFrameAndRing_data()
{
    QTest::addColumn<bool>("keys");
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("MIDI") << false << 1.0;
    QTest::newRow("MIDI, ratio 2") << false << 2.0;
    QTest::newRow("keys") << true << 1.0;
    QTest::newRow("keys, ratio 2") << true << 2.0;
}

void TestMidiSequenceEdit::paintsFrameAndRing()
{
    QFETCH(bool, keys);
    QFETCH(qreal, ratio);
    QScopedPointer<QWidget> field;
    if (keys)
        field.reset(new KeySequenceEdit);
    else
        field.reset(new MidiSequenceEdit);
    field->resize(100, 24);

    // The frame covers 1 to 98 across and 1 to 22 down: one unit is left before, two after.
    const int scale = qRound(ratio);
    const QColor fill(0x14, 0x16, 0x1b);
    QImage image = TestSupport::render(*field, ratio);
    const int middleX = 50 * scale;
    const int middleY = 12 * scale;
    COMPARE_PIXEL(image, middleX, middleY, fill);
    COMPARE_PIXEL(image, middleX, scale, fill);
    COMPARE_PIXEL(image, middleX, 22 * scale - 1, fill);
    COMPARE_PIXEL(image, scale, middleY, fill);
    COMPARE_PIXEL(image, 98 * scale - 1, middleY, fill);
    COMPARE_PIXEL(image, middleX, scale - 1, Qt::transparent);
    COMPARE_PIXEL(image, middleX, 22 * scale, Qt::transparent);
    COMPARE_PIXEL(image, scale - 1, middleY, Qt::transparent);
    COMPARE_PIXEL(image, 98 * scale, middleY, Qt::transparent);
    COMPARE_PIXEL(image, scale, scale, Qt::transparent);

    field->show();
    field->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(field.data()));
    QTest::mouseClick(field.data(), Qt::LeftButton);
    QVERIFY(field->hasFocus());
    image = TestSupport::render(*field, ratio);
    COMPARE_PIXEL(image, middleX, middleY, fill);
    if (ratio == 2.0) {
        // The pen is a unit wide, half inside and half outside: whole device pixels.
        const QColor ring(65, 155, 249);
        for (int y : {scale - 1, scale, 22 * scale - 1, 22 * scale})
            COMPARE_PIXEL(image, middleX, y, ring);
        COMPARE_PIXEL(image, middleX, scale - 2, Qt::transparent);
        COMPARE_PIXEL(image, middleX, scale + 1, fill);
        COMPARE_PIXEL(image, 98 * scale, middleY, ring);
    } else {
        QVERIFY(image.pixelColor(middleX, 1).blue() > 100);
        QVERIFY(image.pixelColor(middleX, 22).blue() > 100);
        QVERIFY(image.pixelColor(98, middleY).blue() > 100);
    }
}

NOCTURNE_TEST_MAIN(TestMidiSequenceEdit)

#include "tst_midisequenceedit.moc"
