#ifndef PANELS_H
#define PANELS_H

#include "desk.h"

#include <nocturne/QMidiMessage>

#include <QtCore/QElapsedTimer>
#include <QtWidgets/QWidget>

class MidiSequenceEdit;
class QLabel;

/// The clips: dropped from outside, moved by dragging, renamed below the list.
QWidget *binPanel(Desk *desk);

/// Levels, colour ramp and position of the picture, and the length of a transition.
QWidget *lookPanel(Desk *desk);

/// Shortcuts and the MIDI control of the ramp's amount.
class ControlPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ControlPanel(Desk *desk);

    /// The control that sets the amount: type, channel and key of \a message count.
    void setBinding(const QMidiMessage &message);
    const QMidiMessage &binding() const { return m_binding; }

    /// What arrives from the controller. While the learn field has the focus, a message becomes
    /// the binding.
    void takeMidi(const QMidiMessage &message);

private:
    QWidget *shortcutField(const char *name, QString DeskState::*shortcut);
    QLayout *portChoice();

    Desk *m_desk;
    MidiSequenceEdit *m_learn;
    QMidiMessage m_binding;
    QElapsedTimer m_sinceMidi;
};

/// A label with \a text in the language of the moment, which stands in the context "Desk".
QLabel *label(Desk *desk, const char *text);

#endif
