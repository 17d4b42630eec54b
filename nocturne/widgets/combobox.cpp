#include "combobox.h"

#include "comboboxdelegate.h"

#include <QtGui/QStandardItemModel>
#include <QtGui/QWheelEvent>

ComboBox::ComboBox(QWidget *parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

ComboBox::~ComboBox() = default;

void ComboBox::addParentItem(const QString &text)
{
    auto *item = new QStandardItem(text);
    item->setFlags(item->flags() & ~(Qt::ItemIsSelectable | Qt::ItemIsEnabled));
    item->setData(QStringLiteral("parent"), Qt::AccessibleDescriptionRole);
    groupedModel()->appendRow(item);
}

void ComboBox::addChildItem(const QString &text, const QVariant &data)
{
    auto *item = new QStandardItem(text + QStringLiteral("    "));
    item->setData(data, Qt::UserRole);
    item->setData(QStringLiteral("child"), Qt::AccessibleDescriptionRole);
    groupedModel()->appendRow(item);
}

void ComboBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

QStandardItemModel *ComboBox::groupedModel()
{
    if (!m_model) {
        m_model = std::make_unique<QStandardItemModel>();
        setModel(m_model.get());
        setItemDelegate(new ComboBoxDelegate(this));
    }
    return m_model.get();
}
