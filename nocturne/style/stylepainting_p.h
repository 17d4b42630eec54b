#ifndef NOCTURNE_STYLEPAINTING_P_H
#define NOCTURNE_STYLEPAINTING_P_H

#include "darkfusionstyle.h"
#include "stylehelpers_p.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace Nocturne {

/// What one call of the style's drawPrimitive() or drawControl() hands to a paint function.
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
    void drawText(const QRect &rect, int flags, const QString &text, QPalette::ColorRole role) const
    {
        proxy()->drawItemText(painter, rect, flags, option->palette, isEnabled(), text, role);
    }
};

} // namespace Nocturne

/// One function an element, named after it. Each leaves the painter as it found it, unless its
/// comment says otherwise, and paints nothing when the option is not of the type it needs.
namespace Nocturne::StylePaint {

using Function = void (*)(const PaintCall &call);

inline void paintNothing(const PaintCall &) {}

/// Turns antialiasing on and moves the painter half a unit down and right, where lines of one
/// unit cover whole pixels again.
inline void beginSharpAntialiasing(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(0.5, 0.5);
}

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

/// One dot of a grip or handle: two units wide and light, its upper left unit dark.
void paintGripDot(QPainter *painter, int x, int y);

/// Where the style keeps the icon of its tab close buttons; null until it is first asked for.
QIcon &tabCloseIcon(const DarkFusionStyle *style);

// Frames and panels
void paintFrame(const PaintCall &call);
void paintFrameMenu(const PaintCall &call);
void paintFrameDockWidget(const PaintCall &call);
void paintFrameWindow(const PaintCall &call);
void paintFrameFocusRect(const PaintCall &call);
void paintFrameGroupBox(const PaintCall &call);
void paintFrameLineEdit(const PaintCall &call);
void paintFrameTabWidget(const PaintCall &call);
void paintFrameTabBarBase(const PaintCall &call);
void paintPanelLineEdit(const PaintCall &call);
void paintPanelMenu(const PaintCall &call);
void paintPanelScrollAreaCorner(const PaintCall &call);
void paintPanelTipLabel(const PaintCall &call);

// Button panels
void paintPanelButtonCommand(const PaintCall &call);
void paintPanelButtonTool(const PaintCall &call);
void paintIndicatorButtonDropDown(const PaintCall &call);
void paintIndicatorTabClose(const PaintCall &call);

// Indicators
void paintIndicatorArrowDown(const PaintCall &call);
void paintIndicatorArrowLeft(const PaintCall &call);
void paintIndicatorArrowRight(const PaintCall &call);
void paintIndicatorArrowUp(const PaintCall &call);
void paintIndicatorBranch(const PaintCall &call);
void paintIndicatorCheckBox(const PaintCall &call);
void paintIndicatorDockWidgetResizeHandle(const PaintCall &call);
void paintIndicatorHeaderArrow(const PaintCall &call);
void paintIndicatorItemViewItemCheck(const PaintCall &call);
void paintIndicatorRadioButton(const PaintCall &call);
void paintIndicatorToolBarHandle(const PaintCall &call);
/// Leaves the pen of its second line set.
void paintIndicatorToolBarSeparator(const PaintCall &call);

// Push buttons, and the labels of tool buttons and combo boxes
void paintPushButton(const PaintCall &call);
void paintPushButtonLabel(const PaintCall &call);
void paintToolButtonLabel(const PaintCall &call);
void paintComboBoxLabel(const PaintCall &call);

// Tabs and header sections
void paintTabShape(const PaintCall &call);
void paintHeaderSection(const PaintCall &call);

// Progress bars
void paintProgressGroove(const PaintCall &call);
void paintProgressContents(const PaintCall &call);
void paintProgressLabel(const PaintCall &call);

// Menus and menu bars
void paintMenuItem(const PaintCall &call);
void paintMenuBarItem(const PaintCall &call);
void paintMenuBarEmptyArea(const PaintCall &call);

// The parts of a window
void paintDockWidgetTitle(const PaintCall &call);
void paintRubberBand(const PaintCall &call);
void paintSizeGrip(const PaintCall &call);
void paintSplitter(const PaintCall &call);
void paintToolBar(const PaintCall &call);

} // namespace Nocturne::StylePaint

#endif
