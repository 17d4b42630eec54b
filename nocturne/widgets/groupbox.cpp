#include "groupbox.h"

#include <nocturne/theme/themepaint_p.h>

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionGroupBox>

namespace {

constexpr int titleHeight = 25;
constexpr int titleWidth = 100;
constexpr int ruleTop = 30;
constexpr qreal checkRadius = 3.0;

void paintCheck(QPainter *painter, const QRect &box, bool on)
{
    painter->setPen(ThemePaint::window(5));
    painter->drawLine(box.x() + 1, box.top() + ruleTop, box.right() - 1, box.top() + ruleTop);

    const QRect cell(box.left(), box.top(), titleHeight, titleHeight);
    painter->setPen(Qt::NoPen);
    painter->setBrush(ThemePaint::window(-5));
    painter->drawRoundedRect(cell.adjusted(5, 5, -5, -5), checkRadius, checkRadius);
    if (on) {
        painter->setBrush(QColor(ThemePaint::accentBlue));
        painter->drawRoundedRect(cell.adjusted(7, 7, -7, -7), checkRadius, checkRadius);
    }
}

} // namespace

GroupBox::GroupBox(QWidget *parent)
    : QGroupBox(parent)
{}

void GroupBox::paintEvent(QPaintEvent *)
{
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    const QRect r = rect();

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isCheckable())
        paintCheck(&painter, r, option.state & QStyle::State_On);

    painter.setPen(ThemePaint::buttonText(option.state & QStyle::State_Enabled));
    painter.drawText(QRect(r.left() + titleHeight, r.top(), titleWidth, titleHeight),
                     Qt::AlignLeft | Qt::AlignVCenter, option.text);
}
