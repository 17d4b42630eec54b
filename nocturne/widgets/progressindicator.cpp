#include "progressindicator.h"

#include <QtCore/QTimerEvent>
#include <QtGui/QPainter>

namespace {

constexpr int capsuleCount = 12;
constexpr int degreesPerStep = 30;
constexpr int widestSmallWheel = 32;

} // namespace

ProgressIndicator::ProgressIndicator(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::NoFocus);
}

ProgressIndicator::~ProgressIndicator() = default;

QSize ProgressIndicator::sizeHint() const
{
    return QSize(20, 20);
}

int ProgressIndicator::heightForWidth(int width) const
{
    return width;
}

void ProgressIndicator::startAnimation()
{
    m_angle = 0;
    if (!isAnimated())
        m_timerId = startTimer(m_delay, Qt::CoarseTimer);
}

void ProgressIndicator::stopAnimation()
{
    if (isAnimated())
        killTimer(m_timerId);
    m_timerId = noTimer;
    update();
}

void ProgressIndicator::setAnimationDelay(int delay)
{
    if (delay < 0)
        return;
    m_delay = delay;
    if (isAnimated()) {
        killTimer(m_timerId);
        m_timerId = startTimer(m_delay, Qt::CoarseTimer);
    }
}

void ProgressIndicator::setDisplayedWhenStopped(bool state)
{
    m_displayedWhenStopped = state;
    update();
}

void ProgressIndicator::setColor(QColor color)
{
    m_color = color;
    update();
}

void ProgressIndicator::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timerId) {
        QWidget::timerEvent(event);
        return;
    }
    m_angle = (m_angle + degreesPerStep) % 360;
    update();
}

void ProgressIndicator::paintEvent(QPaintEvent *)
{
    if (!m_displayedWhenStopped && !isAnimated())
        return;

    const int side = qMin(width(), height());
    const qreal outer = (side - 1) * 0.5;
    const int outerRadius = int(outer);
    const int capsuleHeight = outerRadius - int(outer * 0.38);
    const int capsuleWidth = int(capsuleHeight * (side <= widestSmallWheel ? 0.35 : 0.23));
    const int capsuleRadius = capsuleWidth / 2;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < capsuleCount; ++i) {
        QColor faded = m_color;
        faded.setAlphaF(1.0 - double(i) / capsuleCount);
        painter.setBrush(faded);
        painter.save();
        painter.translate(rect().center());
        painter.rotate(m_angle - degreesPerStep * i);
        painter.drawRoundedRect(int(-capsuleWidth * 0.5), -outerRadius, capsuleWidth, capsuleHeight,
                                capsuleRadius, capsuleRadius);
        painter.restore();
    }
}
