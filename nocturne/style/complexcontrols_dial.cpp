#include "complexcontrols_p.h"
#include "stylecolors_p.h"
#include "styleelements_p.h"

#include <QtCore/QtMath>

namespace Nocturne {
namespace {

using ComplexControls::dialRadialPos;

constexpr QRgb dialShadow = 0x28000000;
constexpr QRgb pointerColor = 0x19000000;
constexpr QRgb knobRim = 0x96ffffff;
constexpr QRgb knobOutline = 0x50000000;

/// Angles run counter-clockwise from the right: a dial turns from 240 degrees down to -60, a
/// wrapping one all the way round from the bottom.
constexpr qreal fullTurn = 2 * M_PI;
constexpr qreal wrappingStart = 3 * M_PI / 2;
constexpr qreal openStart = 8 * M_PI / 6;
constexpr qreal openTurn = 10 * M_PI / 6;

/// \a part of \a whole as an angle on the dial, counter-clockwise from the right.
qreal dialAngle(const QStyleOptionSlider *option, qreal part, qreal whole)
{
    if (option->dialWrapping)
        return wrappingStart - part * fullTurn / whole;
    return openStart - part * openTurn / whole;
}

/// What the parts of a dial derive from its rectangle.
struct DialMetrics
{
    explicit DialMetrics(const QSize &size)
        : radius(qMin(size.width(), size.height()) / 2)
    {
        radius -= radius / 50;
        penSize = radius / 20;
        const qreal margin = radius / 6;
        const qreal x = margin + (size.width() - 2 * radius) / 2 + 1;
        const qreal y = margin + (size.height() - 2 * radius) / 2 + 1;
        const int diameter = int(2 * radius - 2 * margin - 2);
        top = y;
        disc = QRectF(x + 0.5, y + 0.5, diameter, diameter);
    }

    qreal radius;
    qreal penSize;
    qreal top; ///< where the light on the disc comes from
    QRectF disc;
};

QColor dialColor(const QPalette &palette)
{
    const QColor button = palette.color(QPalette::Button);
    return QColor::fromHsv(button.hue(), qMin(140, button.saturation()), qMax(180, button.value()));
}

void paintDialShadow(QPainter *painter, const DialMetrics &metrics)
{
    const qreal size = qMax(1.0, metrics.penSize / 2);
    const QRectF rect = metrics.disc.adjusted(-2 * size, -2 * size, 2 * size, 2 * size);
    QRadialGradient gradient(rect.center(), rect.width() / 2);
    gradient.setColorAt(0.91, QColor::fromRgba(dialShadow));
    gradient.setColorAt(1.0, Qt::transparent);
    painter->setPen(Qt::NoPen);
    painter->setBrush(gradient);
    painter->translate(size, size);
    painter->drawEllipse(rect);
    painter->translate(-size, -size);
}

QBrush discBrush(const DialMetrics &metrics, const QColor &button)
{
    const QRectF &disc = metrics.disc;
    QRadialGradient gradient(disc.center().x() - disc.width() / 3, metrics.top, disc.width() * 1.3,
                             disc.center().x(), disc.center().y() - disc.height() / 2);
    gradient.setColorAt(0.0, button.lighter(110));
    gradient.setColorAt(0.5, button);
    gradient.setColorAt(0.501, button.darker(102));
    gradient.setColorAt(1.0, button.darker(115));
    return gradient;
}

QColor dialFocusColor(const QPalette &palette)
{
    const QColor highlight = palette.color(QPalette::Highlight);
    return QColor::fromHsv(highlight.hue(), qMin(160, highlight.saturation()),
                           qMax(230, highlight.value()), 127);
}

void paintDialDisc(QPainter *painter, const QStyleOptionSlider *option, const DialMetrics &metrics)
{
    painter->setRenderHint(QPainter::Antialiasing);
    const QColor button = dialColor(option->palette);
    if (option->state & QStyle::State_Enabled) {
        paintDialShadow(painter, metrics);
        painter->setBrush(discBrush(metrics, button));
    } else {
        painter->setBrush(Qt::NoBrush);
    }
    painter->setPen(button.darker(280));
    painter->drawEllipse(metrics.disc);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(button.lighter(110));
    painter->drawEllipse(metrics.disc.adjusted(1, 1, -1, -1));

    if (option->state & QStyle::State_HasFocus) {
        painter->setPen(QPen(dialFocusColor(option->palette), 2.0));
        painter->drawEllipse(metrics.disc.adjusted(-1, -1, 1, 1));
    }
}

QBrush knobBrush(const QRectF &knob, const QColor &button)
{
    const QPointF center = knob.center();
    QRadialGradient gradient(center.x() + knob.width() / 2, center.y() + knob.width(),
                             knob.width() * 2, center.x(), center.y());
    gradient.setColorAt(1.0, button.darker(140));
    gradient.setColorAt(0.4, button.darker(120));
    gradient.setColorAt(0.0, button.darker(110));
    return gradient;
}

void paintDialKnob(QPainter *painter, const QStyleOptionSlider *option, const DialMetrics &metrics)
{
    if (metrics.penSize > 3.0) {
        painter->setPen(QPen(QColor::fromRgba(pointerColor), metrics.penSize));
        painter->drawLine(dialRadialPos(option, 0.90), dialRadialPos(option, 0.96));
    }

    QColor button = dialColor(option->palette).lighter(104);
    button.setAlphaF(0.8);
    const QPointF position = dialRadialPos(option, 0.70);
    const qreal size = metrics.radius / 7;
    const QRectF knob(position.x() - size, position.y() - size, 2 * size, 2 * size);
    painter->setBrush(knobBrush(knob, button));
    painter->setPen(QColor::fromRgba(knobRim));
    painter->drawEllipse(knob.adjusted(-1, -1, 1, 1));
    painter->setPen(QColor::fromRgba(knobOutline));
    painter->drawEllipse(knob);
}

/// The number of intervals between the marks; more than a thousand units get a coarser scale.
qint64 dialNotches(const QStyleOptionSlider *option)
{
    const qint64 interval = option->tickInterval;
    const qint64 range = qint64(option->maximum) - option->minimum;
    const qint64 notches = (range + interval - 1) / interval;
    return notches > 0 && range > 1000 ? (interval + 999) / interval : notches;
}

} // namespace

int ComplexControls::dialBigLineSize(int radius)
{
    return qMin(radius / 2, qMax(radius / 6, 4));
}

QVector<QLineF> ComplexControls::dialTickLines(const QStyleOptionSlider *option)
{
    QVector<QLineF> lines;
    if (option->tickInterval <= 0)
        return lines;
    const qint64 notches = dialNotches(option);
    if (notches <= 0)
        return lines;

    const QSize size = option->rect.size();
    const int radius = qMin(size.width(), size.height()) / 2;
    const int longMark = dialBigLineSize(radius);
    const int shortMark = longMark / 2;
    const QPointF center(size.width() / 2 + 0.5, size.height() / 2 + 0.5);
    const int pageStep = option->pageStep ? option->pageStep : 1;

    lines.reserve(int(notches) + 1);
    for (qint64 i = 0; i <= notches; ++i) {
        const qreal angle = dialAngle(option, i, notches);
        const QPointF direction(qCos(angle), -qSin(angle));
        const bool isLong = (option->tickInterval * i) % pageStep == 0;
        const int outer = isLong ? radius : radius - 1;
        const int inner = outer - (isLong ? longMark : shortMark);
        lines.append(QLineF(center + inner * direction, center + outer * direction));
    }
    return lines;
}

QPointF ComplexControls::dialRadialPos(const QStyleOptionSlider *option, qreal offset)
{
    const QSize size = option->rect.size();
    const int radius = qMin(size.width(), size.height()) / 2;
    const qreal range = qreal(option->maximum) - option->minimum;
    const qreal position = option->upsideDown ? qreal(option->sliderPosition)
                                              : qreal(option->maximum) - option->sliderPosition;
    const qreal angle = option->maximum == option->minimum
                            ? M_PI / 2
                            : dialAngle(option, position - option->minimum, range);
    const qreal length = (radius - dialBigLineSize(radius) - 3) * offset;
    return QPointF(size.width() / 2.0 + length * qCos(angle),
                   size.height() / 2.0 - length * qSin(angle));
}

void ComplexControls::drawDial(const QStyleOptionSlider *option, QPainter *painter)
{
    const QSize size = option->rect.size();
    if (size.isEmpty())
        return;
    const PainterSaver saver(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    // Marks, disc and knob know the size of the dial only.
    painter->translate(option->rect.topLeft());
    const DialMetrics metrics(size);

    if (option->subControls & QStyle::SC_DialTickmarks) {
        painter->setPen(option->palette.color(QPalette::Dark).darker(120));
        painter->drawLines(dialTickLines(option));
    }
    const QString key = StyleHelpers::styleCacheKey(QStringLiteral("qdial"), option, size);
    StyleHelpers::drawCachedUnlessTransformed(
        painter, QPoint(), key, size, [&](QPainter *p) { paintDialDisc(p, option, metrics); });
    paintDialKnob(painter, option, metrics);
}

void StylePaint::paintDial(const PaintCall &call)
{
    if (const auto *option = call.as<QStyleOptionSlider>())
        ComplexControls::drawDial(option, call.painter);
}

} // namespace Nocturne
