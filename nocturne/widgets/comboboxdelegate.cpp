#include "comboboxdelegate.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>

namespace {

constexpr int separatorHeight = 10;

QString kindOf(const QModelIndex &index)
{
    return index.data(Qt::AccessibleDescriptionRole).toString();
}

bool isSeparator(const QString &kind)
{
    return kind == QLatin1String("separator");
}

void paintSeparator(QPainter *painter, const QRect &rect)
{
    painter->save();
    painter->setPen(Qt::gray);
    const int y = rect.center().y();
    painter->drawLine(rect.left(), y, rect.right(), y);
    painter->restore();
}

} // namespace

ComboBoxDelegate::ComboBoxDelegate(QObject *parent)
    : QItemDelegate(parent)
{}

ComboBoxDelegate::~ComboBoxDelegate() = default;

void ComboBoxDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    const QString kind = kindOf(index);
    if (isSeparator(kind)) {
        paintSeparator(painter, option.rect);
        return;
    }

    QStyleOptionViewItem adapted = option;
    if (kind == QLatin1String("parent")) {
        adapted.state |= QStyle::State_Enabled;
    } else if (kind == QLatin1String("child")) {
        const QFontMetrics metrics(option.font);
        adapted.rect.adjust(metrics.horizontalAdvance(QStringLiteral("    ")), 0, 0, 0);
        adapted.textElideMode = Qt::ElideNone;
    }
    QItemDelegate::paint(painter, adapted, index);
}

QSize ComboBoxDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (isSeparator(kindOf(index)))
        return QSize(0, separatorHeight);
    return QItemDelegate::sizeHint(option, index);
}

#include "moc_comboboxdelegate.cpp"
