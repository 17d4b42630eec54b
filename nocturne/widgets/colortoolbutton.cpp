#include "colortoolbutton.h"

ColorToolButton::ColorToolButton(QWidget *parent)
    : QToolButton(parent)
{}

ColorToolButton::~ColorToolButton() = default;

void ColorToolButton::paintEvent(QPaintEvent *event)
{
    QToolButton::paintEvent(event);
}
