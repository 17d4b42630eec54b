#ifndef POSED_H
#define POSED_H

#include "samplesheet.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDial>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QToolButton>

#include <type_traits>

/// What a pointer or the keyboard would make of a control.
struct Pose
{
    QStyle::State state = QStyle::State_None;
    QStyle::SubControls active = QStyle::SC_None;
    bool enabled = true;
};

namespace Poses {

const Pose normal;
const Pose hovered{QStyle::State_MouseOver};
const Pose pressed{QStyle::State_Sunken};
const Pose focused{QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange};
const Pose disabled{QStyle::State_None, QStyle::SC_None, false};

inline Pose hoveredOn(QStyle::SubControl part)
{
    return {QStyle::State_MouseOver, part};
}
inline Pose pressedOn(QStyle::SubControl part)
{
    return {QStyle::State_Sunken | QStyle::State_MouseOver, part};
}

} // namespace Poses

/// How a control draws itself through its style.
template <typename Control>
struct PoseTraits;

template <typename StyleOption, QStyle::ControlElement element>
struct ElementTraits
{
    using Option = StyleOption;
    static void draw(QStylePainter &painter, Option &option)
    {
        painter.drawControl(element, option);
    }
};

template <typename StyleOption, QStyle::ComplexControl control>
struct ComplexTraits
{
    using Option = StyleOption;
    static void draw(QStylePainter &painter, Option &option)
    {
        painter.drawComplexControl(control, option);
    }
};

template <>
struct PoseTraits<QPushButton> : ElementTraits<QStyleOptionButton, QStyle::CE_PushButton>
{};
template <>
struct PoseTraits<QCheckBox> : ElementTraits<QStyleOptionButton, QStyle::CE_CheckBox>
{};
template <>
struct PoseTraits<QRadioButton> : ElementTraits<QStyleOptionButton, QStyle::CE_RadioButton>
{};
template <>
struct PoseTraits<QToolButton> : ComplexTraits<QStyleOptionToolButton, QStyle::CC_ToolButton>
{};
template <>
struct PoseTraits<QSpinBox> : ComplexTraits<QStyleOptionSpinBox, QStyle::CC_SpinBox>
{};
template <>
struct PoseTraits<QDial> : ComplexTraits<QStyleOptionSlider, QStyle::CC_Dial>
{};
template <>
struct PoseTraits<QGroupBox> : ComplexTraits<QStyleOptionGroupBox, QStyle::CC_GroupBox>
{};
template <>
struct PoseTraits<QComboBox>
{
    using Option = QStyleOptionComboBox;
    static void draw(QStylePainter &painter, Option &option)
    {
        painter.drawComplexControl(QStyle::CC_ComboBox, option);
        painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    }
};
template <>
struct PoseTraits<QScrollBar>
{
    using Option = QStyleOptionSlider;
    static void draw(QStylePainter &painter, Option &option)
    {
        option.subControls = QStyle::SC_All;
        painter.drawComplexControl(QStyle::CC_ScrollBar, option);
    }
};
template <>
struct PoseTraits<QSlider>
{
    using Option = QStyleOptionSlider;
    static void draw(QStylePainter &painter, Option &option)
    {
        option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
        if (option.tickPosition != QSlider::NoTicks)
            option.subControls |= QStyle::SC_SliderTickmarks;
        painter.drawComplexControl(QStyle::CC_Slider, option);
    }
};

/// A control that looks as if it were hovered, pressed or focused, and works as usual.
template <typename Control>
class Posed : public Control
{
public:
    explicit Posed(const Pose &pose)
        : m_pose(pose)
    {
        this->setEnabled(pose.enabled);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        using Option = typename PoseTraits<Control>::Option;
        QStylePainter painter(this);
        Option option;
        this->initStyleOption(&option);
        if (this->isEnabled()) {
            option.state |= m_pose.state;
            if constexpr (std::is_base_of_v<QStyleOptionComplex, Option>) {
                if (m_pose.active)
                    option.activeSubControls = m_pose.active;
            }
        }
        PoseTraits<Control>::draw(painter, option);
    }

private:
    const Pose m_pose;
};

/// A row with one control a pose, each set up alike.
template <typename Control, typename SetUp>
void addPoses(SampleSheet *sheet, const QString &label, const QVector<Pose> &poses, SetUp setUp)
{
    QVector<QWidget *> samples;
    for (const Pose &pose : poses) {
        auto *control = new Posed<Control>(pose);
        setUp(control);
        samples << control;
    }
    sheet->addRow(label, samples);
}

#endif
