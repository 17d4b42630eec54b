#include "testsupport.h"

#include <QtCore/QDirIterator>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTemporaryFile>

namespace {

struct Outcome
{
    bool succeeded;
    QByteArray output; ///< both channels
};

/// Without a search for leaks: what the platform's plug-in leaves is not the library's.
Outcome run(const QString &program, const QStringList &arguments = {},
            const QMap<QString, QString> &variables = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    for (auto it = variables.begin(); it != variables.end(); ++it)
        environment.insert(it.key(), it.value());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool ended = process.waitForFinished(240000);
    return {ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
            process.readAll() + (ended ? QByteArray() : process.errorString().toLocal8Bit())};
}

#define VERIFY_RUNS(...) \
    do { \
        const Outcome outcome = run(__VA_ARGS__); \
        QVERIFY2(outcome.succeeded, outcome.output.constData()); \
    } while (false)

const QString buildDirectory = NOCTURNE_BUILD_DIR;
const QString package = QString("nocturne") + QtVersion::suffix;
const QString packagingSources = NOCTURNE_SOURCE_DIR "/tests/packaging/";

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What the groups of \a pattern catch in \a text, one match after the other.
QVector<QStringList> findAll(const char *pattern, const QByteArray &text)
{
    QVector<QStringList> found;
    auto matches = QRegularExpression(pattern, QRegularExpression::MultilineOption)
                       .globalMatch(QString::fromUtf8(text));
    while (matches.hasNext())
        found << matches.next().capturedTexts();
    return found;
}

/// What the last group catches in what a program prints, once each.
QSet<QString> namesIn(const char *pattern, const Outcome &outcome)
{
    QSet<QString> names;
    for (const QStringList &match : findAll(pattern, outcome.output))
        names << match.last();
    return names;
}

/// A setting that the build was configured with.
QString configured(const QByteArray &name)
{
    const QByteArray cache = contentsOf(buildDirectory + "/CMakeCache.txt");
    return findAll("^" + name + ":[A-Z]+=(.*)$", cache).value(0).value(1);
}

/// What a program must be compiled with to go with this build of the library.
QStringList sanitizerFlags()
{
    const QString sanitizers = configured("NOCTURNE_SANITIZE");
    return sanitizers.isEmpty() ? QStringList() : QStringList{"-fsanitize=" + sanitizers};
}

QStringList filesBelow(const QString &directory, const QString &pattern)
{
    QStringList files;
    QDirIterator it(directory, {pattern}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << it.next();
    return files;
}

} // namespace

/// The library as a host finds it: installed to a prefix that nothing else is in.
class TestInstall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_prefix.isValid());
        VERIFY_RUNS("cmake", {"--install", buildDirectory, "--prefix", m_prefix.path()});
        const QStringList libraries = filesBelow(m_prefix.path(), "lib" + package + ".so.4");
        QCOMPARE(libraries.size(), 1);
        m_library = libraries.first();
    }

    void exactlyWhatIsListedIsExported()
    {
        const QStringList listed =
            QString(contentsOf(packagingSources + "exports.txt")).split('\n', Qt::SkipEmptyParts);
        QStringList strays;
        QSet<QString> seen;
        // The kind of a symbol, what it is for, and its name with the class in front.
        const char *line = "^[0-9a-f]+ (\\w) (?:((?:vtable|VTT|typeinfo|typeinfo name) for|"
                           "(?:non-virtual|virtual|covariant return) thunk to) )?((\\w*).*)$";
        for (const QStringList &symbol :
             findAll(line, run("nm", {"-DC", "--defined-only", m_library}).output))
        {
            const QString name = symbol.at(3);
            if (name.startsWith('_')) // the linker's and the sanitizers'
                continue;
            const QString owner = symbol.at(4);
            seen << name << owner;
            const bool isCode = QString("TW").contains(symbol.at(1)) || !symbol.at(2).isEmpty();
            const bool isMeta = name == owner + "::staticMetaObject";
            if (!listed.contains(isCode || isMeta ? owner : name))
                strays << symbol.at(0);
        }
        QCOMPARE(strays, QStringList());
        QCOMPARE(QSet<QString>(listed.begin(), listed.end()) - seen, QSet<QString>());
    }

    /// A class of the host by the name of one of the library's is no reason to take that one.
    void usesItsOwnClasses()
    {
        const auto exported = namesIn(" (_Z\\w+)$", run("nm", {"-D", "--defined-only", m_library}));
        const auto open = namesIn(" (_Z\\w+)", run("readelf", {"-rW", m_library}));
        QVERIFY(exported.size() > 500 && open.size() > 500);
        QCOMPARE(exported & open, QSet<QString>{"_ZN9SingletonI6DarkUXE10m_instanceE"});
        for (const char *kind : {"pie", "no-pie"})
            VERIFY_RUNS(buildDirectory + "/bin/nocturne-strangehost-" + kind);
    }

    /// The initialisers of whole source files, which run when the library is loaded.
    void onlyTheBundleAndTheButtonTextsAreBuiltAtLoad()
    {
        if (!sanitizerFlags().isEmpty())
            QSKIP("a sanitizer initialises every file");
        auto files = namesIn("_GLOBAL__sub_I_(\\S+)", run("nm", {m_library}));
        QVERIFY(files.remove("qrc_nocturne.cpp"));
        files.remove("qmessageboxex.cpp");
        QCOMPARE(files, QSet<QString>());
    }

    /// Each by itself, and for one compiler and one standard, they are compiled in the build.
    void headersSuitEveryCompiler()
    {
        const QString folder =
            m_prefix.path() + (QtVersion::isQt6 ? "/include/nocturne-qt6" : "/include");
        const QStringList headers = filesBelow(folder, "*");
        QVERIFY(headers.contains(folder + "/nocturne/DarkUX"));
        QCOMPARE(headers.filter("_p.h"), QStringList());
        QByteArray host;
        for (const QString &header : headers)
            host += "#include \"" + header.toLocal8Bit() + "\"\n";
        QTemporaryFile file;
        QVERIFY(file.open() && file.write(host) == host.size() && file.flush());
        const Outcome qt =
            run("pkg-config", {"--cflags", QString("Qt%1Widgets").arg(QT_VERSION_MAJOR)});
        const QStringList flags =
            QString(qt.output.simplified()).replace("-I", "-isystem").split(' ')
            + QString("-fPIC -fsyntax-only -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror "
                      "-DQT_NO_KEYWORDS -std=c++20 -x c++")
                  .split(' ')
            + QStringList{"-I" + folder, file.fileName()};
        VERIFY_RUNS(configured("CMAKE_CXX_COMPILER"), flags);
        if (!QStandardPaths::findExecutable("clang++").isEmpty())
            VERIFY_RUNS("clang++", flags);
    }

    void cmakeFindsIt()
    {
        const QTemporaryDir build;
        Outcome made = configure(build, {"-DCMAKE_CXX_FLAGS=" + sanitizerFlags().join(' ')});
        QVERIFY2(made.succeeded, made.output);
        VERIFY_RUNS("cmake", {"--build", build.path()});
        for (const char *program : {"host", "midihost"}) {
            VERIFY_RUNS(build.filePath(program));
            const Outcome needed = run("readelf", {"-d", build.filePath(program)});
            QCOMPARE(needed.output.contains("rtmidi"), !qstrcmp(program, "midihost"));
        }
        // On a machine without RtMidi: nothing that pkg-config would find.
        made = configure(build, {"-UNOCTURNE_RTMIDI*"},
                         {{"PKG_CONFIG_LIBDIR", "."}, {"PKG_CONFIG_PATH", ""}});
        QVERIFY2(made.succeeded && made.output.contains("without RtMidi"), made.output);
    }

    /// A project that has chosen the other Qt is told so in one line.
    void theOtherQtIsRefused()
    {
        const QTemporaryDir build;
        const QString other = QString("Qt%1").arg(QtVersion::otherMajor);
        const Outcome outcome = configure(build, {"-DCONSUMER_QT=" + other});
        if (outcome.output.contains("provided by \"" + other.toLatin1()))
            QSKIP("The other Qt is not installed");
        const QString line = QString("is built for Qt %1, but this project uses Qt %2: ask for ")
                                 .arg(QT_VERSION_MAJOR)
                                 .arg(QtVersion::otherMajor);
        QVERIFY2(!outcome.succeeded && QString(outcome.output.simplified()).contains(line),
                 outcome.output);
    }

    /// With the archive, and without RtMidi, which this host does not use.
    void pkgConfigFindsIt()
    {
        const QTemporaryDir build;
        const QString libraries = QFileInfo(m_library).path();
        const QMap<QString, QString> variables = {{"PKG_CONFIG_PATH", libraries + "/pkgconfig"},
                                                  {"LD_LIBRARY_PATH", libraries}};
        const Outcome flags = run("pkg-config", {"--cflags", "--libs", package}, variables);
        QVERIFY2(flags.succeeded, flags.output);
        const QString program = build.filePath("host");
        VERIFY_RUNS(configured("CMAKE_CXX_COMPILER"),
                    QStringList{"-std=c++17", "-fPIC", "-o", program,
                                packagingSources + "consumer/host.cpp",
                                QString("-lnocturne-hostkit") + QtVersion::suffix}
                        + QString(flags.output.simplified()).split(' ') + sanitizerFlags());
        VERIFY_RUNS(program, {}, variables);
    }

    /// A host that takes the sources along gets what it links, and nothing else.
    void partOfAHostsBuild()
    {
        const QTemporaryDir build;
        const Outcome made =
            configure(build, {"-GNinja", "-DNOCTURNE_SOURCES=" NOCTURNE_SOURCE_DIR,
                              QString("-DNOCTURNE_QT_MAJOR=%1").arg(QT_VERSION_MAJOR)});
        QVERIFY2(made.succeeded, made.output);
        const QSet<QString> expected = {"host", "midihost", "lib" + package, "nocturne-bake",
                                        "libnocturne-hostkit" + QString(QtVersion::suffix) + ".a"};
        QCOMPARE(namesIn("([^/\\n]+?)(?:\\.so\\..*)?: CXX_\\w+_LINKER",
                         run("ninja", {"-C", build.path(), "-t", "targets", "all"})),
                 expected);
        QVERIFY(
            contentsOf(build.filePath("CMakeCache.txt")).contains("CMAKE_BUILD_TYPE:STRING=\n"));
    }

    void uninstallLeavesNothing()
    {
        VERIFY_RUNS("cmake", {"--build", buildDirectory, "--target", "uninstall"});
        QDir prefix(m_prefix.path());
        for (const QString &kept :
             {QString("bin"), QString("include"), QFileInfo(m_library).path(), QString("lib")})
            prefix.rmdir(kept);
        QVERIFY(prefix.isEmpty());
    }

private:
    Outcome configure(const QTemporaryDir &build, const QStringList &settings,
                      const QMap<QString, QString> &variables = {}) const
    {
        return run("cmake",
                   QStringList{"-G" + configured("CMAKE_GENERATOR"), "-S",
                               packagingSources + "consumer", "-B", build.path(),
                               "-DNOCTURNE_PACKAGE=" + package,
                               "-DCMAKE_PREFIX_PATH=" + m_prefix.path()}
                       + settings,
                   variables);
    }

    QTemporaryDir m_prefix;
    QString m_library;
};

NOCTURNE_TEST_MAIN(TestInstall)

#include "tst_install.moc"
