// A host that takes from the archive what needs no RtMidi.

#include <nocturne/ComboBox>
#include <nocturne/ComboBoxDelegate>
#include <nocturne/MidiSequenceEdit>

#include <QtWidgets/QApplication>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    // The library's delegate and the archive's are known as one.
    ComboBox sources;
    sources.addParentItem(QStringLiteral("Cameras"));
    const ComboBoxDelegate own;
    const QObject *constant = &own;
    bool works = qobject_cast<ComboBoxDelegate *>(sources.itemDelegate()) == sources.itemDelegate()
                 && qobject_cast<const ComboBoxDelegate *>(sources.itemDelegate())
                 && qobject_cast<const ComboBoxDelegate *>(constant) == &own
                 && !qobject_cast<ComboBoxDelegate *>(&app)
                 && !qobject_cast<ComboBoxDelegate *>(static_cast<QObject *>(nullptr));

    // The archive's messages go into the library's widgets and come out as they were.
    QMidiMessage noteOn;
    noteOn.setType(QMidiMessage::NoteOn);
    noteOn.setNote(60);
    noteOn.setVelocity(100);
    MidiSequenceEdit field;
    field.setOldKeySequence(noteOn);
    works = works && field.oldKeySequence().rawMessage() == QMidiMessage::Bytes({0x90, 60, 100});
    return works ? 0 : 1;
}
