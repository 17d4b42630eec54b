#ifndef NOCTURNE_ITEMVIEW_P_H
#define NOCTURNE_ITEMVIEW_P_H

#include <QtCore/QRect>
#include <QtWidgets/QStyle>

class QStyleOptionViewItem;

/// The items of tables, trees and lists by a road that keeps their text: the pixels, rectangles and
/// sizes are the common style's, which gets everything that is not a plain item.
namespace Nocturne::ItemView {

/// The option of an item with one line of text that can be kept, and that \a style would not break;
/// null for all else, which is left to the common style.
const QStyleOptionViewItem *plainItem(const QStyle *style, const QStyleOption *option,
                                      const QWidget *widget);

/// Whether the text of an item was shaped before. Large models are measured from end to end, most
/// of their items never to be seen: their text is not worth keeping.
bool isShaped(const QStyleOption *option);

/// Where \a element of a plain item lies: its check indicator, decoration, text or focus frame.
QRect elementRect(const QStyle *style, QStyle::SubElement element, const QStyleOptionViewItem &item,
                  const QWidget *widget);

/// How large a plain item is around what it shows.
QSize size(const QStyle *style, const QStyleOptionViewItem &item, const QWidget *widget);

} // namespace Nocturne::ItemView

#endif
