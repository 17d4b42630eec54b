#include "darkreadablestyle_p.h"

#include <QtCore/QtMath>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyleOptionComplex>

namespace Nocturne::Readable {

namespace {

enum Drawing { // after those of the indicators
    HandleDrawing = 16,
    GrooveDrawing,
    FillDrawing,
    KnobDrawing,
    DiscDrawing,
    DiscGroundDrawing,
    RingDrawing,
    MarksDrawing
};

constexpr qreal ringWidth = 1.4; // smoothing takes some away
constexpr qreal handleRadius = 3.0;
constexpr int handleInset = 2;
constexpr qreal barRadius = 2.0;

int stateBits(const Call &call, QStyle::State states, bool flag = false)
{
    return int(call.option->state & states) | (flag ? 1 << 30 : 0);
}

QRect part(const Call &call, QStyle::ComplexControl control, QStyle::SubControl subControl)
{
    return call.style->proxy()->subControlRect(
        control, static_cast<const QStyleOptionComplex *>(call.option), subControl, call.widget);
}

bool isHorizontal(const QStyleOptionSlider *option)
{
    return option->orientation == Qt::Horizontal;
}

/// A filled shape while enabled, its outline over \a ground while not.
void setShape(QPainter *painter, const Call &call, const QColor &fill, const QBrush &ground)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(call.isEnabled() ? QPen(Qt::NoPen) : QPen(call.shades().outline, ringWidth));
    painter->setBrush(call.isEnabled() ? QBrush(fill) : ground);
}

// Progress bars

bool isUpright(const QStyleOption *option)
{
    return !(option->state & QStyle::State_Horizontal);
}

/// The part of the bar that is done.
QRect doneRect(const QStyleOptionProgressBar *option)
{
    const QRect &r = option->rect;
    const qreal steps = qMax(1.0, qreal(option->maximum) - option->minimum);
    const qreal share = qBound(0.0, (qreal(option->progress) - option->minimum) / steps, 1.0);
    if (isUpright(option)) {
        const int length = int(share * r.height());
        return QRect(r.left(), option->invertedAppearance ? r.top() : r.bottom() + 1 - length,
                     r.width(), length);
    }
    const int length = int(share * r.width());
    const bool fromRight = (option->direction == Qt::RightToLeft) != option->invertedAppearance;
    return QRect(fromRight ? r.right() + 1 - length : r.left(), r.top(), length, r.height());
}

void drawProgressText(const QStyleOptionProgressBar *option, QPainter *painter, const QRegion &clip,
                      const QColor &color)
{
    const PainterSaver saver(painter);
    painter->setClipRegion(clip, Qt::IntersectClip);
    painter->setPen(color);
    QRectF rect(option->rect);
    if (isUpright(option)) {
        painter->translate(rect.center());
        painter->rotate(option->bottomToTop ? -90 : 90);
        rect = QRectF(-rect.height() / 2, -rect.width() / 2, rect.height(), rect.width());
    }
    painter->drawText(rect, Qt::AlignCenter | Qt::TextSingleLine, option->text);
}

// Scroll bars

void paintScrollBarHandle(const Call &call, const QStyleOptionSlider *option, const QRect &slider)
{
    const bool isHeld = option->activeSubControls & QStyle::SC_ScrollBarSlider;
    const auto paint = [&call, option, slider, isHeld](QPainter *painter) {
        const Shades &shades = call.shades();
        QColor fill =
            isHeld && call.has(QStyle::State_MouseOver) ? shades.handleHovered : shades.handle;
        if (isHeld && call.has(QStyle::State_Sunken))
            fill = shades.accent;
        setShape(painter, call, fill, Qt::NoBrush);
        const qreal x = isHorizontal(option) ? 0.5 : handleInset + 0.5;
        const qreal y = isHorizontal(option) ? handleInset + 0.5 : 0.5;
        painter->drawRoundedRect(QRectF(QPointF(), slider.size()).adjusted(x, y, -x, -y),
                                 handleRadius, handleRadius);
    };
    const int state = stateBits(
        call, QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_Sunken, isHeld);
    call.face.kept.draw(call.painter, slider.topLeft(),
                        call.key(HandleDrawing, slider.size(), state), paint);
}

// Sliders

/// The part of the groove between its beginning and the handle.
QRect valueRect(const QStyleOptionSlider *option, const QRect &groove, const QRect &handle)
{
    QRect rect(groove);
    const QPoint centre = handle.center();
    if (isHorizontal(option)) {
        if (option->upsideDown)
            rect.setLeft(centre.x());
        else
            rect.setRight(centre.x());
    } else if (option->upsideDown) {
        rect.setTop(centre.y());
    } else {
        rect.setBottom(centre.y());
    }
    return rect;
}

/// The groove lies a unit inside its rectangle, two where the base style has its shadow.
QRectF grooveShape(const QStyleOptionSlider *option, const QSize &size)
{
    const QRectF rect(QPointF(), size);
    return isHorizontal(option) ? rect.adjusted(1.5, 1.5, -1.5, -0.5)
                                : rect.adjusted(0.5, 1.5, -1.5, -1.5);
}

void paintGroove(const Call &call, const QStyleOptionSlider *option, const QRect &groove,
                 const QRect &handle)
{
    const QSize size = groove.size();
    const int state =
        stateBits(call, QStyle::State_Enabled | QStyle::State_MouseOver, isHorizontal(option));
    const auto paint = [&call, option, size](const QBrush &brush, QPainter *painter) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(call.shades().outline);
        painter->setBrush(brush);
        painter->drawRoundedRect(grooveShape(option, size), barRadius, barRadius);
    };
    call.face.kept.draw(call.painter, groove.topLeft(), call.key(GrooveDrawing, size, state),
                        [&](QPainter *painter) { paint(call.shades().groove, painter); });
    if (!call.isEnabled())
        return;
    const PainterSaver saver(call.painter);
    call.painter->setClipRect(valueRect(option, groove, handle), Qt::IntersectClip);
    const QColor fill = call.has(QStyle::State_MouseOver)
                            ? mixed(call.shades().accent, Qt::white, 85)
                            : call.shades().accent;
    call.face.kept.draw(call.painter, groove.topLeft(), call.key(FillDrawing, size, state),
                        [&](QPainter *painter) { paint(fill, painter); });
}

void paintKnob(const Call &call, const QRect &handle)
{
    const auto paint = [&call, handle](QPainter *painter) {
        const QRectF rect(QPointF(), handle.size());
        const QPointF centre = rect.center();
        const qreal radius = qMin(rect.width(), rect.height()) / 2 - 1.5;
        const QColor light = call.has(QStyle::State_MouseOver) ? QColor(Qt::white)
                                                               : call.color(QPalette::WindowText);
        setShape(painter, call, light, call.color(QPalette::Window));
        painter->drawEllipse(centre, radius, radius);
        if (call.isEnabled()) {
            painter->setBrush(call.shades().contour);
            painter->drawEllipse(centre, radius / 3, radius / 3);
        }
    };
    call.face.kept.draw(call.painter, handle.topLeft(),
                        call.key(KnobDrawing, handle.size(),
                                 stateBits(call, QStyle::State_Enabled | QStyle::State_MouseOver)),
                        paint);
}

void paintTicks(const Call &call, const QStyleOptionSlider *option)
{
    QStyleOptionSlider ticks(*option);
    ticks.subControls = QStyle::SC_SliderTickmarks;
    ticks.palette = call.shades().ticks;
    ticks.state &= ~QStyle::State_HasFocus;
    call.baseComplex(QStyle::CC_Slider, ticks);
}

// Dials

/// Where the parts of a dial are, in units from its top left corner.
struct DialParts
{
    explicit DialParts(const QStyleOptionSlider *dial)
        : option(dial)
        , centre(dial->rect.width() / 2.0, dial->rect.height() / 2.0)
        , radius(qMin(dial->rect.width(), dial->rect.height()) / 2.0)
        , disc(radius * 5 / 6 - 2)
        , knob(radius / 7)
    {}

    /// The point of \a value of \a range at \a distance from the centre.
    QPointF at(qreal value, qreal range, qreal distance) const
    {
        qreal angle = M_PI / 2;
        if (range > 0) {
            angle = option->dialWrapping ? M_PI * 1.5 - value * 2 * M_PI / range
                                         : (8 * M_PI - value * 10 * M_PI / range) / 6;
        }
        return centre + distance * QPointF(std::cos(angle), -std::sin(angle));
    }

    QPointF knobCentre() const
    {
        const qreal range = qreal(option->maximum) - option->minimum;
        const qreal position = option->upsideDown ? qreal(option->sliderPosition) - option->minimum
                                                  : qreal(option->maximum) - option->sliderPosition;
        return at(position, range, disc - 2.2 * knob);
    }

    const QStyleOptionSlider *option;
    QPointF centre;
    qreal radius;
    qreal disc;
    qreal knob;
};

/// The marks around a dial, no closer than three units.
class DialMarks
{
public:
    explicit DialMarks(const DialParts &dial)
        : m_dial(dial)
        , m_range(qreal(dial.option->maximum) - dial.option->minimum)
        , m_interval(dial.option->tickInterval)
    {
        if (!(dial.option->subControls & QStyle::SC_DialTickmarks))
            m_interval = 0;
        if (isEmpty())
            return;
        const qreal most = qMax(1.0, 2 * M_PI * dial.radius / 3);
        m_interval = qMax(m_interval, m_range / most);
    }

    bool isEmpty() const { return m_interval <= 0 || m_range <= 0; }

    void paint(QPainter *painter, const QColor &color) const
    {
        begin(painter, color);
        for (qreal value = 0; value < m_range; value += m_interval)
            paintAt(painter, value);
    }

    /// The mark at the end of the range, which may lie on another.
    void paintLast(QPainter *painter, const QColor &color) const
    {
        begin(painter, color);
        paintAt(painter, m_range);
    }

    /// What the marks depend on beside the dial's size; 0 for none.
    quint64 key() const
    {
        if (isEmpty())
            return 0;
        const QStyleOptionSlider *option = m_dial.option;
        return quint64(qint64(option->maximum) - option->minimum) << 32 | uint(option->tickInterval)
               | (option->dialWrapping ? 1u << 31 : 0);
    }

private:
    static void begin(QPainter *painter, const QColor &color)
    {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(color, ringWidth));
    }
    void paintAt(QPainter *painter, qreal value) const
    {
        painter->drawLine(m_dial.at(value, m_range, m_dial.disc + 2),
                          m_dial.at(value, m_range, m_dial.radius - 0.5));
    }

    const DialParts &m_dial;
    qreal m_range;
    qreal m_interval;
};

void paintDiscGround(const Call &call, const DialParts &dial, QPainter *painter)
{
    const QColor light = call.shades().outline;
    QLinearGradient gradient(0, dial.centre.y() - dial.disc, 0, dial.centre.y() + dial.disc);
    gradient.setColorAt(0, light.lighter(call.has(QStyle::State_MouseOver) ? 150 : 130));
    gradient.setColorAt(1, light.lighter(110));
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(gradient);
    painter->drawEllipse(dial.centre, dial.disc, dial.disc);
}

void paintDiscRing(const Call &call, const DialParts &dial, QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(call.shades().outline, ringWidth));
    painter->setBrush(Qt::NoBrush);
    painter->drawEllipse(dial.centre, dial.disc, dial.disc);
}

void paintDisc(const Call &call, const DialParts &dial)
{
    const auto draw = [&](int what, quint64 marks, const auto &paint) {
        const int state = stateBits(call, QStyle::State_Enabled | QStyle::State_MouseOver);
        Kept::Key key = call.key(what, dial.option->rect.size(), state);
        key.marks = marks;
        call.face.kept.draw(call.painter, QPoint(), key, paint);
    };
    const auto paintGround = [&](QPainter *painter) {
        if (call.isEnabled())
            paintDiscGround(call, dial, painter);
    };
    const auto paintRing = [&](QPainter *painter) { paintDiscRing(call, dial, painter); };

    const DialMarks marks(dial);
    if (marks.isEmpty()) {
        draw(DiscDrawing, 0, [&](QPainter *painter) {
            paintGround(painter);
            paintRing(painter);
        });
        return;
    }
    // Smoothed edges that lie on each other are kept apart: together their pixels would be rounded
    // in another way than one after the other.
    draw(MarksDrawing, marks.key(),
         [&](QPainter *painter) { marks.paint(painter, call.shades().outline); });
    marks.paintLast(call.painter, call.shades().outline);
    draw(DiscGroundDrawing, 0, paintGround);
    draw(RingDrawing, 0, paintRing);
}

} // namespace

void paintProgressContents(const Call &call)
{
    const auto *option = call.as<QStyleOptionProgressBar>();
    if (!option)
        return;
    if (option->minimum == 0 && option->maximum == 0) {
        call.baseControl(QStyle::CE_ProgressBarContents, *option);
        return;
    }
    const QRect done = doneRect(option);
    if (done.isEmpty())
        return;
    const PainterSaver saver(call.painter);
    call.painter->setRenderHint(QPainter::Antialiasing);
    call.painter->setPen(Qt::NoPen);
    call.painter->setBrush(option->palette.highlight());
    call.painter->drawRoundedRect(done, barRadius, barRadius);
}

void paintProgressLabel(const Call &call)
{
    const auto *option = call.as<QStyleOptionProgressBar>();
    if (!option || option->text.isEmpty())
        return;
    const QRegion done = doneRect(option);
    drawProgressText(option, call.painter, QRegion(option->rect) - done,
                     call.color(QPalette::Text));
    if (!done.isEmpty())
        drawProgressText(option, call.painter, done, call.color(QPalette::HighlightedText));
}

void paintScrollBar(const Call &call)
{
    const auto *option = call.as<QStyleOptionSlider>();
    if (!option)
        return;
    QStyleOptionSlider buttons(*option);
    buttons.subControls &= ~QStyle::SC_ScrollBarSlider;
    call.baseComplex(QStyle::CC_ScrollBar, buttons);
    if (option->subControls & QStyle::SC_ScrollBarSlider)
        paintScrollBarHandle(call, option,
                             part(call, QStyle::CC_ScrollBar, QStyle::SC_ScrollBarSlider));
    paintFocusWithoutFrame(call);
}

void paintSlider(const Call &call)
{
    const auto *option = call.as<QStyleOptionSlider>();
    if (!option)
        return;
    const QRect groove = part(call, QStyle::CC_Slider, QStyle::SC_SliderGroove);
    const QRect handle = part(call, QStyle::CC_Slider, QStyle::SC_SliderHandle);
    if (option->subControls & QStyle::SC_SliderGroove && groove.isValid())
        paintGroove(call, option, groove, handle);
    if (option->subControls & QStyle::SC_SliderTickmarks)
        paintTicks(call, option);
    if (option->subControls & QStyle::SC_SliderHandle)
        paintKnob(call, handle);
    paintFocusWithoutFrame(call);
}

void paintDial(const Call &call)
{
    const auto *option = call.as<QStyleOptionSlider>();
    if (!option || option->rect.isEmpty())
        return;
    const DialParts dial(option);
    const PainterSaver saver(call.painter);
    call.painter->translate(option->rect.topLeft());
    paintDisc(call, dial);
    setShape(call.painter, call, call.shades().contour, Qt::NoBrush);
    call.painter->drawEllipse(dial.knobCentre(), dial.knob, dial.knob);
    call.painter->translate(-option->rect.topLeft());
    paintFocusWithoutFrame(call);
}

} // namespace Nocturne::Readable
