#include "darkfusionstyle.h"

void DarkFusionStyle::drawComplexControl(ComplexControl element, const QStyleOptionComplex *option,
                                         QPainter *painter, const QWidget *widget) const
{
    QCommonStyle::drawComplexControl(element, option, painter, widget);
}

QStyle::SubControl DarkFusionStyle::hitTestComplexControl(ComplexControl control,
                                                          const QStyleOptionComplex *option,
                                                          const QPoint &position,
                                                          const QWidget *widget) const
{
    return QCommonStyle::hitTestComplexControl(control, option, position, widget);
}

QRect DarkFusionStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                      SubControl subControl, const QWidget *widget) const
{
    return QCommonStyle::subControlRect(control, option, subControl, widget);
}
