// A host that uses all that comes in the archive beside the shared library.

#include <nocturne/CheckComboBox>
#include <nocturne/QMidiIn>
#include <nocturne/QMidiOut>

#include <QtWidgets/QApplication>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QMidiIn in;
    QMidiOut out;
    in.portNames(); // which there are is up to the machine
    out.sendNoteOn(1, 60, 100);
    CheckComboBox sources;
    sources.addCheckItem(QStringLiteral("Camera 1"), 1, Qt::Checked);
    sources.addCheckItem(QStringLiteral("Camera 2"), 2, Qt::Unchecked);
    return sources.globalCheckState() == CheckComboBox::SomeChecked ? 0 : 1;
}
