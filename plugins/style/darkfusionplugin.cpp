#include "darkfusionplugin.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>

#include <memory>

namespace {

/// The palette of the program's own theme, if it has one; otherwise that of a theme which is gone,
/// and no longer registered, when this returns.
QPalette themePalette()
{
    if (const DarkUX *theme = DarkUX::getInstancePtr())
        return theme->palette();
    const DarkUX theme;
    const std::unique_ptr<DarkFusionStyle> unusedStyle(theme.style());
    return theme.palette();
}

/// The style with the palette it is meant for. A program that installs it by name installs no
/// palette.
class ThemedDarkFusionStyle : public DarkFusionStyle
{
public:
    QPalette standardPalette() const override { return themePalette(); }
};

} // namespace

QStyle *DarkFusionPlugin::create(const QString &key)
{
    if (key.compare(QLatin1String("DarkFusion"), Qt::CaseInsensitive) != 0)
        return nullptr;
    return new ThemedDarkFusionStyle;
}
