#include "deskwindow.h"
#include "player.h"

#include <nocturne/DarkUX>

#include <QtWidgets/QtWidgets>

namespace {

/// Leaves the desk as it looks in the middle of a show.
void doSomeWork(DeskWindow &window)
{
    Desk *desk = window.desk();
    desk->edit(Desk::tr("Levels"), true, [](DeskState &state) {
        state.look.black = 12;
        state.look.white = 226;
    });
    desk->edit(Desk::tr("Amount"), true, [](DeskState &state) { state.look.amount = 46; });
    desk->edit(Desk::tr("Position"), true, [](DeskState &state) { state.look.x = 0; });
    window.player()->cut();
    desk->select(2);
    desk->edit(Desk::tr("Trim"), true, [](DeskState &state) {
        if (Clip *clip = state.currentClip())
            clip->in += 20;
    });
    window.player()->togglePlay();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName("livedesk");
    DarkUX theme;
    app.setStyle(theme.style());
    app.setPalette(theme.palette());

    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    folder.mkpath(".");
    const QCommandLineOption settings("settings", "Where the desk keeps its state.", "file",
                                      folder.filePath("desk.json"));
    const QCommandLineOption screenshot(
        "screenshot", "Puts the current clip on air, saves a picture of the desk and ends.",
        "file");
    QCommandLineParser parser;
    parser.setApplicationDescription("A small live desk made with libnocturne.");
    parser.addHelpOption();
    parser.addPositionalArgument("files", "Clips for the bin.", "[files...]");
    parser.addOptions({settings, screenshot});
    parser.process(app);

    DeskWindow window(parser.value(settings));
    window.desk()->addFiles(parser.positionalArguments());
    window.show();
    if (parser.isSet(screenshot)) {
        doSomeWork(window);
        QTimer::singleShot(700, &app, [&] {
            QCoreApplication::exit(window.grab().save(parser.value(screenshot)) ? 0 : 1);
        });
    }
    return app.exec();
}
