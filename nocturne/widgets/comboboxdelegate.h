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

#endif
