#ifndef NOCTURNE_DARKPROXYSTYLE_H
#define NOCTURNE_DARKPROXYSTYLE_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QProxyStyle>

/// Three touches of the dark look over any other style: transient scroll bars, numbered badges in
/// front of menu items, and a yellow fill where a menu is empty.
///
/// A menu item gets a numbered badge when its text begins with an ampersand, one digit and a
/// semicolon. Badge and shortcut text are no part of what is drawn as its label.
///
/// \code
/// app.setStyle(new DarkProxyStyle(QStringLiteral("Fusion")));
/// menu->addAction(QStringLiteral("&3;Open"));
/// \endcode
///
/// Owns the style below it; whoever it is installed on owns the proxy. GUI thread only.
class NOCTURNE_EXPORT DarkProxyStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Stands on the style that QStyleFactory makes for \a key, or on the platform's own style
    /// when it makes none.
    explicit DarkProxyStyle(const QString &key);
    ~DarkProxyStyle() override;

    /// Draws CE_MenuItem with a badge and 18 units further to the right, and fills the widget of
    /// a CE_MenuEmptyArea. A CE_MenuItem whose option is of another type is not drawn.
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget = nullptr) const override;
    /// 1 for SH_ScrollBar_Transient; the rest is the base style's.
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;

private:
    Q_DISABLE_COPY(DarkProxyStyle)

    void drawMenuBadge(const QStyleOption *option, const QString &label, QPainter *painter,
                       const QWidget *widget) const;
};

#endif
