#include "qtversion.h"
#include "testsupport.h"
#include "xserver.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkReadableStyle>
#include <nocturne/DarkUX>

#include <QtCore/QLibraryInfo>
#include <QtCore/QTemporaryDir>
#include <QtGui/QScreen>
#include <QtWidgets/QStyleFactory>

#include <algorithm>
#include <memory>
#include <vector>

// The look by name, in programs that were built without the library.

namespace {

const char grabArgument[] = "--grab";

QString pluginPath()
{
    return QStringLiteral(NOCTURNE_BUILD_DIR "/plugins");
}

/// In a process of its own on the display of a running program: saves what a window shows.
int grab(const QString &window, const QString &fileName)
{
    const QPixmap pixmap = QGuiApplication::primaryScreen()->grabWindow(window.toULongLong());
    return pixmap.save(fileName) ? 0 : 1;
}

/// The look of a window, told from its pixels.
struct Look
{
    int medianLightness = -1;
    int colors = 0;
};

Look lookOf(const QImage &image)
{
    std::vector<int> lightness;
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            lightness.push_back(image.pixelColor(x, y).lightness());
            colors.insert(image.pixel(x, y));
        }
    }
    if (lightness.empty())
        return Look();
    const auto middle = lightness.begin() + static_cast<std::ptrdiff_t>(lightness.size() / 2);
    std::nth_element(lightness.begin(), middle, lightness.end());
    return {*middle, static_cast<int>(colors.size())};
}

} // namespace

/// Known to the style by its name only, as the views of web engines are.
class QWebView : public QWidget
{
    Q_OBJECT
};

class TestStylePlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!QFileInfo::exists(pluginPath()))
            QSKIP("The plugins are not part of this build");
        QCoreApplication::addLibraryPath(pluginPath());
    }

    void cleanup() { QVERIFY(!DarkUX::getInstancePtr()); }

    void keys()
    {
        QVERIFY(QStyleFactory::keys().contains("DarkFusion"));
        const std::unique_ptr<QStyle> style(QStyleFactory::create("darkfusion"));
        QVERIFY(qobject_cast<DarkFusionStyle *>(style.get()));

        // Not the static part of this program, so known by its name only.
        const std::unique_ptr<QStyle> readable(QStyleFactory::create("darkfusionreadable"));
        QVERIFY(readable && readable->inherits("DarkReadableStyle"));
        QCOMPARE(readable->standardPalette(), DarkReadableStyle::palette(style->standardPalette()));
    }

    void paletteOfTheTheme()
    {
        const std::unique_ptr<QStyle> style(QStyleFactory::create("DarkFusion"));
        const QPalette palette = style->standardPalette();
        QVERIFY(!DarkUX::getInstancePtr());
        DarkUX theme;
        const std::unique_ptr<QStyle> themeStyle(theme.style());
        QCOMPARE(palette, theme.palette());
        QVERIFY(themeStyle->standardPalette() != palette);
        QPalette own(palette);
        own.setColor(QPalette::Window, Qt::darkRed);
        theme.setPalette(own, false);
        QCOMPARE(style->standardPalette(), own);
        QCOMPARE(DarkUX::getInstancePtr(), &theme);
    }

    void applicationPalette()
    {
        QApplication::setStyle("DarkFusion");
        const QPalette dark = QApplication::style()->standardPalette();
        QCOMPARE(QApplication::palette().color(QPalette::Window), dark.color(QPalette::Window));
        QCOMPARE(QApplication::palette().color(QPalette::Disabled, QPalette::Text),
                 dark.color(QPalette::Disabled, QPalette::Text));

        // What a program sets stays; the rest stays dark.
        QPalette own;
        own.setColor(QPalette::Highlight, Qt::red);
        QApplication::setPalette(own);
        QCOMPARE(QApplication::palette().color(QPalette::Highlight), QColor(Qt::red));
        QCOMPARE(QApplication::palette().color(QPalette::Window), dark.color(QPalette::Window));

        QApplication::setPalette(QPalette());
        QApplication::setStyle("Fusion");
        QVERIFY(QApplication::palette().color(QPalette::Window).lightness() > 200);
    }

    void paperOfWebPages()
    {
        const std::unique_ptr<QStyle> style(QStyleFactory::create("DarkFusion"));
        const QPalette dark = style->standardPalette();
        QWebView view;
        QWidget other;
        for (QWidget *widget : {static_cast<QWidget *>(&view), &other}) {
            widget->setPalette(dark);
            style->polish(widget);
        }
        QCOMPARE(view.palette().color(QPalette::Base), QColor(Qt::white));
        QCOMPARE(view.palette().color(QPalette::Text), QColor(Qt::black));
        QCOMPARE(view.palette().color(QPalette::Window), dark.color(QPalette::Window));
        QCOMPARE(other.palette(), dark);
    }

    void realProgram_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("dark");
        QTest::newRow("with the plugin") << pluginPath() << true;
        QTest::newRow("without it") << QString() << false;
    }

    void realProgram()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("A sanitized plugin cannot be loaded into an ordinary program");
#endif
        QFETCH(QString, path);
        QFETCH(bool, dark);
        const QString designer =
            QStandardPaths::findExecutable("designer", {QtVersion::programsPath()});
        if (designer.isEmpty())
            QSKIP("Qt Designer is not installed");
        if (QStandardPaths::findExecutable("xdotool").isEmpty())
            QSKIP("xdotool is not installed");
        XServer server;
        if (!server.start())
            QSKIP("There is no virtual X server");

        const QTemporaryDir directory;
        QProcessEnvironment environment = server.environment();
        environment.remove("QT_QPA_PLATFORMTHEME");
        environment.insert("HOME", directory.path());
        environment.insert("XDG_CONFIG_HOME", directory.path());
        environment.insert("QT_STYLE_OVERRIDE", "DarkFusion");
        environment.insert("QT_PLUGIN_PATH", path);

        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(designer, QStringList());
        QVERIFY(program.waitForStarted());
        const QString fileName = grabDesigner(server, directory.path());
        QVERIFY2(!fileName.isEmpty(), "The program shows no window");
        QCOMPARE(program.state(), QProcess::Running);
        const Look look = lookOf(QImage(fileName));
        program.terminate();
        if (!program.waitForFinished(5000))
            program.kill();
        program.waitForFinished();

        const QByteArray message = "median lightness " + QByteArray::number(look.medianLightness);
        QVERIFY2(dark ? look.medianLightness < 60 : look.medianLightness > 150,
                 message.constData());
    }

private:
    static QString grabDesigner(const XServer &server, const QString &directory)
    {
        QString window;
        const auto findWindow = [&] {
            window = server.xdotool({"search", "--onlyvisible", "--name", "^Qt Designer"})
                         .section('\n', 0, 0);
            return !window.isEmpty();
        };
        if (!QTest::qWaitFor(findWindow, 60000))
            return QString();

        // A window is on the screen before it is painted.
        const QString fileName = directory + "/window.png";
        const auto isPainted = [&] {
            QProcess grabber;
            grabber.setProcessEnvironment(server.environment());
            grabber.start(QCoreApplication::applicationFilePath(),
                          {grabArgument, window, fileName});
            grabber.waitForFinished();
            return lookOf(QImage(fileName)).colors > 50;
        };
        return QTest::qWaitFor(isPainted, 60000) ? fileName : QString();
    }
};

int main(int argc, char *argv[])
{
    const bool grabs = argc == 4 && qstrcmp(argv[1], grabArgument) == 0;
    if (!grabs && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    // These decide the style of this process before the first test.
    qunsetenv("QT_STYLE_OVERRIDE");
    QApplication app(argc, argv);
    if (grabs)
        return grab(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    TestStylePlugin test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_styleplugin.moc"
