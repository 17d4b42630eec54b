#include "styleelements_p.h"

namespace {

constexpr auto primitiveFunctions = [] {
    using namespace Nocturne::StylePaint;
    ElementTable<QStyle::PE_PanelMenu + 1> functions{};
    functions[QStyle::PE_FrameDefaultButton] = paintNothing;
    functions[QStyle::PE_FrameStatusBarItem] = paintNothing;
    functions[QStyle::PE_Frame] = paintFrame;
    functions[QStyle::PE_FrameMenu] = paintFrameMenu;
    functions[QStyle::PE_FrameDockWidget] = paintFrameDockWidget;
    functions[QStyle::PE_FrameWindow] = paintFrameWindow;
    functions[QStyle::PE_FrameFocusRect] = paintFrameFocusRect;
    functions[QStyle::PE_FrameGroupBox] = paintFrameGroupBox;
    functions[QStyle::PE_FrameLineEdit] = paintFrameLineEdit;
    functions[QStyle::PE_FrameTabWidget] = paintFrameTabWidget;
    functions[QStyle::PE_FrameTabBarBase] = paintFrameTabBarBase;
    functions[QStyle::PE_PanelLineEdit] = paintPanelLineEdit;
    functions[QStyle::PE_PanelMenu] = paintPanelMenu;
    functions[QStyle::PE_PanelScrollAreaCorner] = paintPanelScrollAreaCorner;
    functions[QStyle::PE_PanelTipLabel] = paintPanelTipLabel;
    functions[QStyle::PE_PanelButtonCommand] = paintPanelButtonCommand;
    functions[QStyle::PE_PanelButtonTool] = paintPanelButtonTool;
    functions[QStyle::PE_IndicatorButtonDropDown] = paintIndicatorButtonDropDown;
    functions[QStyle::PE_IndicatorTabClose] = paintIndicatorTabClose;
    functions[QStyle::PE_IndicatorArrowDown] = paintIndicatorArrowDown;
    functions[QStyle::PE_IndicatorArrowLeft] = paintIndicatorArrowLeft;
    functions[QStyle::PE_IndicatorArrowRight] = paintIndicatorArrowRight;
    functions[QStyle::PE_IndicatorArrowUp] = paintIndicatorArrowUp;
    functions[QStyle::PE_IndicatorBranch] = paintIndicatorBranch;
    functions[QStyle::PE_IndicatorCheckBox] = paintIndicatorCheckBox;
    functions[QStyle::PE_IndicatorDockWidgetResizeHandle] = paintIndicatorDockWidgetResizeHandle;
    functions[QStyle::PE_IndicatorHeaderArrow] = paintIndicatorHeaderArrow;
    functions[QStyle::PE_IndicatorItemViewItemCheck] = paintIndicatorItemViewItemCheck;
    functions[QStyle::PE_IndicatorRadioButton] = paintIndicatorRadioButton;
    functions[QStyle::PE_IndicatorToolBarHandle] = paintIndicatorToolBarHandle;
    functions[QStyle::PE_IndicatorToolBarSeparator] = paintIndicatorToolBarSeparator;
    return functions;
}();

} // namespace

void DarkFusionStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                    QPainter *painter, const QWidget *widget) const
{
    if (!option || !painter)
        return;
    const Nocturne::PaintCall call{this, option, painter, widget};
    if (!Nocturne::StylePaint::paintElement(primitiveFunctions, element, call))
        QCommonStyle::drawPrimitive(element, option, painter, widget);
}
