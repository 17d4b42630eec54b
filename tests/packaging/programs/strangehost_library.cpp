// What the program of strangehost.cpp does with the library.

#include <nocturne/ComboFileChooser>
#include <nocturne/QMidiIn>
#include <nocturne/QMidiOut>
#include <nocturne/SearchLineEdit>
#include <nocturne/Splitter>
#include <nocturne/TabWidget>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabBar>

int foreignParts();

namespace {

bool isForeign(const QObject *part)
{
    return !part || part->metaObject()->indexOfClassInfo("owner") >= 0;
}

} // namespace

/// How many parts of the library's widgets are not its own.
int foreignParts()
{
    ComboFileChooser chooser;
    chooser.addItem(QStringLiteral("clip.mov"));
    TabWidget tabs;
    tabs.addTab(new QWidget, QStringLiteral("Media"));
    Splitter splitter;
    splitter.addWidget(new QWidget);
    splitter.addWidget(new QWidget);
    SearchLineEdit search;
    search.setText(QStringLiteral("clip"));
    for (QWidget *widget : {static_cast<QWidget *>(&chooser), static_cast<QWidget *>(&tabs),
                            static_cast<QWidget *>(&splitter), static_cast<QWidget *>(&search)})
        widget->grab();

    const QMidiIn input;
    const QMidiOut output;
    return isForeign(chooser.findChild<QComboBox *>()) + isForeign(tabs.findChild<QTabBar *>())
           + isForeign(splitter.handle(1)) + isForeign(search.findChild<QLabel *>());
}
