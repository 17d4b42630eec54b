#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>

#include <QtCore/QFile>
#include <QtWidgets/QApplication>

#include <cstdio>

const DarkUX *currentTheme();

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    DarkUX theme;
    app.setStyle(theme.style());
    std::printf("%s\n", qPrintable(theme.moduleVersion()));
    const bool works =
        currentTheme() == &theme && QFile::exists(QStringLiteral(":/resources/appicons/play.png"));
    return works ? 0 : 1;
}
