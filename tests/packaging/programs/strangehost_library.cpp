// What the program of strangehost.cpp does with the library.

#include <nocturne/ComboFileChooser>
#include <nocturne/QMidiIn>
#include <nocturne/QMidiOut>
#include <nocturne/SearchLineEdit>
#include <nocturne/Splitter>
#include <nocturne/TabWidget>

int foreignParts();

/// How many parts of the library's widgets are not its own.
int foreignParts()
{
    const QMidiIn input;
    const QMidiOut output;
    ComboFileChooser chooser;
    TabWidget tabs;
    Splitter splitter;
    SearchLineEdit search;
    chooser.addItem(QStringLiteral("clip.mov"));
    search.setText(QStringLiteral("clip"));
    for (int i = 0; i < 2; ++i) {
        tabs.addTab(new QWidget, QStringLiteral("Media"));
        splitter.addWidget(new QWidget);
    }
    int foreign = 0;
    for (QWidget *widget : std::initializer_list<QWidget *>{&chooser, &tabs, &splitter, &search}) {
        widget->grab();
        for (const QObject *part : widget->findChildren<QObject *>())
            foreign += part->metaObject()->indexOfClassInfo("owner") >= 0;
    }
    return foreign;
}
