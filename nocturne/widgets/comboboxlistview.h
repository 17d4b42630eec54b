#ifndef NOCTURNE_COMBOBOXLISTVIEW_H
#define NOCTURNE_COMBOBOXLISTVIEW_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QPointer>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>

/// A list view for the popup of a combo box that remembers the combo box it serves.
///
/// It starts without a parent; QComboBox::setView() takes ownership of it.
///
/// \code
/// combo->setView(new ComboBoxListView(combo));
/// \endcode
class NOCTURNE_EXPORT ComboBoxListView : public QListView
{
    Q_OBJECT

public:
    /// \a cmb is not owned and may be null.
    explicit ComboBoxListView(QComboBox *cmb = nullptr);
    ~ComboBoxListView() override;

    /// The combo box given to the constructor; null once it is gone.
    QComboBox *comboBox() const { return m_comboBox; }

private:
    QPointer<QComboBox> m_comboBox;
};

#endif
