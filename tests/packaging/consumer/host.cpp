// A host that takes from the archive what needs no RtMidi.

#include <nocturne/CheckComboBox>
#include <nocturne/ComboBox>
#include <nocturne/ComboBoxDelegate>
#include <nocturne/DarkUX>
#include <nocturne/MidiSequenceEdit>

#include <QtCore/QFile>
#include <QtWidgets/QApplication>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    DarkUX theme;
    app.setStyle(theme.style());
    bool works = QFile::exists(QStringLiteral(":/resources/appicons/play.png"));

    // The library's delegate and the archive's are known as one.
    ComboBox sources;
    sources.addParentItem(QStringLiteral("Cameras"));
    const ComboBoxDelegate own;
    const QObject *constant = &own;
    works = works && qobject_cast<ComboBoxDelegate *>(sources.itemDelegate())
            && qobject_cast<const ComboBoxDelegate *>(constant) == &own
            && !qobject_cast<ComboBoxDelegate *>(&app)
            && !qobject_cast<ComboBoxDelegate *>(static_cast<QObject *>(nullptr));
    CheckComboBox checked;
    checked.addCheckItem(QStringLiteral("Camera 1"), 1, Qt::Checked);
    checked.addCheckItem(QStringLiteral("Camera 2"), 2, Qt::Unchecked);
    works = works && checked.globalCheckState() == CheckComboBox::SomeChecked;

    // The archive's messages go into the library's widgets and come out as they were.
    QMidiMessage noteOn;
    noteOn.setType(QMidiMessage::NoteOn);
    noteOn.setNote(60);
    MidiSequenceEdit field;
    field.setOldKeySequence(noteOn);
    works = works && field.oldKeySequence().rawMessage() == QMidiMessage::Bytes({0x90, 60, 0});
    return works ? 0 : 1;
}
