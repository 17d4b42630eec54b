#include "colorbar.h"

#include <QtGui/QPainter>

namespace {

constexpr int flickerMilliseconds = 500;
constexpr int barInset = 2;
constexpr int dotInset = 3;

} // namespace

ColorBar::ColorBar(QWidget *parent)
    : QWidget(parent)
{
    m_timer.setInterval(flickerMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, &ColorBar::timeOut);
}

ColorBar::~ColorBar() = default;

void ColorBar::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    update();
}

void ColorBar::setElipse(bool elipse)
{
    m_elipse = elipse;
}

void ColorBar::startFlicker()
{
    if (m_flickering)
        return;
    m_timer.start();
    m_flickering = true;
}

void ColorBar::stopFlicker()
{
    if (!m_flickering)
        return;
    m_timer.stop();
    m_flickering = false;
    update();
}

void ColorBar::timeOut()
{
    m_phaseOn = !m_phaseOn;
    update();
}

void ColorBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (!m_elipse) {
        painter.fillRect(rect().adjusted(barInset, 0, -barInset, 0), m_color);
        return;
    }
    if (m_flickering && !m_phaseOn)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_color);
    painter.drawEllipse(rect().adjusted(dotInset, dotInset, -dotInset, -dotInset));
}
