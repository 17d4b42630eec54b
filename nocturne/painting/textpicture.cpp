#include "textpicture_p.h"

#include "cacheuse_p.h"
#include "devicepixels_p.h"

#include <QtCore/QCache>
#include <QtCore/QVarLengthArray>
#include <QtCore/QtMath>
#include <QtGui/QImage>
#include <QtGui/QPaintEngine>
#include <QtGui/QTextLayout>

#include <algorithm>
#include <cstring>

namespace Nocturne {

namespace {

constexpr int pictureBudget = 4 * 1024 * 1024; // bytes
constexpr int drawsBeforePictures = 1;         // a text that is shown once needs none

/// The colour of each row, from top to bottom.
using Ground = QVarLengthArray<QRgb, 64>;

/// All that decides how a line looks in its place.
struct Look
{
    quint64 line;
    int ratio;
    QPainter::RenderHints hints;
    QImage::Format format;
    QColor color;
    QPointF fraction; ///< of a unit, that the line begins at
    Ground ground;

    quint64 hash() const;
};

bool operator==(const Look &a, const Look &b)
{
    return a.line == b.line && a.ratio == b.ratio && a.hints == b.hints && a.format == b.format
           && a.color == b.color && a.fraction.x() == b.fraction.x()
           && a.fraction.y() == b.fraction.y() && a.ground == b.ground;
}

quint64 Look::hash() const
{
    constexpr quint64 prime = 1099511628211U;
    quint64 hash = line;
    const auto add = [&hash](quint64 value) { hash = (hash ^ value) * prime; };
    add(quint64(color.rgba()) << 32 | quint64(ratio) << 24 | quint64(int(hints)));
    add(quint64(fraction.x() * 4096) << 32 | quint64(fraction.y() * 4096));
    for (const QRgb row : ground)
        add(row);
    return hash;
}

struct Picture
{
    Look look;
    QImage image;
};

QCache<quint64, Picture> &pictures()
{
    static QCache<quint64, Picture> cache(pictureBudget);
    return cache;
}

quint64 nextLine()
{
    static quint64 last = 0;
    return ++last;
}

/// What \a painter paints on, if it is an image that can be read as it is.
const QImage *canvas(const QPainter &painter)
{
    const QPaintDevice *device = painter.paintEngine()->paintDevice();
    if (!device || device->devType() != QInternal::Image)
        return nullptr;
    const auto *image = static_cast<const QImage *>(device);
    const bool isRead = image->format() == QImage::Format_RGB32
                        || image->format() == QImage::Format_ARGB32_Premultiplied;
    return isRead ? image : nullptr;
}

/// Whether what \a painter draws in its pen hides what is beneath.
bool isOpaque(const QPainter &painter)
{
    const QPen &pen = painter.pen();
    return painter.opacity() >= 1
           && painter.compositionMode() == QPainter::CompositionMode_SourceOver
           && pen.style() == Qt::SolidLine && pen.brush().style() == Qt::SolidPattern
           && pen.color().alpha() == 255;
}

/// Whether \a at is a number from 0 to below \a length.
bool isInside(qreal at, int length)
{
    return at >= 0 && at < length;
}

/// The ground of \a rect; empty when a row has several colours, or a pixel lets something through.
Ground groundOf(const QImage &image, const QRect &rect)
{
    Ground ground;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y)) + rect.left();
        const size_t bytesButOne = size_t(rect.width() - 1) * sizeof(QRgb);
        if (qAlpha(*row) != 255 || std::memcmp(row, row + 1, bytesButOne) != 0)
            return {};
        ground.append(*row);
    }
    return ground;
}

/// Draws with the beginning of the line at \a origin, in units of \a image.
void drawGlyphs(QImage *image, const QTextLayout &layout, const QPointF &origin, const Look &look)
{
    image->setDevicePixelRatio(look.ratio);
    QPainter painter(image);
    painter.setRenderHints(painter.renderHints(), false);
    painter.setRenderHints(look.hints);
    painter.setPen(look.color);
    layout.draw(&painter, origin);
}

Picture *newPicture(const Look &look, const QTextLayout &layout, const QRect &ink)
{
    // The toolkit rounds in another way what is not greater than zero, so the line begins inside.
    const int margin = ink.height() / look.ratio * look.ratio;
    const QRect whole = ink.united(QRect(0, 0, 1, 1)).adjusted(-margin, 0, 0, 0);
    const QPoint corner = ink.topLeft() - whole.topLeft();
    QImage image(whole.size(), look.format);
    image.fill(Qt::black);
    for (int i = 0; i < ink.height(); ++i) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(corner.y() + i)) + corner.x();
        std::fill(row, row + ink.width(), look.ground.at(i));
    }
    drawGlyphs(&image, layout, look.fraction - QPointF(whole.topLeft()) / look.ratio, look);
    image = image.copy(QRect(corner, ink.size()));
    image.reinterpretAsFormat(QImage::Format_RGB32); // copied as it is
    return new Picture{look, image};
}

} // namespace

TextPicture::TextPicture()
    : m_line(nextLine())
{}

void TextPicture::forget()
{
    pictures().clear();
}

void TextPicture::draw(QPainter *painter, const QTextLayout &layout, const QPointF &position)
{
    if (!drawPicture(painter, layout, position))
        layout.draw(painter, position);
}

bool TextPicture::drawPicture(QPainter *painter, const QTextLayout &layout, const QPointF &position)
{
    if (m_draws < drawsBeforePictures) {
        ++m_draws;
        return false;
    }
    const QImage *image = canvas(*painter);
    const int ratio = wholeRatio(*painter);
    if (!image || ratio < 1 || ratio > 2 || !isOpaque(*painter))
        return false;
    if (m_ratio != ratio || m_hints != painter->renderHints())
        measure(layout, ratio, painter->renderHints());

    const QTransform &transform = painter->deviceTransform();
    const QPointF origin = transform.map(position);
    if (!isInside(origin.x(), image->width()) || !isInside(origin.y(), image->height()))
        return false;
    // Where a line begins inside of a unit decides how its glyphs meet the pixels.
    const QPointF unit(qFloor(position.x()), qFloor(position.y()));
    const QPoint pixel = transform.map(unit).toPoint();
    const QRect rect = m_ink.translated(pixel);
    if (rect.isEmpty() || pixel.x() < 1 || pixel.y() < 0 || !image->rect().contains(rect))
        return false; // what is not greater than zero is rounded in another way
    const Look look{m_line,
                    ratio,
                    m_hints,
                    image->format(),
                    painter->pen().color(),
                    position - unit,
                    groundOf(*image, rect)};
    if (look.ground.isEmpty())
        return false;

    const quint64 hash = look.hash();
    const Picture *picture = pictures().object(hash);
    const bool isKept = picture && picture->look == look;
    textPictureUse.count(isKept);
    if (!isKept) {
        if (!wasSeen(hash))
            return false;
        auto *made = newPicture(look, layout, m_ink);
        if (!pictures().insert(hash, made, int(made->image.sizeInBytes() + sizeof(Picture))))
            return false;
        picture = made;
    }
    painter->drawImage(unit + QPointF(m_ink.topLeft()) / ratio, picture->image);
    return true;
}

/// Finds what the glyphs may touch, wherever in a pixel the line begins.
void TextPicture::measure(const QTextLayout &layout, int ratio, QPainter::RenderHints hints)
{
    m_ratio = ratio;
    m_hints = hints;
    m_ink = QRect();
    const QRectF line = layout.lineAt(0).naturalTextRect();
    const int margin = qCeil(line.height());
    const QSize size(qCeil(line.width()) + 2 * margin, 3 * margin);
    QImage image(size * ratio, QImage::Format_RGB32);
    if (image.isNull())
        return;
    image.fill(Qt::white);
    const QPoint origin(margin, margin);
    drawGlyphs(&image, layout, origin,
               Look{m_line, ratio, hints, image.format(), Qt::black, QPointF(), {}});

    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        const auto isInk = [](QRgb pixel) { return (pixel & 0xffffff) != 0xffffff; };
        const auto *end = row + image.width();
        const auto *first = std::find_if(row, end, isInk);
        if (first == end)
            continue;
        while (!isInk(*(end - 1)))
            --end;
        ink |= QRect(int(first - row), y, int(end - first), 1);
    }
    // Another unit on each side, as a line may begin inside of a unit.
    const QRect units(QPoint(ink.left() / ratio - 1, ink.top() / ratio - 1),
                      QPoint(ink.right() / ratio + 1, ink.bottom() / ratio + 1));
    if (!ink.isEmpty() && QRect(QPoint(), size).contains(units))
        m_ink = QRect((units.topLeft() - origin) * ratio, units.size() * ratio);
}

/// Whether it was drawn lately. It was, from now on.
bool TextPicture::wasSeen(quint64 hash)
{
    if (std::find(m_seen.begin(), m_seen.end(), hash) != m_seen.end())
        return true;
    m_seen[m_next] = hash;
    m_next = (m_next + 1) % m_seen.size();
    return false;
}

} // namespace Nocturne
