#include "darkfusionplugin.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkReadableStyle>
#include <nocturne/DarkUX>

#include <QtWidgets/QWidget>

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

QPalette paletteFor(const DarkFusionStyle *)
{
    return themePalette();
}

QPalette paletteFor(const DarkReadableStyle *)
{
    return DarkReadableStyle::palette(themePalette());
}

/// A style together with the palette it is meant for, because a program that knows it by name
/// only installs none.
template <typename Style>
class Themed : public Style
{
public:
    using Style::polish;

    QPalette standardPalette() const override { return paletteFor(this); }

    /// Without this, the colours of the desktop would win over those of the style.
    void polish(QPalette &palette) override { palette = paletteFor(this).resolve(palette); }

    /// The text of a web page is black unless the page says otherwise, but its paper is the
    /// palette's Base. Such a view keeps the white paper that pages are written for.
    void polish(QWidget *widget) override
    {
        Style::polish(widget);
        if (!widget || !widget->inherits("QWebView"))
            return;
        QPalette palette = widget->palette();
        palette.setColor(QPalette::Base, Qt::white);
        palette.setColor(QPalette::Text, Qt::black);
        widget->setPalette(palette);
    }
};

} // namespace

QStyle *DarkFusionPlugin::create(const QString &key)
{
    if (key.compare(QLatin1String("DarkFusion"), Qt::CaseInsensitive) == 0)
        return new Themed<DarkFusionStyle>;
    if (key.compare(QLatin1String("DarkFusionReadable"), Qt::CaseInsensitive) == 0)
        return new Themed<DarkReadableStyle>;
    return nullptr;
}
