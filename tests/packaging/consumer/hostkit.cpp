// A host that uses what comes in the archive beside the shared library.

#include <nocturne/CheckComboBox>
#include <nocturne/ComboBoxDelegate>
#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>
#include <nocturne/MidiSequenceEdit>
#include <nocturne/QMidiIn>
#include <nocturne/QMidiMessage>
#include <nocturne/QMidiOut>

#include <QtWidgets/QApplication>

const DarkUX *currentTheme();

namespace {

QMidiMessage middleC()
{
    QMidiMessage noteOn;
    noteOn.setType(QMidiMessage::NoteOn);
    noteOn.setNote(60);
    noteOn.setVelocity(100);
    return noteOn;
}

/// The archive's messages go into the shared library's widgets and come out as they were.
bool messagesPassThroughTheLibrary()
{
    MidiSequenceEdit edit;
    edit.setOldKeySequence(middleC());
    return edit.oldKeySequence().rawMessage() == QMidiMessage::Bytes({0x90, 60, 100});
}

/// Which ports there are is up to the machine; without one, nothing is sent.
void usePorts()
{
    QMidiIn in;
    QMidiOut out;
    in.portNames();
    out.portNames();
    out.sendNoteOn(1, 60, 100);
}

bool itemsAreCounted()
{
    CheckComboBox sources;
    sources.setItemDelegate(new ComboBoxDelegate(&sources));
    sources.addCheckItem(QStringLiteral("Camera 1"), 1, Qt::Checked);
    sources.addCheckItem(QStringLiteral("Camera 2"), 2, Qt::Unchecked);
    return sources.globalCheckState() == CheckComboBox::SomeChecked;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    DarkUX theme;
    app.setStyle(theme.style());
    usePorts();
    const bool works =
        currentTheme() == &theme && messagesPassThroughTheLibrary() && itemsAreCounted();
    return works ? 0 : 1;
}
