#ifndef NOCTURNE_COMPLEXCONTROLS_P_H
#define NOCTURNE_COMPLEXCONTROLS_P_H

#include <QtCore/QPointF>
#include <QtCore/QRect>
#include <QtWidgets/QStyle>

class QColor;
class QPainter;
class QPixmap;
class QStyleOptionComboBox;
class QStyleOptionGroupBox;
class QStyleOptionSlider;
class QStyleOptionSpinBox;
class QStyleOptionTitleBar;
class QWidget;

/// The controls that are made of several parts: how they look, and where their parts lie.
///
/// Every function takes the style it works for; what a style on top may want to change is asked of
/// its proxy(). The option is never null, its rectangle never empty when something is painted.
namespace Nocturne::ComplexControls {

void paintSpinBox(const QStyle *style, const QStyleOptionSpinBox *option, QPainter *painter,
                  const QWidget *widget);
void paintComboBox(const QStyle *style, const QStyleOptionComboBox *option, QPainter *painter,
                   const QWidget *widget);
void paintScrollBar(const QStyle *style, const QStyleOptionSlider *option, QPainter *painter,
                    const QWidget *widget);
void paintSlider(const QStyle *style, const QStyleOptionSlider *option, QPainter *painter,
                 const QWidget *widget);
void paintGroupBox(const QStyle *style, const QStyleOptionGroupBox *option, QPainter *painter,
                   const QWidget *widget);
void paintTitleBar(const QStyle *style, const QStyleOptionTitleBar *option, QPainter *painter,
                   const QWidget *widget);
void paintDial(const QStyle *style, const QStyleOptionSlider *option, QPainter *painter,
               const QWidget *widget);

/// The arrow on the buttons of a control, in \a color, turned clockwise from upward.
QPixmap arrowPixmap(const QColor &color, int rotation);

/// The same, drawn at half its pixel size around \a centre.
void drawArrow(QPainter *painter, const QPointF &centre, const QColor &color, int rotation);

/// Where \a value lies along \a span units, as QStyle::sliderPositionFromValue() has it, but for
/// ranges that are longer than an int, too.
int sliderPosition(const QStyleOptionSlider *option, int value, int span, bool upsideDown);

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
