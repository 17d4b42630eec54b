#include "panels.h"

#include <nocturne/ComboBox>
#include <nocturne/KeySequenceEdit>
#include <nocturne/MidiSequenceEdit>
#include <nocturne/QMidiIn>

#include <QtWidgets/QtWidgets>

constexpr int fieldHeight = 28;

/// A fader that rests longer than this, in milliseconds, begins a new gesture.
constexpr int restBetweenGestures = 500;

ControlPanel::ControlPanel(Desk *desk)
    : m_desk(desk)
    , m_learn(new MidiSequenceEdit)
{
    m_learn->setObjectName("learn");
    m_learn->setFixedHeight(fieldHeight);
    m_learn->setKeySequence(&m_binding);
    desk->speak(this, [this] { m_learn->setToolTip(tr("Click here and move a control")); });

    auto *form = new QFormLayout(this);
    form->addRow(label(desk, QT_TRANSLATE_NOOP("Desk", "Cut with")),
                 shortcutField("takeShortcut", &DeskState::takeShortcut));
    form->addRow(label(desk, QT_TRANSLATE_NOOP("Desk", "Play with")),
                 shortcutField("playShortcut", &DeskState::playShortcut));
    form->addRow(label(desk, QT_TRANSLATE_NOOP("Desk", "MIDI input")), portChoice());
    form->addRow(label(desk, QT_TRANSLATE_NOOP("Desk", "Amount by")), m_learn);
}

QWidget *ControlPanel::shortcutField(const char *name, QString DeskState::*shortcut)
{
    auto *field = new KeySequenceEdit;
    field->setObjectName(name);
    field->setFixedHeight(fieldHeight);
    connect(field, &KeySequenceEdit::keySequenceChanged, m_desk, [=](const QKeySequence &keys) {
        m_desk->edit(tr("Shortcut"), true,
                     [&](DeskState &state) { state.*shortcut = keys.toString(); });
    });
    m_desk->follow(field, [=] { field->setKeySequence(QKeySequence(m_desk->state().*shortcut)); });
    return field;
}

QLayout *ControlPanel::portChoice()
{
    auto *input = new QMidiIn(this);
    auto *ports = new ComboBox;
    auto *rescan = new QPushButton;
    auto *row = new QHBoxLayout;
    row->addWidget(ports, 1);
    row->addWidget(rescan);
    m_desk->speak(rescan, [=] { rescan->setText(tr("Rescan")); });

    const auto listPorts = [=] {
        const QString current = ports->currentText();
        const QStringList names = input->portNames();
        ports->clear();
        ports->addItems(names);
        ports->setCurrentIndex(names.indexOf(current));
        ports->setEnabled(!names.isEmpty());
    };
    listPorts();
    connect(rescan, &QPushButton::clicked, ports, listPorts);
    connect(ports, QOverload<int>::of(&QComboBox::activated), input,
            [=](int index) { input->openPort(ports->itemText(index)); });
    // Messages come on a thread of the MIDI service; with a receiver they are queued to this one.
    connect(input, &QMidiIn::midiMessageReceived, this, &ControlPanel::takeMidi);
    return row;
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
    if (m_binding.type() == QMidiMessage::None || message.type() != m_binding.type()
        || message.channel() != m_binding.channel() || message.key() != m_binding.key())
        return;
    const bool first = !m_sinceMidi.isValid() || m_sinceMidi.elapsed() > restBetweenGestures;
    m_sinceMidi.start();
    m_desk->setAmount(message.value() * 100 / 127, first);
}
