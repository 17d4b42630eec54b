// The library's widgets and ports in the program of strangehost.cpp, without that file's names.

#include <nocturne/ComboFileChooser>
#include <nocturne/QMidiIn>
#include <nocturne/QMidiOut>
#include <nocturne/SearchLineEdit>
#include <nocturne/Splitter>
#include <nocturne/TabWidget>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabBar>

namespace {

/// Whether \a part is of the class \a name that lies in the same file as \a whole.
bool belongs(const QObject *part, const char *name)
{
    return part && qstrcmp(part->metaObject()->className(), name) == 0
           && part->metaObject()->indexOfClassInfo("host") < 0;
}

} // namespace
