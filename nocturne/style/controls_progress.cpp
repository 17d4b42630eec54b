#include "stylecolors_p.h"
#include "styleelements_p.h"
#include "stylehelpers_p.h"

#include <nocturne/painting/kepttext_p.h>
#include <nocturne/painting/themepaint_p.h>
#include <nocturne/theme/qtversion_p.h>

#include <QtGui/QTextOption>
#include <QtWidgets/QWidget>

namespace Nocturne::StylePaint {
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

/// \a progress as a length along the bar, in whole units. The range is taken as one step at least.
qint64 progressLength(const QStyleOptionProgressBar &option, int progress, int barLength)
{
    const qreal steps = qMax(1.0, qreal(option.maximum) - option.minimum);
    return qint64((qreal(progress) - option.minimum) * barLength / steps);
}

/// A progress bar as if it lay on its side and started at the left, or at the right when reversed.
struct Bar
{
    Bar(const QStyleOptionProgressBar &option, const QRect &rect);

    /// Between its ends: the bar stops short of one of them.
    bool isPartial() const { return !isBusy && !isComplete; }

    bool isBusy;
    bool isComplete;
    bool isReversed;
    QRect whole;
    QRect done;
};

Bar::Bar(const QStyleOptionProgressBar &option, const QRect &rect)
    : isBusy(option.minimum == 0 && option.maximum == 0)
    , isComplete(option.progress == option.maximum)
    , isReversed((QtVersion::isVertical(option) || option.direction == Qt::RightToLeft)
                 != option.invertedAppearance)
    , whole(QtVersion::isVertical(option) ? lyingDown(rect) : rect)
    , done(whole.adjusted(0, 0, -1, -1))
{
    if (isBusy)
        return;
    const qint64 length =
        progressLength(option, qMax(option.progress, option.minimum), whole.width());
    const int width = int(qBound(qint64(0), length, qint64(whole.width())));
    if (isReversed)
        done.setRect(whole.right() - width - 1, whole.top(), width + 2, whole.height() - 1);
    else
        done.setWidth(width - 1);
}

QColor barOutline(const QPalette &palette, const QColor &highlight)
{
    const QColor outline = StyleColors::outlineColor(palette);
    const QColor dark = highlight.darker(140);
    return qGray(dark.rgb()) < qGray(outline.rgb()) ? dark : outline;
}

/// The two lines where an unfinished bar ends.
void paintBarEdge(QPainter *painter, const Bar &bar, const QColor &highlight)
{
    if (bar.done.height() < 2)
        return;
    const int direction = bar.isReversed ? -1 : 1;
    const int end = bar.isReversed ? bar.done.left() : bar.done.right();
    // The painter stands in the middle of a unit.
    const QRectF line(end + direction - 0.5, bar.done.top() + 0.5, 1.0, bar.done.height() - 1.0);
    painter->fillRect(line.translated(direction, 0), QColor::fromRgba(barEdgeShadow));
    painter->fillRect(line, highlight.darker(140));
}

/// Rounded at the end where the bar begins; an unfinished one is cut off straight at the other.
void paintBarFill(QPainter *painter, const Bar &bar, const QColor &highlight, const QColor &outline)
{
    const QLinearGradient gradient = ThemePaint::verticalGradient(
        bar.whole.top(), bar.whole.bottom(), {{0.0, highlight.lighter(120)}, {1.0, highlight}});
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
    painter->translate(-0.5, -0.5);
    drawRoundedOutline(painter, bar.done.adjusted(1, 1, 0, 0), QColor::fromRgba(barContrastLine));
    painter->translate(0.5, 0.5);
}

void paintBusyStripes(QPainter *painter, const Bar &bar, const QColor &highlight)
{
    const QColor color = StyleColors::withAlpha(highlight.lighter(120), stripeAlpha);
    const int height = bar.whole.height();
    // No widget is longer; beyond it, the stripes would only take time.
    const int end = qMin(bar.whole.right(), bar.done.left() + QWIDGETSIZE_MAX);
    painter->setPen(QPen(color, stripeWidth));
    painter->setClipRect(bar.done.adjusted(1, 1, -1, -1), Qt::IntersectClip);
    for (int x = bar.done.left() - height; x < end; x += stripeDistance)
        painter->drawLine(x, bar.done.bottom() + 1, x + height, bar.done.top() - 2);
}

void paintBar(QPainter *painter, const QPalette &palette, const QStyleOptionProgressBar &option,
              const Bar &bar)
{
    const QColor highlight = palette.color(QPalette::Highlight);
    beginSharpAntialiasing(painter);
    if (QtVersion::isVertical(option)) {
        QTransform turn = QTransform::fromTranslate(bar.whole.height() - 1, -1.0);
        turn.rotate(90);
        painter->setTransform(turn, true);
    }
    if (bar.isPartial())
        paintBarEdge(painter, bar, highlight);
    if (!bar.isBusy && option.progress <= option.minimum)
        return;
    paintBarFill(painter, bar, highlight, barOutline(palette, highlight));
    if (bar.isBusy)
        paintBusyStripes(painter, bar, highlight);
}

void paintGroove(QPainter *painter, const QPalette &palette, const QRect &r)
{
    beginSharpAntialiasing(painter);
    painter->setPen(QColor::fromRgba(grooveShadowAbove));
    painter->drawLine(r.topLeft() + QPoint(0, -1), r.topRight() + QPoint(0, -1));
    painter->setPen(StyleColors::outlineColor(palette));
    painter->setBrush(palette.base());
    painter->drawRoundedRect(r.adjusted(0, 0, -1, -1), 2, 2);
    painter->setPen(QColor::fromRgba(grooveShadowInside));
    painter->drawLine(r.left() + 1, r.top() + 1, r.right() - 1, r.top() + 1);
}

/// The part of \a rect that the bar has passed; null when progress is out of range.
QRect passedRect(const QStyleOptionProgressBar &option, const QRect &rect)
{
    const qint64 length = progressLength(option, option.progress, rect.width());
    if (length < 0 || length > rect.width())
        return QRect();
    const int width = int(length);
    const QRect passed(rect.left(), rect.top(), width, rect.height());
    return QtVersion::isVertical(option) ? passed.translated(rect.width() - width, 0) : passed;
}

void paintClippedLabel(QPainter *painter, const QStyleOptionProgressBar &option, const QRect &rect,
                       const QRegion &clip, const QColor &color)
{
    if (clip.isEmpty())
        return;
    const PainterSaver saver(painter);
    painter->setClipRegion(clip, Qt::IntersectClip);
    painter->setPen(color);
    KeptText::draw(painter, rect, option.text,
                   QTextOption(Qt::AlignAbsolute | Qt::AlignHCenter | Qt::AlignVCenter));
}

} // namespace

void paintProgressGroove(const PaintCall &call)
{
    // The shadow lies above the rectangle.
    const QRect r = call.rect().adjusted(0, -1, 0, 0);
    const auto paint = [&](QPainter *painter) {
        paintGroove(painter, call.palette(), QRect(QPoint(0, 1), call.rect().size()));
    };
    if (call.palette().base().style() == Qt::SolidPattern) {
        StyleHelpers::drawKept(call.painter, r.topLeft(), QStringLiteral("progressgroove"),
                               call.option, r.size(), paint);
    } else {
        // A pattern goes on from groove to groove.
        const PainterSaver saver(call.painter);
        paintGroove(call.painter, call.palette(), call.rect());
    }
}

void paintProgressContents(const PaintCall &call)
{
    const auto *option = call.as<QStyleOptionProgressBar>();
    if (!option)
        return;
    const QRect &r = call.rect();
    const Bar bar(*option, r);
    if (bar.isBusy && !QtVersion::isVertical(*option)) {
        // The stripes do not move.
        StyleHelpers::drawKept(call.painter, r.topLeft(), QStringLiteral("progressbusy"), option,
                               r.size(), [&](QPainter *painter) {
                                   paintBar(painter, call.palette(), *option,
                                            Bar(*option, QRect(QPoint(), r.size())));
                               });
        return;
    }
    const PainterSaver saver(call.painter);
    paintBar(call.painter, call.palette(), *option, bar);
}

void paintProgressLabel(const PaintCall &call)
{
    const auto *option = call.as<QStyleOptionProgressBar>();
    if (!option)
        return;
    const bool vertical = QtVersion::isVertical(*option);
    const QRect rect = vertical ? lyingDown(option->rect) : option->rect;
    const QRect passed = passedRect(*option, rect);
    const bool flipped = !vertical && call.isRightToLeft() != option->invertedAppearance;
    const QColor text = call.color(QPalette::Text);
    const QColor alternate = call.color(QPalette::HighlightedText);
    paintClippedLabel(call.painter, *option, rect, QRegion(rect) - passed,
                      flipped ? alternate : text);
    paintClippedLabel(call.painter, *option, rect, passed, flipped ? text : alternate);
}

} // namespace Nocturne::StylePaint
