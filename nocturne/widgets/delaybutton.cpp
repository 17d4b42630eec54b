#include "delaybutton.h"

#include "delaylock_p.h"

DelayButton::DelayButton(QWidget *parent)
    : QPushButton(parent)
    , m_delay(DelayLock::defaultDelay)
{
    connect(this, &QPushButton::toggled, this, &DelayButton::disableButton);
}

void DelayButton::setDelay(int delay)
{
    m_delay = qMax(0, delay);
}

void DelayButton::disableButton()
{
    DelayLock::lock(this, m_delay, &DelayButton::enableButton);
}

void DelayButton::enableButton()
{
    setEnabled(true);
}
