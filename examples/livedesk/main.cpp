#include "deskwindow.h"
#include "player.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

namespace {

/// Leaves the desk as it looks in the middle of a show.
void doSomeWork(DeskWindow &window)
{
    Desk *desk = window.desk();
    desk->edit(Desk::Levels, Desk::NewStep, Desk::tr("Levels"), [](DeskState &state) {
        state.look.black = 12;
        state.look.white = 226;
    });
    desk->edit(Desk::Amount, Desk::NewStep, Desk::tr("Amount"),
               [](DeskState &state) { state.look.amount = 46; });
    desk->edit(Desk::Position, Desk::NewStep, Desk::tr("Position"),
               [](DeskState &state) { state.look.position = QPoint(0, 0); });
    window.player()->cut();
    desk->select(2);
    desk->edit(Desk::Trim, Desk::NewStep, Desk::tr("Trim"), [](DeskState &state) {
        if (state.currentClip())
            state.clips[state.current].in += 20;
    });
    window.player()->togglePlay();
}

} // namespace

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
    const QCommandLineOption screenshotOption(
        QStringLiteral("screenshot"),
        QStringLiteral("Puts the current clip on air, saves a picture of the desk and ends."),
        QStringLiteral("file"));
    parser.addOptions({settingsOption, screenshotOption});
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
    if (parser.isSet(screenshotOption)) {
        doSomeWork(window);
        QTimer::singleShot(700, &app, [&] {
            QCoreApplication::exit(window.grab().save(parser.value(screenshotOption)) ? 0 : 1);
        });
    }
    return app.exec();
}
