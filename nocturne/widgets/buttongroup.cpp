#include "buttongroup.h"

#include <QtWidgets/QAbstractButton>

ButtonGroup::ButtonGroup(QObject *parent)
    : QButtonGroup(parent)
{}

void ButtonGroup::setValue(int value)
{
    if (QAbstractButton *chosen = button(value))
        chosen->setChecked(true);
}
