#include "panels.h"
#include "testpictures.h"

#include <nocturne/GradientTool>
#include <nocturne/Slider>
#include <nocturne/SpanSlider>
#include <nocturne/SpinBox>

#include <QtWidgets/QtWidgets>

namespace {

QWidget *levelsControl(Desk *desk)
{
    auto *slider = new SpanSlider(Qt::Horizontal);
    slider->setObjectName("levels");
    slider->setRange(0, 255);
    slider->setHandleMovementMode(SpanSlider::NoOverlapping);
    QObject::connect(slider, &SpanSlider::sliderPressed, desk, &Desk::beginGesture);
    QObject::connect(slider, &SpanSlider::spanChanged, desk, [=](int black, int white) {
        desk->edit(Desk::tr("Levels"), !slider->isSliderDown(), [=](DeskState &state) {
            state.look.black = black;
            state.look.white = white;
        });
    });
    desk->follow(slider, [=] {
        const QSignalBlocker blocker(slider);
        slider->setSpan(desk->state().look.black, desk->state().look.white);
    });
    return slider;
}

QWidget *rampControl(Desk *desk)
{
    auto *tool = new GradientTool;
    tool->setObjectName("ramp");
    tool->setFixedHeight(48);
    // A press that adds a stop and the drag that moves it are one gesture.
    QObject::connect(tool, &GradientTool::mousePressed, desk, &Desk::beginGesture);
    QObject::connect(tool, &GradientTool::rampChanged, desk, [=](double, bool first) {
        desk->edit(Desk::tr("Colour ramp"), first && !tool->isMousePressed(),
                   [=](DeskState &state) { state.look.ramp = tool->getRamp(); });
    });
    desk->follow(tool, [=] {
        if (!isSameRamp(tool->getRamp(), desk->state().look.ramp))
            tool->setRamp(desk->state().look.ramp);
    });
    return tool;
}

QWidget *amountControl(Desk *desk)
{
    auto *slider = new Slider(Qt::Horizontal);
    slider->setObjectName("amount");
    slider->setRange(0, 100);
    QObject::connect(slider, &Slider::valueChanged, desk, &Desk::setAmount);
    QObject::connect(slider, &QSlider::valueChanged, desk, [=](int value) { // by keys
        if (!slider->isMousePressed())
            desk->setAmount(value, true);
    });
    desk->follow(slider, [=] { slider->positionChange(desk->state().look.amount); });
    return slider;
}

/// A field for a \a number of the look. Its steps in the history are called \a text.
QWidget *numberControl(Desk *desk, const char *name, int Look::*number, int low, int high,
                       const char *text)
{
    auto *box = new SpinBox;
    box->setObjectName(name);
    box->setRange(low, high);
    QObject::connect(box, QOverload<double, bool>::of(&SpinBox::valueChanged), desk,
                     [=](double value, bool first) {
                         desk->edit(Desk::tr(text), first,
                                    [=](DeskState &state) { state.look.*number = int(value); });
                     });
    desk->follow(box, [=] {
        const QSignalBlocker blocker(box);
        box->setValue(desk->state().look.*number);
    });
    return box;
}

} // namespace

QWidget *lookPanel(Desk *desk)
{
    const char *const position = QT_TRANSLATE_NOOP("Desk", "Position");
    const char *const transition = QT_TRANSLATE_NOOP("Desk", "Transition");
    const int width = pictureSize.width();
    const int height = pictureSize.height();
    auto *place = new QHBoxLayout;
    place->addWidget(numberControl(desk, "x", &Look::x, -width, width, position));
    place->addWidget(numberControl(desk, "y", &Look::y, -height, height, position));

    auto *panel = new QWidget;
    auto *form = new QFormLayout(panel);
    form->addRow(label(desk, QT_TRANSLATE_NOOP("Desk", "Levels")), levelsControl(desk));
    form->addRow(label(desk, QT_TRANSLATE_NOOP("Desk", "Colour ramp")), rampControl(desk));
    form->addRow(label(desk, QT_TRANSLATE_NOOP("Desk", "Amount")), amountControl(desk));
    form->addRow(label(desk, position), place);
    form->addRow(label(desk, transition),
                 numberControl(desk, "transition", &Look::transition, 1, 250, transition));
    return panel;
}

QLabel *label(Desk *desk, const char *text)
{
    auto *label = new QLabel;
    desk->speak(label, [=] { label->setText(Desk::tr(text)); });
    return label;
}
