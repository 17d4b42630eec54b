#ifndef NOCTURNE_COMPLEXCONTROLS_P_H
#define NOCTURNE_COMPLEXCONTROLS_P_H

#include <QtCore/QLineF>
#include <QtCore/QRect>
#include <QtCore/QVector>
#include <QtWidgets/QStyle>

class QPainter;
class QStyleOptionComboBox;
class QStyleOptionGroupBox;
class QStyleOptionSlider;
class QStyleOptionSpinBox;
class QStyleOptionTitleBar;
class QWidget;

/// Where the parts of the complex controls lie.
///
/// Every function that takes a style asks its proxy() for what a style on top may want to change.
/// The option is never null.
namespace Nocturne::ComplexControls {

/// Where \a value lies along \a span units, as QStyle::sliderPositionFromValue() has it, but for
/// ranges that are longer than an int, too.
int sliderPosition(const QStyleOptionSlider *option, int value, int span, bool upsideDown);

/// Draws a dial: tick marks, disc and knob.
void drawDial(const QStyleOptionSlider *option, QPainter *painter);

/// How long the long tick marks of a dial of \a radius are.
int dialBigLineSize(int radius);

/// The tick marks of a dial, each from its inner to its outer end.
QVector<QLineF> dialTickLines(const QStyleOptionSlider *option);

/// A point on the line from the dial's centre to its value, \a offset of the way out.
QPointF dialRadialPos(const QStyleOptionSlider *option, qreal offset);

// Where a part of the control lies. base is the common style's answer, which stands for the parts
// that a control does not place itself.

QRect spinBoxRect(const QStyle *style, const QStyleOptionSpinBox *option, QStyle::SubControl part,
                  const QRect &base, const QWidget *widget);
QRect comboBoxRect(const QStyle *style, const QStyleOptionComboBox *option, QStyle::SubControl part,
                   const QRect &base, const QWidget *widget);
QRect sliderRect(const QStyle *style, const QStyleOptionSlider *option, QStyle::SubControl part,
                 const QRect &base, const QWidget *widget);
QRect groupBoxRect(const QStyle *style, const QStyleOptionGroupBox *option, QStyle::SubControl part,
                   const QRect &base, const QWidget *widget);
QRect titleBarRect(const QStyle *style, const QStyleOptionTitleBar *option, QStyle::SubControl part,
                   const QRect &base, const QWidget *widget);

} // namespace Nocturne::ComplexControls

#endif
