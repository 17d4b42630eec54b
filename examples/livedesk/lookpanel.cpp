#include "lookpanel.h"

#include "desk.h"
#include "testpictures.h"

#include <nocturne/GradientTool>
#include <nocturne/Slider>
#include <nocturne/SpanSlider>
#include <nocturne/SpinBox>

#include <QtCore/QEvent>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>

#include <utility>

LookPanel::LookPanel(Desk *desk, QWidget *parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_levels(new SpanSlider(Qt::Horizontal))
    , m_ramp(new GradientTool)
    , m_amount(new Slider(Qt::Horizontal))
    , m_x(positionBox(QStringLiteral("x"), pictureSize.width(), true))
    , m_y(positionBox(QStringLiteral("y"), pictureSize.height(), false))
    , m_transition(new SpinBox)
    , m_levelsLabel(new QLabel)
    , m_rampLabel(new QLabel)
    , m_amountLabel(new QLabel)
    , m_positionLabel(new QLabel)
    , m_transitionLabel(new QLabel)
{
    m_levels->setObjectName(QStringLiteral("levels"));
    m_levels->setRange(0, 255);
    m_levels->setHandleMovementMode(SpanSlider::NoOverlapping);
    m_ramp->setObjectName(QStringLiteral("ramp"));
    m_ramp->setFixedHeight(48);
    m_amount->setObjectName(QStringLiteral("amount"));
    m_amount->setRange(0, 100);
    m_transition->setObjectName(QStringLiteral("transition"));
    m_transition->setRange(1, 250);

    auto *position = new QHBoxLayout;
    position->addWidget(m_x);
    position->addWidget(m_y);
    auto *form = new QFormLayout(this);
    form->addRow(m_levelsLabel, m_levels);
    form->addRow(m_rampLabel, m_ramp);
    form->addRow(m_amountLabel, m_amount);
    form->addRow(m_positionLabel, position);
    form->addRow(m_transitionLabel, m_transition);

    connect(m_levels, &SpanSlider::sliderPressed, this, [this] { m_newLevels = true; });
    connect(m_levels, &SpanSlider::spanChanged, this, [this](int black, int white) {
        const bool first = std::exchange(m_newLevels, false) || !m_levels->isSliderDown();
        m_desk->edit(Desk::Levels, first ? Desk::NewStep : Desk::SameGesture, tr("Levels"),
                     [=](DeskState &state) {
                         state.look.black = black;
                         state.look.white = white;
                     });
    });
    // A press that adds a stop and the drag that moves it are one gesture.
    connect(m_ramp, &GradientTool::mousePressed, this, [this] { m_newRamp = true; });
    connect(m_ramp, &GradientTool::rampChanged, this, [this](double, bool first) {
        if (m_ramp->isMousePressed())
            first = std::exchange(m_newRamp, false);
        m_desk->edit(Desk::Grade, first ? Desk::NewStep : Desk::SameGesture, tr("Colour ramp"),
                     [this](DeskState &state) { state.look.ramp = m_ramp->getRamp(); });
    });
    connect(m_amount, &Slider::valueChanged, this,
            [this](double value, bool first) { setAmount(int(value), first); });
    connect(m_transition, QOverload<double, bool>::of(&SpinBox::valueChanged), this,
            [this](double value, bool first) {
                m_desk->edit(Desk::Transition, first ? Desk::NewStep : Desk::SameGesture,
                             tr("Transition"),
                             [=](DeskState &state) { state.transition = int(value); });
            });
    connect(desk, &Desk::changed, this, &LookPanel::refresh);
    retranslate();
    refresh();
}

void LookPanel::setAmount(int percent, bool newStep)
{
    m_desk->edit(Desk::Amount, newStep ? Desk::NewStep : Desk::SameGesture, tr("Amount"),
                 [=](DeskState &state) { state.look.amount = percent; });
}

void LookPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void LookPanel::refresh()
{
    const Look &look = m_desk->state().look;
    const QSignalBlocker blockLevels(m_levels);
    const QSignalBlocker blockX(m_x);
    const QSignalBlocker blockY(m_y);
    const QSignalBlocker blockTransition(m_transition);
    m_levels->setSpan(look.black, look.white);
    if (!isSameRamp(m_ramp->getRamp(), look.ramp))
        m_ramp->setRamp(look.ramp);
    m_amount->positionChange(look.amount);
    m_x->setValue(look.position.x());
    m_y->setValue(look.position.y());
    m_transition->setValue(m_desk->state().transition);
}

void LookPanel::retranslate()
{
    m_levelsLabel->setText(tr("Levels"));
    m_rampLabel->setText(tr("Colour ramp"));
    m_amountLabel->setText(tr("Amount"));
    m_positionLabel->setText(tr("Position"));
    m_transitionLabel->setText(tr("Transition"));
}

SpinBox *LookPanel::positionBox(const QString &name, int range, bool horizontal)
{
    auto *box = new SpinBox;
    box->setObjectName(name);
    box->setRange(-range, range);
    connect(box, QOverload<double, bool>::of(&SpinBox::valueChanged), this,
            [this, horizontal](double value, bool first) {
                m_desk->edit(Desk::Position, first ? Desk::NewStep : Desk::SameGesture,
                             tr("Position"), [=](DeskState &state) {
                                 if (horizontal)
                                     state.look.position.setX(int(value));
                                 else
                                     state.look.position.setY(int(value));
                             });
            });
    return box;
}
