#include "midisequenceedit.h"

#include <nocturne/widgets/fieldframe_p.h>

namespace {

void copyShownFields(const QMidiMessage &from, QMidiMessage *to)
{
    to->setType(from.type());
    to->setChannel(from.channel());
    to->setKey(from.key());
    to->setValue(from.value());
}

QString shownText(const QMidiMessage &message)
{
    if (message.type() == QMidiMessage::None)
        return QString();
    return QStringLiteral("%1 Channel %2, Key %3, Value %4")
        .arg(QMidiMessage::typeName(message.type()))
        .arg(message.channel())
        .arg(message.key())
        .arg(message.value());
}

} // namespace

MidiSequenceEdit::MidiSequenceEdit(QWidget *parent)
    : QWidget(parent)
{
    Nocturne::FieldFrame::setUp(this);
}

MidiSequenceEdit::~MidiSequenceEdit() = default;

void MidiSequenceEdit::setKeySequence(QMidiMessage *sequence)
{
    m_sequence = sequence;
    if (m_sequence)
        updateKeySequence(m_sequence);
    else
        Nocturne::FieldFrame::setText(this, QString());
}

void MidiSequenceEdit::updateKeySequence(QMidiMessage *sequence)
{
    if (!m_sequence || !sequence)
        return;
    copyShownFields(*sequence, m_sequence);
    Nocturne::FieldFrame::setText(this, shownText(*m_sequence));
}

void MidiSequenceEdit::setOldKeySequence(const QMidiMessage &sequence)
{
    m_oldSequence = sequence;
}

void MidiSequenceEdit::clearKeySequence()
{
    if (!m_sequence)
        return;
    m_sequence->clear();
    updateKeySequence(m_sequence);
}

void MidiSequenceEdit::restoreKeySequence()
{
    updateKeySequence(&m_oldSequence);
}

void MidiSequenceEdit::updateOldKeySequence()
{
    if (m_sequence)
        copyShownFields(*m_sequence, &m_oldSequence);
}

void MidiSequenceEdit::paintEvent(QPaintEvent *)
{
    Nocturne::FieldFrame::paint(this);
}
