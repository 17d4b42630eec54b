#include "themepaint_p.h"

#include <nocturne/theme/darkux.h>

#include <algorithm>

namespace Nocturne::ThemePaint {

QColor color(QPalette::ColorRole role)
{
    return Singleton<DarkUX>::getInstance().palette().color(QPalette::Current, role);
}

QColor buttonText(bool enabled)
{
    return Singleton<DarkUX>::getInstance().palette().color(
        enabled ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText);
}

QColor shifted(const QColor &color, int shift, int alpha)
{
    return QColor(qBound(0, color.red() + shift, 255), qBound(0, color.green() + shift, 255),
                  qBound(0, color.blue() + shift, 255), alpha);
}

QColor window(int shift, int alpha)
{
    return shifted(color(QPalette::Window), shift, alpha);
}

QLinearGradient verticalGradient(qreal top, qreal bottom, const QGradientStops &stops)
{
    QLinearGradient gradient(0.0, top, 0.0, bottom);
    gradient.setStops(stops);
    return gradient;
}

} // namespace Nocturne::ThemePaint
