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
    painter.setBrush(ThemePaint::verticalGradient(
        rect(), {{0.0, ThemePaint::window()}, {1.0, ThemePaint::window(-7)}}));
    painter.drawRect(rect());
}
