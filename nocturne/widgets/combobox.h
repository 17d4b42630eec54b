#ifndef NOCTURNE_COMBOBOX_H
#define NOCTURNE_COMBOBOX_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QComboBox>

#include <memory>

class QStandardItemModel;

/// A combo box whose list can be grouped under headings, and which leaves the wheel to its parent.
///
/// Headings ("parent" items) can't be chosen; the "child" items below them are indented. The kind
/// of an item is the text in its Qt::AccessibleDescriptionRole, and insertSeparator() works as
/// ever. The combo box owns the model of its groups.
///
/// The first row becomes current when it is added, as in any combo box, even if it is a heading.
///
/// \code
/// auto *source = new ComboBox(panel);
/// source->addParentItem(tr("Cameras"));
/// source->addChildItem(tr("Stage left"), 1);
/// source->addChildItem(tr("Stage right"), 2);
/// source->setCurrentIndex(source->findData(1));
/// \endcode
class NOCTURNE_EXPORT ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget *parent = nullptr);
    ~ComboBox() override;

    /// Appends a heading. The first heading or child replaces the items the combo box had by
    /// other means.
    void addParentItem(const QString &text);

    /// Appends a choice below the last heading, with \a data in Qt::UserRole. Its text is \a text
    /// followed by four spaces, which keeps it clear of the right edge.
    void addChildItem(const QString &text, const QVariant &data);

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    QStandardItemModel *groupedModel();

    std::unique_ptr<QStandardItemModel> m_model;
};

#endif
