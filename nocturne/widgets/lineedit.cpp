#include "lineedit.h"

#include <nocturne/painting/themepaint_p.h>

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionFrame>

namespace {

constexpr qreal cornerRadius = 6.0;

void paintField(QPainter *painter, const QRect &r)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(Nocturne::ThemePaint::window(-11));
    painter->drawRoundedRect(r, cornerRadius, cornerRadius);

    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(Nocturne::ThemePaint::window(33, 96));
    painter->drawLine(r.x() + 4, r.bottom() + 1, r.right() - 4, r.bottom() + 1);
}

} // namespace

LineEdit::LineEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setFrame(false);
}

void LineEdit::paintEvent(QPaintEvent *event)
{
    {
        // The base opens a painter of its own, and there can be only one at a time.
        QPainter painter(this);
        QStyleOptionFrame option;
        initStyleOption(&option);
        paintField(&painter, style()->subElementRect(QStyle::SE_LineEditContents, &option, this));
    }
    QLineEdit::paintEvent(event);
}
