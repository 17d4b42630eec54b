#include "darkux.h"

#include <nocturne/style/darkfusionstyle.h>
#include <nocturne/theme/qtversion_p.h>

#include <QtCore/QtMath>

#include <iterator>

template <typename T>
T *Singleton<T>::m_instance = nullptr;

template <typename T>
void Singleton<T>::reportMissingInstance()
{
    qFatal("libnocturne: no DarkUX exists; construct one before the first themed widget is shown");
    Q_UNREACHABLE();
}

template class Singleton<DarkUX>;

namespace {

constexpr int windowTemperature = 8500;
constexpr int backgroundTemperature = 9500;
constexpr unsigned int maximumTemperature = 40000;

struct RoleColors
{
    QPalette::ColorRole role;
    QRgb active;
    QRgb disabled;
    QRgb inactive;
};

constexpr RoleColors themeColors[] = {
    {QPalette::WindowText, 0xffbbbbbb, 0xff605f5f, 0xffbbbbbb},
    {QPalette::Window, 0xff262626, 0xff222222, 0xff262626},
    {QPalette::Base, 0xff1e1e1e, 0xff1a1a1a, 0xff1e1e1e},
    {QPalette::Text, 0xffbbbbbb, 0xff555453, 0xffbbbbbb},
    {QPalette::Button, 0xff3c3c3c, 0xff393939, 0xff3c3c3c},
    {QPalette::ButtonText, 0xffbbbbbb, 0xff636363, 0xffbbbbbb},
    {QPalette::Highlight, 0xff679dcd, 0xff333232, 0xff34495c},
    {QPalette::HighlightedText, 0xffed6e00, 0xff605f5f, 0xffbbbbbb},
    {QPalette::ToolTipBase, 0xff805900, 0xff805900, 0xff805900},
    {QPalette::ToolTipText, 0xff1e1e1e, 0xff1e1e1e, 0xff1e1e1e},
    {QPalette::Light, 0xff5a5959, 0xff585757, 0xff5a5959},
    {QPalette::Midlight, 0xff4a4949, 0xff484747, 0xff4a4949},
    {QPalette::Mid, 0xff2d2c2c, 0xff2b2a2a, 0xff2d2c2c},
    {QPalette::Dark, 0xff131212, 0xff121111, 0xff131212},
    {QPalette::Shadow, 0xff0d0d0d, 0xff0d0c0c, 0xff0d0d0d},
    {QPalette::AlternateBase, 0xff292828, 0xff272626, 0xff292828},
    {QPalette::Link, 0xff508ed8, 0xff31455d, 0xff508ed8},
    {QPalette::LinkVisited, 0xff8e79a5, 0xff453e4c, 0xff8e79a5},
};

int atMost255(double value)
{
    return int(qMin(value, 255.0));
}

int scaledChannel(int channel, int factor)
{
    return qBound(0, int(channel * factor / 255.0), 255);
}

void tint(QPalette &palette, QPalette::ColorRole role)
{
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Disabled, QPalette::Inactive}) {
        const QColor tinted = DarkUX::colorCalc(palette.color(group, role), windowTemperature);
        palette.setBrush(group, role, tinted);
    }
}

} // namespace

DarkUX::DarkUX()
{
    initialize();
    m_style = new DarkFusionStyle;
}

DarkUX::DarkUX(const DarkUX &other) = default;
DarkUX &DarkUX::operator=(const DarkUX &other) = default;
DarkUX::~DarkUX() = default;

void DarkUX::initialize()
{
    m_backgroundColors.insert(0, colorCalc(qRgb(40, 40, 40), backgroundTemperature));
    m_backgroundColors.insert(1, colorCalc(qRgb(24, 24, 24), backgroundTemperature));

    for (const RoleColors &colors : themeColors) {
        m_palette.setBrush(QPalette::Active, colors.role, QColor(colors.active));
        m_palette.setBrush(QPalette::Disabled, colors.role, QColor(colors.disabled));
        m_palette.setBrush(QPalette::Inactive, colors.role, QColor(colors.inactive));
    }
    Nocturne::QtVersion::setPlaceholderText(&m_palette);
    m_defaultPalette = m_palette;

    tint(m_palette, QPalette::Window);
    tint(m_palette, QPalette::Base);
}

void DarkUX::setPalette(const QPalette &palette, bool)
{
    m_palette = palette;
}

QString DarkUX::moduleVersion() const
{
    return QStringLiteral("libnocturne " NOCTURNE_VERSION " " NOCTURNE_REVISION);
}

QColor DarkUX::colorCalc(const QColor &color, int temperature)
{
    int red = 0;
    int green = 0;
    int blue = 0;
    getRGBfromTemperature(red, green, blue, static_cast<unsigned int>(temperature));
    return QColor(scaledChannel(color.red(), red), scaledChannel(color.green(), green),
                  scaledChannel(color.blue(), blue));
}

void DarkUX::getRGBfromTemperature(int &red, int &green, int &blue, unsigned int temperature)
{
    // Curves fitted to black-body light, in hundreds of kelvin.
    const int x = int(qMin(temperature, maximumTemperature) / 100);

    red = 255;
    if (x > 66)
        red = atMost255(329.698727446 * qPow(x - 60, -0.1332047592));

    // Below 100 K the logarithm has no value; black is as close as any.
    if (x > 66)
        green = atMost255(288.1221695283 * qPow(x - 60, -0.0755148492));
    else
        green = x > 0 ? atMost255(99.4708025861 * qLn(x) - 161.1195681661) : 0;

    if (x >= 66)
        blue = 255;
    else if (x <= 19)
        blue = 0;
    else
        blue = atMost255(138.5177312231 * qLn(x - 10) - 305.0447927307);
}
