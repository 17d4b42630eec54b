#include "listwidget.h"

#include "droppeditems_p.h"
#include "ilistitem.h"

#include <nocturne/painting/edgeshadow_p.h>
#include <nocturne/painting/themepaint_p.h>
#include <nocturne/theme/qtversion_p.h>

#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtGui/QDropEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

namespace {

constexpr int contentMargin = 5;
constexpr int backgroundShift = -6;

} // namespace

ListWidget::ListWidget(QWidget *parent)
    : QListWidget(parent)
{
    viewport()->setAutoFillBackground(false);
    // Every pixel is filled below, so what lies behind need not be painted, and scrolling moves
    // what is there already.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    connect(this, &QListWidget::itemSelectionChanged, this, &ListWidget::itemSelectionChange);
}

ListWidget::~ListWidget() = default;

IListItem *ListWidget::findItem(const QString &key) const
{
    for (int row = 0; row < count(); ++row) {
        auto *candidate = dynamic_cast<IListItem *>(item(row));
        if (candidate && candidate->itemKey() == key)
            return candidate;
    }
    return nullptr;
}

void ListWidget::setLayoutType(int type, int index)
{
    m_layoutType = type;
    m_layoutIndex = index;
}

void ListWidget::shadow(bool shadow)
{
    if (m_shadow == shadow)
        return;
    m_shadow = shadow;
    viewport()->update();
}

void ListWidget::setViewportMargins(int left, int top, int right, int bottom)
{
    QListWidget::setViewportMargins(left, top, right, bottom);
}

void ListWidget::itemSelectionChange()
{
    if (selectionMode() != SingleSelection)
        return;

    blockSignals(true);
    if (selectedItems().isEmpty() && currentItem())
        currentItem()->setSelected(true);
    blockSignals(false);
    Q_EMIT itemSelectionChanged(currentRow());
}

void ListWidget::setCurrentRowSlot(int idx)
{
    setCurrentRow(idx);
}

void ListWidget::itemClick(QListWidgetItem *item)
{
    setCurrentItem(item);
}

QStringList ListWidget::mimeTypes() const
{
    return QListWidget::mimeTypes()
           << QStringLiteral("text/uri-list") << QStringLiteral("text/plain");
}

Qt::DropActions ListWidget::supportedDropActions() const
{
    return Qt::CopyAction | Qt::MoveAction;
}

void ListWidget::dragEnterEvent(QDragEnterEvent *event)
{
    if (Nocturne::QtVersion::modifiers(event) & (Qt::ControlModifier | Qt::ShiftModifier)) {
        event->ignore();
    } else if (event->source() == this) {
        m_draggedIndex = indexAt(Nocturne::QtVersion::position(event));
        event->accept();
    } else if (event->mimeData()->hasUrls()) {
        event->acceptProposedAction();
    } else {
        QListWidget::dragEnterEvent(event);
    }
}

void ListWidget::dragMoveEvent(QDragMoveEvent *event)
{
    if (event->source())
        event->accept();
    else if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
    else
        QListWidget::dragMoveEvent(event);
}

void ListWidget::dropEvent(QDropEvent *event)
{
    if (event->source()) {
        dropFromWithin(event);
        return;
    }
    if (!Nocturne::hasSoundItems(event)) {
        event->ignore();
        return;
    }
    const bool taken = event->mimeData()->hasUrls() && dropUrls(event);
    QListWidget::dropEvent(event);
    // The base class declines what it makes no items of.
    if (taken)
        event->accept();
}

void ListWidget::dropFromWithin(QDropEvent *event)
{
    // A view that hears of a completed move deletes what it let be dragged.
    const bool canCopy = event->possibleActions() & Qt::CopyAction;
    event->setDropAction(canCopy ? Qt::CopyAction : Qt::IgnoreAction);
    event->accept();

    QListWidgetItem *dragged = itemFromIndex(m_draggedIndex);
    QListWidgetItem *target = itemAt(Nocturne::QtVersion::position(event));
    m_draggedIndex = QModelIndex();
    if (dragged && dragged != target)
        Q_EMIT itemMoved(dragged, target);
}

/// Reports the URLs; false when the list of them turns out to be empty.
bool ListWidget::dropUrls(QDropEvent *event)
{
    QStringList files;
    const QList<QUrl> urls = event->mimeData()->urls();
    for (const QUrl &url : urls)
        files << url.toLocalFile();
    if (files.isEmpty())
        return false;
    Q_EMIT dragDropFiles(files);
    event->acceptProposedAction();
    return true;
}

void ListWidget::mousePressEvent(QMouseEvent *event)
{
    if (dragEnabled() && event->button() == Qt::LeftButton) {
        m_dragPending = true;
        m_pressPos = event->pos();
    }
    QListWidget::mousePressEvent(event);
}

void ListWidget::mouseMoveEvent(QMouseEvent *event)
{
    const int distance = (event->pos() - m_pressPos).manhattanLength();
    if (m_dragPending && distance < QApplication::startDragDistance())
        return;
    QListWidget::mouseMoveEvent(event);
}

void ListWidget::mouseReleaseEvent(QMouseEvent *event)
{
    m_dragPending = false;
    m_draggedIndex = QModelIndex();
    QListWidget::mouseReleaseEvent(event);
}

void ListWidget::scrollContentsBy(int dx, int dy)
{
    QListWidget::scrollContentsBy(dx, dy);
    const int movedUp = verticalOffset() - m_shownOffset;
    m_shownOffset = verticalOffset();
    if (!m_shadow)
        return;

    // The shadows have moved along with the items and have to be put right at either end.
    const int upper = Nocturne::edgeShadowHeight + qMax(0, -movedUp);
    const int lower = Nocturne::edgeShadowHeight + qMax(0, movedUp);
    viewport()->update(0, 0, viewport()->width(), upper);
    viewport()->update(0, height() - lower, viewport()->width(), lower);
}

void ListWidget::paintEvent(QPaintEvent *event)
{
    // The base class lays out its items when the list itself is painted, which the viewport spares
    // it when it covers the list.
    const int offset = verticalOffset();
    executeDelayedItemsLayout();
    if (verticalOffset() != offset)
        viewport()->update(); // More has moved than is being painted now.
    m_shownOffset = verticalOffset();
    paintBackground();
    paintItems(event->region());
    if (m_shadow && verticalScrollBar())
        paintShadows();
}

void ListWidget::paintItems(const QRegion &region)
{
    // The base class paints every item between the ends of a region; after a scroll, however, only
    // those close to the ends have changed.
    const auto paint = [this](const QRect &part) {
        QPaintEvent event(part);
        QListWidget::paintEvent(&event);
    };
    QRect part;
    for (const QRect &rect : region) {
        if (!part.isNull() && areRowsBetween(part.bottom(), rect.top())) {
            paint(part);
            part = rect;
        } else {
            part |= rect;
        }
    }
    paint(part);
}

/// Whether the items at \a above and \a below are not even neighbours.
bool ListWidget::areRowsBetween(int above, int below) const
{
    if (viewMode() != ListMode || flow() != TopToBottom || isWrapping())
        return false;
    const int x = viewport()->width() / 2;
    const QModelIndex upper = indexAt(QPoint(x, above));
    const QModelIndex lower = indexAt(QPoint(x, below));
    return upper.isValid() && lower.isValid() && upper.row() + 1 < lower.row();
}

void ListWidget::paintBackground()
{
    QPainter painter(viewport());
    painter.fillRect(rect(), Nocturne::ThemePaint::window(backgroundShift));
}

void ListWidget::paintShadows()
{
    const int offset = verticalOffset() + contentMargin;
    const bool above = offset > verticalScrollBar()->minimum();
    const bool below = offset < verticalScrollBar()->maximum();
    QPainter painter(viewport());
    Nocturne::paintEdgeShadows(&painter, size(), above, below);
}

int ListWidget::horizontalOffset() const
{
    return QListWidget::horizontalOffset() - contentMargin;
}

int ListWidget::verticalOffset() const
{
    return QListWidget::verticalOffset() - contentMargin;
}
