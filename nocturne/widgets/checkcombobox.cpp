#include "checkcombobox.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QStandardItemModel>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

CheckComboBox::CheckComboBox(QWidget *parent)
    : QComboBox(parent)
    , m_model(std::make_unique<QStandardItemModel>())
{
    setModel(m_model.get());
    setEditable(true);
    // Return in the field must not add the summary to the items.
    setInsertPolicy(NoInsert);
    lineEdit()->setReadOnly(true);
    lineEdit()->installEventFilter(this);
    setItemDelegate(new QCheckListStyledItemDelegate(this));

    connect(lineEdit(), &QLineEdit::selectionChanged, lineEdit(), &QLineEdit::deselect);
    connect(view(), &QAbstractItemView::pressed, this, &CheckComboBox::itemPressed);
    // The second press of a double click is a press of its own for whoever clicks fast.
    connect(view(), &QAbstractItemView::doubleClicked, this, &CheckComboBox::itemPressed);
    connect(m_model.get(), &QStandardItemModel::dataChanged, this,
            &CheckComboBox::modelDataChanged);

    // The base class puts the text of the current item into the field when one of these happens.
    const auto keepSummary = [this] { updateSummary(); };
    connect(m_model.get(), &QStandardItemModel::rowsInserted, this, keepSummary);
    connect(m_model.get(), &QStandardItemModel::rowsRemoved, this, keepSummary);
    connect(m_model.get(), &QStandardItemModel::modelReset, this, keepSummary);
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this, keepSummary);
}

CheckComboBox::~CheckComboBox() = default;

QStandardItem *CheckComboBox::addCheckItem(const QString &text, const QVariant &data,
                                           Qt::CheckState state)
{
    auto *item = new QStandardItem(text);
    item->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
    item->setCheckState(state);
    item->setData(data);
    m_model->appendRow(item);
    return item;
}

int CheckComboBox::globalCheckState() const
{
    const int rows = m_model->rowCount();
    if (rows == 0)
        return Undetermined;

    int checked = 0;
    for (int row = 0; row < rows; ++row) {
        const QStandardItem *item = m_model->item(row);
        const Qt::CheckState state = item ? item->checkState() : Qt::Unchecked;
        if (state == Qt::PartiallyChecked)
            return Undetermined;
        if (state == Qt::Checked)
            ++checked;
    }
    if (checked == 0)
        return NoneChecked;
    return checked == rows ? AllChecked : SomeChecked;
}

void CheckComboBox::setNoneCheckedText(const QString &text)
{
    m_noneCheckedText = text;
    updateSummary();
}

void CheckComboBox::setAllCheckedText(const QString &text)
{
    m_allCheckedText = text;
    updateSummary();
}

void CheckComboBox::setUndeterminedText(const QString &text)
{
    m_undeterminedText = text;
    updateSummary();
}

bool CheckComboBox::eventFilter(QObject *watched, QEvent *event)
{
    // Whoever clicks fast makes double clicks.
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (watched == lineEdit() && isPress) {
        m_openingButton = static_cast<QMouseEvent *>(event)->button();
        qApp->installEventFilter(this);
        showPopup();
        return true;
    }
    if (m_openingButton != Qt::NoButton && watched->isWidgetType()) {
        if (isPress)
            endOpeningClick();
        else if (isOpeningRelease(event)) {
            endOpeningClick();
            return true;
        }
    }
    return QComboBox::eventFilter(watched, event);
}

/// The popup takes the release of the press that has opened it for a choice, and closes. So that
/// release is kept from it, wherever it goes.
bool CheckComboBox::isOpeningRelease(const QEvent *event) const
{
    return event->type() == QEvent::MouseButtonRelease
           && static_cast<const QMouseEvent *>(event)->button() == m_openingButton;
}

void CheckComboBox::endOpeningClick()
{
    m_openingButton = Qt::NoButton;
    qApp->removeEventFilter(this);
}

void CheckComboBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void CheckComboBox::modelDataChanged()
{
    updateSummary();
    Q_EMIT globalCheckStateChanged(globalCheckState());
}

void CheckComboBox::itemPressed(const QModelIndex &index)
{
    if (QStandardItem *item = m_model->itemFromIndex(index))
        item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void CheckComboBox::updateSummary()
{
    if (lineEdit())
        lineEdit()->setText(summary());
}

QString CheckComboBox::summary() const
{
    switch (globalCheckState()) {
    case NoneChecked:
        return m_noneCheckedText;
    case AllChecked:
        return m_allCheckedText;
    case Undetermined:
        return m_undeterminedText;
    }
    return checkedTexts();
}

QString CheckComboBox::checkedTexts() const
{
    QStringList texts;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const QStandardItem *item = m_model->item(row);
        if (item && item->checkState() == Qt::Checked)
            texts << item->text();
    }
    return texts.join(QStringLiteral(", "));
}

CheckComboBox::QCheckListStyledItemDelegate::QCheckListStyledItemDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{}

void CheckComboBox::QCheckListStyledItemDelegate::paint(QPainter *painter,
                                                        const QStyleOptionViewItem &option,
                                                        const QModelIndex &index) const
{
    QStyleOptionViewItem adapted = option;
    adapted.showDecorationSelected = false;
    QStyledItemDelegate::paint(painter, adapted, index);
}

bool CheckComboBox::QCheckListStyledItemDelegate::editorEvent(QEvent *event,
                                                              QAbstractItemModel *model,
                                                              const QStyleOptionViewItem &option,
                                                              const QModelIndex &index)
{
    // A release on the box would undo what the press has done.
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return false;
    default:
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    }
}

#include "moc_checkcombobox.cpp"
