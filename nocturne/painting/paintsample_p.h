#ifndef NOCTURNE_PAINTSAMPLE_P_H
#define NOCTURNE_PAINTSAMPLE_P_H

#include <QtCore/QRect>
#include <QtCore/QVector>
#include <QtGui/QColor>
#include <QtGui/QPixmap>

#include <array>
#include <functional>

class QPainter;

namespace Nocturne {

/// Draws a small shape from a sample that was painted once. The pixels are the same, up to the
/// rounding where smoothed edges let the background through, but a drag that repaints with every
/// move is spared to fill a path or a gradient each time.
///
/// Keeps its last sample, so it belongs to the one thing that draws with it.
class PaintSample
{
public:
    /// Whatever the look of the shape depends on, apart from its rectangle.
    using Look = std::array<uint, 4>;

    /// Paints the shape for a rectangle. It may cover the rectangle and one more unit to the right
    /// and at the bottom, as an outline does.
    using Paint = std::function<void(QPainter *, const QRect &)>;

    /// Draws onto \a painter what \a paint draws for \a rect.
    void draw(QPainter *painter, const QRect &rect, const Look &look, const Paint &paint);

    /// The same for a shape that looks the same all along but for the four units at either end,
    /// such as the bar between two handles: its length may change with every call.
    void drawStretched(QPainter *painter, const QRect &rect, Qt::Orientation orientation,
                       const Look &look, const Paint &paint);

private:
    struct Stripe
    {
        int from; ///< device pixels across the shape
        int count;
        QColor color;
    };

    struct Key
    {
        QSize size; ///< of the rectangle that was sampled
        int ratio = 0;
        Look look = {};

        bool operator==(const Key &other) const
        {
            return size == other.size && ratio == other.ratio && look == other.look;
        }
        bool operator!=(const Key &other) const { return !(*this == other); }
    };

    static QImage sampled(const Key &key, const QPoint &origin, const Paint &paint);
    void cut(const QImage &sample, Qt::Orientation orientation);

    Key m_key;
    QPixmap m_head; ///< or the whole sample
    QPixmap m_tail;
    QVector<Stripe> m_stripes; ///< between head and tail
};

} // namespace Nocturne

#endif
