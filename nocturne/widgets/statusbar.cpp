#include "statusbar.h"

#include <nocturne/painting/themepaint_p.h>

#include <QtGui/QPainter>

StatusBar::StatusBar(QWidget *parent)
    : QStatusBar(parent)
{}

void StatusBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Nocturne::ThemePaint::verticalGradient(
        rect().top(), rect().height(),
        {{0.0, Nocturne::ThemePaint::window()}, {1.0, Nocturne::ThemePaint::window(-7)}}));
    painter.drawRect(rect());
}
