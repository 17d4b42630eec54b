#ifndef NOCTURNE_STYLEPAINTING_H
#define NOCTURNE_STYLEPAINTING_H

#include "testsupport.h"

#include <nocturne/style/darkfusionstyle.h>
#include <nocturne/theme/darkux.h>

#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

#include <functional>

/// What the tests of the style share: options in the theme's palette, pictures of one element at
/// the ratio of the run, and a proxy that notes what passes through it.
namespace StylePainting {

constexpr QStyle::State enabled = QStyle::State_Enabled | QStyle::State_Active;
constexpr QStyle::State keyboardFocus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;

inline const QSize canvas(120, 60);
inline const QRect everything(QPoint(), canvas);
inline const QColor background(0x20, 0x40, 0x60);

// The colours of the theme's palette, and what the style makes of them.
inline const QColor window(0x1f, 0x21, 0x26);
inline const QColor base(0x19, 0x1a, 0x1e);
inline const QColor light(0x5a, 0x59, 0x59);
inline const QColor highlight(0x67, 0x9d, 0xcd);
inline const QColor lit(0xed, 0x6e, 0x00); // highlighted text
inline const QColor button(0x48, 0x48, 0x48);
inline const QColor outline = window.darker(140);
inline const QColor contrast(255, 255, 255, 30);

inline QColor withAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

inline QColor shifted(const QColor &color, int shift, int alpha = 255)
{
    return QColor(color.red() + shift, color.green() + shift, color.blue() + shift, alpha);
}

inline QColor merged(const QColor &a, const QColor &b, int percent = 50)
{
    const auto channel = [percent](int x, int y) {
        return x * percent / 100 + y * (100 - percent) / 100;
    };
    return QColor(channel(a.red(), b.red()), channel(a.green(), b.green()),
                  channel(a.blue(), b.blue()));
}

/// The outline of what has the focus: the highlight, but not too bright.
inline QColor focusOutline()
{
    const QColor dark = highlight.darker(125);
    return QColor::fromHsl(dark.hue(), dark.saturation(), 160);
}

inline QPalette themePalette(QPalette::ColorGroup group = QPalette::Active)
{
    QPalette palette = DarkUX::getInstance().palette();
    palette.setCurrentColorGroup(group);
    return palette;
}

template <typename Option>
Option makeOption(const QRect &rect, QStyle::State state = enabled)
{
    Option option;
    option.rect = rect;
    option.state = state;
    option.palette =
        themePalette(state & QStyle::State_Enabled ? QPalette::Active : QPalette::Disabled);
    option.fontMetrics = QFontMetrics(QApplication::font());
    return option;
}

template <typename Option>
Option makeComplex(const QRect &rect, QStyle::State state = enabled)
{
    auto option = makeOption<Option>(rect, state);
    option.subControls = QStyle::SC_All;
    return option;
}

inline QStyleOptionSlider makeSlider(Qt::Orientation orientation, int length, int thickness)
{
    const bool isHorizontal = orientation == Qt::Horizontal;
    auto option = makeComplex<QStyleOptionSlider>(isHorizontal ? QRect(0, 0, length, thickness)
                                                               : QRect(0, 0, thickness, length));
    option.orientation = orientation;
    option.maximum = 100;
    option.state.setFlag(QStyle::State_Horizontal, isHorizontal);
    return option;
}

inline QStyleOptionTitleBar makeTitleBar(int state, Qt::WindowFlags buttons)
{
    auto option = makeComplex<QStyleOptionTitleBar>(QRect(0, 0, 300, 24));
    option.titleBarFlags = Qt::WindowTitleHint | buttons;
    option.titleBarState = state;
    return option;
}

inline QIcon redIcon(int extent = 16)
{
    QPixmap pixmap(extent, extent);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

/// Stands on top of the style and notes the texts, pixmaps and primitives that are drawn through
/// it, of which it draws none, and the controls.
class Recorder : public QProxyStyle
{
public:
    struct Text
    {
        QRect rect;
        int flags;
        QString text;
        QPalette::ColorRole role;
    };
    struct Piece
    {
        PrimitiveElement element;
        QRect rect;
        State state;
        QPalette palette;
    };

    Recorder()
        : QProxyStyle(new DarkFusionStyle)
    {}

    void drawItemText(QPainter *, const QRect &rect, int flags, const QPalette &, bool,
                      const QString &text, QPalette::ColorRole role) const override
    {
        texts << Text{rect, flags, text, role};
    }
    void drawItemPixmap(QPainter *, const QRect &rect, int, const QPixmap &) const override
    {
        pixmapRects << rect;
    }
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *,
                       const QWidget *) const override
    {
        pieces << Piece{element, option->rect, option->state, option->palette};
    }
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        controls << element;
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        const bool isShift = metric == PM_ButtonShiftHorizontal || metric == PM_ButtonShiftVertical;
        if (isShift)
            return 3;
        if (metric == PM_ScrollBarExtent && scrollBarExtent > 0)
            return scrollBarExtent;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        return hint == SH_ScrollBar_Transient
                   ? isTransient
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }
    void forget()
    {
        texts.clear();
        pixmapRects.clear();
        pieces.clear();
        controls.clear();
    }

    bool isTransient = true;
    int scrollBarExtent = 0; // the style's
    mutable QVector<Text> texts;
    mutable QVector<QRect> pixmapRects;
    mutable QVector<Piece> pieces;
    mutable QVector<int> controls;
};

using Drawing = std::function<void(QPainter &painter)>;

/// \a paint at the device pixel ratio of the run.
inline QImage picture(const QSize &size, const Drawing &paint, const QColor &ground = background)
{
    return TestSupport::paintOn(size, ground, paint, qApp->devicePixelRatio());
}

inline QImage picture(const Drawing &paint)
{
    return picture(canvas, paint);
}

/// A drawing as the style keeps it: translucent parts of it meet before they are on the ground.
inline QImage layer(const QSize &size, const Drawing &paint)
{
    return picture(size, paint, Qt::transparent);
}

inline QImage keptPicture(const QSize &size, const Drawing &paint)
{
    const QImage kept = layer(size, paint);
    return picture(size, [&](QPainter &painter) { painter.drawImage(0, 0, kept); });
}

inline QImage keptPicture(const Drawing &paint)
{
    return keptPicture(canvas, paint);
}

inline void beginSharp(QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(0.5, 0.5);
}

template <typename Rect>
void drawBox(QPainter &painter, const Rect &rect, const QPen &pen, const QBrush &brush,
             int radius = 0)
{
    painter.setPen(pen);
    painter.setBrush(brush);
    if (radius > 0)
        painter.drawRoundedRect(rect, radius, radius);
    else
        painter.drawRect(rect);
}

template <typename Point>
void drawDisc(QPainter &painter, const Point &centre, qreal radius, const QPen &pen,
              const QBrush &brush)
{
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.drawEllipse(QPointF(centre), radius, radius);
}

inline void drawLine(QPainter &painter, const QColor &color, int x1, int y1, int x2, int y2)
{
    painter.setPen(color);
    painter.drawLine(x1, y1, x2, y2);
}

inline QLinearGradient gradientDown(const QRect &rect, const QGradientStops &stops)
{
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setStops(stops);
    return gradient;
}

/// Fills the units from \a first to \a last.
inline void fillUnits(QPainter &painter, const QPoint &first, const QPoint &last,
                      const QColor &color)
{
    painter.fillRect(QRect(first, last), color);
}

/// Fills the outermost units of \a rect.
inline void fillRing(QPainter &painter, const QRect &rect, const QColor &color)
{
    for (const QRect &part : QRegion(rect) - rect.adjusted(1, 1, -1, -1))
        painter.fillRect(part, color);
}

/// A dot of a grip at each place.
inline void fillDots(QPainter &painter, const QVector<QPoint> &places)
{
    for (const QPoint &place : places) {
        painter.fillRect(QRect(place, QSize(2, 2)), QColor(255, 255, 255, 90));
        painter.fillRect(QRect(place, QSize(1, 1)), QColor(0, 0, 0, 60));
    }
}

/// The colour of the unit at x, y: that of its first device pixel. Lines of one unit that are drawn
/// without antialiasing lie half a unit higher and further left, and cover that one, too.
inline QColor unitColor(const QImage &image, int x, int y)
{
    const int ratio = qRound(image.devicePixelRatio());
    return image.pixelColor(x * ratio, y * ratio);
}

/// The units of \a image that \a isFound finds by their colour.
template <typename Predicate>
QRegion unitsWhere(const QImage &image, Predicate isFound)
{
    const int ratio = qRound(image.devicePixelRatio());
    QRegion units;
    for (int y = 0; y < image.height() / ratio; ++y) {
        for (int x = 0; x < image.width() / ratio; ++x) {
            if (isFound(unitColor(image, x, y)))
                units += QRect(x, y, 1, 1);
        }
    }
    return units;
}

inline QRegion painted(const QImage &image, const QColor &ground = background)
{
    return unitsWhere(image, [&](const QColor &color) { return color.rgba() != ground.rgba(); });
}

/// The units in which two pictures of a size differ.
inline QRegion differingUnits(const QImage &first, const QImage &second)
{
    QRegion units;
    for (int y = 0; y < first.height() / first.devicePixelRatio(); ++y) {
        for (int x = 0; x < first.width() / first.devicePixelRatio(); ++x) {
            if (unitColor(first, x, y) != unitColor(second, x, y))
                units += QRect(x, y, 1, 1);
        }
    }
    return units;
}

/// Whether all \a units have \a color.
inline bool isFilled(const QImage &image, const QRect &units, const QColor &color)
{
    return !painted(image, color).intersects(units);
}

inline int unitCount(const QRegion &units)
{
    int count = 0;
    for (const QRect &rect : units)
        count += rect.width() * rect.height();
    return count;
}

/// Where an arrow points to: it is narrower there.
inline Qt::ArrowType directionOf(const QRegion &arrow)
{
    const QRect r = arrow.boundingRect();
    const bool isUpright = r.width() > r.height();
    const QSize line = isUpright ? QSize(r.width(), 1) : QSize(1, r.height());
    const int first = unitCount(arrow & QRect(r.topLeft(), line));
    const int last = unitCount(
        arrow & QRect(r.bottomRight() - QPoint(line.width() - 1, line.height() - 1), line));
    if (isUpright)
        return first < last ? Qt::UpArrow : Qt::DownArrow;
    return first < last ? Qt::LeftArrow : Qt::RightArrow;
}

} // namespace StylePainting

#endif
