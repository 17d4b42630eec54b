#include "menu.h"

Menu::Menu(const QString &title, QWidget *parent)
    : QMenu(title, parent)
{
    setAttribute(Qt::WA_TranslucentBackground);
}

Menu::Menu(QWidget *parent)
    : Menu(QString(), parent)
{}

void Menu::leaveEvent(QEvent *)
{
    Q_EMIT leaved();
}
