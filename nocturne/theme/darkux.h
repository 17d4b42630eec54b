#ifndef NOCTURNE_DARKUX_H
#define NOCTURNE_DARKUX_H

#include <nocturne/nocturneglobal.h>
#include <nocturne/style/darkfusionstyle.h>
#include <nocturne/theme/singleton.h>

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QPalette>

extern template class NOCTURNE_EXPORT Singleton<DarkUX>;

/// The theme: the dark palette, a few extra background colours and the style that paints with them.
///
/// A host constructs one object after its QApplication and before its first themed widget, and
/// keeps it until the last one is gone. The theme installs nothing by itself:
///
/// \code
/// QApplication app(argc, argv);
/// DarkUX theme;
/// app.setStyle(theme.style());
/// app.setPalette(theme.palette());
/// \endcode
///
/// The widgets of the library read palette() each time they paint. All of it belongs to the GUI
/// thread.
class NOCTURNE_EXPORT DarkUX : public Singleton<DarkUX>
{
public:
    /// Registers the object, fills palettes and colours (initialize()) and creates the style.
    DarkUX();

    /// Copies palettes and colours and shares the style. The copy is not registered.
    DarkUX(const DarkUX &other);
    DarkUX &operator=(const DarkUX &other);

    /// Forgets the registration. Does not delete the style: once installed, it belongs to the
    /// application; a host that never installs it deletes it itself.
    ~DarkUX() override;

    /// Sets palettes and background colours to the theme's values. Called by the constructor; call
    /// it again to undo setPalette().
    void initialize();

    /// The palette the widgets paint with: the theme's colours, Window and Base with a blue cast.
    const QPalette &palette() const { return m_palette; }

    /// The same palette without the blue cast.
    const QPalette &defaultPalette() const { return m_defaultPalette; }

    /// Replaces palette(); defaultPalette() stays. Nothing is notified: widgets show the new
    /// colours when they repaint. The second argument has no effect.
    void setPalette(const QPalette &palette, bool);

    /// The style created with the theme, for QApplication::setStyle() or QWidget::setStyle().
    DarkFusionStyle *style() const { return m_style; }

    /// Two darker backgrounds for the host's own surfaces, under the keys 0 and 1.
    const QMap<int, QColor> &backgroundColor() const { return m_backgroundColors; }

    /// Name, version and source revision of the library, separated by spaces.
    QString moduleVersion() const;

    /// \a color under light of \a temperature kelvin; the result is opaque. 6600 K changes
    /// nothing, more turns it blue, less turns it red. Temperatures above 40000 K, and negative
    /// ones, count as 40000 K.
    static QColor colorCalc(const QColor &color, int temperature);

    /// The colour of black-body light of \a temperature kelvin, each channel at most 255. Below
    /// 600 K green can be negative.
    static void getRGBfromTemperature(int &red, int &green, int &blue, unsigned int temperature);

private:
    QPalette m_palette;
    QPalette m_defaultPalette;
    DarkFusionStyle *m_style = nullptr;
    QMap<int, QColor> m_backgroundColors;
};

#endif
