#include "complexcontrols_p.h"
#include "stylecolors_p.h"
#include "styleelements_p.h"

#include <nocturne/painting/devicepixels_p.h>
#include <nocturne/painting/themepaint_p.h>

#include <limits>

namespace Nocturne::StylePaint {
namespace {

constexpr QRgb inkColor = 0xff0b0b0b;    // rgb(11, 11, 11): the rim of the fill, the handle's dot
constexpr QRgb grooveColor = 0x800b0b0b; // the same at alpha 128
constexpr int restingFillAlpha = 200;    // of the accent, which is opaque under the pointer

bool isHorizontal(const QStyleOptionSlider *option)
{
    return option->orientation == Qt::Horizontal;
}

void paintSliderGroove(const QStyleOptionSlider *option, QPainter *painter, const QRect &groove,
                       const QString &key)
{
    StyleHelpers::drawCached(painter, groove.topLeft(), key, groove.size(), [&](QPainter *cached) {
        cached->setRenderHint(QPainter::Antialiasing);
        cached->translate(0.5, 0.5);
        cached->setPen(Qt::NoPen);
        cached->setBrush(QColor::fromRgba(grooveColor));
        const QRect rect(QPoint(), groove.size());
        cached->drawRoundedRect(
            isHorizontal(option) ? rect.adjusted(1, 2, -2, -1) : rect.adjusted(0, 1, -2, -2), 3, 3);
    });
}

/// The part of the groove between the handle and the end where the minimum is.
QRect sliderFillRect(const QStyleOptionSlider *option, const QRect &groove, const QRect &handle)
{
    if (isHorizontal(option)) {
        if (option->upsideDown)
            return QRect(handle.right(), groove.top(), groove.right() - handle.right(),
                         groove.height());
        return QRect(groove.left(), groove.top(), handle.left(), groove.height());
    }
    if (option->upsideDown)
        return QRect(groove.left(), handle.bottom(), groove.width(),
                     groove.height() - handle.bottom());
    return QRect(groove.left(), groove.top(), groove.width(), handle.top() - groove.top());
}

void paintSliderFill(const QStyleOptionSlider *option, QPainter *painter, const QRect &groove,
                     const QRect &handle, const QString &key)
{
    const QRect filled = sliderFillRect(option, groove, handle).adjusted(0, 0, 1, 1);
    if (filled.isEmpty())
        return;
    const PainterSaver saver(painter);
    painter->setClipRect(filled, Qt::IntersectClip);
    StyleHelpers::drawCached(painter, groove.topLeft(), key, groove.size(), [&](QPainter *cached) {
        cached->setRenderHint(QPainter::Antialiasing);
        cached->translate(0.5, 0.5);
        cached->setPen(QColor::fromRgba(inkColor));
        const bool hovered = option->state & QStyle::State_MouseOver;
        cached->setBrush(
            StyleColors::withAlpha(ThemePaint::accentBlue, hovered ? 255 : restingFillAlpha));
        const QRect rect(QPoint(), groove.size());
        cached->drawRoundedRect(
            isHorizontal(option) ? rect.adjusted(1, 1, -2, -1) : rect.adjusted(0, 0, -2, -2), 2, 2);
    });
}

int tickInterval(const PaintCall &call, const QStyleOptionSlider *option)
{
    int interval = option->tickInterval;
    if (interval <= 0) {
        interval = option->singleStep;
        const int available =
            call.proxy()->pixelMetric(QStyle::PM_SliderSpaceAvailable, option, call.widget);
        const auto position = [&](int value) {
            return ComplexControls::sliderPosition(option, value, available, false);
        };
        if (position(interval) - position(0) < 3)
            interval = option->pageStep;
    }
    return qMax(1, interval);
}

/// Calls \a mark with every value that has a tick mark. The last step may reach one beyond the
/// maximum, which then has the mark. Where marks stand closer than pixels, only as many are
/// visited as are needed to hit every pixel of \a span.
template <typename Mark>
void forEachTick(const QStyleOptionSlider *option, int interval, int span, Mark mark)
{
    const qint64 minimum = option->minimum;
    const qint64 maximum = option->maximum;
    const qint64 reach =
        interval == 1 ? maximum : qMin<qint64>(maximum + 1, std::numeric_limits<int>::max());
    if (reach < minimum)
        return;
    const qint64 last = minimum + (reach - minimum) / interval * interval;
    const qint64 perPixel = (maximum - minimum) / (qint64(qMax(1, span)) * interval);
    const qint64 stride = qMax<qint64>(1, perPixel) * interval;
    for (qint64 value = minimum; value < last; value += stride)
        mark(int(value));
    mark(int(qMin(last, maximum)));
}

void paintSliderTicks(const PaintCall &call, const QStyleOptionSlider *option, QPainter *painter)
{
    const QStyle *proxy = call.proxy();
    const QRect &rect = option->rect;
    const bool horizontal = isHorizontal(option);
    const int tickSize = proxy->pixelMetric(QStyle::PM_SliderTickmarkOffset, option, call.widget);
    const int length = proxy->pixelMetric(QStyle::PM_SliderLength, option, call.widget);
    const int span = (horizontal ? rect.width() : rect.height()) - length;

    const bool focused =
        option->state & QStyle::State_HasFocus && option->state & QStyle::State_KeyboardFocusChange;
    const QColor color = focused ? StyleColors::highlightedOutlineColor(option->palette)
                                 : StyleColors::outlineColor(option->palette);
    const bool isOnPixels = wholeRatio(*painter) == 1;
    QVector<QLine> lines;
    const auto addLine = [&](int position, int from, int to) {
        const int start = qMin(from, to);
        const int length = qMax(from, to) - start + 1;
        if (isOnPixels)
            painter->fillRect(horizontal ? QRect(position, start, 1, length)
                                         : QRect(start, position, length, 1),
                              color);
        else
            lines << (horizontal ? QLine(position, from, position, to)
                                 : QLine(from, position, to, position));
    };
    const int nearEdge = horizontal ? rect.top() : rect.left();
    const int farEdge = horizontal ? rect.bottom() : rect.right();
    forEachTick(option, tickInterval(call, option), span, [&](int value) {
        const int position =
            ComplexControls::sliderPosition(option, value, span, option->upsideDown) + length / 2;
        const int extra = value == option->minimum || value == option->maximum ? 1 : 2;
        if (option->tickPosition & QSlider::TicksAbove)
            addLine(position, nearEdge + extra, nearEdge + tickSize);
        if (option->tickPosition & QSlider::TicksBelow)
            addLine(position, farEdge - extra, farEdge - tickSize);
    });

    if (!isOnPixels) {
        const PainterSaver saver(painter);
        painter->setPen(color);
        painter->drawLines(lines);
    }
}

void paintSliderHandle(const QStyleOptionSlider *option, QPainter *painter, const QRect &handle)
{
    const QString key =
        StyleHelpers::styleCacheKey(QStringLiteral("slider_handle"), option, handle.size());
    StyleHelpers::drawCached(painter, handle.topLeft(), key, handle.size(), [&](QPainter *cached) {
        cached->setRenderHint(QPainter::Antialiasing);
        cached->setPen(Qt::NoPen);
        const QPoint centre = QRect(QPoint(0, 1), handle.size()).center();
        cached->setBrush(Qt::gray);
        cached->drawEllipse(centre, 6, 6);
        cached->setBrush(QColor::fromRgba(inkColor));
        cached->drawEllipse(centre, 2, 2);
    });
}

} // namespace

void paintSlider(const PaintCall &call)
{
    const auto *option = call.as<QStyleOptionSlider>();
    if (!option)
        return;
    QPainter *painter = call.painter;
    const auto part = [&](QStyle::SubControl subControl) {
        return call.subControlRect(QStyle::CC_Slider, *option, subControl);
    };
    const QRect handle = part(QStyle::SC_SliderHandle);
    if (option->subControls & QStyle::SC_SliderGroove) {
        const QRect groove = part(QStyle::SC_SliderGroove);
        if (groove.isValid()) {
            const QString key =
                StyleHelpers::styleCacheKey(QStringLiteral("slider_groove"), option, groove.size());
            paintSliderGroove(option, painter, groove, key);
            paintSliderFill(option, painter, groove, handle, key + QLatin1String("_blue"));
        }
    }
    if (option->subControls & QStyle::SC_SliderTickmarks
        && option->tickPosition != QSlider::NoTicks)
        paintSliderTicks(call, option, painter);
    if (option->subControls & QStyle::SC_SliderHandle)
        paintSliderHandle(option, painter, handle);
}

} // namespace Nocturne::StylePaint
