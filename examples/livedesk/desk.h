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
    /// What a step of the history changes. Steps of one kind can continue each other.
    enum Kind { Clips, Trim, Levels, Grade, Amount, Position, Transition, Shortcut };

    /// Whether a change begins a step of its own or belongs to the gesture that made the last one.
    enum Step { NewStep, SameGesture };

    explicit Desk(QObject *parent = nullptr);

    const DeskState &state() const { return m_state; }
    QUndoStack *history() { return &m_history; }

    /// Changes the state by \a change, as a step called \a text. Nothing happens when the state
    /// stays as it was.
    void edit(Kind kind, Step step, const QString &text,
              const std::function<void(DeskState &)> &change);

    /// Sets a state to begin with, and forgets the history.
    void load(const DeskState &state);

    /// Puts the clip of that row into the preview. Not a step of the history.
    void select(int row);

    /// Adds a clip for each file, after the others.
    void addFiles(const QStringList &files);
    void removeClip(int row);
    void moveClip(int from, int to);

Q_SIGNALS:
    void changed();

private:
    friend class EditCommand;

    void setState(const DeskState &state);

    DeskState m_state;
    QUndoStack m_history;
};

#endif
