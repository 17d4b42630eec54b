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
    double extremeDouble();
    QString text();

private:
    quint32 m_state;
};

/// One class under test.
struct Subject
{
    const char *name;
    std::function<QWidget *()> create;
    /// Calls one of the class's functions, with arguments by the dice.
    std::function<void(QWidget *, Dice &)> call;
    /// Asks hosts to delete it with deleteLater() in its signals.
    bool onlyDeletedLater;
};

/// A promise of its class that \a widget does not keep, or an empty text.
QString brokenPromise(const QWidget *widget);

/// Every widget of the library.
const std::vector<Subject> &subjects();

#endif
