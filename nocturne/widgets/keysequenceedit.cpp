#include "keysequenceedit.h"

#include "fieldframe_p.h"

#include <QtGui/QKeyEvent>

namespace {

struct ShiftPair
{
    char shifted;
    int key;
};

constexpr ShiftPair shiftPairs[] = {
    {'~', Qt::Key_QuoteLeft},   {'!', Qt::Key_1},
    {'@', Qt::Key_2},           {'#', Qt::Key_3},
    {'$', Qt::Key_4},           {'%', Qt::Key_5},
    {'^', Qt::Key_6},           {'&', Qt::Key_7},
    {'*', Qt::Key_8},           {'(', Qt::Key_9},
    {')', Qt::Key_0},           {'_', Qt::Key_Minus},
    {'+', Qt::Key_Equal},       {'}', Qt::Key_BracketRight},
    {'{', Qt::Key_BracketLeft}, {'|', Qt::Key_Backslash},
    {':', Qt::Key_Semicolon},   {'"', Qt::Key_Apostrophe},
    {'<', Qt::Key_Comma},       {'>', Qt::Key_Period},
    {'?', Qt::Key_Slash},
};

bool isModifierKey(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_AltGr:
        return true;
    default:
        return false;
    }
}

/// The key without Shift that \a text is typed with on a US keyboard, or \a key.
int unshiftedKey(int key, const QString &text)
{
    for (const ShiftPair &pair : shiftPairs) {
        if (text == QLatin1Char(pair.shifted))
            return pair.key;
    }
    return key;
}

} // namespace

KeySequenceEdit::KeySequenceEdit(QWidget *parent)
    : QWidget(parent)
{
    Nocturne::FieldFrame::setUp(this);
}

KeySequenceEdit::~KeySequenceEdit() = default;

void KeySequenceEdit::setKeySequence(const QKeySequence &sequence)
{
    m_sequence = sequence;
    Nocturne::FieldFrame::setText(this, m_sequence.toString(QKeySequence::NativeText));
}

void KeySequenceEdit::setOldKeySequence(const QKeySequence &sequence)
{
    m_oldSequence = sequence;
}

void KeySequenceEdit::setDefaultKeySequence(const QKeySequence &sequence)
{
    m_defaultSequence = sequence;
}

void KeySequenceEdit::clearKeySequence()
{
    if (m_sequence.isEmpty())
        return;
    setKeySequence(QKeySequence());
    Q_EMIT keySequenceChanged(m_sequence);
}

void KeySequenceEdit::defaultKeySequence()
{
    setKeySequence(m_defaultSequence);
}

bool KeySequenceEdit::event(QEvent *event)
{
    // Accepted, they reach the field as key presses instead of running an action elsewhere.
    if (event->type() == QEvent::Shortcut || event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void KeySequenceEdit::keyPressEvent(QKeyEvent *event)
{
    processKeyPress(event);
    event->accept();
}

void KeySequenceEdit::processKeyPress(QKeyEvent *event)
{
    int key = event->key();
    if (isModifierKey(key))
        return;
    if (event->modifiers() & Qt::ShiftModifier)
        key = unshiftedKey(key, event->text());

    const QKeySequence pressed(key | int(event->modifiers()));
    if (pressed == m_sequence)
        return;
    m_oldSequence = m_sequence;
    setKeySequence(pressed);
    Q_EMIT keySequenceChanged(m_sequence);
}

void KeySequenceEdit::paintEvent(QPaintEvent *)
{
    Nocturne::FieldFrame::paint(this);
}
