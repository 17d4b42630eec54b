#include "desk.h"

#include "testpictures.h"

#include <QtCore/QFileInfo>

#include <QUndoCommand>

class EditCommand : public QUndoCommand
{
public:
    EditCommand(Desk *desk, Desk::Kind kind, Desk::Step step, const QString &text,
                const DeskState &after)
        : QUndoCommand(text)
        , m_desk(desk)
        , m_kind(kind)
        , m_step(step)
        , m_before(desk->state())
        , m_after(after)
    {}

    int id() const override { return m_kind; }
    void undo() override { m_desk->setState(m_before); }
    void redo() override { m_desk->setState(m_after); }

    bool mergeWith(const QUndoCommand *other) override
    {
        const auto *next = static_cast<const EditCommand *>(other);
        if (next->m_step == Desk::NewStep)
            return false;
        m_after = next->m_after;
        return true;
    }

private:
    Desk *m_desk;
    Desk::Kind m_kind;
    Desk::Step m_step;
    DeskState m_before;
    DeskState m_after;
};

Desk::Desk(QObject *parent)
    : QObject(parent)
{}

void Desk::edit(Kind kind, Step step, const QString &text,
                const std::function<void(DeskState &)> &change)
{
    DeskState after = m_state;
    change(after);
    if (!(after == m_state))
        m_history.push(new EditCommand(this, kind, step, text, after));
}

void Desk::load(const DeskState &state)
{
    m_history.clear();
    setState(state);
}

void Desk::select(int row)
{
    if (row == m_state.current || row < -1 || row >= m_state.clips.size())
        return;
    DeskState state = m_state;
    state.current = row;
    setState(state);
}

void Desk::addFiles(const QStringList &files)
{
    edit(Clips, NewStep, tr("Add clips"), [&](DeskState &state) {
        for (const QString &file : files) {
            if (file.isEmpty())
                continue;
            Clip clip;
            clip.path = file;
            clip.name = QFileInfo(file).completeBaseName();
            clip.pattern = state.clips.size() % testPatternCount;
            clip.length = 250 + 50 * clip.pattern;
            clip.out = clip.length - 1;
            state.clips << clip;
        }
        if (state.current < 0 && !state.clips.isEmpty())
            state.current = 0;
    });
}

void Desk::removeClip(int row)
{
    edit(Clips, NewStep, tr("Remove clip"), [=](DeskState &state) {
        if (row < 0 || row >= state.clips.size())
            return;
        state.clips.removeAt(row);
        if (state.current >= row)
            state.current = qMax(state.current - 1, state.clips.isEmpty() ? -1 : 0);
    });
}

void Desk::moveClip(int from, int to)
{
    edit(Clips, NewStep, tr("Move clip"), [=](DeskState &state) {
        const int last = state.clips.size() - 1;
        if (from < 0 || from > last || to < 0 || to > last)
            return;
        state.clips.move(from, to);
        if (state.current == from)
            state.current = to;
        else if (from < state.current && to >= state.current)
            --state.current;
        else if (from > state.current && to <= state.current)
            ++state.current;
    });
}

void Desk::setState(const DeskState &state)
{
    m_state = state;
    Q_EMIT changed();
}
