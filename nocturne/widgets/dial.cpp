#include "dial.h"

#include <QtGui/QWheelEvent>

Dial::Dial(QWidget *parent)
    : QDial(parent)
{}

void Dial::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
