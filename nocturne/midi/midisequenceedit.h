#ifndef NOCTURNE_MIDISEQUENCEEDIT_H
#define NOCTURNE_MIDISEQUENCEEDIT_H

#include <nocturne/midi/qmidimessage.h>
#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QWidget>

/// A field for MIDI learn: shows a message as text and remembers an earlier one.
///
/// It listens to no port. The host owns the message that is being edited, hands it over once and
/// then feeds the field what arrives:
///
/// \code
/// auto *field = new MidiSequenceEdit(panel);
/// field->setKeySequence(&binding); // a QMidiMessage that outlives the field
/// field->updateOldKeySequence();
/// QObject::connect(input, &QMidiIn::midiMessageReceived, field, [field](QMidiMessage message) {
///     if (field->hasFocus())
///         field->updateKeySequence(&message);
/// });
/// \endcode
///
/// Of a message the field shows and copies type, channel, key and value only. Without a message
/// there is nothing to edit, and what would edit it does nothing. A click gives the field the
/// focus, the Tab key does not. The theme must exist before it paints.
class NOCTURNE_EXPORT MidiSequenceEdit : public QWidget
{
    Q_OBJECT

public:
    explicit MidiSequenceEdit(QWidget *parent = nullptr);
    ~MidiSequenceEdit() override;

    /// The message being edited, the host's own object; null before setKeySequence().
    QMidiMessage *keySequence() const { return m_sequence; }

    /// A copy of the message that restoreKeySequence() goes back to.
    QMidiMessage oldKeySequence() const { return m_oldSequence; }

    /// Copies type, channel, key and value of \a sequence into the message being edited and shows
    /// them. A null pointer is ignored. Emits nothing.
    void updateKeySequence(QMidiMessage *sequence);

public Q_SLOTS:
    /// Edits \a sequence from now on and shows it. The field does not own it. With a null pointer
    /// the field is empty and edits nothing.
    void setKeySequence(QMidiMessage *sequence);

    /// Remembers a full copy of \a sequence.
    void setOldKeySequence(const QMidiMessage &sequence);

    /// Clears the message being edited, and the text.
    void clearKeySequence();

    /// Gives the message being edited type, channel, key and value of the remembered one.
    void restoreKeySequence();

    /// Remembers type, channel, key and value of the message being edited; the other fields of the
    /// remembered message stay.
    void updateOldKeySequence();

Q_SIGNALS:
    /// For hosts to emit and connect to; the field itself never emits it.
    void keySequenceChanged(const QMidiMessage &sequence);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QMidiMessage *m_sequence = nullptr;
    QMidiMessage m_oldSequence;
};

#endif
