#include "stylecolors_p.h"

#include <nocturne/painting/themepaint_p.h>

#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QScrollBar>

namespace Nocturne::StyleColors {

namespace {

// The outline over a textured window, where a darker Window colour means nothing.
constexpr QRgb texturedOutline = 0xa0000000;
constexpr QRgb texturedTabFrame = 0x08ffffff;

bool hasTexturedWindow(const QPalette &palette)
{
    return palette.brush(QPalette::Window).style() == Qt::TexturePattern;
}

int merged(int a, int b, int factor)
{
    return qBound(0, (a * factor) / 100 + (b * (100 - factor)) / 100, 255);
}

} // namespace

QColor withAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

QColor window(const QPalette &palette, int shift, int alpha)
{
    return ThemePaint::shifted(palette.color(QPalette::Window), shift, alpha);
}

QColor outlineColor(const QPalette &palette)
{
    if (hasTexturedWindow(palette))
        return QColor::fromRgba(texturedOutline);
    return palette.color(QPalette::Window).darker(140);
}

QColor buttonColor(const QPalette &palette)
{
    QColor color = palette.color(QPalette::Button);
    const int gray = qGray(color.rgb());
    color = color.lighter(100 + qMax(1, (180 - gray) / 6));
    color.setHsv(color.hue(), int(color.saturation() * 0.75), color.value());
    return color;
}

QColor highlightedOutlineColor(const QPalette &palette)
{
    QColor color = palette.color(QPalette::Highlight).darker(125);
    if (color.value() > 160)
        color.setHsl(color.hue(), color.saturation(), 160);
    return color;
}

QColor tabFrameColor(const QPalette &palette)
{
    if (hasTexturedWindow(palette))
        return QColor::fromRgba(texturedTabFrame);
    return buttonColor(palette).lighter(104);
}

QColor mergedColors(const QColor &a, const QColor &b, int factor)
{
    return QColor(merged(a.red(), b.red(), factor), merged(a.green(), b.green(), factor),
                  merged(a.blue(), b.blue(), factor), a.alpha());
}

QColor gradientStartColor(const QPalette &palette)
{
    return buttonColor(palette).lighter(118);
}

QColor gradientStopColor(const QPalette &palette)
{
    return buttonColor(palette);
}

QColor arrowColor(const QPalette &palette)
{
    return withAlpha(palette.color(QPalette::WindowText), 220);
}

QColor scrollBarBackgroundColor(const QPalette &palette, const QWidget *widget)
{
    // The bar stands in a container, the container in the scroll area.
    if (qobject_cast<const QScrollBar *>(widget) && widget->parent()) {
        const auto *area = qobject_cast<const QAbstractScrollArea *>(widget->parent()->parent());
        if (area)
            return area->palette().color(QPalette::Base);
    }
    return palette.color(QPalette::Base);
}

} // namespace Nocturne::StyleColors
