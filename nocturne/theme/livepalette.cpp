#include "livepalette.h"

#include <nocturne/theme/darkux.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <algorithm>

void LivePalette::apply(const QPalette &palette)
{
    if (DarkUX *theme = DarkUX::getInstancePtr())
        theme->setPalette(palette, true);
    QApplication::setPalette(palette);
    // The application reaches those only whose own palette changes.
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets)
        widget->update();
}

QPalette LivePalette::dimmed(const QPalette &palette, double brightness)
{
    const double factor = std::clamp(brightness, 0.0, 1.0);
    QPalette result(palette);
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int i = 0; i < QPalette::NColorRoles; ++i) {
            const auto role = static_cast<QPalette::ColorRole>(i);
            if (role == QPalette::NoRole)
                continue;
            QColor color = palette.color(group, role).toHsv();
            color.setHsvF(color.hsvHueF(), color.hsvSaturationF(), color.valueF() * factor,
                          color.alphaF());
            result.setColor(group, role, color.toRgb());
        }
    }
    return result;
}
