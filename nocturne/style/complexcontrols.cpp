#include "complexcontrols_p.h"
#include "styleelements_p.h"

#include <limits>

namespace {

constexpr auto complexControlFunctions = [] {
    using namespace Nocturne::StylePaint;
    ElementTable<QStyle::CC_MdiControls + 1> functions{};
    functions[QStyle::CC_SpinBox] = paintSpinBox;
    functions[QStyle::CC_ComboBox] = paintComboBox;
    functions[QStyle::CC_ScrollBar] = paintScrollBar;
    functions[QStyle::CC_Slider] = paintSlider;
    functions[QStyle::CC_TitleBar] = paintTitleBar;
    functions[QStyle::CC_Dial] = paintDial;
    functions[QStyle::CC_GroupBox] = paintGroupBox;
    return functions;
}();

template <typename Option>
using Place = QRect (*)(const QStyle *, const Option *, QStyle::SubControl, const QRect &,
                        const QWidget *);

/// \a place's answer, or \a base for an option of another type.
template <typename Option>
QRect placedAs(Place<Option> place, const QStyle *style, const QStyleOptionComplex *option,
               QStyle::SubControl part, const QRect &base, const QWidget *widget)
{
    const auto *typed = qstyleoption_cast<const Option *>(option);
    return typed ? place(style, typed, part, base, widget) : base;
}

/// A range that does not fit an int, where the toolkit's arithmetic comes to divide by zero.
bool hasHugeRange(const QStyleOptionSlider *option)
{
    return qint64(option->maximum) - option->minimum > std::numeric_limits<int>::max();
}

/// Whether the toolkit can calculate with the option. No slider widget makes one that it cannot,
/// except for a huge range.
bool isSound(const QStyleOptionSlider *option)
{
    return !hasHugeRange(option) && option->pageStep >= 0
           && option->minimum <= option->sliderPosition
           && option->sliderPosition <= option->maximum;
}

/// The nearest sound option; a huge range is halved.
QStyleOptionSlider madeSound(QStyleOptionSlider option)
{
    option.maximum = qMax(option.minimum, option.maximum);
    option.sliderPosition = qBound(option.minimum, option.sliderPosition, option.maximum);
    option.pageStep = qMax(0, option.pageStep);
    if (hasHugeRange(&option)) {
        for (int *value : {&option.minimum, &option.maximum, &option.sliderPosition,
                           &option.sliderValue, &option.singleStep, &option.pageStep})
            *value /= 2;
    }
    return option;
}

} // namespace

int Nocturne::ComplexControls::sliderPosition(const QStyleOptionSlider *option, int value, int span,
                                              bool upsideDown)
{
    const int divisor = hasHugeRange(option) ? 2 : 1;
    return QStyle::sliderPositionFromValue(option->minimum / divisor, option->maximum / divisor,
                                           value / divisor, span, upsideDown);
}

void DarkFusionStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                         QPainter *painter, const QWidget *widget) const
{
    if (!option || !painter)
        return;
    const Nocturne::PaintCall call{this, option, painter, widget};
    if (!Nocturne::StylePaint::paintElement(complexControlFunctions, control, call))
        QCommonStyle::drawComplexControl(control, option, painter, widget);
}

QStyle::SubControl DarkFusionStyle::hitTestComplexControl(ComplexControl control,
                                                          const QStyleOptionComplex *option,
                                                          const QPoint &position,
                                                          const QWidget *widget) const
{
    if (!option)
        return SC_None;
    return QCommonStyle::hitTestComplexControl(control, option, position, widget);
}

QRect DarkFusionStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                      SubControl part, const QWidget *widget) const
{
    // The common style reads some options without looking whether there is one.
    if (!option)
        return QRect();
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (slider && !isSound(slider)) {
        const QStyleOptionSlider sound = madeSound(*slider);
        return subControlRect(control, &sound, part, widget);
    }
    const QRect base = QCommonStyle::subControlRect(control, option, part, widget);
    switch (control) {
    case CC_SpinBox:
        return placedAs(Nocturne::ComplexControls::spinBoxRect, this, option, part, base, widget);
    case CC_ComboBox:
        return placedAs(Nocturne::ComplexControls::comboBoxRect, this, option, part, base, widget);
    case CC_Slider:
        return placedAs(Nocturne::ComplexControls::sliderRect, this, option, part, base, widget);
    case CC_GroupBox:
        return placedAs(Nocturne::ComplexControls::groupBoxRect, this, option, part, base, widget);
    case CC_TitleBar:
        return placedAs(Nocturne::ComplexControls::titleBarRect, this, option, part, base, widget);
    default:
        return base;
    }
}
