#include "controlpanel.h"

#include "desk.h"

#include <nocturne/ComboBox>
#include <nocturne/KeySequenceEdit>
#include <nocturne/MidiSequenceEdit>
#include <nocturne/QMidiIn>

#include <QtCore/QEvent>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace {

/// A fader that rests longer than this, in milliseconds, begins a new gesture.
constexpr int restBetweenGestures = 500;

bool isSameControl(const QMidiMessage &a, const QMidiMessage &b)
{
    return a.type() == b.type() && a.channel() == b.channel() && a.key() == b.key();
}

} // namespace

ControlPanel::ControlPanel(Desk *desk, QWidget *parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_input(new QMidiIn(this))
    , m_take(new KeySequenceEdit)
    , m_play(new KeySequenceEdit)
    , m_learn(new MidiSequenceEdit)
    , m_ports(new ComboBox)
    , m_rescan(new QPushButton)
    , m_takeLabel(new QLabel)
    , m_playLabel(new QLabel)
    , m_portLabel(new QLabel)
    , m_learnLabel(new QLabel)
{
    m_take->setObjectName(QStringLiteral("takeShortcut"));
    m_play->setObjectName(QStringLiteral("playShortcut"));
    m_learn->setObjectName(QStringLiteral("learn"));
    for (QWidget *field : {static_cast<QWidget *>(m_take), static_cast<QWidget *>(m_play),
                           static_cast<QWidget *>(m_learn)})
        field->setFixedHeight(28);
    m_learn->setKeySequence(&m_binding);

    auto *ports = new QHBoxLayout;
    ports->addWidget(m_ports, 1);
    ports->addWidget(m_rescan);
    auto *form = new QFormLayout(this);
    form->addRow(m_takeLabel, m_take);
    form->addRow(m_playLabel, m_play);
    form->addRow(m_portLabel, ports);
    form->addRow(m_learnLabel, m_learn);

    connect(m_take, &KeySequenceEdit::keySequenceChanged, this, [this](const QKeySequence &keys) {
        m_desk->edit(Desk::Shortcut, Desk::NewStep, tr("Shortcut"),
                     [&](DeskState &state) { state.takeShortcut = keys.toString(); });
    });
    connect(m_play, &KeySequenceEdit::keySequenceChanged, this, [this](const QKeySequence &keys) {
        m_desk->edit(Desk::Shortcut, Desk::NewStep, tr("Shortcut"),
                     [&](DeskState &state) { state.playShortcut = keys.toString(); });
    });
    // Messages come on a thread of the MIDI service; with a receiver they are queued to this one.
    connect(m_input, &QMidiIn::midiMessageReceived, this, &ControlPanel::takeMidi);
    connect(m_rescan, &QPushButton::clicked, this, &ControlPanel::listPorts);
    connect(m_ports, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { m_input->openPort(m_ports->itemText(index)); });
    connect(desk, &Desk::changed, this, &ControlPanel::refresh);
    listPorts();
    retranslate();
    refresh();
}

void ControlPanel::setBinding(const QMidiMessage &message)
{
    QMidiMessage copy = message;
    m_learn->updateKeySequence(&copy);
}

void ControlPanel::takeMidi(const QMidiMessage &message)
{
    if (m_learn->hasFocus()) {
        setBinding(message);
        return;
    }
    if (m_binding.type() == QMidiMessage::None || !isSameControl(message, m_binding))
        return;
    const bool newStep = !m_sinceMidi.isValid() || m_sinceMidi.elapsed() > restBetweenGestures;
    m_sinceMidi.start();
    Q_EMIT amountChanged(message.value() * 100 / 127, newStep);
}

void ControlPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void ControlPanel::refresh()
{
    m_take->setKeySequence(QKeySequence(m_desk->state().takeShortcut));
    m_play->setKeySequence(QKeySequence(m_desk->state().playShortcut));
}

void ControlPanel::retranslate()
{
    m_takeLabel->setText(tr("Cut with"));
    m_playLabel->setText(tr("Play with"));
    m_portLabel->setText(tr("MIDI input"));
    m_learnLabel->setText(tr("Amount by"));
    m_rescan->setText(tr("Rescan"));
    m_learn->setToolTip(tr("Click here and move a control"));
}

void ControlPanel::listPorts()
{
    const QString current = m_ports->currentText();
    const QStringList names = m_input->portNames();
    m_ports->clear();
    m_ports->addItems(names);
    m_ports->setCurrentIndex(names.indexOf(current));
    m_ports->setEnabled(!names.isEmpty());
}
