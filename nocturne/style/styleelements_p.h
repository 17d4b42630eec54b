#ifndef NOCTURNE_STYLEELEMENTS_P_H
#define NOCTURNE_STYLEELEMENTS_P_H

#include "stylepainting_p.h"

#include <array>

/// One function for each element, named after it. Each leaves the painter as it found it, unless
/// its comment says otherwise, and paints nothing when the option is not of the type it needs.
namespace Nocturne::StylePaint {

using Function = void (*)(const PaintCall &call);

/// What paints each of \a count elements; null where the common style does.
template <int count>
using ElementTable = std::array<Function, count>;

/// Paints \a element with its function in \a table. Returns false, having painted nothing, when
/// the element is the common style's.
template <std::size_t count>
bool paintElement(const std::array<Function, count> &table, int element, const PaintCall &call)
{
    const uint index = uint(element); // those of other styles are beyond the table
    const Function function = index < count ? table[index] : nullptr;
    if (!function)
        return false;
    if (!call.rect().isEmpty())
        function(call);
    return true;
}

inline void paintNothing(const PaintCall &) {}

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

// Items of views. False, with nothing painted, when the item is left to the common style.
bool paintItemViewItem(const PaintCall &call);

// Complex controls
void paintComboBox(const PaintCall &call);
void paintDial(const PaintCall &call);
void paintGroupBox(const PaintCall &call);
void paintScrollBar(const PaintCall &call);
void paintSlider(const PaintCall &call);
void paintSpinBox(const PaintCall &call);
void paintTitleBar(const PaintCall &call);

} // namespace Nocturne::StylePaint

#endif
