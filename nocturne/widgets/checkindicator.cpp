#include "checkindicator_p.h"

#include <nocturne/painting/kepttext_p.h>
#include <nocturne/painting/themepaint_p.h>

#include <QtGui/QPainter>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionButton>

namespace Nocturne {

namespace {

constexpr QRect cellAtLeft(0, 1, 18, 18);
constexpr QRgb boxColor = 0xff1f1f1f;  // rgb(31, 31, 31)
constexpr QRgb edgeColor = 0x80434343; // rgba(67, 67, 67, 128)

void paintBox(QPainter *painter, const QRect &box)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(boxColor));
    painter->drawRect(box);

    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(QColor::fromRgba(edgeColor));
    painter->drawLine(box.x() + 1, box.bottom() + 1, box.right() - 1, box.bottom() + 1);
}

void paintDot(QPainter *painter, const QRect &dot)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(ThemePaint::accentBlue));
    painter->drawEllipse(dot);
}

} // namespace

void paintCheckIndicator(QAbstractButton *button, const QStyleOptionButton &option)
{
    // The style mirrors the caption; the indicator follows it to the other side.
    const QRect cell = QStyle::visualRect(option.direction, option.rect, cellAtLeft);
    const QRect text =
        button->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, button);

    QPainter painter(button);
    painter.setLayoutDirection(option.direction);
    paintBox(&painter, cell.adjusted(3, 3, -3, -3));
    if (option.state & QStyle::State_On)
        paintDot(&painter, cell.adjusted(5, 5, -5, -5));

    painter.setPen(ThemePaint::buttonText(option.state & QStyle::State_Enabled));
    Nocturne::KeptText::draw(&painter, text, Qt::AlignLeft | Qt::AlignVCenter, option.text);
}

} // namespace Nocturne
