#include "widget.h"

#include <nocturne/painting/themepaint_p.h>

#include <QtGui/QPainter>

Widget::Widget(QWidget *parent)
    : QWidget(parent)
{}

void Widget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Nocturne::ThemePaint::window());
}
