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

const char image[] = ":/resources/appicons/fileopen.png";
const char catalogue[] = ":/resources/locales/de_DE.qm";

int failures = 0;

void check(bool holds, const char *what, int round)
{
    if (holds)
        return;
    std::fprintf(stderr, "round %d: %s\n", round, what);
    ++failures;
}

void checkAbsent(int round)
{
    check(!QFile::exists(QLatin1String(image)), "the image is there without the library", round);
    check(!QFile::exists(QStringLiteral(":/resources")), "a directory is left", round);
    check(!QTranslator().load(QLatin1String(catalogue)), "the catalogue is there", round);
}

void checkPresent(int round)
{
    QFile file{QLatin1String(image)};
    check(file.open(QIODevice::ReadOnly) && file.readAll().startsWith("\x89PNG"),
          "the image cannot be read", round);
    QTranslator translator;
    check(translator.load(QLatin1String(catalogue)), "the catalogue cannot be loaded", round);
    check(!QFile::exists(QStringLiteral(":/resources/icons/deleffect.png")),
          "an image is where only the host may put one", round);
}

/// Loads the plug-in, and the library with it, a thousand times; every fiftieth time a dialog is
/// shown in its style before both go.
void loadThousandTimes(const char *library, const char *pluginFile)
{
    std::size_t settled = 0;
    for (int round = 1; round <= 1000; ++round) {
        QPluginLoader loader(QString::fromLocal8Bit(pluginFile));
        loader.setLoadHints({}); // or the toolkit would keep it
        auto *plugin = qobject_cast<QStylePlugin *>(loader.instance());
        check(plugin, "the plug-in cannot be loaded", round);
        if (plugin && round % 50 == 0) {
            QApplication::setStyle(plugin->create(QStringLiteral("DarkFusion")));
            {
                QMessageBox box(QMessageBox::Question, QStringLiteral("Go live"),
                                QStringLiteral("Go live now?"), QMessageBox::Yes | QMessageBox::No);
                QSlider slider(&box);
                box.show();
                QCoreApplication::processEvents();
            }
            QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
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
        if (round == 500)
            settled = used;
        else
            check(used < settled + 40 * 1024, "five hundred rounds have left memory behind", round);
    }
}

} // namespace

/// Loads and unloads the library at the path given, and checks that its files come and go. With the
/// style plug-in as well, does so a thousand times.
int main(int argc, char *argv[])
{
    const QApplication app(argc, argv);
    if (argc < 2 || argc > 3) {
        std::fprintf(stderr, "usage: nocturne-loadprobe library [plugin]\n");
        return 2;
    }

    for (int round = 1; round <= 2; ++round) {
        checkAbsent(round);
        void *library = dlopen(argv[1], RTLD_NOW);
        if (!library) {
            std::fprintf(stderr, "%s\n", dlerror());
            return 1;
        }
        checkPresent(round);
        dlclose(library);
        check(!dlopen(argv[1], RTLD_NOW | RTLD_NOLOAD), "the library stays loaded", round);
        checkAbsent(round);
    }
    if (argc == 3)
        loadThousandTimes(argv[1], argv[2]);
    return failures == 0 ? 0 : 1;
}
