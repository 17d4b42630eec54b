#include "testsupport.h"

#include <QtCore/QDirIterator>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

namespace {

const char exportedClasses[] =
    "DarkUX Singleton DarkFusionStyle DarkProxyStyle TabWidget TabBar StatusBar Splitter "
    "SplitterHandle Frame GroupBox TreeWidget ListView LineEdit Widget Menu Dial "
    "RadioButton CheckBox ButtonGroup SlideCheckBox DelayButton DelayToolButton "
    "ClickableLabel SpinBox Slider RoundProgressBar ProgressBar ProgressIndicator "
    "RangeSlider SpanSlider GradientTool ColorButton ColorToolButton ColorBar ListWidget "
    "ItemDelegate ComboBox ComboBoxListView FontComboBox SearchLineEdit LineEditButton "
    "CroppingLabel SimpleListWidget MidiSequenceEdit QMessageBoxEx KeySequenceEdit "
    "QBalloonTip FileChooser ComboFileChooser LetterBoxWidget";

const char exportedData[] =
    "Singleton<DarkUX>::m_instance QMessageBoxEx::m_customButtonNames "
    "RoundProgressBar::PositionLeft RoundProgressBar::PositionTop RoundProgressBar::PositionRight "
    "RoundProgressBar::PositionBottom RoundProgressBar::UF_VALUE RoundProgressBar::UF_PERCENT "
    "RoundProgressBar::UF_BYTE_PER_SEC RoundProgressBar::UF_CONNECT";

struct Outcome
{
    int exitCode;
    QByteArray output; ///< both channels
};

Outcome run(const QString &program, const QStringList &arguments,
            const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(240000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, process.readAll() + process.errorString().toLocal8Bit()};
    return {process.exitCode(), process.readAll()};
}

#define VERIFY_RUNS(...) \
    do { \
        const Outcome outcome = run(__VA_ARGS__); \
        QVERIFY2(outcome.exitCode == 0, outcome.output.constData()); \
    } while (false)

const QString buildDirectory = NOCTURNE_BUILD_DIR;
const QString package = QString("nocturne") + QtVersion::suffix;
const QString consumerSources = NOCTURNE_SOURCE_DIR "/tests/packaging/consumer";

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

/// A setting that the build was configured with.
QString configured(const QByteArray &name)
{
    const auto found =
        findAll("^" + name + ":[A-Z]+=(.*)$", contentsOf(buildDirectory + "/CMakeCache.txt"));
    return found.isEmpty() ? QString() : found.first().at(1);
}

/// What a program must be compiled with to go with this build of the library.
QStringList sanitizerFlags()
{
    const QString sanitizers = configured("NOCTURNE_SANITIZE");
    return sanitizers.isEmpty() ? QStringList() : QStringList{"-fsanitize=" + sanitizers};
}

/// For programs with a display: what the platform's plug-in leaves is not the library's.
QProcessEnvironment withoutLeakCheck()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    return environment;
}

QStringList filesBelow(const QString &directory, const QStringList &patterns)
{
    QStringList files;
    QDirIterator it(directory, patterns, QDir::Files, QDirIterator::Subdirectories);
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
        const QStringList libraries = filesBelow(m_prefix.path(), {"lib" + package + ".so.4"});
        QCOMPARE(libraries.size(), 1);
        m_library = libraries.first();
        m_headers = m_prefix.path() + (QtVersion::isQt6 ? "/include/nocturne-qt6" : "/include");
    }

    void bundleComesAndGoesWithTheLibrary()
    {
        VERIFY_RUNS(buildDirectory + "/bin/nocturne-loadprobe", {m_library});
    }

    void exactlyWhatIsListedIsExported()
    {
        const Outcome symbols = run("nm", {"-DC", "--defined-only", m_library});
        QCOMPARE(symbols.exitCode, 0);
        const QStringList classes = QString(exportedClasses).split(' ');
        const QStringList data = QString(exportedData).split(' ');
        QStringList strays;
        QSet<QString> seen;
        // The kind of a symbol, what it is for, and its name with the class in front.
        const char *line = "^[0-9a-f]+ (\\w) (?:((?:vtable|VTT|typeinfo|typeinfo name) for|"
                           "(?:non-virtual|virtual|covariant return) thunk to) )?((\\w*).*)$";
        for (const QStringList &symbol : findAll(line, symbols.output)) {
            const QString name = symbol.at(3);
            if (name.startsWith('_')) // the linker's and the sanitizers'
                continue;
            seen << name << symbol.at(4);
            const bool code = QString("TW").contains(symbol.at(1)) || !symbol.at(2).isEmpty();
            const bool listed =
                code ? classes.contains(symbol.at(4))
                     : name == symbol.at(4) + "::staticMetaObject" || data.contains(name);
            if (!listed)
                strays << symbol.at(0);
        }
        QVERIFY2(strays.isEmpty(), qPrintable(strays.join('\n')));
        for (const QString &name : classes + data)
            QVERIFY2(seen.contains(name), qPrintable(name));
    }

    /// A class of the host by the name of one of the library's is no reason to take that one.
    void usesItsOwnClasses()
    {
        const Outcome symbols = run("nm", {"-D", "--defined-only", m_library});
        const Outcome relocations = run("readelf", {"-rW", m_library});
        QSet<QString> exported;
        for (const QStringList &symbol : findAll(" (_Z\\w+)$", symbols.output))
            exported << symbol.at(1);
        QSet<QString> open;
        for (const QStringList &reference : findAll(" (_Z\\w+)", relocations.output))
            open << reference.at(1);
        QVERIFY(exported.size() > 500 && open.size() > 500);
        QCOMPARE(exported & open, QSet<QString>{"_ZN9SingletonI6DarkUXE10m_instanceE"});

        for (const char *kind : {"pie", "no-pie"})
            VERIFY_RUNS(buildDirectory + "/bin/nocturne-strangehost-" + kind, {},
                        withoutLeakCheck());
    }

    /// The initialisers of whole source files, which run when the library is loaded.
    void onlyTheBundleAndTheButtonTextsAreBuiltAtLoad()
    {
        if (!sanitizerFlags().isEmpty())
            QSKIP("a sanitizer initialises every file");
        const Outcome symbols = run("nm", {m_library});
        QCOMPARE(symbols.exitCode, 0);
        QStringList files;
        for (const QStringList &initialiser : findAll("_GLOBAL__sub_I_(\\S+)", symbols.output))
            files << initialiser.at(1);
        QVERIFY(files.removeAll("qrc_nocturne.cpp") == 1);
        files.removeAll("qmessageboxex.cpp");
        QVERIFY2(files.isEmpty(), qPrintable(files.join(' ')));
    }

    void publicHeadersOnly()
    {
        const QStringList headers = filesBelow(m_headers, {"*"});
        for (const QString &header : headers)
            QVERIFY2(!header.endsWith("_p.h"), qPrintable(header));
        QVERIFY(headers.contains(m_headers + "/nocturne/DarkUX"));
        QVERIFY(headers.contains(m_headers + "/nocturne/theme/darkux.h"));
    }

    /// Each by itself, and for one compiler and one standard, they are compiled in the build.
    void headersSuitEveryCompiler()
    {
        QFile host(m_prefix.filePath("headers.cpp"));
        QVERIFY(host.open(QIODevice::WriteOnly));
        for (const QString &header : filesBelow(m_headers, {"*"}))
            host.write("#include \"" + header.toLocal8Bit() + "\"\n");
        host.close();
        const Outcome qt =
            run("pkg-config", {"--cflags", QString("Qt%1Widgets").arg(QT_VERSION_MAJOR)});
        const QStringList flags =
            QString(qt.output.simplified()).replace("-I", "-isystem").split(' ')
            + QString("-fPIC -fsyntax-only -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror "
                      "-DQT_NO_KEYWORDS -std=c++20")
                  .split(' ')
            + QStringList{"-I" + m_headers, host.fileName()};
        VERIFY_RUNS(configured("CMAKE_CXX_COMPILER"), flags);
        if (!QStandardPaths::findExecutable("clang++").isEmpty()) {
            VERIFY_RUNS("clang++", flags);
            VERIFY_RUNS("clang++", flags + QStringList("-std=c++17"));
        }
        QVERIFY(host.remove());
    }

    void cmakeFindsIt()
    {
        const QTemporaryDir build;
        const QStringList configure = {"-G",
                                       configured("CMAKE_GENERATOR"),
                                       "-S",
                                       consumerSources,
                                       "-DNOCTURNE_PACKAGE=" + package,
                                       "-DCMAKE_PREFIX_PATH=" + m_prefix.path(),
                                       "-DCMAKE_CXX_FLAGS=" + sanitizerFlags().join(' '),
                                       "-B"};
        VERIFY_RUNS("cmake", configure + QStringList{build.path()});
        VERIFY_RUNS("cmake", {"--build", build.path()});
        for (const char *program : {"main", "hostkit", "delegate"}) {
            VERIFY_RUNS(build.filePath(program), {}, withoutLeakCheck());
            const Outcome needed = run("readelf", {"-d", build.filePath(program)});
            QCOMPARE(needed.output.contains("rtmidi"), !qstrcmp(program, "hostkit"));
        }
        // On a machine without RtMidi: nothing that pkg-config would find.
        QProcessEnvironment bare = QProcessEnvironment::systemEnvironment();
        bare.insert("PKG_CONFIG_LIBDIR", build.path());
        bare.insert("PKG_CONFIG_PATH", QString());
        const Outcome made = run("cmake", configure + QStringList{build.filePath("other")}, bare);
        QVERIFY2(made.exitCode == 0, made.output.constData());
        QVERIFY2(made.output.contains("without RtMidi"), made.output.constData());
    }

    /// A project that has chosen the other Qt is told so in one line.
    void theOtherQtIsRefused()
    {
        const QTemporaryDir build;
        const QStringList configure = {"-G",
                                       configured("CMAKE_GENERATOR"),
                                       "-S",
                                       consumerSources,
                                       "-DCMAKE_PREFIX_PATH=" + m_prefix.path(),
                                       QString("-DCONSUMER_QT=Qt%1").arg(QtVersion::otherMajor),
                                       "-DNOCTURNE_PACKAGE=" + package,
                                       "-B",
                                       build.path()};
        const Outcome outcome = run("cmake", configure);
        if (outcome.output.contains(
                QString("provided by \"Qt%1\"").arg(QtVersion::otherMajor).toUtf8()))
            QSKIP("The other Qt is not installed");
        QVERIFY(outcome.exitCode != 0);
        const QString line =
            QString("%1 is built for Qt %2, but this project uses Qt %3: ask for nocturne%4")
                .arg(package)
                .arg(QT_VERSION_MAJOR)
                .arg(QtVersion::otherMajor)
                .arg(QtVersion::isQt6 ? "" : "-qt6");
        QVERIFY2(QString::fromUtf8(outcome.output.simplified()).contains(line),
                 outcome.output.constData());
    }

    void pkgConfigFindsIt()
    {
        QProcessEnvironment environment = withoutLeakCheck();
        const QString libraries = QFileInfo(m_library).path();
        environment.insert("PKG_CONFIG_PATH", libraries + "/pkgconfig");
        environment.insert("LD_LIBRARY_PATH", libraries);
        const Outcome flags = run("pkg-config", {"--cflags", "--libs", package}, environment);
        QVERIFY2(flags.exitCode == 0, flags.output.constData());

        // With the archive, and without RtMidi, which this host does not use.
        const QString program = m_prefix.filePath("host");
        VERIFY_RUNS(
            configured("CMAKE_CXX_COMPILER"),
            QStringList{"-std=c++17", "-fPIC", "-o", program, consumerSources + "/delegate.cpp",
                        QString("-lnocturne-hostkit") + QtVersion::suffix}
                + QString::fromLocal8Bit(flags.output.simplified()).split(' ') + sanitizerFlags());
        VERIFY_RUNS(program, {}, environment);
        QVERIFY(QFile::remove(program));
    }

    /// A host that takes the sources along gets what it links, and nothing else.
    void partOfAHostsBuild()
    {
        const QTemporaryDir build;
        VERIFY_RUNS("cmake", {"-G", "Ninja", "-S", consumerSources, "-B", build.path(),
                              "-DNOCTURNE_SOURCES=" NOCTURNE_SOURCE_DIR,
                              QString("-DNOCTURNE_QT_MAJOR=%1").arg(QT_VERSION_MAJOR)});
        const Outcome targets = run("ninja", {"-C", build.path(), "-t", "targets", "all"});
        QStringList linked;
        for (const QStringList &target : findAll("([^/\\n]+): CXX_\\w+_LINKER", targets.output))
            linked << target.at(1).section(".so.", 0, 0);
        linked.sort();
        QStringList expected = {"delegate", "hostkit", "lib" + package, "main", "nocturne-bake"};
        expected << "libnocturne-hostkit" + QString(QtVersion::suffix) + ".a";
        expected.sort();
        QCOMPARE(linked, expected);
        QVERIFY(
            contentsOf(build.filePath("CMakeCache.txt")).contains("CMAKE_BUILD_TYPE:STRING=\n"));
    }

    void uninstallLeavesNothing()
    {
        VERIFY_RUNS("cmake", {"--build", buildDirectory, "--target", "uninstall"});
        QDir prefix(m_prefix.path());
        for (const QString &kept : QStringList{"bin", "include", QFileInfo(m_library).path()})
            prefix.rmdir(kept);
        prefix.rmdir("lib");
        QCOMPARE(prefix.entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    }

private:
    QTemporaryDir m_prefix;
    QString m_library;
    QString m_headers;
};

NOCTURNE_TEST_MAIN(TestInstall)

#include "tst_install.moc"
