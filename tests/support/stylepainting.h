#ifndef NOCTURNE_STYLEPAINTING_H
#define NOCTURNE_STYLEPAINTING_H

#include "testsupport.h"

#include <nocturne/style/darkfusionstyle.h>
#include <nocturne/theme/darkux.h>

#include <QtCore/QFile>
#include <QtCore/QMetaEnum>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

#include <functional>

/// What the tests of the style share: options in the theme's palette, pictures of one element at
/// the ratio of the run, and a proxy that notes what passes through it.
namespace StylePainting {

constexpr QStyle::State enabled = QStyle::State_Enabled | QStyle::State_Active;
inline const QSize canvas(120, 60);
inline const QColor background(0x20, 0x40, 0x60);

/// What stands in a file beside the tests of the style.
inline QByteArray dataOf(const QString &name)
{
    QFile file(NOCTURNE_SOURCE_DIR "/tests/style/data/" + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s is missing", qPrintable(file.fileName()));
    return file.readAll();
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
    if constexpr (std::is_base_of_v<QStyleOptionComplex, Option>)
        option.subControls = QStyle::SC_All;
    return option;
}

inline QIcon redIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

inline QString nameOf(const QRect &r)
{
    return QStringLiteral("%1,%2,%3,%4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

template <typename Enum>
QString keyOf(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(value));
}

/// Stands on top of the style and notes the texts, pixmaps and primitives that are drawn through
/// it, of which it draws none, and the controls: what, where, and how.
class Recorder : public QProxyStyle
{
public:
    Recorder()
        : QProxyStyle(new DarkFusionStyle)
    {}

    void drawItemText(QPainter *, const QRect &rect, int flags, const QPalette &, bool,
                      const QString &, QPalette::ColorRole role) const override
    {
        const int alignment = flags & (Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask);
        log << "text " + nameOf(rect) + " " + QString::number(alignment, 16) + " " + keyOf(role);
    }
    void drawItemPixmap(QPainter *, const QRect &rect, int, const QPixmap &) const override
    {
        log << "pixmap " + nameOf(rect);
    }
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *,
                       const QWidget *) const override
    {
        const QByteArray state = QMetaEnum::fromType<StateFlag>().valueToKeys(option->state);
        QString entry = keyOf(element) + " " + nameOf(option->rect) + " "
                        + QString::fromLatin1(state).remove("State_").replace('|', '+');
        for (QPalette::ColorRole role : {QPalette::Button, QPalette::WindowText}) {
            const QColor color = option->palette.color(role);
            if (color != themePalette(option->palette.currentColorGroup()).color(role))
                entry += " " + keyOf(role) + "=" + color.name();
        }
        log << entry;
    }
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override
    {
        log << keyOf(element) + " " + nameOf(option->rect);
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        if (metric == PM_ButtonShiftHorizontal || metric == PM_ButtonShiftVertical)
            return 3;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        return hint == SH_ScrollBar_Transient
                   ? isTransient
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }

    bool isTransient = true;
    mutable QStringList log;
};

using Drawing = std::function<void(QPainter &painter)>;

/// \a paint at the device pixel ratio of the run.
inline QImage picture(const Drawing &paint, const QSize &size = canvas)
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

/// The units that are painted.
inline QRegion painted(const QImage &image)
{
    const int ratio = qRound(image.devicePixelRatio());
    QRegion units;
    for (int y = 0; y < image.height() / ratio; ++y) {
        for (int x = 0; x < image.width() / ratio; ++x) {
            if (unitColor(image, x, y).rgba() != background.rgba())
                units += QRect(x, y, 1, 1);
        }
    }
    return units;
}

} // namespace StylePainting

#endif
