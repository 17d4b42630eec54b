#include "deskwindow.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtWidgets/QApplication>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("livedesk"));
    DarkUX theme;
    app.setStyle(theme.style());
    app.setPalette(theme.palette());

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A small live desk made with libnocturne."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("Clips for the bin."),
                                 QStringLiteral("[files...]"));
    const QCommandLineOption settingsOption(QStringLiteral("settings"),
                                            QStringLiteral("Where the desk keeps its state."),
                                            QStringLiteral("file"));
    parser.addOption(settingsOption);
    parser.process(app);

    QString settings = parser.value(settingsOption);
    if (settings.isEmpty()) {
        const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
        folder.mkpath(QStringLiteral("."));
        settings = folder.filePath(QStringLiteral("desk.json"));
    }

    DeskWindow window(settings);
    window.desk()->addFiles(parser.positionalArguments());
    window.show();
    return app.exec();
}
