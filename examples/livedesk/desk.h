#ifndef DESK_H
#define DESK_H

#include "deskstate.h"

#include <QtCore/QObject>

#include <QUndoStack>

#include <functional>

/// The state of the desk with its history. Every change goes through edit().
class Desk : public QObject
{
    Q_OBJECT

public:
    const DeskState &state() const { return m_state; }
    QUndoStack *history() { return &m_history; }

    /// Changes the state by \a change, as a step of the history called \a text. When it is not the
    /// \a first of its gesture, it continues the step before if that is called the same. Nothing
    /// happens when the state stays as it was.
    void edit(const QString &text, bool first, const std::function<void(DeskState &)> &change);

    /// The next change is the first of its gesture: for controls that say when they are pressed.
    void beginGesture() { m_begin = true; }

    /// Runs \a show now and after every change, as long as \a panel lives.
    void follow(QObject *panel, const std::function<void()> &show);

    /// Runs \a write, which sets texts, now and in every new language, as long as \a panel lives.
    void speak(QObject *panel, const std::function<void()> &write);

    /// Sets a state to begin with, and forgets the history.
    void load(const DeskState &state);

    /// Puts the clip of that row into the preview. Not a step of the history.
    void select(int row);

    /// Adds a clip for each file, after the others.
    void addFiles(const QStringList &files);
    /// Puts the moved clip into the preview, too.
    void moveClip(int from, int to);
    /// These are about the clip in the preview.
    void removeClip();
    void renameClip(const QString &name);

    /// Sets how much of the ramp is mixed in, in percent.
    void setAmount(double percent, bool first);

Q_SIGNALS:
    void changed();
    void languageChanged(); ///< for the window to emit

private:
    friend class EditCommand;

    void setState(const DeskState &state);

    DeskState m_state;
    QUndoStack m_history;
    bool m_begin = false;
};

#endif
