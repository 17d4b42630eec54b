#include "panels.h"
#include "testpictures.h"

#include <nocturne/CroppingLabel>
#include <nocturne/ItemDelegate>
#include <nocturne/ListWidget>

#include <QtWidgets/QtWidgets>

namespace {

constexpr QSize thumbnailSize(112, 63);

QIcon thumbnail(const Clip &clip)
{
    const QImage picture = testPicture(clip.pattern, clip.in);
    return QPixmap::fromImage(
        picture.scaled(thumbnailSize, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void showClips(ListWidget *list, const DeskState &state)
{
    const QSignalBlocker blocker(list);
    while (list->count() > state.clips.size())
        delete list->takeItem(list->count() - 1);
    for (int row = 0; row < state.clips.size(); ++row) {
        const Clip &clip = state.clips.at(row);
        if (row == list->count())
            list->addItem(new QListWidgetItem);
        QListWidgetItem *item = list->item(row);
        const QVariant shown = QVariantList{clip.pattern, clip.in};
        if (item->data(Qt::UserRole) != shown) {
            item->setData(Qt::UserRole, shown);
            item->setIcon(thumbnail(clip));
        }
        item->setText(clip.name);
    }
    list->setCurrentRow(state.current);
}

ListWidget *clipList(Desk *desk)
{
    auto *list = new ListWidget;
    list->setObjectName("bin");
    list->setViewMode(QListView::IconMode);
    list->setResizeMode(QListView::Adjust);
    list->setIconSize(thumbnailSize);
    list->setDragDropMode(QAbstractItemView::DragDrop);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setItemDelegate(new ItemDelegate(list));
    QObject::connect(list, &ListWidget::dragDropFiles, desk, &Desk::addFiles);
    QObject::connect(list, &ListWidget::itemMoved, desk,
                     [=](QListWidgetItem *item, QListWidgetItem *target) {
                         const int to = target ? list->row(target) : list->count() - 1;
                         desk->moveClip(list->row(item), to);
                     });
    QObject::connect(list, &QListWidget::currentRowChanged, desk, &Desk::select);
    desk->follow(list, [=] { showClips(list, desk->state()); });
    desk->speak(list, [=] { list->setToolTip(Desk::tr("Drop files here")); });
    return list;
}

} // namespace

QWidget *binPanel(Desk *desk)
{
    auto *name = new CroppingLabel;
    name->setObjectName("clipName");
    name->setEditable(true);
    auto *remove = new QPushButton;

    auto *panel = new QWidget;
    auto *layout = new QVBoxLayout(panel);
    layout->addWidget(clipList(desk), 1);
    layout->addWidget(name);
    layout->addWidget(remove);

    QObject::connect(name, &CroppingLabel::editFinished, desk, &Desk::renameClip);
    QObject::connect(remove, &QPushButton::clicked, desk, &Desk::removeClip);
    desk->follow(panel, [=] {
        const Clip *clip = desk->state().currentClip();
        name->setText(clip ? clip->name : QString());
        name->setEnabled(clip);
        remove->setEnabled(clip);
    });
    desk->speak(panel, [=] { remove->setText(Desk::tr("Remove clip")); });
    return panel;
}
