#include "monitor.h"

#include "testpictures.h"

#include <QtGui/QPainter>

Monitor::Monitor(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizeIncrement(pictureSize); // the ratio that a letter box keeps
    setMinimumSize(pictureSize / 4);
}

void Monitor::setPicture(const QImage &picture)
{
    m_picture = picture;
    update();
}

void Monitor::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_picture.isNull())
        painter.fillRect(rect(), Qt::black);
    else
        painter.drawImage(rect(), m_picture);
}
