#include "gradienttoolslider_p.h"

#include <QtGui/QPainter>

GradientToolSlider::GradientToolSlider(QWidget *parent, const QColor &color)
    : QWidget(parent)
    , m_color(color)
{
    setFixedSize(9, 16);
}

void GradientToolSlider::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    update();
}

void GradientToolSlider::setActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    update();
}

void GradientToolSlider::setPainted(bool painted)
{
    if (painted == m_painted)
        return;
    m_painted = painted;
    update();
}

void GradientToolSlider::paintEvent(QPaintEvent *)
{
    if (!m_painted)
        return;
    QPainter painter(this);
    painter.setPen(Qt::black);
    painter.setBrush(m_color);
    painter.drawRect(0, 7, 8, 8);
    if (m_active) {
        const QPoint head[] = {{0, 7}, {4, 0}, {8, 7}};
        painter.drawPolygon(head, 3);
    } else {
        painter.drawLine(4, 0, 4, 7);
    }
}
