#ifndef NOCTURNE_DARKREADABLESTYLE_H
#define NOCTURNE_DARKREADABLESTYLE_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QProxyStyle>

#include <memory>

namespace Nocturne::Readable {
class Face;
}

/// The dark style for tired eyes, for the keyboard and for small screens: what one has to see in
/// order to work stands out, at contrasts that are measured.
///
/// Stands on a DarkFusionStyle and looks like it, with these differences: selected text is
/// readable; scroll bars lie beside the contents; whatever has got the focus by keyboard is framed;
/// unchecked boxes have outlines and marks grow with the font; sliders, dials and bars look
/// disabled when they are; buttons, combo boxes and tabs answer to the pointer; lists of combo
/// boxes have check boxes only where their models do; right to left is a mirror image of left to
/// right. Text has a contrast of at least 4.5 to 1 to its ground, disabled text, marks and frames
/// at least 3 to 1, given its own palette:
///
/// \code
/// DarkUX theme;
/// app.setStyle(new DarkReadableStyle(theme.style()));
/// app.setPalette(DarkReadableStyle::palette(theme.palette()));
/// \endcode
///
/// Frames are painted by a QFocusFrame beside the control, so no size depends on the focus. To know
/// how a control has got the focus, the style filters the application's events from the first
/// widget it polishes on, and it keeps Qt::WA_KeyboardFocusChange of the windows to the truth.
///
/// Whoever it is installed on owns it. A proxy style may stand on it, and sees every nested call.
/// GUI thread only.
class NOCTURNE_HOSTKIT DarkReadableStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Stands on \a base and owns it, or on a DarkFusionStyle of its own for null.
    explicit DarkReadableStyle(QStyle *base = nullptr);
    ~DarkReadableStyle() override;

    /// The palette for this style, made from \a theme: text is moved towards white, or on light
    /// grounds towards black, as far as its contrast asks; Highlight gets the shade that stands
    /// out from the ground and leaves room for text on it; Button and AlternateBase come closer to
    /// the ground they lie on. Hues stay.
    static QPalette palette(const QPalette &theme);

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    /// Lets tabs know when the pointer is over them, beside what the base style does.
    void polish(QWidget *widget) override;
    void unpolish(QWidget *widget) override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget = nullptr) const override;
    /// Leaves room in menus for check boxes that grow with the font.
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget = nullptr) const override;
    /// Scroll bars are not transient, disabled text has no second edge, frames lie above.
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
    /// The symbols of title bars, tabs, tool bars and text fields in the colour of text.
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;
    QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption *option,
                           const QWidget *widget = nullptr) const override;

protected:
    /// Follows the focus; takes no event away.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Q_DISABLE_COPY(DarkReadableStyle)

    const std::unique_ptr<Nocturne::Readable::Face> m_face;
};

#endif
