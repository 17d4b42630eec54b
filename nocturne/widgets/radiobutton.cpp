#include "radiobutton.h"

#include "checkindicator_p.h"

#include <QtWidgets/QStyleOptionButton>

RadioButton::RadioButton(QWidget *parent)
    : QRadioButton(parent)
{}

void RadioButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    Nocturne::paintCheckIndicator(this, option);
}
