#ifndef NOCTURNE_CHECKCOMBOBOX_H
#define NOCTURNE_CHECKCOMBOBOX_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QStyledItemDelegate>

#include <memory>

class QStandardItem;
class QStandardItemModel;

/// A combo box whose popup is a list of check boxes and whose field sums up what is checked.
///
/// A press anywhere on an item toggles it, and the popup stays open; so does the space bar. The
/// field can't be edited or selected; a press on it opens the popup. The wheel is left to the
/// parent. The combo box owns its items. A slot that wants to delete it uses deleteLater(): the
/// popup may be toggling an item at this moment.
///
/// \code
/// auto *outputs = new CheckComboBox(panel);
/// outputs->setNoneCheckedText(tr("No output"));
/// outputs->setAllCheckedText(tr("All outputs"));
/// outputs->addCheckItem(tr("Program"), 1, Qt::Checked);
/// outputs->addCheckItem(tr("Preview"), 2, Qt::Unchecked);
/// \endcode
class NOCTURNE_HOSTKIT CheckComboBox : public QComboBox
{
    Q_OBJECT

public:
    class QCheckListStyledItemDelegate;

    /// What globalCheckState() says of all items together.
    enum GlobalCheckState {
        NoneChecked = 0,
        SomeChecked = 1,
        AllChecked = 2,
        Undetermined = 3 ///< there are no items, or one is partially checked
    };

    explicit CheckComboBox(QWidget *parent = nullptr);
    ~CheckComboBox() override;

    /// Appends an item, with \a data in Qt::UserRole + 1, and returns it; the combo box owns it.
    QStandardItem *addCheckItem(const QString &text, const QVariant &data, Qt::CheckState state);

    /// One of GlobalCheckState.
    int globalCheckState() const;

    /// What the field shows when no item is checked. Empty at first. With some items checked it
    /// shows their texts, separated by ", ".
    void setNoneCheckedText(const QString &text);

    /// What the field shows when every item is checked. Empty at first.
    void setAllCheckedText(const QString &text);

    /// What the field shows when there are no items or one is partially checked. Empty at first.
    void setUndeterminedText(const QString &text);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// An item has changed, for one in its check state; \a state is globalCheckState(). Emitted
    /// once per change, even if the state of all together stays as it was.
    void globalCheckStateChanged(int state);

protected:
    void wheelEvent(QWheelEvent *event) override;

private Q_SLOTS:
    void modelDataChanged();
    void itemPressed(const QModelIndex &index);

private:
    bool isOpeningRelease(const QEvent *event) const;
    void endOpeningClick();
    void updateSummary();
    QString summary() const;
    QString checkedTexts() const;

    std::unique_ptr<QStandardItemModel> m_model;
    Qt::MouseButton m_openingButton = Qt::NoButton; ///< held since it has opened the popup
    QString m_noneCheckedText;
    QString m_allCheckedText;
    QString m_undeterminedText;
};

/// Draws the check items with the highlight on their text alone, and leaves clicks to the combo
/// box, which toggles an item when it is pressed.
class CheckComboBox::QCheckListStyledItemDelegate : public QStyledItemDelegate
{
public:
    explicit QCheckListStyledItemDelegate(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
};

#endif
