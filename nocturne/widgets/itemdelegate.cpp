#include "itemdelegate.h"

#include <nocturne/painting/kepttext_p.h>

#include <QtGui/QPainter>
#include <QtGui/QTextOption>
#include <QtWidgets/QListWidget>

namespace {

constexpr QRgb selectedColor = 0xffed6e00; // rgb(237, 110, 0)
constexpr qreal frameWidth = 2.0;
constexpr int frameDistance = 2;
constexpr int columnSpacing = 10;
constexpr int listMargins = 16;

} // namespace

ItemDelegate::ItemDelegate(QObject *parent)
    : QItemDelegate(parent)
{}

ItemDelegate::~ItemDelegate() = default;

void ItemDelegate::setTopMargin(int margin)
{
    m_topMargin = margin;
}

void ItemDelegate::setRound(int radius)
{
    m_radius = radius;
}

void ItemDelegate::setEnableText(bool enable)
{
    m_textEnabled = enable;
}

QSize ItemDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QSize hint = QItemDelegate::sizeHint(option, index);
    const auto *list = qobject_cast<const QListWidget *>(parent());
    if (hint.isEmpty() || !list || list->rect().width() <= hint.width())
        return hint;

    const int width = list->rect().width();
    const int columns = qMax(1, width / (hint.width() + columnSpacing));
    hint.setWidth((width - listMargins) / columns);
    if (m_textEnabled)
        hint.rheight() += 2 * m_topMargin;
    return hint;
}

void ItemDelegate::drawDecoration(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QRect &rect, const QPixmap &pixmap) const
{
    const QRect pixmapRect = rect.translated(0, m_topMargin);
    m_frame = pixmapRect.adjusted(-frameDistance, -frameDistance, frameDistance, frameDistance);
    if (option.state & QStyle::State_Selected) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(
            QPen(QColor(selectedColor), frameWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(m_frame, m_radius, m_radius, Qt::AbsoluteSize);
        painter->restore();
    }
    painter->drawPixmap(pixmapRect, pixmap);
}

void ItemDelegate::drawDisplay(QPainter *painter, const QStyleOptionViewItem &option,
                               const QRect &rect, const QString &text) const
{
    if (!m_textEnabled)
        return;
    const bool selected = option.state & QStyle::State_Selected;
    painter->setPen(selected ? QColor(selectedColor) : option.palette.color(QPalette::ButtonText));
    painter->setBrush(Qt::NoBrush);
    painter->setFont(option.font);
    Nocturne::KeptText::draw(painter, rect.translated(0, m_topMargin / 2), text, QTextOption());
}
