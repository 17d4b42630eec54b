#include "gallerypage.h"

#include <nocturne/ItemDelegate>
#include <nocturne/ListWidget>
#include <nocturne/SimpleListWidget>

#include <QtGui/QPainter>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>

namespace {

QString clipName(int number)
{
    return Gallery::tr("Clip %1").arg(number);
}

QWidget *captioned(const char *caption, const QList<QWidget *> &widgets)
{
    auto *block = new QWidget;
    auto *column = new QVBoxLayout(block);
    column->setContentsMargins(4, 4, 4, 4);
    column->addWidget(new QLabel(Gallery::tr(caption)));
    for (QWidget *widget : widgets)
        column->addWidget(widget);
    return block;
}

QLabel *hint(const char *source)
{
    auto *label = new QLabel(Gallery::tr(source));
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    return label;
}

/// A still that a clip might show.
QPixmap thumbnail(int number, qreal ratio)
{
    const QSize size(96, 54);
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0.0, QColor::fromHsv(number * 47 % 360, 150, 170));
    sky.setColorAt(1.0, QColor::fromHsv((number * 47 + 60) % 360, 120, 60));
    QPainter painter(&pixmap);
    painter.fillRect(QRect(QPoint(), size), sky);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 120));
    painter.drawEllipse(QPointF(20 + number * 13 % 56, 18), 8, 8);
    return pixmap;
}

QWidget *createDropTarget()
{
    auto *list = new ListWidget;
    list->setDragDropMode(QAbstractItemView::DropOnly);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->addItem(Gallery::tr("Files you drop appear below"));
    QObject::connect(list, &ListWidget::dragDropFiles, list, [list](const QStringList &files) {
        for (const QString &file : files) {
            list->addItem(file.isEmpty() ? Gallery::tr("(not a local file)") : file);
        }
        list->scrollToBottom();
    });
    return captioned(QT_TRANSLATE_NOOP("Gallery", "Drop files here"), {list});
}

QWidget *createIconList()
{
    auto *list = new ListWidget;
    list->setViewMode(QListView::IconMode);
    list->setMovement(QListView::Static);
    list->setResizeMode(QListView::Adjust);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setIconSize(QSize(96, 54));
    list->setItemDelegate(new ItemDelegate(list));
    for (int number = 1; number <= 24; ++number) {
        list->addItem(new QListWidgetItem(QIcon(thumbnail(number, list->devicePixelRatioF())),
                                          clipName(number)));
    }
    for (int row : {6, 8})
        list->item(row)->setSelected(true);
    list->setMinimumSize(400, 240);
    QMetaObject::invokeMethod(
        list, [list] { list->verticalScrollBar()->setValue(60); }, Qt::QueuedConnection);
    return captioned(QT_TRANSLATE_NOOP("Gallery", "Icons with the item delegate"), {list});
}

QWidget *createMoveLog()
{
    auto *list = new ListWidget;
    list->setDragDropMode(QAbstractItemView::DragDrop);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    for (int number = 1; number <= 30; ++number)
        list->addItem(clipName(number));
    list->setCurrentRow(1);

    QLabel *log = hint(QT_TRANSLATE_NOOP("Gallery", "Drag a clip onto another."));
    QObject::connect(list, &ListWidget::itemMoved, list,
                     [list, log](QListWidgetItem *item, QListWidgetItem *target) {
                         list->takeItem(list->row(item));
                         list->insertItem(target ? list->row(target) : list->count(), item);
                         list->setCurrentItem(item);
                         const QString place = target ? target->text() : Gallery::tr("the end");
                         log->setText(
                             Gallery::tr("%1 was dropped on %2.").arg(item->text(), place));
                     });
    return captioned(QT_TRANSLATE_NOOP("Gallery", "Moves are reported, the host moves"),
                     {list, log});
}

QWidget *createSimpleList()
{
    auto *list = new SimpleListWidget;
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setDragDropMode(QAbstractItemView::InternalMove);
    for (int number = 1; number <= 12; ++number)
        list->addItem(clipName(number));
    for (int row : {1, 2, 4})
        list->item(row)->setSelected(true);
    return captioned(QT_TRANSLATE_NOOP("Gallery", "Rows dragged as they look"),
                     {list, hint(QT_TRANSLATE_NOOP("Gallery", "Drag the selected rows."))});
}

QWidget *createListsPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *grid = new QGridLayout(page);
    grid->addWidget(createDropTarget(), 0, 0);
    grid->addWidget(createIconList(), 0, 1);
    grid->addWidget(createMoveLog(), 1, 0);
    grid->addWidget(createSimpleList(), 1, 1);
    return page;
}

} // namespace

GALLERY_PAGE(400, "lists", QT_TRANSLATE_NOOP("Gallery", "Lists to drag and drop"), createListsPage)
