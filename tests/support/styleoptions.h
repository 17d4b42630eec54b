#ifndef NOCTURNE_STYLEOPTIONS_H
#define NOCTURNE_STYLEOPTIONS_H

#include "qtversion.h"

/// The fields of the options that the style reads, by name. visitFields(option, visit) calls
/// visit("name", field) for each field of the option's own type.
namespace StyleOptions {

#define OPTION(Option, ...) \
    template <typename Visit> \
    void visitFields(QStyleOption##Option &o, Visit &&visit) \
    { \
        __VA_ARGS__; \
    }
#define COMPLEX_OPTION(Option, ...) \
    OPTION(Option, visitFields(static_cast<QStyleOptionComplex &>(o), visit), __VA_ARGS__)
#define FIELD(name) visit(#name, o.name)

template <typename Visit>
void visitFields(QStyleOption &, Visit &&)
{}

/// Fields whose place depends on the version of the toolkit.
template <typename Option, typename Value, typename Visit>
void visitMoved(Option &o, void (*set)(Option &, Value), const char *name, Value value,
                Visit &&visit)
{
    visit(name, value);
    set(o, value);
}

OPTION(Button, FIELD(features), FIELD(text), FIELD(icon), FIELD(iconSize))
OPTION(Frame, FIELD(lineWidth), FIELD(midLineWidth))
OPTION(Tab, FIELD(shape), FIELD(position), FIELD(selectedPosition), FIELD(features))
OPTION(TabWidgetFrame, FIELD(shape), FIELD(selectedTabRect))
OPTION(TabBarBase, FIELD(shape), FIELD(selectedTabRect), FIELD(tabBarRect))
OPTION(ProgressBar, FIELD(minimum), FIELD(maximum), FIELD(progress), FIELD(text),
       FIELD(invertedAppearance),
       visitMoved(o, QtVersion::setOrientation, "orientation", Qt::Horizontal, visit))
OPTION(MenuItem, FIELD(menuItemType), FIELD(checkType), FIELD(checked), FIELD(text), FIELD(icon),
       FIELD(maxIconWidth), visitMoved(o, QtVersion::setShortcutWidth, "shortcutWidth", 0, visit))
OPTION(Header, FIELD(text), FIELD(icon), FIELD(position), FIELD(sortIndicator), FIELD(orientation))
OPTION(DockWidget, FIELD(title), FIELD(verticalTitleBar))
OPTION(ViewItem, FIELD(displayAlignment), FIELD(decorationAlignment), FIELD(textElideMode),
       FIELD(decorationPosition), FIELD(decorationSize), FIELD(font), FIELD(showDecorationSelected),
       FIELD(features), FIELD(checkState), FIELD(icon), FIELD(text), FIELD(viewItemPosition),
       FIELD(backgroundBrush))
OPTION(ToolBar, FIELD(positionOfLine), FIELD(toolBarArea))
OPTION(Complex, FIELD(subControls), FIELD(activeSubControls))
COMPLEX_OPTION(Slider, FIELD(minimum), FIELD(maximum), FIELD(sliderPosition), FIELD(sliderValue),
               FIELD(singleStep), FIELD(pageStep), FIELD(orientation), FIELD(tickInterval),
               FIELD(tickPosition), FIELD(upsideDown), FIELD(dialWrapping))
COMPLEX_OPTION(SpinBox, FIELD(buttonSymbols), FIELD(stepEnabled), FIELD(frame))
COMPLEX_OPTION(ToolButton, FIELD(features), FIELD(text), FIELD(icon), FIELD(iconSize),
               FIELD(arrowType), FIELD(toolButtonStyle))
COMPLEX_OPTION(ComboBox, FIELD(editable), FIELD(frame), FIELD(currentText), FIELD(currentIcon),
               FIELD(iconSize))
COMPLEX_OPTION(TitleBar, FIELD(text), FIELD(icon), FIELD(titleBarState), FIELD(titleBarFlags))
COMPLEX_OPTION(GroupBox, FIELD(text), FIELD(textAlignment), FIELD(lineWidth))

#undef FIELD
#undef COMPLEX_OPTION
#undef OPTION

} // namespace StyleOptions

#endif
