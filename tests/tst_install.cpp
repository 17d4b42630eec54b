#include "testsupport.h"

#include <QtCore/QDirIterator>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>

namespace {

const char *const exportedClasses[] = {
    "DarkUX",
    "Singleton",
    "DarkFusionStyle",
    "DarkProxyStyle",
    "TabWidget",
    "TabBar",
    "StatusBar",
    "Splitter",
    "SplitterHandle",
    "Frame",
    "GroupBox",
    "TreeWidget",
    "ListView",
    "LineEdit",
    "Widget",
    "Menu",
    "Dial",
    "RadioButton",
    "CheckBox",
    "ButtonGroup",
    "SlideCheckBox",
    "DelayButton",
    "DelayToolButton",
    "ClickableLabel",
    "SpinBox",
    "Slider",
    "RoundProgressBar",
    "ProgressBar",
    "ProgressIndicator",
    "RangeSlider",
    "SpanSlider",
    "GradientTool",
    "ColorButton",
    "ColorToolButton",
    "ColorBar",
    "ListWidget",
    "ItemDelegate",
    "ComboBox",
    "ComboBoxListView",
    "FontComboBox",
    "SearchLineEdit",
    "LineEditButton",
    "CroppingLabel",
    "SimpleListWidget",
    "MidiSequenceEdit",
    "QMessageBoxEx",
    "KeySequenceEdit",
    "QBalloonTip",
    "FileChooser",
    "ComboFileChooser",
    "LetterBoxWidget",
};

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

QString buildDirectory()
{
    return QStringLiteral(NOCTURNE_BUILD_DIR);
}

/// A setting that the build was configured with.
QString configured(const QString &name)
{
    QFile cache(buildDirectory() + QStringLiteral("/CMakeCache.txt"));
    if (!cache.open(QIODevice::ReadOnly))
        return QString();
    const QRegularExpression entry(QStringLiteral("^%1:[A-Z]+=(.*)$").arg(name),
                                   QRegularExpression::MultilineOption);
    return entry.match(QString::fromUtf8(cache.readAll())).captured(1);
}

/// What a program must be compiled with to go with this build of the library.
QStringList sanitizerFlags()
{
    const QString sanitizers = configured(QStringLiteral("NOCTURNE_SANITIZE"));
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

/// Classes and namespaces that the library's sources define.
QSet<QString> ownScopes()
{
    const QRegularExpression definition(
        QStringLiteral("^\\s*(?:class|struct|namespace) (?:NOCTURNE_\\w+ )?(\\w+)(?!.*;)"),
        QRegularExpression::MultilineOption);
    QSet<QString> scopes;
    const QString sources = QStringLiteral(NOCTURNE_SOURCE_DIR "/nocturne");
    for (const QString &path : filesBelow(sources, {"*.h", "*.cpp"})) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        auto matches = definition.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext())
            scopes << matches.next().captured(1);
    }
    return scopes;
}

/// The outermost class or namespace of a demangled symbol, or the function's own name.
QString scopeOf(const QString &symbol)
{
    static const QRegularExpression prefix(
        QStringLiteral("^(vtable for|VTT for|typeinfo for|typeinfo name for|guard variable for|"
                       "non-virtual thunk to|virtual thunk to|covariant return thunk to) "));
    static const QRegularExpression name(QStringLiteral("^\\w+"));
    return name.match(QString(symbol).remove(prefix)).captured();
}

} // namespace

/// The library as a host finds it: installed to a prefix that nothing else is in.
class TestInstall : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_prefix.isValid());
        VERIFY_RUNS("cmake", {"--install", buildDirectory(), "--prefix", m_prefix.path()});
        const QStringList libraries = filesBelow(m_prefix.path(), {"libnocturne.so.4"});
        QCOMPARE(libraries.size(), 1);
        m_library = libraries.first();
    }

    void bundleComesAndGoesWithTheLibrary()
    {
        VERIFY_RUNS(buildDirectory() + "/bin/nocturne-loadprobe", {m_library});
    }

    void onlyTheExportedClassesAreVisible()
    {
        const Outcome symbols = run("nm", {"-DC", "--defined-only", m_library});
        QCOMPARE(symbols.exitCode, 0);
        QSet<QString> exported;
        for (const char *name : exportedClasses)
            exported << QLatin1String(name);
        const QSet<QString> hidden = ownScopes() - exported;
        QVERIFY(hidden.contains(QStringLiteral("DarkFusionStylePrivate")));

        const QRegularExpression line(QStringLiteral("^[0-9a-f]+ (\\w) (.+)$"),
                                      QRegularExpression::MultilineOption);
        QStringList strays;
        QSet<QString> seen;
        auto matches = line.globalMatch(QString::fromUtf8(symbols.output));
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            const QString scope = scopeOf(match.captured(2));
            seen << scope;
            // Inline functions of the toolkit's and the language's headers are weak or unique.
            const bool weak = QStringLiteral("WVu").contains(match.captured(1));
            const bool linkers = scope.startsWith(QLatin1Char('_'));
            if (!exported.contains(scope) && !linkers && (!weak || hidden.contains(scope)))
                strays << match.captured(2);
        }
        QVERIFY2(strays.isEmpty(), qPrintable(strays.join(QLatin1Char('\n'))));
        QVERIFY(seen.contains(QStringLiteral("DarkUX")));
    }

    void bundleFunctionsExistButAreNotExported()
    {
        const QByteArray all = run("nm", {"-C", m_library}).output;
        const QByteArray visible = run("nm", {"-DC", m_library}).output;
        for (const char *name : {"qInitResources_nocturne()", "qCleanupResources_nocturne()"}) {
            QVERIFY2(all.contains(name), name);
            QVERIFY2(!visible.contains(name), name);
        }
    }

    /// The initialisers of whole source files, which run when the library is loaded.
    void onlyTheBundleAndTheButtonTextsAreBuiltAtLoad()
    {
        if (!sanitizerFlags().isEmpty())
            QSKIP("a sanitizer initialises every file");
        const Outcome symbols = run("nm", {m_library});
        QCOMPARE(symbols.exitCode, 0);
        const QRegularExpression initialiser(QStringLiteral("_GLOBAL__sub_I_(\\S+)"));
        QStringList files;
        auto matches = initialiser.globalMatch(QString::fromUtf8(symbols.output));
        while (matches.hasNext())
            files << matches.next().captured(1);
        QVERIFY(files.removeAll(QStringLiteral("qrc_nocturne.cpp")) == 1);
        files.removeAll(QStringLiteral("qmessageboxex.cpp"));
        QVERIFY2(files.isEmpty(), qPrintable(files.join(QLatin1Char(' '))));
    }

    void publicHeadersOnly()
    {
        const QStringList headers = filesBelow(m_prefix.path() + "/include", {"*"});
        for (const QString &header : headers)
            QVERIFY2(!header.endsWith(QLatin1String("_p.h")), qPrintable(header));
        QVERIFY(headers.contains(m_prefix.path() + "/include/nocturne/DarkUX"));
        QVERIFY(headers.contains(m_prefix.path() + "/include/nocturne/theme/darkux.h"));
    }

    void cmakeFindsIt()
    {
        const QTemporaryDir build;
        VERIFY_RUNS("cmake",
                    {"-S", NOCTURNE_SOURCE_DIR "/tests/consumer", "-B", build.path(), "-G",
                     configured("CMAKE_GENERATOR"), "-DCMAKE_PREFIX_PATH=" + m_prefix.path(),
                     "-DCMAKE_CXX_FLAGS=" + sanitizerFlags().join(QLatin1Char(' '))});
        VERIFY_RUNS("cmake", {"--build", build.path()});
        VERIFY_RUNS(build.filePath("consumer"), {}, withoutLeakCheck());
        VERIFY_RUNS(build.filePath("consumer-hostkit"), {}, withoutLeakCheck());
    }

    void pkgConfigFindsIt()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const QString libraries = QFileInfo(m_library).path();
        environment.insert("PKG_CONFIG_PATH", libraries + "/pkgconfig");
        const Outcome flags = run("pkg-config", {"--cflags", "--libs", "nocturne"}, environment);
        QVERIFY2(flags.exitCode == 0, flags.output.constData());

        const QTemporaryDir build;
        const QString program = build.filePath("consumer");
        const QString sources = NOCTURNE_SOURCE_DIR "/tests/consumer";
        QStringList arguments = {
            "-std=c++17", "-fPIC", "-o", program, sources + "/main.cpp", sources + "/theme.cpp"};
        arguments << QString::fromLocal8Bit(flags.output.simplified()).split(QLatin1Char(' '));
        arguments << sanitizerFlags();
        VERIFY_RUNS(configured("CMAKE_CXX_COMPILER"), arguments);
        environment = withoutLeakCheck();
        environment.insert("LD_LIBRARY_PATH", libraries);
        VERIFY_RUNS(program, {}, environment);
    }

private:
    QTemporaryDir m_prefix;
    QString m_library;
};

NOCTURNE_TEST_MAIN(TestInstall)

#include "tst_install.moc"
