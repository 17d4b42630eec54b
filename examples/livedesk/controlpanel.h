#ifndef CONTROLPANEL_H
#define CONTROLPANEL_H

#include <nocturne/QMidiMessage>

#include <QtCore/QElapsedTimer>
#include <QtWidgets/QWidget>

class ComboBox;
class Desk;
class KeySequenceEdit;
class MidiSequenceEdit;
class QLabel;
class QMidiIn;
class QPushButton;

/// Shortcuts and the MIDI control of the ramp's amount.
class ControlPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ControlPanel(Desk *desk, QWidget *parent = nullptr);

    /// The control that sets the amount: type, channel and key of \a message count.
    void setBinding(const QMidiMessage &message);
    const QMidiMessage &binding() const { return m_binding; }

    /// What arrives from the controller. While the learn field has the focus, a message becomes
    /// the binding.
    void takeMidi(const QMidiMessage &message);

Q_SIGNALS:
    /// The bound control was moved to \a percent. \a newStep is true when it had rested before.
    void amountChanged(int percent, bool newStep);

protected:
    void changeEvent(QEvent *event) override;

private:
    void refresh();
    void retranslate();
    void listPorts();

    Desk *m_desk;
    QMidiIn *m_input;
    KeySequenceEdit *m_take;
    KeySequenceEdit *m_play;
    MidiSequenceEdit *m_learn;
    ComboBox *m_ports;
    QPushButton *m_rescan;
    QLabel *m_takeLabel;
    QLabel *m_playLabel;
    QLabel *m_portLabel;
    QLabel *m_learnLabel;
    QMidiMessage m_binding;
    QElapsedTimer m_sinceMidi;
};

#endif
