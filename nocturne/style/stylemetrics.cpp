#include "darkfusionstyle.h"
#include "stylehelpers_p.h"

#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWizard>

#include <array>

// What the style answers to questions for a number. Both tables are spread over an array at
// compile time, because every layout and every paint event asks.

namespace {

enum class Unit : quint8 {
    Inherited, ///< not in the table: QCommonStyle knows
    Exact,
    Scaled, ///< grows with the screen's logical DPI
};

struct Answer
{
    qint16 value = 0;
    Unit unit = Unit::Inherited;
};

constexpr Answer exact(int value)
{
    return {qint16(value), Unit::Exact};
}

constexpr Answer scaled(int value)
{
    return {qint16(value), Unit::Scaled};
}

template <typename Question>
struct Entry
{
    Question question;
    Answer answer;
};

template <typename Question, std::size_t Count>
constexpr int lastQuestion(const Entry<Question> (&entries)[Count])
{
    int last = 0;
    for (const Entry<Question> &entry : entries)
        last = qMax(last, int(entry.question));
    return last;
}

template <int Last, typename Question, std::size_t Count>
constexpr std::array<Answer, Last + 1> spread(const Entry<Question> (&entries)[Count])
{
    std::array<Answer, Last + 1> answers{};
    for (const Entry<Question> &entry : entries)
        answers[static_cast<std::size_t>(entry.question)] = entry.answer;
    return answers;
}

template <typename Answers>
Answer lookUp(const Answers &answers, int question)
{
    const auto index = static_cast<std::size_t>(question);
    return index < answers.size() ? answers[index] : Answer();
}

constexpr Entry<QStyle::PixelMetric> metrics[] = {
    {QStyle::PM_ButtonDefaultIndicator, scaled(0)},
    {QStyle::PM_ButtonShiftHorizontal, scaled(0)},
    {QStyle::PM_ButtonShiftVertical, scaled(0)},
    {QStyle::PM_ButtonIconSize, scaled(16)},
    {QStyle::PM_SmallIconSize, scaled(16)},
    {QStyle::PM_ListViewIconSize, scaled(24)},
    {QStyle::PM_MessageBoxIconSize, scaled(48)},

    {QStyle::PM_DefaultFrameWidth, exact(1)},
    {QStyle::PM_SpinBoxFrameWidth, scaled(3)},
    {QStyle::PM_ToolTipLabelFrameWidth, scaled(2)},
    {QStyle::PM_DialogButtonsSeparator, scaled(26)},

    {QStyle::PM_IndicatorWidth, scaled(14)},
    {QStyle::PM_IndicatorHeight, scaled(14)},
    {QStyle::PM_ExclusiveIndicatorWidth, scaled(14)},
    {QStyle::PM_ExclusiveIndicatorHeight, scaled(14)},

    {QStyle::PM_MaximumDragDistance, exact(-1)},
    {QStyle::PM_ScrollBarExtent, scaled(14)},
    {QStyle::PM_ScrollBarSliderMin, scaled(26)},
    {QStyle::PM_ScrollView_ScrollBarSpacing, scaled(0)},
    {QStyle::PM_SliderThickness, scaled(15)},
    {QStyle::PM_SliderLength, scaled(15)},
    {QStyle::PM_SliderTickmarkOffset, scaled(4)},
    {QStyle::PM_SplitterWidth, scaled(4)},

    {QStyle::PM_TabBarTabOverlap, scaled(1)},
    {QStyle::PM_TabBarTabVSpace, scaled(12)},
    {QStyle::PM_TabBarBaseOverlap, scaled(2)},
    {QStyle::PM_TabCloseIndicatorWidth, scaled(20)},
    {QStyle::PM_TabCloseIndicatorHeight, scaled(20)},
    {QStyle::PM_HeaderMargin, scaled(2)},

    {QStyle::PM_MenuHMargin, scaled(0)},
    {QStyle::PM_MenuVMargin, scaled(0)},
    {QStyle::PM_MenuPanelWidth, scaled(0)},
    {QStyle::PM_SubMenuOverlap, scaled(-1)},
    {QStyle::PM_MenuBarPanelWidth, scaled(0)},
    {QStyle::PM_MenuBarVMargin, scaled(0)},
    {QStyle::PM_MenuBarHMargin, scaled(0)},
    {QStyle::PM_MenuBarItemSpacing, scaled(6)},

    {QStyle::PM_ToolBarFrameWidth, scaled(2)},
    {QStyle::PM_ToolBarItemMargin, scaled(2)},
    {QStyle::PM_ToolBarItemSpacing, scaled(1)},
    {QStyle::PM_ToolBarHandleExtent, scaled(9)},

    {QStyle::PM_TitleBarHeight, scaled(24)},
    {QStyle::PM_DockWidgetTitleMargin, scaled(1)},
    {QStyle::PM_DockWidgetTitleBarButtonMargin, scaled(2)},
    {QStyle::PM_DockWidgetHandleExtent, scaled(4)},
};

constexpr Entry<QStyle::StyleHint> hints[] = {
    {QStyle::SH_EtchDisabledText, exact(1)},
    {QStyle::SH_FontDialog_SelectAssociatedText, exact(1)},
    {QStyle::SH_PrintDialog_RightAlignButtons, exact(1)},

    {QStyle::SH_ScrollBar_MiddleClickAbsolutePosition, exact(1)},
    {QStyle::SH_ScrollBar_Transient, exact(1)},
    {QStyle::SH_ScrollView_FrameOnlyAroundContents, exact(0)},
    {QStyle::SH_Slider_SnapToValue, exact(1)},
    {QStyle::SH_Slider_StopMouseOverSlider, exact(1)}, // SH_ScrollBar_StopMouseOverSlider as well

    {QStyle::SH_MainWindow_SpaceBelowMenuBar, exact(0)},
    {QStyle::SH_MenuBar_AltKeyNavigation, exact(1)},
    {QStyle::SH_MenuBar_MouseTracking, exact(1)},
    {QStyle::SH_Menu_AllowActiveAndDisabled, exact(0)},
    {QStyle::SH_Menu_MouseTracking, exact(1)},
    {QStyle::SH_Menu_SubMenuPopupDelay, exact(225)}, // milliseconds
    {QStyle::SH_Menu_SupportsSections, exact(1)},

    {QStyle::SH_ComboBox_ListMouseTracking, exact(1)},
    {QStyle::SH_ItemView_ArrowKeysNavigateIntoChildren, exact(1)},
    {QStyle::SH_ItemView_ChangeHighlightOnFocus, exact(1)},
    {QStyle::SH_ItemView_ShowDecorationSelected, exact(1)},

    {QStyle::SH_TitleBar_AutoRaise, exact(1)},
    {QStyle::SH_TitleBar_NoBorder, exact(1)},
    {QStyle::SH_ToolBox_SelectedPageTitleBold, exact(0)},
    {QStyle::SH_RubberBand_Mask, exact(0)},

    {QStyle::SH_DialogButtonBox_ButtonsHaveIcons, exact(0)},
    {QStyle::SH_MessageBox_CenterButtons, exact(0)},
    {QStyle::SH_MessageBox_TextInteractionFlags,
     exact(Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse)},
    {QStyle::SH_WizardStyle, exact(QWizard::ClassicStyle)},
};

constexpr auto metricAnswers = spread<lastQuestion(metrics)>(metrics);
constexpr auto hintAnswers = spread<lastQuestion(hints)>(hints);

/// \a frame without the pixels that round off its two upper corners.
QRegion windowFrameMask(const QRect &frame)
{
    const int left = frame.left();
    const int top = frame.top();
    const int right = frame.right();
    const QRect cuts[] = {
        {left, top, 5, 1},          {left, top + 1, 3, 1},  {left, top + 2, 2, 1},
        {left, top + 3, 1, 2},      {right - 4, top, 5, 1}, {right - 2, top + 1, 3, 1},
        {right - 1, top + 2, 2, 1}, {right, top + 3, 1, 2},
    };
    QRegion mask(frame);
    for (const QRect &cut : cuts)
        mask -= cut;
    return mask;
}

} // namespace

int DarkFusionStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                                 const QWidget *widget) const
{
    if (metric == PM_ScrollView_ScrollBarOverlap) {
        if (proxy()->styleHint(SH_ScrollBar_Transient, option, widget))
            return proxy()->pixelMetric(PM_ScrollBarExtent, option, widget);
        return 0;
    }
    const Answer answer = lookUp(metricAnswers, metric);
    switch (answer.unit) {
    case Unit::Scaled:
        return int(Nocturne::StyleHelpers::dpiScaled(answer.value));
    case Unit::Exact:
        return answer.value;
    case Unit::Inherited:
        break;
    }
    return QCommonStyle::pixelMetric(metric, option, widget);
}

int DarkFusionStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                               QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_ComboBox_Popup: {
        const auto *comboBox = qstyleoption_cast<const QStyleOptionComboBox *>(option);
        return comboBox && !comboBox->editable ? 1 : 0;
    }
    case SH_Table_GridLineColor:
        return option ? int(option->palette.color(QPalette::Window).darker(120).rgb()) : 0;
    case SH_WindowFrame_Mask:
        if (auto *mask = qstyleoption_cast<QStyleHintReturnMask *>(returnData); mask && option) {
            mask->region = windowFrameMask(option->rect);
            return 1;
        }
        break;
    default:
        if (const Answer answer = lookUp(hintAnswers, hint); answer.unit == Unit::Exact)
            return answer.value;
        break;
    }
    return QCommonStyle::styleHint(hint, option, widget, returnData);
}
