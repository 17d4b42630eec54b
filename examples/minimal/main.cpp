#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>

#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    DarkUX theme;
    app.setStyle(theme.style());
    app.setPalette(theme.palette());

    QPushButton button(QStringLiteral("Good evening"));
    QObject::connect(&button, &QPushButton::clicked, &app, &QApplication::quit);
    button.show();
    return app.exec();
}
