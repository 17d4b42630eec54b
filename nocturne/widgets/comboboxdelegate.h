#ifndef NOCTURNE_COMBOBOXDELEGATE_H
#define NOCTURNE_COMBOBOXDELEGATE_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QItemDelegate>

/// Draws the grouped list of a ComboBox: headings, indented items and separators.
///
/// The kind of a row is the text in its Qt::AccessibleDescriptionRole: "parent" is drawn as if
/// enabled, "child" is indented by four spaces and not elided, "separator" is a gray line ten
/// pixels high, and anything else is drawn as QItemDelegate does. ComboBox installs one by itself.
///
/// \code
/// auto *list = new QListView(panel);
/// list->setModel(groupedModel);
/// list->setItemDelegate(new ComboBoxDelegate(list));
/// \endcode
///
/// The library has the class once more for its own combo boxes. qobject_cast() and dynamic_cast
/// know both as one; what compares meta-objects itself, such as findChild<ComboBoxDelegate *>(),
/// finds those only that the host has made.
class NOCTURNE_HOSTKIT ComboBoxDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit ComboBoxDelegate(QObject *parent = nullptr);
    ~ComboBoxDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

// By the name of the class, which the host's delegates and the library's have in common.

template <>
inline ComboBoxDelegate *qobject_cast<ComboBoxDelegate *>(QObject *object)
{
    return static_cast<ComboBoxDelegate *>(object ? object->qt_metacast("ComboBoxDelegate")
                                                  : nullptr);
}

template <>
inline const ComboBoxDelegate *qobject_cast<const ComboBoxDelegate *>(QObject *object)
{
    return qobject_cast<ComboBoxDelegate *>(object);
}

template <>
inline const ComboBoxDelegate *qobject_cast<const ComboBoxDelegate *>(const QObject *object)
{
    return qobject_cast<ComboBoxDelegate *>(const_cast<QObject *>(object));
}

#endif
