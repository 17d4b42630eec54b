#include "gallerywindow.h"
#include "screenshots.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>

#include <QtCore/QCommandLineParser>
#include <QtCore/QProcess>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

const char scaleFactorVariable[] = "QT_SCALE_FACTOR";

bool wantsScreenshots(int argc, char *argv[])
{
    return std::any_of(argv + 1, argv + argc, [](const char *argument) {
        return std::strncmp(argument, "--screenshots", std::strlen("--screenshots")) == 0;
    });
}

/// The ratio of an application is fixed once it runs, so another process renders the second set.
bool renderAgainAtRatio2()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(scaleFactorVariable), QStringLiteral("2"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1));
    return process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit
           && process.exitCode() == 0;
}

} // namespace

int main(int argc, char *argv[])
{
    if (wantsScreenshots(argc, argv)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_FONT_DPI", "96");
    }
    QApplication app(argc, argv);
    DarkUX theme;
    app.setStyle(theme.style());
    app.setPalette(theme.palette());

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every control of libnocturne."));
    parser.addHelpOption();
    const QCommandLineOption pageOption(QStringLiteral("page"), QStringLiteral("Opens one page."),
                                        QStringLiteral("name"));
    const QCommandLineOption screenshotsOption(
        QStringLiteral("screenshots"),
        QStringLiteral("Renders the pages to PNG files without a display, and ends."),
        QStringLiteral("directory"));
    parser.addOptions({pageOption, screenshotsOption});
    parser.process(app);

    const QString page = parser.value(pageOption);
    if (parser.isSet(screenshotsOption)) {
        if (!renderScreenshots(parser.value(screenshotsOption), page))
            return 1;
        return qEnvironmentVariableIsSet(scaleFactorVariable) || renderAgainAtRatio2() ? 0 : 1;
    }

    GalleryWindow window;
    if (!page.isEmpty() && !window.showPage(page)) {
        std::fprintf(stderr, "there is no page named %s; there are:", qPrintable(page));
        for (const GalleryPage &known : galleryPages())
            std::fprintf(stderr, " %s", known.name);
        std::fprintf(stderr, "\n");
        return 1;
    }
    window.show();
    return app.exec();
}
