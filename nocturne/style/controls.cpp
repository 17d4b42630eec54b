#include "styleelements_p.h"

namespace {

constexpr auto controlFunctions = [] {
    using namespace Nocturne::StylePaint;
    ElementTable<QStyle::CE_ShapedFrame + 1> functions{};
    functions[QStyle::CE_PushButton] = paintPushButton;
    functions[QStyle::CE_PushButtonLabel] = paintPushButtonLabel;
    functions[QStyle::CE_ToolButtonLabel] = paintToolButtonLabel;
    functions[QStyle::CE_ComboBoxLabel] = paintComboBoxLabel;
    functions[QStyle::CE_TabBarTabShape] = paintTabShape;
    functions[QStyle::CE_HeaderSection] = paintHeaderSection;
    functions[QStyle::CE_ProgressBarGroove] = paintProgressGroove;
    functions[QStyle::CE_ProgressBarContents] = paintProgressContents;
    functions[QStyle::CE_ProgressBarLabel] = paintProgressLabel;
    functions[QStyle::CE_MenuItem] = paintMenuItem;
    functions[QStyle::CE_MenuVMargin] = paintNothing;
    functions[QStyle::CE_MenuHMargin] = paintNothing;
    functions[QStyle::CE_MenuEmptyArea] = paintNothing;
    functions[QStyle::CE_MenuBarItem] = paintMenuBarItem;
    functions[QStyle::CE_MenuBarEmptyArea] = paintMenuBarEmptyArea;
    functions[QStyle::CE_DockWidgetTitle] = paintDockWidgetTitle;
    functions[QStyle::CE_RubberBand] = paintRubberBand;
    functions[QStyle::CE_SizeGrip] = paintSizeGrip;
    functions[QStyle::CE_Splitter] = paintSplitter;
    functions[QStyle::CE_ToolBar] = paintToolBar;
    return functions;
}();

} // namespace

void DarkFusionStyle::drawControl(ControlElement element, const QStyleOption *option,
                                  QPainter *painter, const QWidget *widget) const
{
    if (!option || !painter)
        return;
    const Nocturne::PaintCall call{this, option, painter, widget};
    const bool isPainted =
        element == CE_ItemViewItem
            ? Nocturne::StylePaint::paintItemViewItem(call)
            : Nocturne::StylePaint::paintElement(controlFunctions, element, call);
    if (!isPainted)
        QCommonStyle::drawControl(element, option, painter, widget);
}
