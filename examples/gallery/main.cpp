#include "gallerylanguage.h"
#include "gallerywindow.h"
#include "keyboardwalk.h"
#include "screenshots.h"
#include "trimfilm.h"

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

/// The platform without a display says for each window what it cannot do with it.
void dropPlatformNotes(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
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

/// Runs the gallery in the catalogue of that name, such as "de_DE".
bool useLanguage(const QString &name)
{
    const QFileInfoList known = galleryCatalogues();
    for (const QFileInfo &catalogue : known) {
        if (catalogue.completeBaseName() == name)
            return setGalleryCatalogue(catalogue.filePath());
    }
    std::fprintf(stderr, "there is no language named %s; there are:", qPrintable(name));
    for (const QFileInfo &catalogue : known)
        std::fprintf(stderr, " %s", qPrintable(catalogue.completeBaseName()));
    std::fprintf(stderr, "\n");
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    const bool isUnseen = wantsScreenshots(argc, argv);
    if (isUnseen) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_FONT_DPI", "96");
        qInstallMessageHandler(dropPlatformNotes);
    }
    QApplication app(argc, argv);
    if (isUnseen) {
        QFont font = QApplication::font();
        font.setPointSize(12); // without a display Qt 6 would begin with 9
        QApplication::setFont(font);
    }
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
    const QCommandLineOption languageOption(QStringLiteral("language"),
                                            QStringLiteral("Begins in a language, such as de_DE."),
                                            QStringLiteral("name"));
    const QCommandLineOption styleOption(
        QStringLiteral("other-style"),
        QStringLiteral("Shows everything in another style, to compare."), QStringLiteral("name"));
    const QCommandLineOption walkOption(
        QStringLiteral("keyboard-walk"),
        QStringLiteral(
            "Walks through the pages with the Tab key, films it into a PNG file, and ends."),
        QStringLiteral("file"));
    const QCommandLineOption trimOption(
        QStringLiteral("film-trim"),
        QStringLiteral("Films the trimming of a clip into PNG files, and ends."),
        QStringLiteral("directory"));
    parser.addOptions(
        {pageOption, screenshotsOption, languageOption, styleOption, walkOption, trimOption});
    parser.process(app);

    if (parser.isSet(styleOption) && !QApplication::setStyle(parser.value(styleOption))) {
        std::fprintf(stderr, "there is no style named %s\n", qPrintable(parser.value(styleOption)));
        return 1;
    }
    if (parser.isSet(languageOption) && !useLanguage(parser.value(languageOption)))
        return 1;

    const QString page = parser.value(pageOption);
    if (parser.isSet(screenshotsOption)) {
        if (!renderScreenshots(parser.value(screenshotsOption), page))
            return 1;
        return qEnvironmentVariableIsSet(scaleFactorVariable) || renderAgainAtRatio2() ? 0 : 1;
    }

    if (parser.isSet(walkOption))
        return filmKeyboardWalk(parser.value(walkOption)) ? 0 : 1;

    if (parser.isSet(trimOption))
        return filmTrim(parser.value(trimOption)) ? 0 : 1;

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
