#include "gallerypage.h"

#include <nocturne/Dial>
#include <nocturne/Frame>
#include <nocturne/GroupBox>
#include <nocturne/LineEdit>
#include <nocturne/ListView>
#include <nocturne/Menu>
#include <nocturne/Splitter>
#include <nocturne/StatusBar>
#include <nocturne/TabWidget>
#include <nocturne/TreeWidget>
#include <nocturne/Widget>

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

namespace {

QLabel *centered(const QString &caption)
{
    auto *label = new QLabel(caption);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QWidget *createFrames()
{
    struct Variety
    {
        const char *caption;
        QFrame::Shape shape;
        QFrame::Shadow shadow;
    };
    const Variety varieties[] = {
        {QT_TRANSLATE_NOOP("Gallery", "Plain"), QFrame::NoFrame, QFrame::Plain},
        {QT_TRANSLATE_NOOP("Gallery", "Raised"), QFrame::NoFrame, QFrame::Raised},
        {QT_TRANSLATE_NOOP("Gallery", "Sunken"), QFrame::NoFrame, QFrame::Sunken},
        {QT_TRANSLATE_NOOP("Gallery", "Box"), QFrame::Box, QFrame::Plain},
        {QT_TRANSLATE_NOOP("Gallery", "Horizontal line"), QFrame::HLine, QFrame::Plain},
    };

    auto *frames = new QWidget;
    auto *row = new QHBoxLayout(frames);
    row->setContentsMargins(0, 0, 0, 0);
    for (const Variety &variety : varieties) {
        auto *frame = new Frame;
        frame->setFrameShape(variety.shape);
        frame->setFrameShadow(variety.shadow);
        frame->setMinimumHeight(56);
        auto *inside = new QVBoxLayout(frame);
        inside->addWidget(centered(Gallery::tr(variety.caption)));
        row->addWidget(frame);
    }
    return frames;
}

QWidget *createTabs()
{
    auto *tabs = new TabWidget;
    tabs->addTab(
        centered(Gallery::tr("Text tabs have one width; a tab without text fills the bar.")),
        Gallery::tr("Media"));
    tabs->addTab(new QWidget, Gallery::tr("Effects"));
    tabs->addTab(new QWidget, Gallery::tr("Audio"));
    tabs->addTab(new QWidget, QString());
    tabs->setMinimumHeight(90);
    return tabs;
}

QWidget *createSingleTab()
{
    auto *tabs = new TabWidget;
    tabs->addTab(centered(Gallery::tr("A single tab without text")), QString());
    tabs->setMinimumHeight(90);
    return tabs;
}

QWidget *createGroups()
{
    auto *groups = new QWidget;
    auto *row = new QHBoxLayout(groups);
    row->setContentsMargins(0, 0, 0, 0);
    const auto add = [row](const char *title, bool checkable, bool checked) {
        auto *group = new GroupBox;
        group->setTitle(Gallery::tr(title));
        group->setCheckable(checkable);
        group->setChecked(checked);
        auto *form = new QFormLayout(group);
        form->setContentsMargins(8, 38, 8, 8);
        auto *edit = new LineEdit;
        edit->setPlaceholderText(Gallery::tr("Clip name"));
        form->addRow(edit);
        row->addWidget(group);
    };
    add(QT_TRANSLATE_NOOP("Gallery", "Title only"), false, false);
    add(QT_TRANSLATE_NOOP("Gallery", "Checked"), true, true);
    add(QT_TRANSLATE_NOOP("Gallery", "Unchecked"), true, false);
    return groups;
}

TreeWidget *createTree()
{
    auto *tree = new TreeWidget;
    tree->setHeaderLabels({Gallery::tr("Clip"), Gallery::tr("Length")});
    tree->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    for (int bin = 1; bin <= 4; ++bin) {
        auto *parent = new QTreeWidgetItem(tree, {Gallery::tr("Bin %1").arg(bin), QString()});
        for (int clip = 1; clip <= 6; ++clip) {
            const QString name = Gallery::tr("Clip %1").arg(clip);
            new QTreeWidgetItem(parent, {name, QStringLiteral("00:0%1:00").arg(clip)});
        }
    }
    tree->expandAll();
    tree->setMinimumHeight(200);
    return tree;
}

QWidget *createSplitter()
{
    auto *splitter = new Splitter;
    TreeWidget *bare = createTree();
    bare->setHeaderHidden(true);
    splitter->addWidget(bare);
    TreeWidget *scrolled = createTree();
    splitter->addWidget(scrolled);
    scrolled->verticalScrollBar()->setValue(60);
    auto *list = new ListView;
    splitter->addWidget(list);
    splitter->setSizes({300, 300, 200});
    return splitter;
}

QWidget *createDialAndMenu()
{
    auto *surface = new Widget;
    auto *row = new QHBoxLayout(surface);
    auto *dial = new Dial;
    dial->setValue(40);
    row->addWidget(dial);

    auto *button = new QPushButton(Gallery::tr("Menu"));
    auto *menu = new Menu(button);
    menu->addAction(Gallery::tr("Cut"));
    menu->addAction(Gallery::tr("Dissolve"));
    QObject::connect(menu, &Menu::leaved, menu, &QMenu::close);
    button->setMenu(menu);
    row->addWidget(button);
    row->addStretch(1);
    return surface;
}

QWidget *createStatusBar()
{
    auto *bar = new StatusBar;
    bar->addWidget(new QLabel(Gallery::tr("On air")));
    bar->addPermanentWidget(new QLabel(QStringLiteral("50p")));
    return bar;
}

QWidget *createContainersPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *grid = new QGridLayout(page);
    grid->addWidget(createFrames(), 0, 0, 1, 2);
    grid->addWidget(createTabs(), 1, 0);
    grid->addWidget(createSingleTab(), 1, 1);
    grid->addWidget(createGroups(), 2, 0, 1, 2);
    grid->addWidget(createSplitter(), 3, 0, 1, 2);
    grid->addWidget(createDialAndMenu(), 4, 0, 1, 2);
    grid->addWidget(createStatusBar(), 5, 0, 1, 2);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    return page;
}

} // namespace

GALLERY_PAGE(200, "containers", QT_TRANSLATE_NOOP("Gallery", "Containers"), createContainersPage)
