#include "lineeditbutton.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPixmap>

LineEditButton::LineEditButton()
{
    const QPixmap picture(QStringLiteral(":/resources/icons/deleffect.png"));
    setToolTip(tr("Clear"));
    setPixmap(picture);
    resize(picture.size());
    setCursor(Qt::ArrowCursor);
}

LineEditButton::~LineEditButton() = default;

void LineEditButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() & Qt::LeftButton)
        Q_EMIT clicked();
}
