#include "nocturnewidgets.h"

#include <nocturne/CheckBox>
#include <nocturne/ClickableLabel>
#include <nocturne/ColorBar>
#include <nocturne/ColorButton>
#include <nocturne/ColorToolButton>
#include <nocturne/ComboBox>
#include <nocturne/ComboFileChooser>
#include <nocturne/CroppingLabel>
#include <nocturne/DelayButton>
#include <nocturne/DelayToolButton>
#include <nocturne/Dial>
#include <nocturne/FileChooser>
#include <nocturne/FontComboBox>
#include <nocturne/Frame>
#include <nocturne/GradientTool>
#include <nocturne/GroupBox>
#include <nocturne/KeySequenceEdit>
#include <nocturne/LetterBoxWidget>
#include <nocturne/LineEdit>
#include <nocturne/ListView>
#include <nocturne/ListWidget>
#include <nocturne/MidiSequenceEdit>
#include <nocturne/ProgressBar>
#include <nocturne/ProgressIndicator>
#include <nocturne/RadioButton>
#include <nocturne/RangeSlider>
#include <nocturne/RoundProgressBar>
#include <nocturne/SearchLineEdit>
#include <nocturne/SimpleListWidget>
#include <nocturne/SlideCheckBox>
#include <nocturne/Slider>
#include <nocturne/SpanSlider>
#include <nocturne/SpinBox>
#include <nocturne/Splitter>
#include <nocturne/StatusBar>
#include <nocturne/TabBar>
#include <nocturne/TabWidget>
#include <nocturne/TreeWidget>
#include <nocturne/Widget>

namespace {

template <typename Widget>
QWidget *create(QWidget *parent)
{
    return new Widget(parent);
}

// Not here: LineEditButton and ComboBoxListView, whose constructors take no parent, which is what a
// compiled form would give them.
const WidgetKind kinds[] = {
    {"CheckBox",
     "exported.png",
     create<CheckBox>,
     {120, 24},
     false,
     "<property name=\"text\"><string>CheckBox</string></property>"},
    {"ClickableLabel",
     "textbold.png",
     create<ClickableLabel>,
     {120, 24},
     false,
     "<property name=\"text\"><string>ClickableLabel</string></property>"},
    {"ColorBar", "bus_a.png", create<ColorBar>, {24, 24}},
    {"ColorButton", "tool_gradient_tool.png", create<ColorButton>, {60, 26}},
    {"ColorToolButton", "tool_gradient_tool.png", create<ColorToolButton>, {60, 26}},
    {"ComboBox", "list.png", create<ComboBox>, {140, 26}},
    {"ComboFileChooser", "fileopen.png", create<ComboFileChooser>, {240, 28}},
    {"CroppingLabel",
     "textleft.png",
     create<CroppingLabel>,
     {120, 24},
     false,
     "<property name=\"text\"><string>CroppingLabel</string></property>"},
    {"DelayButton",
     "recording.png",
     create<DelayButton>,
     {90, 26},
     false,
     "<property name=\"text\"><string>DelayButton</string></property><property "
     "name=\"checkable\"><bool>true</bool></property>"},
    {"DelayToolButton",
     "recording.png",
     create<DelayToolButton>,
     {60, 26},
     false,
     "<property name=\"checkable\"><bool>true</bool></property>"},
    {"Dial", "refresh.png", create<Dial>, {60, 60}},
    {"FileChooser", "fileopen.png", create<FileChooser>, {240, 28}},
    {"FontComboBox", "textitalic.png", create<FontComboBox>, {160, 26}},
    {"Frame", "tool_rectangle.png", create<Frame>, {160, 120}, true},
    {"GradientTool", "tool_gradient_tool.png", create<GradientTool>, {260, 48}},
    {"GroupBox",
     "tool_rectangle.png",
     create<GroupBox>,
     {200, 140},
     true,
     "<property name=\"title\"><string>GroupBox</string></property>"},
    {"KeySequenceEdit", "lock.png", create<KeySequenceEdit>, {160, 28}},
    {"LetterBoxWidget",
     "fullscreen.png",
     create<LetterBoxWidget>,
     {240, 160},
     true,
     "<widget class=\"QWidget\" name=\"picture\"/>",
     "setWidget"},
    {"LineEdit", "tool_text.png", create<LineEdit>, {140, 26}},
    {"ListView", "list.png", create<ListView>, {160, 120}},
    {"ListWidget", "list.png", create<ListWidget>, {160, 120}},
    {"MidiSequenceEdit", "music.png", create<MidiSequenceEdit>, {160, 28}},
    {"ProgressBar",
     "forcepgm.png",
     create<ProgressBar>,
     {180, 12},
     false,
     "<property name=\"value\"><number>40</number></property>"},
    {"ProgressIndicator", "refresh.png", create<ProgressIndicator>, {32, 32}},
    {"RadioButton",
     "exported.png",
     create<RadioButton>,
     {120, 24},
     false,
     "<property name=\"text\"><string>RadioButton</string></property>"},
    {"RangeSlider",
     "markin.png",
     create<RangeSlider>,
     {260, 32},
     false,
     "<property name=\"orientation\"><enum>Qt::Horizontal</enum></property><property "
     "name=\"enableRange\"><bool>true</bool></property>"},
    {"RoundProgressBar", "loop.png", create<RoundProgressBar>, {120, 120}},
    {"SearchLineEdit", "search.png", create<SearchLineEdit>, {160, 26}},
    {"SimpleListWidget", "list.png", create<SimpleListWidget>, {160, 120}},
    {"SlideCheckBox", "lock_unlock.png", create<SlideCheckBox>, {120, 34}},
    {"Slider",
     "align-horizon.png",
     create<Slider>,
     {160, 22},
     false,
     "<property name=\"orientation\"><enum>Qt::Horizontal</enum></property>"},
    {"SpanSlider",
     "chain.png",
     create<SpanSlider>,
     {200, 22},
     false,
     "<property name=\"orientation\"><enum>Qt::Horizontal</enum></property>"},
    {"SpinBox", "plus.png", create<SpinBox>, {80, 24}},
    {"Splitter",
     "align-vertical.png",
     create<Splitter>,
     {240, 140},
     true,
     "<property name=\"orientation\"><enum>Qt::Horizontal</enum></property>"},
    {"StatusBar", "info.png", create<StatusBar>, {300, 24}},
    {"TabBar", "collapsible-right.png", create<TabBar>, {200, 30}},
    {"TabWidget",
     "collapsible-right.png",
     create<TabWidget>,
     {260, 160},
     true,
     "<widget class=\"QWidget\" name=\"page\"><attribute name=\"title\"><string>Page "
     "1</string></attribute></widget><widget class=\"QWidget\" name=\"page_2\"><attribute "
     "name=\"title\"><string>Page 2</string></attribute></widget>"},
    {"TreeWidget", "collapsible-down.png", create<TreeWidget>, {180, 140}},
    {"Widget", "tool_select.png", create<Widget>, {160, 120}, true},
};

} // namespace

NocturneWidgets::NocturneWidgets(QObject *parent)
    : QObject(parent)
{
    for (const WidgetKind &kind : kinds)
        m_widgets.push_back(std::make_unique<FormWidget>(kind));
}

QList<QDesignerCustomWidgetInterface *> NocturneWidgets::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> widgets;
    for (const std::unique_ptr<FormWidget> &widget : m_widgets)
        widgets << widget.get();
    return widgets;
}
