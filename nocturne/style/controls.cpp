#include "darkfusionstyle.h"

void DarkFusionStyle::drawControl(ControlElement element, const QStyleOption *option,
                                  QPainter *painter, const QWidget *widget) const
{
    QCommonStyle::drawControl(element, option, painter, widget);
}
