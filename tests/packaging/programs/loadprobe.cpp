#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTranslator>

#include <cstdio>
#include <dlfcn.h>

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

} // namespace

/// Loads and unloads the library at the path given, and checks that its files come and go.
int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: nocturne-loadprobe library\n");
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
    return failures == 0 ? 0 : 1;
}
