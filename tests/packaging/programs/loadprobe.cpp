#include <QtCore/QFile>
#include <QtCore/QPluginLoader>
#include <QtCore/QTranslator>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStylePlugin>

#include <cstdio>
#include <dlfcn.h>
#include <malloc.h>

namespace {

int failures = 0;

void check(bool holds, const char *what, int round)
{
    if (!holds)
        std::fprintf(stderr, "round %d: %s\n", round, what);
    failures += !holds;
}

void checkBundle(bool isLoaded, int round)
{
    QFile image(":/resources/appicons/fileopen.png");
    const bool isImage = image.open(QIODevice::ReadOnly) && image.readAll().startsWith("\x89PNG");
    check(isImage == isLoaded, "the image", round);
    check(QTranslator().load(":/resources/locales/de_DE.qm") == isLoaded, "the catalogue", round);
    check(QFile::exists(":/resources") == isLoaded, "the directory", round);
    check(!QFile::exists(":/resources/icons/deleffect.png"),
          "an image is where only the host may put one", round);
}

/// A window whose look the style decides. Returns the lightness of its ground.
int showDialog()
{
    QMessageBox box(QMessageBox::Question, "Go live", "Go live now?", QMessageBox::Yes);
    QSlider slider(&box);
    box.show();
    QCoreApplication::processEvents();
    return box.grab().toImage().pixelColor(1, 1).lightness();
}

/// Loads the plug-in, and the library with it, a thousand times, and looks whether its files come
/// and go; every fiftieth time a dialog is shown in its style before both go.
void loadThousandTimes(const char *library, const char *pluginFile)
{
    std::size_t settled = 0;
    for (int round = 1; round <= 1000; ++round) {
        QPluginLoader loader(QString::fromLocal8Bit(pluginFile));
        loader.setLoadHints({}); // or the toolkit would keep it
        checkBundle(false, round);
        auto *plugin = qobject_cast<QStylePlugin *>(loader.instance());
        check(plugin, "the plug-in cannot be loaded", round);
        checkBundle(true, round);
        if (plugin && round % 50 == 0) {
            QApplication::setStyle(plugin->create("DarkFusion"));
            showDialog();
            QApplication::setStyle(QStyleFactory::create("fusion"));
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        check(loader.unload(), "the plug-in stays loaded", round);
        if (round % 100 == 0)
            check(!dlopen(library, RTLD_NOW | RTLD_NOLOAD), "the library stays loaded", round);
        if (round % 500 != 0)
            continue;
        // Each palette of a theme gives keys of its own. The toolkit lets go of the pictures, but
        // not of the keys: two to three kilobytes for each of ten dialogs. Eighty bytes that are
        // lost at each load are as much.
        QPixmapCache::clear();
        const std::size_t used = mallinfo2().uordblks;
        check(settled == 0 || used < settled + std::size_t(40) * 1024,
              "five hundred rounds have left memory behind", round);
        settled = used;
    }
}

} // namespace

/// A host that does not know the library. Loads and unloads the one at the first path, with the
/// style plug-in at the second. Without paths it prints how light a window is in the style that the
/// environment asks for.
int main(int argc, char *argv[])
{
    const QApplication app(argc, argv);
    if (argc == 3)
        loadThousandTimes(argv[1], argv[2]);
    else
        std::printf("%d\n", showDialog());
    return failures ? 1 : 0;
}
