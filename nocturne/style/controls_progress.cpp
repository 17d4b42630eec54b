#include "stylecolors_p.h"
#include "stylehelpers_p.h"
#include "stylepainting_p.h"

#include <QtGui/QTextOption>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace StylePaint {

using StyleHelpers::PainterSaver;

namespace {

constexpr QRgb grooveShadowAbove = 0x10000000;  // black, alpha 16
constexpr QRgb grooveShadowInside = 0x12000000; // black, alpha 18
constexpr QRgb barEdgeShadow = 0x23000000;      // black, alpha 35
constexpr QRgb barContrastLine = 0x32ffffff;    // white, alpha 50

constexpr int stripeAlpha = 120;
constexpr qreal stripeWidth = 9.0;
constexpr int stripeDistance = 22;

QRect lyingDown(const QRect &rect)
{
    return QRect(rect.left(), rect.top(), rect.height(), rect.width());
}

bool isVertical(const QStyleOptionProgressBar &option)
{
    return option.orientation == Qt::Vertical;
}

/// \a progress as a length along the bar, in whole units. The range is taken as one step at least.
qint64 progressLength(const QStyleOptionProgressBar &option, int progress, int barLength)
{
    const double steps = std::max(1.0, static_cast<double>(option.maximum) - option.minimum);
    return static_cast<qint64>((static_cast<double>(progress) - option.minimum) * barLength
                               / steps);
}

/// A progress bar as if it lay on its side and started at the left, or at the right when reversed.
struct Bar
{
    explicit Bar(const QStyleOptionProgressBar &option);

    /// Between its ends: the bar stops short of one of them.
    bool isPartial() const { return !isBusy && !isComplete; }

    bool isBusy;
    bool isComplete;
    bool isReversed;
    QRect whole;
    QRect done;
};

Bar::Bar(const QStyleOptionProgressBar &option)
    : isBusy(option.minimum == 0 && option.maximum == 0)
    , isComplete(option.progress == option.maximum)
    , isReversed((isVertical(option) || option.direction == Qt::RightToLeft)
                 != option.invertedAppearance)
    , whole(isVertical(option) ? lyingDown(option.rect) : option.rect)
    , done(whole.adjusted(0, 0, -1, -1))
{
    if (isBusy)
        return;
    const qint64 length =
        progressLength(option, std::max(option.progress, option.minimum), whole.width());
    const int width = static_cast<int>(qBound<qint64>(0, length, whole.width()));
    if (isReversed)
        done.setRect(whole.right() - width - 1, whole.top(), width + 2, whole.height() - 1);
    else
        done.setWidth(width - 1);
}

QColor barOutline(const PaintCall &call, const QColor &highlight)
{
    const QColor outline = StyleColors::outlineColor(call.palette());
    const QColor dark = highlight.darker(140);
    return qGray(dark.rgb()) < qGray(outline.rgb()) ? dark : outline;
}

/// The two lines where an unfinished bar ends.
void paintBarEdge(QPainter *painter, const Bar &bar, const QColor &highlight)
{
    const int direction = bar.isReversed ? -1 : 1;
    const QPoint top = bar.isReversed ? bar.done.topLeft() : bar.done.topRight();
    const QPoint bottom = bar.isReversed ? bar.done.bottomLeft() : bar.done.bottomRight();
    painter->setPen(StyleColors::fixed(barEdgeShadow));
    painter->drawLine(top + QPoint(2 * direction, 1), bottom + QPoint(2 * direction, 0));
    painter->setPen(highlight.darker(140));
    painter->drawLine(top + QPoint(direction, 1), bottom + QPoint(direction, 0));
}

/// Rounded at the end where the bar begins; an unfinished one is cut off straight at the other.
void paintBarFill(QPainter *painter, const Bar &bar, const QColor &highlight, const QColor &outline)
{
    QLinearGradient gradient = verticalGradient(bar.whole);
    gradient.setColorAt(0.0, highlight.lighter(120));
    gradient.setColorAt(1.0, highlight);
    painter->setPen(outline);
    painter->setBrush(gradient);
    if (bar.isPartial()) {
        const PainterSaver saver(painter);
        painter->setClipRect(bar.done.adjusted(-1, -1, -1, 1), Qt::IntersectClip);
        painter->drawRoundedRect(
            bar.isReversed ? bar.done.adjusted(-2, 0, 0, 0) : bar.done.adjusted(0, 0, 2, 0), 2, 2);
    } else {
        painter->drawRoundedRect(bar.done, 2, 2);
    }
    painter->setBrush(Qt::NoBrush);
    painter->setPen(StyleColors::fixed(barContrastLine));
    painter->drawRoundedRect(bar.done.adjusted(1, 1, -1, -1), 1, 1);
}

void paintBusyStripes(QPainter *painter, const Bar &bar, const QColor &highlight)
{
    const QColor color = StyleColors::withAlpha(highlight.lighter(120), stripeAlpha);
    const int height = bar.whole.height();
    // No widget is longer; beyond it, the stripes would only take time.
    const int end = std::min(bar.whole.right(), bar.done.left() + QWIDGETSIZE_MAX);
    painter->setPen(QPen(color, stripeWidth));
    painter->setClipRect(bar.done.adjusted(1, 1, -1, -1), Qt::IntersectClip);
    for (int x = bar.done.left() - height; x < end; x += stripeDistance)
        painter->drawLine(x, bar.done.bottom() + 1, x + height, bar.done.top() - 2);
}

/// The part of \a rect that the bar has passed; null when progress is out of range.
QRect passedRect(const QStyleOptionProgressBar &option, const QRect &rect)
{
    const qint64 length = progressLength(option, option.progress, rect.width());
    if (length < 0 || length > rect.width())
        return QRect();
    const int width = static_cast<int>(length);
    const QRect passed(rect.left(), rect.top(), width, rect.height());
    return isVertical(option) ? passed.translated(rect.width() - width, 0) : passed;
}

void paintClippedLabel(QPainter *painter, const QStyleOptionProgressBar &option, const QRect &rect,
                       const QRegion &clip, const QColor &color)
{
    if (clip.isEmpty())
        return;
    const PainterSaver saver(painter);
    painter->setClipRegion(clip, Qt::IntersectClip);
    painter->setPen(color);
    painter->drawText(rect, option.text,
                      QTextOption(Qt::AlignAbsolute | Qt::AlignHCenter | Qt::AlignVCenter));
}

} // namespace

void paintProgressGroove(const PaintCall &call)
{
    const QRect &r = call.rect();
    const PainterSaver saver(call.painter);
    beginSharpAntialiasing(call.painter);
    call.painter->setPen(StyleColors::fixed(grooveShadowAbove));
    call.painter->drawLine(r.topLeft() + QPoint(0, -1), r.topRight() + QPoint(0, -1));
    call.painter->setPen(StyleColors::outlineColor(call.palette()));
    call.painter->setBrush(call.palette().base());
    call.painter->drawRoundedRect(r.adjusted(0, 0, -1, -1), 2, 2);
    call.painter->setPen(StyleColors::fixed(grooveShadowInside));
    call.painter->drawLine(r.left() + 1, r.top() + 1, r.right() - 1, r.top() + 1);
}

void paintProgressContents(const PaintCall &call)
{
    const auto *option = call.as<QStyleOptionProgressBar>();
    if (!option)
        return;
    const Bar bar(*option);
    const QColor highlight = call.color(QPalette::Highlight);

    const PainterSaver saver(call.painter);
    beginSharpAntialiasing(call.painter);
    if (isVertical(*option)) {
        QTransform turn = QTransform::fromTranslate(bar.whole.height() - 1, -1.0);
        turn.rotate(90);
        call.painter->setTransform(turn, true);
    }
    if (bar.isPartial())
        paintBarEdge(call.painter, bar, highlight);
    if (!bar.isBusy && option->progress <= option->minimum)
        return;
    paintBarFill(call.painter, bar, highlight, barOutline(call, highlight));
    if (bar.isBusy)
        paintBusyStripes(call.painter, bar, highlight);
}

void paintProgressLabel(const PaintCall &call)
{
    const auto *option = call.as<QStyleOptionProgressBar>();
    if (!option)
        return;
    const bool vertical = isVertical(*option);
    const QRect rect = vertical ? lyingDown(option->rect) : option->rect;
    const QRect passed = passedRect(*option, rect);
    const bool flipped = !vertical && call.isRightToLeft() != option->invertedAppearance;
    const QColor text = call.color(QPalette::Text);
    const QColor alternate = call.color(QPalette::HighlightedText);
    paintClippedLabel(call.painter, *option, rect, QRegion(rect) - passed,
                      flipped ? alternate : text);
    paintClippedLabel(call.painter, *option, rect, passed, flipped ? text : alternate);
}

} // namespace StylePaint
