#include "darkfusionstyle.h"
#include "darkfusionstyle_p.h"

DarkFusionStylePrivate::DarkFusionStylePrivate()
{
    animationFps = 60;
}

DarkFusionStyle::DarkFusionStyle()
    : DarkFusionStyle(*new DarkFusionStylePrivate)
{}

DarkFusionStyle::DarkFusionStyle(DarkFusionStylePrivate &dd)
    : QCommonStyle(dd)
{
    setObjectName(QStringLiteral("DarkFusion"));
}

DarkFusionStyle::~DarkFusionStyle() = default;

void DarkFusionStyle::polish(QPalette &palette)
{
    QCommonStyle::polish(palette);
}
void DarkFusionStyle::polish(QApplication *application)
{
    QCommonStyle::polish(application);
}
void DarkFusionStyle::polish(QWidget *widget)
{
    QCommonStyle::polish(widget);
}
void DarkFusionStyle::unpolish(QApplication *application)
{
    QCommonStyle::unpolish(application);
}
void DarkFusionStyle::unpolish(QWidget *widget)
{
    QCommonStyle::unpolish(widget);
}
QRect DarkFusionStyle::itemPixmapRect(const QRect &rect, int flags, const QPixmap &pixmap) const
{
    return QCommonStyle::itemPixmapRect(rect, flags, pixmap);
}
void DarkFusionStyle::drawItemText(QPainter *painter, const QRect &rect, int alignment,
                                   const QPalette &palette, bool enabled, const QString &text,
                                   QPalette::ColorRole textRole) const
{
    QCommonStyle::drawItemText(painter, rect, alignment, palette, enabled, text, textRole);
}
void DarkFusionStyle::drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                                     const QPixmap &pixmap) const
{
    QCommonStyle::drawItemPixmap(painter, rect, alignment, pixmap);
}
QPalette DarkFusionStyle::standardPalette() const
{
    return QCommonStyle::standardPalette();
}
QRect DarkFusionStyle::subElementRect(SubElement element, const QStyleOption *option,
                                      const QWidget *widget) const
{
    return QCommonStyle::subElementRect(element, option, widget);
}
int DarkFusionStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                                 const QWidget *widget) const
{
    return QCommonStyle::pixelMetric(metric, option, widget);
}
QSize DarkFusionStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                        const QSize &contents, const QWidget *widget) const
{
    return QCommonStyle::sizeFromContents(type, option, contents, widget);
}
int DarkFusionStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                               QStyleHintReturn *returnData) const
{
    return QCommonStyle::styleHint(hint, option, widget, returnData);
}
QPixmap DarkFusionStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption *option,
                                        const QWidget *widget) const
{
    return QCommonStyle::standardPixmap(pixmap, option, widget);
}
QIcon DarkFusionStyle::standardIcon(StandardPixmap icon, const QStyleOption *option,
                                    const QWidget *widget) const
{
    return QCommonStyle::standardIcon(icon, option, widget);
}
QPixmap DarkFusionStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                             const QStyleOption *option) const
{
    return QCommonStyle::generatedIconPixmap(mode, pixmap, option);
}
