#ifndef NOCTURNE_LISTWIDGET_H
#define NOCTURNE_LISTWIDGET_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPoint>
#include <QtWidgets/QListWidget>

class IListItem;

/// A dark list that reports files dropped from outside and items dragged onto each other.
///
/// The list never moves or copies an item because of a drag within the application: it says which
/// item was dropped where and leaves the rest to the host. In single selection mode the current
/// item can't be deselected. Soft shadows show that there is more above or below; they compare the
/// offset in pixels with the range of the vertical scroll bar, and so are exact when the list
/// scrolls per pixel.
///
/// As with any list, drops arrive once setAcceptDrops() or setDragDropMode() allows them, and drags
/// start once setDragEnabled() does. A DarkUX must exist when the list paints. A slot that wants to
/// delete the list uses deleteLater().
///
/// \code
/// auto *clips = new ListWidget(panel);
/// clips->setDragDropMode(QAbstractItemView::DragDrop);
/// clips->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
/// connect(clips, &ListWidget::dragDropFiles, playlist, &Playlist::import);
/// connect(clips, &ListWidget::itemMoved, playlist, &Playlist::moveClip);
/// \endcode
class NOCTURNE_EXPORT ListWidget : public QListWidget
{
    Q_OBJECT
    Q_PROPERTY(bool shadow MEMBER m_shadow WRITE shadow)

public:
    explicit ListWidget(QWidget *parent = nullptr);
    ~ListWidget() override;

    /// The first item that implements IListItem and whose key is \a key, upper and lower case
    /// being different; null when there is none.
    IListItem *findItem(const QString &key) const;

    /// Keeps two numbers for the host; the list itself doesn't use them. Both are -1 at first.
    void setLayoutType(int type, int index);
    int layoutType() const { return m_layoutType; }
    int layoutIndex() const { return m_layoutIndex; }

    /// Whether to paint the shadows at the upper and lower edge. On at first.
    void shadow(bool shadow);

    /// Sets the margins around the scrolled area, in pixels.
    void setViewportMargins(int left, int top, int right, int bottom);

Q_SIGNALS:
    /// Files, or other things that have URLs, were dropped from another application. Holds a local
    /// path for each URL in their order, empty for a URL that is not a local file.
    void dragDropFiles(const QStringList &files);

    /// In single selection mode: the selection has changed, and \a idx is the current row. Not
    /// emitted in the other modes; QListWidget's signal without argument is emitted in all.
    void itemSelectionChanged(int idx);

    /// \a item, of this list, was dragged onto \a target, null for the empty space. Not emitted
    /// when both are the same. \a item is what the pointer was over when the drag last entered the
    /// list.
    void itemMoved(QListWidgetItem *item, QListWidgetItem *target);

private Q_SLOTS:
    void itemSelectionChange();
    void setCurrentRowSlot(int idx);
    void itemClick(QListWidgetItem *item);

protected:
    QStringList mimeTypes() const override;
    Qt::DropActions supportedDropActions() const override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent *event) override;
    int horizontalOffset() const override;
    int verticalOffset() const override;

private:
    void dropFromWithin(QDropEvent *event);
    bool dropUrls(QDropEvent *event);
    void paintBackground();
    void paintItems(const QRegion &region);
    bool areRowsBetween(int above, int below) const;
    void paintShadows();

    bool m_dragPending = false;
    bool m_shadow = true;
    QPoint m_pressPos;
    QPersistentModelIndex m_draggedIndex; ///< of the item, which may be deleted during the drag
    int m_shownOffset = 0;                ///< the vertical offset of what is on the screen
    int m_layoutType = -1;
    int m_layoutIndex = -1;
};

#endif
