// A host of the shared library alone.

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>

#include <QtCore/QFile>
#include <QtWidgets/QApplication>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    DarkUX theme;
    app.setStyle(theme.style());
    return QFile::exists(QStringLiteral(":/resources/appicons/play.png")) ? 0 : 1;
}
