#ifndef NOCTURNE_DARKFUSIONSTYLE_H
#define NOCTURNE_DARKFUSIONSTYLE_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QCommonStyle>

class DarkFusionStylePrivate;

/// A complete widget style: every standard control in a flat, dark, lightly graded look.
///
/// Nearly all colours come from the palette of the style option, so the style is installed
/// together with the palette of the theme:
///
/// \code
/// DarkUX theme;
/// app.setStyle(theme.style());
/// app.setPalette(theme.palette());
/// \endcode
///
/// Lengths are scaled by the screen's logical DPI over 96, read once per process. The style keeps
/// nothing per widget; an application that it is installed on owns it. GUI thread only.
class NOCTURNE_EXPORT DarkFusionStyle : public QCommonStyle
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(DarkFusionStyle)

public:
    /// Creates a style with the object name "DarkFusion".
    DarkFusionStyle();
    ~DarkFusionStyle() override;

    void polish(QPalette &palette) override;
    void polish(QApplication *application) override;
    /// Turns hover events on, and opaque painting off, for the controls that show a hover state.
    void polish(QWidget *widget) override;
    void unpolish(QApplication *application) override;
    void unpolish(QWidget *widget) override;

    QRect itemPixmapRect(const QRect &rect, int flags, const QPixmap &pixmap) const override;
    /// Draws \a text in the brush of \a textRole, or in the painter's pen for NoRole. \a enabled
    /// changes nothing: disabled text is told by its colour group.
    void drawItemText(QPainter *painter, const QRect &rect, int alignment, const QPalette &palette,
                      bool enabled, const QString &text,
                      QPalette::ColorRole textRole = QPalette::NoRole) const override;
    void drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                        const QPixmap &pixmap) const override;

    /// The toolkit's light Fusion palette. The dark palette is DarkUX::palette().
    QPalette standardPalette() const override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget = nullptr) const override;
    SubControl hitTestComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                     const QPoint &position,
                                     const QWidget *widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                         SubControl subControl, const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
    QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption *option = nullptr,
                           const QWidget *widget = nullptr) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                const QStyleOption *option) const override;

protected:
    /// For subclasses that extend the private object.
    explicit DarkFusionStyle(DarkFusionStylePrivate &dd);

private:
    Q_DISABLE_COPY(DarkFusionStyle)
};

#endif
