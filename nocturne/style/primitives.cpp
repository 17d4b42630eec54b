#include "darkfusionstyle.h"

void DarkFusionStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                    QPainter *painter, const QWidget *widget) const
{
    QCommonStyle::drawPrimitive(element, option, painter, widget);
}
