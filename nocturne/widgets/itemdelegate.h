#ifndef NOCTURNE_ITEMDELEGATE_H
#define NOCTURNE_ITEMDELEGATE_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QRect>
#include <QtWidgets/QItemDelegate>

/// Draws the items of an icon list: the picture, framed in orange when selected, and the text.
///
/// As a child of a QListWidget it makes the items as wide as fills the list in even columns. The
/// host sets the delegate on the list.
///
/// \code
/// list->setViewMode(QListView::IconMode);
/// list->setResizeMode(QListView::Adjust);
/// list->setItemDelegate(new ItemDelegate(list));
/// \endcode
class NOCTURNE_EXPORT ItemDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit ItemDelegate(QObject *parent = nullptr);
    ~ItemDelegate() override;

    /// How many pixels the picture moves down; the text moves down by half of it. 5 at first.
    void setTopMargin(int margin);

    /// The corner radius of the selection frame in pixels. 5 at first.
    void setRound(int radius);

    /// Whether to draw the text and to make the items higher for it. On at first.
    void setEnableText(bool enable);

    /// The place of the frame around the picture that was drawn last, selected or not, in the
    /// coordinates of the list's viewport. Null before.
    const QRect &rect() const { return m_frame; }

    /// The base class's hint; when the parent is a wider list, widened to a column of that list
    /// and, with text, heightened by twice the top margin.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void drawDecoration(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                        const QPixmap &pixmap) const override;
    void drawDisplay(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                     const QString &text) const override;

private:
    mutable QRect m_frame;
    int m_topMargin = 5;
    int m_radius = 5;
    bool m_textEnabled = true;
};

#endif
