#ifndef SUBJECTS_H
#define SUBJECTS_H

#include <QtCore/QString>

#include <functional>
#include <vector>

class QWidget;

/// Random numbers of one step. The same seed gives the same step, whatever ran before it.
class Dice
{
public:
    explicit Dice(quint32 seed)
        : m_state(seed * 2654435761u + 1u)
    {}

    /// 0 to \a count - 1.
    int roll(int count)
    {
        m_state ^= m_state << 13;
        m_state ^= m_state >> 17;
        m_state ^= m_state << 5;
        return static_cast<int>(m_state % static_cast<quint32>(count));
    }
    bool coin() { return roll(2) == 0; }

    /// A number that setters are easily wrong about, or any other.
    int extremeInt();
    /// One end of a range that is no longer than an int can count.
    int rangeEnd() { return extremeInt() / 4; }
    double extremeDouble();
    QString text();

private:
    quint32 m_state;
};

/// What is wrong with what the class promises; empty when nothing is.
using Check = std::function<QString(QWidget *)>;

/// One class under test.
struct Subject
{
    const char *name;
    std::function<QWidget *()> create;
    /// Calls one of the class's functions, with arguments by the dice.
    std::function<void(QWidget *, Dice &)> call;
    Check check; ///< null where nothing is promised
    /// Asks hosts to delete it with deleteLater() in its signals.
    bool onlyDeletedLater;
};

/// Every widget of the library.
const std::vector<Subject> &subjects();

#endif
