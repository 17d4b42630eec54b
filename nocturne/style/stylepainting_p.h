#ifndef NOCTURNE_STYLEPAINTING_P_H
#define NOCTURNE_STYLEPAINTING_P_H

#include "darkfusionstyle.h"
#include "stylehelpers_p.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace Nocturne {

/// What one call of the style's drawPrimitive(), drawControl() or drawComplexControl() hands to a
/// paint function.
///
/// The option and the painter are there, and the option's rectangle is not empty; the option may
/// be of any type, and there may be no widget.
struct PaintCall
{
    const DarkFusionStyle *style;
    const QStyleOption *option;
    QPainter *painter;
    const QWidget *widget;

    /// What nested drawing goes through, so that a proxy on top of the style sees each piece.
    const QStyle *proxy() const { return style->proxy(); }

    /// The option as an \a Option, or null when it is something else.
    template <typename Option>
    const Option *as() const
    {
        return qstyleoption_cast<const Option *>(option);
    }

    /// Whether all of \a flags are set.
    bool has(QStyle::State flags) const { return (option->state & flags) == flags; }
    bool isEnabled() const { return has(QStyle::State_Enabled); }
    bool isRightToLeft() const { return option->direction == Qt::RightToLeft; }
    bool hasKeyboardFocus() const
    {
        return has(QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange);
    }

    const QRect &rect() const { return option->rect; }
    const QPalette &palette() const { return option->palette; }
    QColor color(QPalette::ColorRole role) const { return option->palette.color(role); }

    /// Paints a piece of this element through the proxy.
    void drawPrimitive(QStyle::PrimitiveElement element, const QStyleOption &piece) const
    {
        proxy()->drawPrimitive(element, &piece, painter, widget);
    }
    void drawControl(QStyle::ControlElement element, const QStyleOption &piece) const
    {
        proxy()->drawControl(element, &piece, painter, widget);
    }
    QRect subControlRect(QStyle::ComplexControl control, const QStyleOptionComplex &of,
                         QStyle::SubControl part) const
    {
        return proxy()->subControlRect(control, &of, part, widget);
    }
    void drawText(const QRect &rect, int flags, const QString &text, QPalette::ColorRole role) const
    {
        proxy()->drawItemText(painter, rect, flags, option->palette, isEnabled(), text, role);
    }
};

} // namespace Nocturne

/// What the paint functions share; the elements themselves are in styleelements_p.h.
namespace Nocturne::StylePaint {

/// Turns antialiasing on and moves the painter half a unit down and right, where lines of one
/// unit cover whole pixels again.
void beginSharpAntialiasing(QPainter *painter);

/// Lines of one unit along whole rows and columns of units, both ends included. They are filled,
/// not drawn: that is many times faster, and stays within the units at every device pixel ratio.
template <typename Fill>
void fillRow(QPainter *painter, int left, int right, int y, const Fill &fill)
{
    if (left <= right)
        painter->fillRect(left, y, right - left + 1, 1, fill);
}

template <typename Fill>
void fillColumn(QPainter *painter, int x, int top, int bottom, const Fill &fill)
{
    if (top <= bottom)
        painter->fillRect(x, top, 1, bottom - top + 1, fill);
}

/// The outermost units of \a rect.
void fillOutline(QPainter *painter, const QRect &rect, const QColor &color);

/// Draws the outermost units of \a r as a rounded rectangle. On whole pixels only the corners need
/// smoothing, and smoothing the rest is what takes time. (A clip may cut a long line in other
/// places than a short one.)
void drawRoundedOutline(QPainter *painter, const QRect &r, const QColor &color);

/// The dots of a grip or handle: two units wide and light, their upper left units dark. They are
/// kept as two pictures, because what is light lies beneath what is dark.
class GripDots
{
public:
    /// The upper left corners of the dots, which do not touch, in units from the grip's centre.
    explicit GripDots(const QVector<QPoint> &corners);

    void paint(QPainter *painter, const QPoint &centre) const;

private:
    const QVector<QPoint> m_corners;
    QPoint m_topLeft;
    QImage m_light;
    QImage m_dark;
};

/// The arrow on the buttons of a complex control, in \a color, turned clockwise from upward.
QPixmap arrowPixmap(const QColor &color, int rotation);

/// The same, drawn at half its pixel size around \a centre.
void drawArrow(QPainter *painter, const QPointF &centre, const QColor &color, int rotation);

/// Where the style keeps the icon of its tab close buttons; null until it is first asked for.
QIcon &tabCloseIcon(const DarkFusionStyle *style);

} // namespace Nocturne::StylePaint

#endif
