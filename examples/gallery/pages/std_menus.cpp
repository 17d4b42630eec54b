#include "gallerypage.h"
#include "samplesheet.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>

#include <QActionGroup>

namespace {

QAction *checkable(QAction *action, bool on)
{
    action->setCheckable(true);
    action->setChecked(on);
    return action;
}

QMenu *plainMenu()
{
    auto *menu = new QMenu;
    menu->addAction(Gallery::tr("&Open…"))->setShortcut(QKeySequence::Open);
    menu->addAction(sampleIcon(), Gallery::tr("With an icon"));
    menu->setDefaultAction(menu->addAction(Gallery::tr("The default item")));
    QAction *disabled = menu->addAction(sampleIcon(), Gallery::tr("Disabled"));
    disabled->setShortcut(QKeySequence::Save);
    disabled->setEnabled(false);
    menu->addSection(Gallery::tr("Section"));
    menu->addMenu(Gallery::tr("More"))->addAction(Gallery::tr("Inside"));
    menu->addMenu(Gallery::tr("Nothing more"))->setEnabled(false);
    return menu;
}

QMenu *checkableMenu()
{
    auto *menu = new QMenu;
    checkable(menu->addAction(Gallery::tr("Checked")), true);
    checkable(menu->addAction(Gallery::tr("Not checked")), false);
    checkable(menu->addAction(sampleIcon(), Gallery::tr("Checked, with an icon")), true);
    checkable(menu->addAction(sampleIcon(), Gallery::tr("Not checked, with an icon")), false);
    checkable(menu->addAction(Gallery::tr("Checked, disabled")), true)->setEnabled(false);
    menu->addSeparator();
    auto *group = new QActionGroup(menu);
    for (const QString &text : {Gallery::tr("One of two"), Gallery::tr("The other one")})
        group->addAction(checkable(menu->addAction(text), group->actions().isEmpty()));
    return menu;
}

/// \a menu as it looks when open, with its \a row-th action under the pointer; none for −1.
QWidget *openMenu(QMenu *menu, int row)
{
    menu->resize(menu->sizeHint());
    if (row >= 0)
        menu->setActiveAction(menu->actions().at(row));
    return new Picture(menu);
}

/// An item of a menu bar in one state.
class MenuBarItem : public QWidget
{
public:
    MenuBarItem(const QString &text, QStyle::State state)
        : m_text(text)
        , m_state(state)
    {
        setFixedSize(qMax(90, fontMetrics().horizontalAdvance(text) + 20), 24);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QStyleOptionMenuItem option;
        option.initFrom(this);
        option.state |= m_state;
        option.menuItemType = QStyleOptionMenuItem::Normal;
        option.text = m_text;
        QStylePainter(this).drawControl(QStyle::CE_MenuBarItem, option);
    }

private:
    const QString m_text;
    const QStyle::State m_state;
};

QWidget *menuBarItems()
{
    auto *items = new QWidget;
    auto *row = new QHBoxLayout(items);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new MenuBarItem(Gallery::tr("Normal"), QStyle::State_None));
    row->addWidget(new MenuBarItem(Gallery::tr("Hovered"), QStyle::State_Selected));
    row->addWidget(
        new MenuBarItem(Gallery::tr("Open"), QStyle::State_Selected | QStyle::State_Sunken));
    row->addStretch(1);
    return items;
}

QMenuBar *menuBar()
{
    auto *bar = new QMenuBar;
    bar->setNativeMenuBar(false);
    for (const QString &title : {Gallery::tr("&Show"), Gallery::tr("&Edit"), Gallery::tr("&View")})
    {
        QMenu *menu = bar->addMenu(title);
        menu->addAction(Gallery::tr("Open…"));
        menu->addAction(Gallery::tr("Close"));
    }
    bar->addAction(Gallery::tr("Disabled"))->setEnabled(false);
    return bar;
}

QWidget *createMenusPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *column = new QVBoxLayout(page);
    column->setMenuBar(menuBar());
    auto *grid = new QGridLayout;
    int place = 0;
    for (int selected : {-1, 0, 5})
        grid->addWidget(openMenu(plainMenu(), selected), 0, place++, Qt::AlignTop);
    place = 0;
    for (int selected : {-1, 0, 2, 6})
        grid->addWidget(openMenu(checkableMenu(), selected), 1, place++, Qt::AlignTop);
    grid->setColumnStretch(place, 1);
    column->addLayout(grid);
    column->addWidget(menuBarItems());
    column->addStretch(1);
    return page;
}

} // namespace

GALLERY_PAGE(175, "std_menus", QT_TRANSLATE_NOOP("Gallery", "Menus"), createMenusPage)
