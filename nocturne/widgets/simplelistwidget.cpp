#include "simplelistwidget.h"

#include "droppeditems_p.h"

#include <QtCore/QMimeData>
#include <QtGui/QCursor>
#include <QtGui/QDrag>
#include <QtGui/QDropEvent>
#include <QtGui/QPainter>

SimpleListWidget::SimpleListWidget(QWidget *parent)
    : QListWidget(parent)
{}

SimpleListWidget::~SimpleListWidget() = default;

void SimpleListWidget::startDrag(Qt::DropActions supportedActions)
{
    QMimeData *data = model()->mimeData(selectedIndexes());
    if (!data)
        return;
    auto *drag = new QDrag(this);
    drag->setMimeData(data);
    drag->setPixmap(dragPixmap());
    drag->setHotSpot(viewport()->mapFromGlobal(QCursor::pos()));
    drag->exec(supportedActions, Qt::MoveAction);
}

QPixmap SimpleListWidget::dragPixmap() const
{
    const qreal ratio = viewport()->devicePixelRatioF();
    const QSizeF size = viewport()->visibleRegion().boundingRect().size();
    QPixmap pixmap((size * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);

    QPainter painter(&pixmap);
    const QModelIndexList indexes = selectedIndexes();
    for (const QModelIndex &index : indexes) {
        const QRect row = visualRect(index) & viewport()->rect();
        if (!row.isEmpty())
            painter.drawPixmap(row.topLeft(), viewport()->grab(row));
    }
    return pixmap;
}

void SimpleListWidget::dropEvent(QDropEvent *event)
{
    if (Nocturne::hasSoundItems(event))
        QListWidget::dropEvent(event);
    else
        event->ignore();
}
