#ifndef NOCTURNE_STYLEPAINTING_H
#define NOCTURNE_STYLEPAINTING_H

#include "testsupport.h"

#include <nocturne/style/darkfusionstyle.h>
#include <nocturne/theme/darkux.h>

#include <QtWidgets/QStyleOption>

#include <functional>

/// What the tests of single style elements share: options in the theme's palette, pictures of one
/// element at the ratio of the run, and what a painter has been through.
namespace StylePainting {

constexpr QStyle::State enabled = QStyle::State_Enabled | QStyle::State_Active;
constexpr QStyle::State keyboardFocus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;

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

/// Everything of a painter that an element could leave changed.
struct PainterState
{
    explicit PainterState(const QPainter &painter)
        : pen(painter.pen())
        , brush(painter.brush())
        , font(painter.font())
        , hints(painter.renderHints())
        , transform(painter.transform())
        , hasClip(painter.hasClipping())
        , clip(painter.clipRegion())
        , opacity(painter.opacity())
    {}
    bool operator==(const PainterState &other) const
    {
        return pen == other.pen && brush == other.brush && font == other.font
               && hints == other.hints && transform == other.transform && hasClip == other.hasClip
               && clip == other.clip && opacity == other.opacity;
    }

    QPen pen;
    QBrush brush;
    QFont font;
    QPainter::RenderHints hints;
    QTransform transform;
    bool hasClip;
    QRegion clip;
    qreal opacity;
};

/// \a paint on \a background at the device pixel ratio of the run.
template <typename Paint>
QImage picture(const QSize &size, const QColor &background, Paint paint)
{
    return TestSupport::paintOn(size, background, paint, qApp->devicePixelRatio());
}

/// The colour of the unit at x, y: that of its first device pixel. Lines of one unit that are drawn
/// without antialiasing lie half a unit higher and further left, and cover that one, too.
inline QColor unitColor(const QImage &image, int x, int y)
{
    const int ratio = qRound(image.devicePixelRatio());
    return image.pixelColor(x * ratio, y * ratio);
}

inline QString unitDifference(const QImage &image, int x, int y, const QColor &expected)
{
    const QColor actual = unitColor(image, x, y);
    if (actual.rgba() == expected.rgba())
        return QString();
    return QStringLiteral("unit (%1, %2) is %3, expected %4")
        .arg(x)
        .arg(y)
        .arg(actual.name(QColor::HexArgb), expected.name(QColor::HexArgb));
}

/// Whether all \a units have \a color.
inline bool isFilled(const QImage &image, const QRect &units, const QColor &color)
{
    for (int y = units.top(); y <= units.bottom(); ++y) {
        for (int x = units.left(); x <= units.right(); ++x) {
            if (unitColor(image, x, y).rgba() != color.rgba())
                return false;
        }
    }
    return true;
}

/// Palettes from which sums and factors leave the range of a colour, or that hold no colours.
inline QVector<QPalette> extremePalettes()
{
    QPalette gradient = themePalette();
    gradient.setBrush(QPalette::Window, QLinearGradient(0, 0, 0, 10));
    QPalette texture = themePalette();
    texture.setBrush(QPalette::Window, QBrush(QPixmap(4, 4)));
    return {themePalette(),
            QPalette(Qt::black),
            QPalette(Qt::white),
            QPalette(QColor()),
            QPalette(QColor(1, 2, 3, 0)),
            gradient,
            texture};
}

/// Rectangles that have no inside, hardly any, or more than any device.
inline QVector<QRect> extremeRects()
{
    return {QRect(),
            QRect(5, 5, 0, 20),
            QRect(5, 5, 20, 0),
            QRect(5, 5, -7, -9),
            QRect(5, 5, 1, 1),
            QRect(5, 5, 2, 3),
            QRect(-50, -50, 30, 20),
            QRect(-100000, -100000, 200000, 200000)};
}

using PaintOption = std::function<void(const QStyleOption *option, QPainter *painter)>;

/// Paints without an option, then with \a option in every extreme palette and rectangle. Tells of
/// the first time that the painter is left changed or that something is painted without a
/// rectangle.
inline QString firstFault(const PaintOption &paint, QStyleOption *option)
{
    const QImage blank = picture(QSize(40, 40), Qt::darkCyan, [](QPainter &) {});
    QImage image = blank;
    QPainter painter(&image);
    painter.setPen(QPen(Qt::magenta, 3, Qt::DashLine));
    painter.setBrush(Qt::Dense4Pattern);
    painter.setClipRect(0, 0, 35, 38);
    painter.translate(2, 1);
    const PainterState before(painter);
    paint(nullptr, &painter);
    if (image != blank)
        return QStringLiteral("something is painted without an option");
    for (const QPalette &palette : extremePalettes()) {
        for (const QRect &rect : extremeRects()) {
            option->palette = palette;
            option->rect = rect;
            paint(option, &painter);
            const QString place = QStringLiteral("%1, %2, %3 x %4")
                                      .arg(rect.x())
                                      .arg(rect.y())
                                      .arg(rect.width())
                                      .arg(rect.height());
            if (!(PainterState(painter) == before))
                return QStringLiteral("the painter is changed after ") + place;
            if (rect.isEmpty() && image != blank)
                return QStringLiteral("something is painted in ") + place;
            painter.save();
            painter.resetTransform();
            painter.fillRect(0, 0, 40, 40, Qt::darkCyan);
            painter.restore();
        }
    }
    return QString();
}

} // namespace StylePainting

/// Fails with both colours and the place when the unit at x, y differs.
#define COMPARE_UNIT(image, x, y, expected) \
    do { \
        const QString difference = StylePainting::unitDifference(image, x, y, expected); \
        QVERIFY2(difference.isEmpty(), qPrintable(difference)); \
    } while (false)

#endif
