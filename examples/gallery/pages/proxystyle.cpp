#include "gallerypage.h"

#include <nocturne/DarkProxyStyle>

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>

namespace {

struct MenuEntry
{
    const char *text;
    const char *shortcut;
    bool enabled;
};

constexpr MenuEntry entries[] = {
    {QT_TRANSLATE_NOOP("Gallery", "&1;Go to camera one"), "F1", true},
    {QT_TRANSLATE_NOOP("Gallery", "&2;Go to camera two"), "F2", true},
    {QT_TRANSLATE_NOOP("Gallery", "&3;Go to camera three"), "F3", false},
    {QT_TRANSLATE_NOOP("Gallery", "&12;Two digits have no badge"), "", true},
    {QT_TRANSLATE_NOOP("Gallery", "No number"), "Ctrl+N", true},
};

/// A menu that stays open as a part of the page.
QMenu *createMenu(QStyle *style, QWidget *parent)
{
    auto *menu = new QMenu(parent);
    menu->setWindowFlags(Qt::Widget);
    menu->setStyle(style);
    for (const MenuEntry &entry : entries) {
        QAction *action = menu->addAction(Gallery::tr(entry.text));
        action->setShortcut(QKeySequence(QLatin1String(entry.shortcut)));
        action->setShortcutVisibleInContextMenu(true);
        action->setEnabled(entry.enabled);
    }
    menu->addSeparator();
    menu->addAction(Gallery::tr("Checked"))->setCheckable(true);
    menu->actions().constLast()->setChecked(true);
    // Higher than its items, so that the empty area shows.
    menu->setFixedHeight(menu->sizeHint().height() + 24);
    return menu;
}

QListWidget *createList(QStyle *style, QWidget *parent)
{
    auto *list = new QListWidget(parent);
    list->setStyle(style);
    list->verticalScrollBar()->setStyle(style);
    for (int i = 1; i <= 30; ++i)
        list->addItem(Gallery::tr("Clip %1").arg(i));
    return list;
}

QWidget *createProxyStylePage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *grid = new QGridLayout(page);
    int column = 0;
    for (const char *key : {"Fusion", "Windows"}) {
        auto *style = new DarkProxyStyle(QLatin1String(key));
        style->setParent(page);
        grid->addWidget(new QLabel(Gallery::tr("Over %1").arg(QLatin1String(key))), 0, column);
        grid->addWidget(createMenu(style, page), 1, column, Qt::AlignTop | Qt::AlignLeading);
        grid->addWidget(createList(style, page), 2, column++);
    }
    return page;
}

} // namespace

GALLERY_PAGE(900, "proxystyle", QT_TRANSLATE_NOOP("Gallery", "Proxy style"), createProxyStylePage)
