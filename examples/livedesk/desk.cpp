#include "desk.h"

#include "testpictures.h"

#include <QtCore/QFileInfo>

#include <QUndoCommand>

#include <utility>

class EditCommand : public QUndoCommand
{
public:
    EditCommand(Desk *desk, const QString &text, bool first, const DeskState &after)
        : QUndoCommand(text)
        , m_desk(desk)
        , m_first(first)
        , m_before(desk->state())
        , m_after(after)
    {}

    int id() const override { return 0; }
    void undo() override { m_desk->setState(m_before); }
    void redo() override { m_desk->setState(m_after); }

    bool mergeWith(const QUndoCommand *other) override
    {
        const auto *next = static_cast<const EditCommand *>(other);
        if (next->m_first || next->text() != text())
            return false;
        m_after = next->m_after;
        return true;
    }

private:
    Desk *m_desk;
    bool m_first;
    DeskState m_before;
    DeskState m_after;
};

void Desk::edit(const QString &text, bool first, const std::function<void(DeskState &)> &change)
{
    DeskState after = m_state;
    change(after);
    if (after == m_state)
        return;
    const bool begin = std::exchange(m_begin, false);
    m_history.push(new EditCommand(this, text, first || begin, after));
}

void Desk::follow(QObject *panel, const std::function<void()> &show)
{
    connect(this, &Desk::changed, panel, show);
    show();
}

void Desk::speak(QObject *panel, const std::function<void()> &write)
{
    connect(this, &Desk::languageChanged, panel, write);
    write();
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
    edit(tr("Add clips"), true, [&](DeskState &state) {
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

void Desk::moveClip(int from, int to)
{
    edit(tr("Move clip"), true, [=](DeskState &state) {
        const int last = state.clips.size() - 1;
        if (from < 0 || from > last || to < 0 || to > last)
            return;
        state.clips.move(from, to);
        state.current = to;
    });
}

void Desk::removeClip()
{
    edit(tr("Remove clip"), true, [](DeskState &state) {
        if (!state.currentClip())
            return;
        state.clips.removeAt(state.current);
        if (state.current > 0 || state.clips.isEmpty())
            --state.current;
    });
}

void Desk::renameClip(const QString &name)
{
    edit(tr("Rename clip"), true, [&](DeskState &state) {
        if (Clip *clip = state.currentClip())
            clip->name = name.trimmed();
    });
}

void Desk::setAmount(double percent, bool first)
{
    edit(tr("Amount"), first, [=](DeskState &state) { state.look.amount = int(percent); });
}

void Desk::setState(const DeskState &state)
{
    m_state = state;
    Q_EMIT changed();
}
