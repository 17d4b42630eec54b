#include "paintsample_p.h"

#include "devicepixels_p.h"

#include <QtGui/QImage>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>

#include <utility>

namespace Nocturne {

namespace {

constexpr int endLength = 4;
constexpr int sampleLength = 2 * endLength; // with one unit more for the outline in the middle

/// The ratio of a sample for \a painter, or 0 where a sample would not look the same.
int sampleRatio(const QPainter &painter)
{
    if (!painter.paintEngine() || painter.paintEngine()->type() != QPaintEngine::Raster
        || painter.testRenderHint(QPainter::Antialiasing))
        return 0;
    return wholeRatio(painter);
}

/// A rectangle given along and across a shape of that orientation.
template <typename Rect, typename Number>
Rect oriented(Qt::Orientation orientation, Number along, Number across, Number length,
              Number thickness)
{
    return orientation == Qt::Horizontal ? Rect(along, across, length, thickness)
                                         : Rect(across, along, thickness, length);
}

} // namespace

void PaintSample::draw(QPainter *painter, const QRect &rect, const Look &look, const Paint &paint)
{
    const Key key{rect.size(), sampleRatio(*painter), look};
    if (key.ratio == 0 || rect.isEmpty()) {
        paint(painter, rect);
        return;
    }
    if (key != m_key) {
        m_head = QPixmap::fromImage(sampled(key, rect.topLeft(), paint));
        m_key = key;
    }
    painter->drawPixmap(rect.topLeft(), m_head);
}

void PaintSample::drawStretched(QPainter *painter, const QRect &rect, Qt::Orientation orientation,
                                const Look &look, const Paint &paint)
{
    const bool horizontal = orientation == Qt::Horizontal;
    const int length = horizontal ? rect.width() : rect.height();
    const int thickness = horizontal ? rect.height() : rect.width();
    const Key key{oriented<QRect>(orientation, 0, 0, sampleLength, thickness).size(),
                  sampleRatio(*painter), look};
    if (key.ratio == 0 || length < sampleLength || thickness < 1) {
        paint(painter, rect);
        return;
    }
    if (key != m_key) {
        cut(sampled(key, rect.topLeft(), paint), orientation);
        m_key = key;
    }

    const int start = horizontal ? rect.x() : rect.y();
    const int across = horizontal ? rect.y() : rect.x();
    const int middleLength = length + 1 - sampleLength;
    for (const Stripe &stripe : std::as_const(m_stripes)) {
        painter->fillRect(oriented<QRectF, qreal>(orientation, start + endLength,
                                                  across + qreal(stripe.from) / key.ratio,
                                                  middleLength, qreal(stripe.count) / key.ratio),
                          stripe.color);
    }
    const int tailStart = start + endLength + middleLength;
    painter->drawPixmap(rect.topLeft(), m_head);
    painter->drawPixmap(horizontal ? QPoint(tailStart, across) : QPoint(across, tailStart), m_tail);
}

/// What \a paint draws for the key's size at \a origin, on nothing.
QImage PaintSample::sampled(const Key &key, const QPoint &origin, const Paint &paint)
{
    QImage sample((key.size + QSize(1, 1)) * key.ratio, QImage::Format_ARGB32_Premultiplied);
    sample.setDevicePixelRatio(key.ratio);
    sample.fill(Qt::transparent);
    QPainter painter(&sample);
    painter.translate(-origin);
    paint(&painter, QRect(origin, key.size));
    return sample;
}

/// Keeps the two ends of \a sample and the colours in the middle of it.
void PaintSample::cut(const QImage &sample, Qt::Orientation orientation)
{
    const bool horizontal = orientation == Qt::Horizontal;
    const int ratio = int(sample.devicePixelRatio());
    const int pixelsAcross = horizontal ? sample.height() : sample.width();
    const auto end = [&](int from) {
        return QPixmap::fromImage(sample.copy(
            oriented<QRect>(orientation, from * ratio, 0, endLength * ratio, pixelsAcross)));
    };
    m_head = end(0);
    m_tail = end(endLength + 1);
    m_head.setDevicePixelRatio(ratio);
    m_tail.setDevicePixelRatio(ratio);

    m_stripes.clear();
    const int middle = endLength * ratio;
    for (int i = 0; i < pixelsAcross; ++i) {
        const QColor color = sample.pixelColor(horizontal ? QPoint(middle, i) : QPoint(i, middle));
        if (color.alpha() == 0)
            continue;
        Stripe *last = m_stripes.isEmpty() ? nullptr : &m_stripes.last();
        if (last && last->color == color && last->from + last->count == i)
            ++last->count;
        else
            m_stripes << Stripe{i, 1, color};
    }
}

} // namespace Nocturne
