#include "frame.h"

#include <nocturne/painting/themepaint_p.h>

#include <QtGui/QPainter>

namespace {

void paintBox(QPainter *painter, const QRect &rect)
{
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(Qt::black);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rect.adjusted(0, 0, -1, -1));
}

void paintRule(QPainter *painter, QRect rect)
{
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(QColor(0, 0, 0, 128));
    rect.moveTop(1);
    painter->drawLine(rect.topLeft(), rect.topRight());
}

void paintRaised(QPainter *painter, const QRect &rect)
{
    painter->setBrush(Nocturne::ThemePaint::verticalGradient(
        1, rect.height() - 2,
        {{0.0, Nocturne::ThemePaint::window(10)}, {1.0, Nocturne::ThemePaint::window(-7)}}));
    painter->setPen(Qt::black);
    painter->drawRect(rect);

    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(Nocturne::ThemePaint::window(23));
    painter->drawLine(2, 1, rect.width() - 3, 1);
}

void paintSunken(QPainter *painter, const QRect &rect)
{
    painter->setBrush(
        Nocturne::ThemePaint::verticalGradient(rect.top(), rect.height(),
                                               {{0.0, Nocturne::ThemePaint::window()},
                                                {0.4, Nocturne::ThemePaint::window(5)},
                                                {1.0, Nocturne::ThemePaint::window(-3)}}));
    painter->drawRect(rect);
}

void paintPlain(QPainter *painter, const QRect &rect)
{
    painter->setPen(Qt::black);
    painter->setBrush(Nocturne::ThemePaint::window(-7));
    painter->drawRect(rect.adjusted(0, 0, 0, -1));

    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(Nocturne::ThemePaint::window(18));
    painter->drawLine(2, rect.height() - 1, rect.width() - 2, rect.height() - 1);
}

} // namespace

Frame::Frame(QWidget *parent)
    : QFrame(parent)
{
    setFrameShape(QFrame::NoFrame);
}

void Frame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    if (frameShape() == QFrame::Box)
        paintBox(&painter, rect());
    else if (frameShape() == QFrame::HLine)
        paintRule(&painter, rect());
    else if (frameShadow() == QFrame::Raised)
        paintRaised(&painter, rect());
    else if (frameShadow() == QFrame::Sunken)
        paintSunken(&painter, rect());
    else
        paintPlain(&painter, rect());
}
