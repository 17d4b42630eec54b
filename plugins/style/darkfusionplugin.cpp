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

/// The style together with the palette it is meant for, because a program that knows it by name
/// only installs none.
class ThemedDarkFusionStyle : public DarkFusionStyle
{
public:
    using DarkFusionStyle::polish;

    QPalette standardPalette() const override { return themePalette(); }

    /// Without this, the colours of the desktop would win over those of the style.
    void polish(QPalette &palette) override { palette = themePalette().resolve(palette); }
};

} // namespace

QStyle *DarkFusionPlugin::create(const QString &key)
{
    if (key.compare(QLatin1String("DarkFusion"), Qt::CaseInsensitive) != 0)
        return nullptr;
    return new ThemedDarkFusionStyle;
}
