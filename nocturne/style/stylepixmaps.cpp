#include "darkfusionstyle.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>

#include <array>

// The symbols on the buttons of title bars and dock widgets.

namespace {

constexpr int symbolRows = 7;

/// A whole XPM image: header, seven colours, thirteen rows.
using Xpm = std::array<const char *, 1 + 7 + 13>;

/// Puts the middle rows of a symbol into the window that all of them share.
constexpr Xpm windowSymbol(const char *const (&middle)[symbolRows])
{
    return {
        "11 13 7 1",   "  c None",    ". c #D5CFCB", "+ c #8F8B88", "@ c #6C6A67", "# c #ABA6A3",
        "$ c #B5B0AC", "% c #A4A09D", "           ", " +@@@@@@@+ ", "+#       #+", middle[0],
        middle[1],     middle[2],     middle[3],     middle[4],     middle[5],     middle[6],
        "+%       #+", " +@@@@@@@+ ", "           ",
    };
}

constexpr Xpm minimizeSymbol = windowSymbol({
    "@         @",
    "@         @",
    "@         @",
    "@ @@@@@@@ @",
    "@ @@@@@@@ @",
    "@         @",
    "@         @",
});

constexpr Xpm restoreSymbol = windowSymbol({
    "@   #@@@# @",
    "@   @   @ @",
    "@ #@@@# @ @",
    "@ @   @ @ @",
    "@ @   @@@ @",
    "@ @   @   @",
    "@ #@@@#   @",
});

constexpr Xpm closeSymbol = windowSymbol({
    "@ $@   @$ @",
    "@ @@@ @@@ @",
    "@  @@@@@  @",
    "@   @@@   @",
    "@  @@@@@  @",
    "@ @@@ @@@ @",
    "@ $@   @$ @",
});

/// The icons on the buttons of dock widgets, as long as there is an application and it keeps to one
/// icon theme.
class DockIcons
{
public:
    static DockIcons &instance()
    {
        static DockIcons icons;
        return icons;
    }

    /// Takes the routine back, which is gone once the library is unloaded.
    ~DockIcons() { qRemovePostRoutine(clearWithApplication); }

    /// Null until it is assigned.
    QIcon &icon(QStyle::StandardPixmap which)
    {
        if (!m_endsWithApplication) {
            m_endsWithApplication = true;
            qAddPostRoutine(clearWithApplication);
        }
        if (m_theme != QIcon::themeName())
            clear();
        return which == QStyle::SP_TitleBarCloseButton ? m_close : m_float;
    }

private:
    static void clearWithApplication()
    {
        instance().clear();
        instance().m_endsWithApplication = false;
    }

    void clear()
    {
        m_theme = QIcon::themeName();
        m_close = QIcon();
        m_float = QIcon();
    }

    bool m_endsWithApplication = false;
    QString m_theme;
    QIcon m_close;
    QIcon m_float;
};

} // namespace

QPixmap DarkFusionStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption *option,
                                        const QWidget *widget) const
{
    switch (pixmap) {
    case SP_TitleBarMinButton:
        return QPixmap(minimizeSymbol.data());
    case SP_TitleBarNormalButton:
        return QPixmap(restoreSymbol.data());
    case SP_TitleBarCloseButton:
    case SP_DockWidgetCloseButton:
        return QPixmap(closeSymbol.data());
    default:
        return QCommonStyle::standardPixmap(pixmap, option, widget);
    }
}

QIcon DarkFusionStyle::standardIcon(StandardPixmap icon, const QStyleOption *option,
                                    const QWidget *widget) const
{
    // A dock widget's title asks for its buttons' icons at each paint, and the common style reads
    // them from files.
    if (icon != SP_TitleBarCloseButton && icon != SP_TitleBarNormalButton)
        return QCommonStyle::standardIcon(icon, option, widget);
    DockIcons &icons = DockIcons::instance();
    QIcon &kept = icons.icon(icon);
    if (kept.isNull())
        kept = QCommonStyle::standardIcon(icon, option, widget);
    return kept;
}

QPixmap DarkFusionStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                             const QStyleOption *option) const
{
    return QCommonStyle::generatedIconPixmap(mode, pixmap, option);
}
