#include "delaytoolbutton.h"

#include "delaylock_p.h"

DelayToolButton::DelayToolButton(QWidget *parent)
    : QToolButton(parent)
    , m_delay(Nocturne::DelayLock::defaultDelay)
{
    connect(this, &QToolButton::toggled, this, &DelayToolButton::disableButton);
}

void DelayToolButton::setDelay(int delay)
{
    m_delay = qMax(0, delay);
}

void DelayToolButton::disableButton()
{
    Nocturne::DelayLock::lock(this, m_delay, &DelayToolButton::enableButton);
}

void DelayToolButton::enableButton()
{
    setEnabled(true);
}
