#ifndef NOCTURNE_STYLEOPTIONS_H
#define NOCTURNE_STYLEOPTIONS_H

#include "qtversion.h"

/// The fields of the options that the style reads, by name. visitFields(option, visit) calls
/// visit("name", field) for each field of the option's own type.
namespace StyleOptions {

#define FIELD(name) visit(#name, o.name)

template <typename Visit>
void visitFields(QStyleOption &, Visit &&)
{}

template <typename Visit>
void visitFields(QStyleOptionButton &o, Visit &&visit)
{
    FIELD(features), FIELD(text), FIELD(icon), FIELD(iconSize);
}

template <typename Visit>
void visitFields(QStyleOptionFrame &o, Visit &&visit)
{
    FIELD(lineWidth), FIELD(midLineWidth);
}

template <typename Visit>
void visitFields(QStyleOptionTab &o, Visit &&visit)
{
    FIELD(shape), FIELD(position), FIELD(selectedPosition), FIELD(features);
}

template <typename Visit>
void visitFields(QStyleOptionTabWidgetFrame &o, Visit &&visit)
{
    FIELD(shape), FIELD(selectedTabRect);
}

template <typename Visit>
void visitFields(QStyleOptionTabBarBase &o, Visit &&visit)
{
    FIELD(shape), FIELD(selectedTabRect), FIELD(tabBarRect);
}

template <typename Visit>
void visitFields(QStyleOptionProgressBar &o, Visit &&visit)
{
    FIELD(minimum), FIELD(maximum), FIELD(progress), FIELD(text);
    FIELD(invertedAppearance);
    Qt::Orientation orientation = Qt::Horizontal;
    visit("orientation", orientation);
    QtVersion::setOrientation(o, orientation);
}

template <typename Visit>
void visitFields(QStyleOptionMenuItem &o, Visit &&visit)
{
    FIELD(menuItemType), FIELD(checkType), FIELD(checked), FIELD(text), FIELD(icon);
    FIELD(maxIconWidth);
    int shortcutWidth = 0;
    visit("shortcutWidth", shortcutWidth);
    QtVersion::setShortcutWidth(o, shortcutWidth);
}

template <typename Visit>
void visitFields(QStyleOptionHeader &o, Visit &&visit)
{
    FIELD(text), FIELD(icon), FIELD(position), FIELD(sortIndicator), FIELD(orientation);
}

template <typename Visit>
void visitFields(QStyleOptionDockWidget &o, Visit &&visit)
{
    FIELD(title), FIELD(verticalTitleBar);
}

template <typename Visit>
void visitFields(QStyleOptionToolBar &o, Visit &&visit)
{
    FIELD(positionOfLine), FIELD(toolBarArea);
}

template <typename Visit>
void visitFields(QStyleOptionComplex &o, Visit &&visit)
{
    FIELD(subControls), FIELD(activeSubControls);
}

template <typename Visit>
void visitFields(QStyleOptionSlider &o, Visit &&visit)
{
    visitFields(static_cast<QStyleOptionComplex &>(o), visit);
    FIELD(minimum), FIELD(maximum), FIELD(sliderPosition), FIELD(sliderValue), FIELD(singleStep);
    FIELD(pageStep), FIELD(orientation), FIELD(tickInterval), FIELD(tickPosition);
    FIELD(upsideDown), FIELD(dialWrapping);
}

template <typename Visit>
void visitFields(QStyleOptionSpinBox &o, Visit &&visit)
{
    visitFields(static_cast<QStyleOptionComplex &>(o), visit);
    FIELD(buttonSymbols), FIELD(stepEnabled), FIELD(frame);
}

template <typename Visit>
void visitFields(QStyleOptionToolButton &o, Visit &&visit)
{
    visitFields(static_cast<QStyleOptionComplex &>(o), visit);
    FIELD(features), FIELD(text), FIELD(icon), FIELD(iconSize), FIELD(arrowType);
    FIELD(toolButtonStyle);
}

template <typename Visit>
void visitFields(QStyleOptionComboBox &o, Visit &&visit)
{
    visitFields(static_cast<QStyleOptionComplex &>(o), visit);
    FIELD(editable), FIELD(frame), FIELD(currentText), FIELD(currentIcon), FIELD(iconSize);
}

template <typename Visit>
void visitFields(QStyleOptionTitleBar &o, Visit &&visit)
{
    visitFields(static_cast<QStyleOptionComplex &>(o), visit);
    FIELD(text), FIELD(icon), FIELD(titleBarState), FIELD(titleBarFlags);
}

template <typename Visit>
void visitFields(QStyleOptionGroupBox &o, Visit &&visit)
{
    visitFields(static_cast<QStyleOptionComplex &>(o), visit);
    FIELD(text), FIELD(textAlignment), FIELD(lineWidth);
}

#undef FIELD

} // namespace StyleOptions

#endif
