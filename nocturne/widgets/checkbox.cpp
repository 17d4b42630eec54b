#include "checkbox.h"

#include "checkindicator_p.h"

#include <QtWidgets/QStyleOptionButton>

CheckBox::CheckBox(QWidget *parent)
    : QCheckBox(parent)
{}

void CheckBox::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    Nocturne::paintCheckIndicator(this, option);
}
