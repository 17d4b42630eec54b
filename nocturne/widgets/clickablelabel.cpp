#include "clickablelabel.h"

ClickableLabel::ClickableLabel(QWidget *parent, Qt::WindowFlags)
    : QLabel(parent)
{}

void ClickableLabel::mousePressEvent(QMouseEvent *)
{
    Q_EMIT clicked();
}
