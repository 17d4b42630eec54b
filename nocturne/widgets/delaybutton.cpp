#include "delaybutton.h"

#include "delaylock_p.h"

DelayButton::DelayButton(QWidget *parent)
    : QPushButton(parent)
    , m_delay(Nocturne::DelayLock::defaultDelay)
{
    connect(this, &QPushButton::toggled, this, &DelayButton::disableButton);
}

void DelayButton::setDelay(int delay)
{
    m_delay = qMax(0, delay);
}

void DelayButton::disableButton()
{
    Nocturne::DelayLock::lock(this, m_delay, &DelayButton::enableButton);
}

void DelayButton::enableButton()
{
    setEnabled(true);
}
