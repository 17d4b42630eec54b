#include "groupbox.h"

#include <nocturne/painting/kepttext_p.h>
#include <nocturne/painting/themepaint_p.h>
#include <nocturne/theme/qtversion_p.h>

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionGroupBox>

namespace {

constexpr int titleHeight = 25;
constexpr int titleWidth = 100;
constexpr int ruleTop = 30;
constexpr qreal checkRadius = 3.0;

/// The square at the start of the title line. As the style's own check box, it stands at the right
/// end when the layout goes from right to left.
QRect checkCell(const QStyleOption &option)
{
    const QRect &r = option.rect;
    return QStyle::visualRect(option.direction, r,
                              QRect(r.left(), r.top(), titleHeight, titleHeight));
}

QRect titleRect(const QStyleOption &option)
{
    const QRect &r = option.rect;
    return QStyle::visualRect(option.direction, r,
                              QRect(r.left() + titleHeight, r.top(), titleWidth, titleHeight));
}

void paintRule(QPainter *painter, const QRect &box)
{
    painter->setPen(Nocturne::ThemePaint::window(5));
    painter->drawLine(box.x() + 1, box.top() + ruleTop, box.right() - 1, box.top() + ruleTop);
}

void paintCheck(QPainter *painter, const QRect &cell, bool on)
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(Nocturne::ThemePaint::window(-5));
    painter->drawRoundedRect(cell.adjusted(5, 5, -5, -5), checkRadius, checkRadius);
    if (on) {
        painter->setBrush(QColor(Nocturne::ThemePaint::accentBlue));
        painter->drawRoundedRect(cell.adjusted(7, 7, -7, -7), checkRadius, checkRadius);
    }
}

} // namespace

GroupBox::GroupBox(QWidget *parent)
    : QGroupBox(parent)
{}

bool GroupBox::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return mouseEvent(static_cast<QMouseEvent *>(event));
    default:
        return QGroupBox::event(event);
    }
}

/// Clicks anywhere on the square go to the style's check box, which is smaller.
bool GroupBox::mouseEvent(QMouseEvent *event)
{
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    if (!isCheckable() || !checkCell(option).contains(event->pos()))
        return QGroupBox::event(event);

    const QRect check =
        style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxCheckBox, this);
    QMouseEvent moved = Nocturne::QtVersion::movedEvent(event, check.center());
    moved.setTimestamp(event->timestamp());
    const bool handled = QGroupBox::event(&moved);
    event->setAccepted(moved.isAccepted());
    return handled;
}

void GroupBox::paintEvent(QPaintEvent *)
{
    QStyleOptionGroupBox option;
    initStyleOption(&option);

    QPainter painter(this);
    painter.setLayoutDirection(option.direction);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isCheckable()) {
        paintRule(&painter, option.rect);
        paintCheck(&painter, checkCell(option), option.state & QStyle::State_On);
    }

    painter.setPen(Nocturne::ThemePaint::buttonText(option.state & QStyle::State_Enabled));
    Nocturne::KeptText::draw(&painter, titleRect(option), Qt::AlignLeft | Qt::AlignVCenter,
                             option.text);
}
