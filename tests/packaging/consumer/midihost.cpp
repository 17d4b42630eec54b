// A host that uses MIDI ports.

#include <nocturne/QMidiIn>
#include <nocturne/QMidiOut>

#include <QtCore/QCoreApplication>

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    QMidiIn().portNames(); // which there are is up to the machine
    QMidiOut().sendNoteOn(1, 60, 100);
    return 0;
}
