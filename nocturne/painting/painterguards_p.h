#ifndef NOCTURNE_PAINTERGUARDS_P_H
#define NOCTURNE_PAINTERGUARDS_P_H

#include <QtGui/QPainter>

namespace Nocturne {

/// Saves a painter's state and restores it at the end of the scope.
class PainterSaver
{
public:
    explicit PainterSaver(QPainter *painter)
        : m_painter(painter)
    {
        m_painter->save();
    }
    ~PainterSaver() { m_painter->restore(); }

private:
    Q_DISABLE_COPY(PainterSaver)

    QPainter *m_painter;
};

} // namespace Nocturne

#endif
