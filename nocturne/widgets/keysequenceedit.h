#ifndef NOCTURNE_KEYSEQUENCEEDIT_H
#define NOCTURNE_KEYSEQUENCEEDIT_H

#include <nocturne/nocturneglobal.h>

#include <QtGui/QKeySequence>
#include <QtWidgets/QWidget>

class QKeyEvent;

/// A field that records one keyboard shortcut: click into it and press a combination of keys.
///
/// \code
/// auto *field = new KeySequenceEdit(dialog);
/// field->setKeySequence(action->shortcut());
/// field->setDefaultKeySequence(QKeySequence(QStringLiteral("Ctrl+T")));
/// QObject::connect(field, &KeySequenceEdit::keySequenceChanged, action, &QAction::setShortcut);
/// \endcode
///
/// A recorded sequence is one key with the modifiers held; the next press replaces it. Under Shift
/// a character of a US keyboard's upper row counts as the key it is on: Shift+1, not Shift+!.
/// While the field has the focus no shortcut of the application runs. A click gives it the focus,
/// the Tab key does not. The theme must exist before it paints.
class NOCTURNE_EXPORT KeySequenceEdit : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QKeySequence keySequence READ keySequence WRITE setKeySequence RESET clearKeySequence
                   NOTIFY keySequenceChanged)
    Q_PROPERTY(QKeySequence oldKeySequence READ oldKeySequence WRITE setOldKeySequence)
    Q_PROPERTY(QKeySequence defaultKeySequence MEMBER m_defaultSequence WRITE setDefaultKeySequence)

public:
    explicit KeySequenceEdit(QWidget *parent = nullptr);
    ~KeySequenceEdit() override;

    /// The sequence shown; empty at first.
    QKeySequence keySequence() const { return m_sequence; }

    /// The sequence that the last recorded press replaced, or the one that was set.
    QKeySequence oldKeySequence() const { return m_oldSequence; }

public Q_SLOTS:
    /// Shows \a sequence as the platform writes it. Emits nothing.
    void setKeySequence(const QKeySequence &sequence);

    /// Sets what oldKeySequence() gives until the next recorded press.
    void setOldKeySequence(const QKeySequence &sequence);

    /// Sets what defaultKeySequence() shows.
    void setDefaultKeySequence(const QKeySequence &sequence);

    /// Empties the field and emits keySequenceChanged(), if it is not empty already.
    void clearKeySequence();

    /// Shows the default sequence. Emits nothing.
    void defaultKeySequence();

Q_SIGNALS:
    /// Emitted after a key press that changed the sequence and after clearKeySequence() has
    /// emptied it. Pressing the same combination again emits nothing.
    void keySequenceChanged(const QKeySequence &sequence);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void processKeyPress(QKeyEvent *event);

    QKeySequence m_sequence;
    QKeySequence m_oldSequence;
    QKeySequence m_defaultSequence;
};

#endif
