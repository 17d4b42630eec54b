#include "darkreadablestyle.h"

#include "darkreadablestyle_p.h"

#include <nocturne/painting/themepaint_p.h>

#include <cmath>

namespace Nocturne::Readable {

namespace {

constexpr qreal smoothingLoss = 0.4;      // what thin lines lose to the smoothing of their edges
constexpr qreal titleBarContrast = 2.0;   // to the window; leaves room for a white title
constexpr QRgb accentOrange = 0xffed6e00; // rgb(237, 110, 0)

qreal linear(int channel)
{
    const qreal share = channel / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

qreal luminance(const QColor &color)
{
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green())
           + 0.0722 * linear(color.blue());
}

qreal leastContrast(const QColor &color, std::initializer_list<QColor> grounds)
{
    qreal least = 21.0;
    for (const QColor &ground : grounds)
        least = qMin(least, contrast(color, ground));
    return least;
}

/// Black at 0, \a color at 255, white at 510.
QColor shadeAt(const QColor &color, int step)
{
    return step <= 255 ? mixed(color, Qt::black, step * 100 / 255)
                       : mixed(Qt::white, color, (step - 255) * 100 / 255);
}

/// An accent that is no brighter than the text around it, as in the dark of a show, and stands
/// out from \a grounds.
QColor accentFor(const QPalette &palette, QRgb rgb, std::initializer_list<QColor> grounds,
                 qreal ratio)
{
    QColor accent(rgb);
    const qreal brightest = luminance(palette.color(QPalette::WindowText));
    for (int i = 0; i < 100 && luminance(accent) > brightest; ++i)
        accent = mixed(accent, Qt::black, 97);
    return lifted(accent, grounds, ratio);
}

QColor halfSaturated(const QColor &color)
{
    return QColor::fromHsv(qMax(0, color.hsvHue()), color.hsvSaturation() / 2, color.value());
}

/// Makes one colour group of a palette readable.
class PaletteRule
{
public:
    PaletteRule(QPalette &palette, QPalette::ColorGroup group)
        : m_palette(palette)
        , m_group(group)
        , m_ratio(group == QPalette::Disabled ? faintContrast : textContrast)
    {}

    void apply()
    {
        using P = QPalette;
        set(P::AlternateBase, mixed(color(P::AlternateBase), color(P::Base), 50));
        set(P::Button, buttonGround());
        for (P::ColorRole role :
             {P::WindowText, P::Text, P::ButtonText, P::BrightText, P::Link, P::LinkVisited})
            set(role, onSurfaces(color(role)));
        set(P::PlaceholderText, onSurfaces(mixed(color(P::Text), color(P::Base), 60)));
        set(P::Highlight, selectionGround());
        set(P::HighlightedText,
            lifted(color(P::HighlightedText), {color(P::Highlight), pressed()}, m_ratio));
        set(P::ToolTipBase, lifted(color(P::ToolTipBase), {color(P::ToolTipText)}, textContrast));
    }

private:
    QColor color(QPalette::ColorRole role) const { return m_palette.color(m_group, role); }
    void set(QPalette::ColorRole role, const QColor &color)
    {
        m_palette.setColor(m_group, role, color);
    }

    /// The ground of pressed buttons is the same for every palette.
    static QColor pressed() { return QColor(24, 24, 24); }

    /// The lightest that the style makes of a button, a tab or a header.
    static QColor lightestButton(const QColor &button) { return button.lighter(135); }

    /// Dark enough that text is told apart from disabled text, which needs some contrast itself.
    QColor buttonGround() const
    {
        const QColor text = m_palette.color(QPalette::Active, QPalette::ButtonText);
        QColor button = color(QPalette::Button);
        for (int i = 0; i < 100 && contrast(lightestButton(button), text) < 5.5; ++i)
            button = mixed(button, color(QPalette::Window), 90);
        return button;
    }

    /// Disabled controls lie on windows that are not.
    QColor onSurfaces(const QColor &text) const
    {
        const QColor window = m_palette.color(QPalette::Active, QPalette::Window);
        const QColor panel(qMin(255, window.red() + 24), qMin(255, window.green() + 24),
                           qMin(255, window.blue() + 24));
        return lifted(text,
                      {window, panel, color(QPalette::Window), color(QPalette::Base),
                       color(QPalette::AlternateBase), lightestButton(color(QPalette::Button))},
                      m_ratio);
    }

    QColor selectionGround() const
    {
        // The theme's inactive selection is too faint to be told at all, so it is the active one
        // with less colour.
        QColor highlight = color(QPalette::Highlight);
        if (m_group == QPalette::Inactive)
            highlight = halfSaturated(m_palette.color(QPalette::Active, QPalette::Highlight));
        return nearestShade(
            highlight,
            {color(QPalette::Window), color(QPalette::Base), color(QPalette::AlternateBase)},
            faintContrast);
    }

    QPalette &m_palette;
    const QPalette::ColorGroup m_group;
    const qreal m_ratio;
};

} // namespace

qreal contrast(const QColor &a, const QColor &b)
{
    const qreal first = luminance(a) + 0.05;
    const qreal second = luminance(b) + 0.05;
    return qMax(first, second) / qMin(first, second);
}

QColor mixed(const QColor &a, const QColor &b, int share)
{
    const auto channel = [share](int first, int second) {
        return (first * share + second * (100 - share)) / 100;
    };
    return QColor(channel(a.red(), b.red()), channel(a.green(), b.green()),
                  channel(a.blue(), b.blue()));
}

QColor lifted(const QColor &color, std::initializer_list<QColor> grounds, qreal ratio)
{
    for (int step = 255; step <= 510; ++step) {
        if (leastContrast(shadeAt(color, step), grounds) >= ratio)
            return shadeAt(color, step);
    }
    for (int step = 255; step >= 0; --step) {
        if (leastContrast(shadeAt(color, step), grounds) >= ratio)
            return shadeAt(color, step);
    }
    return leastContrast(Qt::white, grounds) > leastContrast(Qt::black, grounds) ? Qt::white
                                                                                 : Qt::black;
}

QColor nearestShade(const QColor &color, std::initializer_list<QColor> grounds, qreal ratio)
{
    const bool isDark = luminance(*grounds.begin()) < 0.18;
    for (int step = 0; step <= 510; ++step) {
        QColor shade = shadeAt(color, isDark ? step : 510 - step);
        const bool isBeyond = (luminance(shade) > luminance(*grounds.begin())) == isDark;
        if (isBeyond && leastContrast(shade, grounds) >= ratio)
            return shade;
    }
    return lifted(color, grounds, ratio);
}

Shades::Shades(const QPalette &palette)
    : ownKept(palette)
    , arrows(palette)
    , ticks(palette)
    , titleBar(palette)
    , inactiveTitleBar(palette)
    , pressedLabel(palette)
{
    const auto color = [&palette](QPalette::ColorRole role) { return palette.color(role); };
    const QColor window = color(QPalette::Window);
    const QColor base = color(QPalette::Base);
    const QColor menu = base.lighter(108);
    const QColor button = color(QPalette::Button).lighter(135);
    const QColor pressed(24, 24, 24);
    const bool isEnabled = palette.currentColorGroup() != QPalette::Disabled;

    // Disabled controls lie on windows that are not.
    const QColor around = palette.color(QPalette::Active, QPalette::Window);
    const QColor alternate = color(QPalette::AlternateBase);
    accent =
        accentFor(palette, ThemePaint::accentBlue, {window, base, menu, button}, faintContrast);
    orange = accentFor(palette, accentOrange, {pressed}, textContrast);
    outline = nearestShade(Qt::gray, {window, around, base, menu, alternate},
                           isEnabled ? textContrast : faintContrast + smoothingLoss);
    contour = mixed(window, Qt::black, 50);
    mark = lifted(color(QPalette::Text), {base}, faintContrast);
    groove = mixed(window, Qt::black, 60);
    handle = nearestShade(Qt::gray, {groove}, faintContrast + smoothingLoss);
    handleHovered = nearestShade(Qt::gray, {groove}, textContrast + smoothingLoss);

    const QPalette::ColorGroup group = palette.currentColorGroup();
    ownKept.setColor(QPalette::NoRole, outline); // any change makes a key of its own
    // The base style paints its marks darker than these roles.
    ticks.setColor(group, QPalette::Window, outline.lighter(145));
    // Titles and symbols are white where the base style takes a title bar for active.
    titleBar.setColor(group, QPalette::Highlight,
                      nearestShade(color(QPalette::Highlight), {window}, titleBarContrast));
    inactiveTitleBar.setColor(group, QPalette::Highlight, window);
    arrows.setColor(group, QPalette::WindowText,
                    lifted(color(QPalette::WindowText), {around}, textContrast));
    pressedLabel.setColor(group, QPalette::HighlightedText,
                          isEnabled ? orange : color(QPalette::ButtonText));
}

const Shades &Face::shades(const QPalette &palette)
{
    const QPair<qint64, int> key(palette.cacheKey(), palette.currentColorGroup());
    Shades *shades = m_shades.object(key);
    if (!shades) {
        shades = new Shades(palette);
        m_shades.insert(key, shades);
    }
    return *shades;
}

uint qHash(const Kept::Key &key, uint seed)
{
    const uint shape = uint(key.what) * 31u + uint(key.state);
    const uint size = uint(key.size.width() << 16 ^ key.size.height());
    return ::qHash(key.palette, seed) ^ ::qHash(key.marks, seed) ^ (shape * 2654435761u) ^ size
           ^ uint(key.group << 8 ^ key.ratio);
}

} // namespace Nocturne::Readable

QPalette DarkReadableStyle::palette(const QPalette &theme)
{
    QPalette result(theme);
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        Nocturne::Readable::PaletteRule(result, group).apply();
    return result;
}
