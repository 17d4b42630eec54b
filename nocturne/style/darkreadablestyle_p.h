#ifndef NOCTURNE_DARKREADABLESTYLE_P_H
#define NOCTURNE_DARKREADABLESTYLE_P_H

#include <QtCore/QCache>
#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/QFocusFrame>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

#include <initializer_list>

/// What DarkReadableStyle is made of.
namespace Nocturne::Readable {

constexpr qreal textContrast = 4.5;
constexpr qreal faintContrast = 3.0; ///< of disabled text, and of everything that is no text

/// The contrast of two colours by WCAG 2.1, from 1 to 21. Alpha is ignored.
qreal contrast(const QColor &a, const QColor &b);

/// \a color, or the shade next to it on the way to white, else to black, that has a contrast of
/// \a ratio to each of \a grounds; the better of white and black where no shade has.
QColor lifted(const QColor &color, std::initializer_list<QColor> grounds, qreal ratio);

/// The shade of \a color that is nearest to \a grounds among those with a contrast of \a ratio to
/// each of them.
QColor nearestShade(const QColor &color, std::initializer_list<QColor> grounds, qreal ratio);

/// \a share percent of \a a, the rest of \a b.
QColor mixed(const QColor &a, const QColor &b, int share);

/// The shades of one colour group of one palette. Searching them takes a while, so they are kept.
struct Shades
{
    explicit Shades(const QPalette &palette);

    QColor accent;  ///< blue: focus frames, chosen tabs, values
    QColor orange;  ///< the labels of pressed buttons
    QColor outline; ///< of boxes, rings and grooves
    QColor contour; ///< dark, inside a focus frame
    QColor mark;    ///< of checked boxes
    QColor handle;
    QColor handleHovered;
    QColor groove;

    // What the base style is given instead of the palette to paint the same shape in other shades.
    // They stay the same objects, as their cache keys are part of the names of kept drawings.
    QPalette ownKept; ///< the same colours: keeps this face's drawings apart from the exact ones
    QPalette arrows;
    QPalette ticks;
    QPalette titleBar;
    QPalette inactiveTitleBar;
    QPalette pressedLabel;
};

/// Drawings that recur. The key holds everything that shows.
class Kept
{
public:
    struct Key
    {
        int what;
        int state; ///< whatever bits the drawing depends on
        QSize size;
        qint64 palette;
        int group;
        quint64 marks = 0; ///< what else the drawing depends on

        bool operator==(const Key &other) const
        {
            return what == other.what && state == other.state && size == other.size
                   && palette == other.palette && group == other.group && marks == other.marks
                   && ratio == other.ratio;
        }
        int ratio = 0; ///< of the device, in percent; filled in
    };

    /// Draws at \a topLeft what \a paint paints on a transparent ground of \a key's size.
    template <typename Paint>
    void draw(QPainter *painter, const QPoint &topLeft, Key key, Paint paint);

private:
    QCache<Key, QPixmap> m_pixmaps{4 * 1024 * 1024}; // bytes
};

uint qHash(const Kept::Key &key, uint seed = 0);

/// What the style keeps between calls.
class Face
{
public:
    const Shades &shades(const QPalette &palette);

    Kept kept;
    QPointer<QFocusFrame> frame;
    bool filtersEvents = false;
    bool byKeyboard = false;      ///< how the present focus came
    bool lastInputWasKey = false; ///< of the two, keys and pointer

private:
    QCache<QPair<qint64, int>, Shades> m_shades{64};
};

/// A call of one of the style's draw functions.
struct Call
{
    const QProxyStyle *style;
    Face &face;
    const QStyleOption *option;
    QPainter *painter;
    const QWidget *widget;

    const Shades &shades() const { return face.shades(option->palette); }
    QColor color(QPalette::ColorRole role) const { return option->palette.color(role); }
    bool has(QStyle::State state) const { return (option->state & state) == state; }
    bool isEnabled() const { return has(QStyle::State_Enabled); }
    bool isRightToLeft() const { return option->direction == Qt::RightToLeft; }
    template <typename Option>
    const Option *as() const
    {
        return qstyleoption_cast<const Option *>(option);
    }
    Kept::Key key(int what, const QSize &size, int state) const
    {
        return {what, state, size, option->palette.cacheKey(), option->palette.currentColorGroup()};
    }
    /// The base style's own painting, with another option.
    void baseControl(QStyle::ControlElement element, const QStyleOption &changed) const
    {
        style->QProxyStyle::drawControl(element, &changed, painter, widget);
    }
    void baseComplex(QStyle::ComplexControl control, const QStyleOptionComplex &changed) const
    {
        style->QProxyStyle::drawComplexControl(control, &changed, painter, widget);
    }
};

/// Saves a painter's state and restores it at the end of the scope.
class PainterSaver
{
public:
    explicit PainterSaver(QPainter *painter)
        : m_painter(painter)
    {
        m_painter->save();
    }
    ~PainterSaver() { m_painter->restore(); }

private:
    Q_DISABLE_COPY(PainterSaver)

    QPainter *m_painter;
};

// Indicators and buttons.
void paintCheckBox(const Call &call);
void paintRadioButton(const Call &call);
/// A check mark without a box.
void paintCheckMark(QPainter *painter, const QRectF &box, const QColor &color);
void paintButtonPanel(const Call &call);
void paintPushButtonLabel(const Call &call);
void paintTabShape(const Call &call);
void paintComboBox(const Call &call);
void paintSpinBox(const Call &call);
void paintTitleBar(const Call &call);

// Menus.
QSize menuItemSize(const QProxyStyle *style, const QStyleOptionMenuItem *option, const QSize &size,
                   const QWidget *widget);
void paintMenuItem(const Call &call);
void paintMenuBarItem(const Call &call);

// Ranges.
void paintProgressContents(const Call &call);
void paintProgressLabel(const Call &call);
void paintScrollBar(const Call &call);
void paintSlider(const Call &call);
void paintDial(const Call &call);

// Focus.
constexpr int focusFrameWidth = 2; // as wide as the margin of a QFocusFrame around its widget

/// The frame that tells where the keyboard is, along the inside of \a rect. A frame that lies on a
/// control, not around it, has a dark contour, as the control may be of any colour.
void paintFocusFrame(QPainter *painter, const QRect &rect, const Shades &shades,
                     bool hasContour = true);
/// PE_FrameFocusRect: unless a QFocusFrame tells it already, or the focus came by the pointer.
void paintFocusRect(const Call &call);
/// For a control that is given the focus in its option only, such as one in a delegate.
void paintFocusWithoutFrame(const Call &call);
/// CE_FocusFrame: the frame around the part of the widget that has the focus.
void paintWidgetFrame(const Call &call);
/// Whether \a widget is painted by \a style, with or without other proxies or a style sheet.
bool isPaintedBy(const QStyle *style, const QWidget *widget);
void followFocus(QStyle *style, Face &face, QWidget *widget, QEvent *event);

// Symbols.
/// The symbol for \a pixmap; null where the base style's will do.
QIcon glyph(QStyle::StandardPixmap pixmap);

template <typename Paint>
void Kept::draw(QPainter *painter, const QPoint &topLeft, Key key, Paint paint)
{
    if (key.size.isEmpty())
        return;
    if (painter->worldTransform().type() > QTransform::TxTranslate) {
        const PainterSaver saver(painter);
        painter->translate(topLeft);
        paint(painter);
        return;
    }
    const qreal ratio = painter->device()->devicePixelRatioF();
    key.ratio = int(ratio * 100);
    QPixmap *pixmap = m_pixmaps.object(key);
    if (!pixmap) {
        const QSize pixels = (QSizeF(key.size) * ratio).toSize();
        QPixmap drawing(pixels);
        drawing.setDevicePixelRatio(ratio);
        drawing.fill(Qt::transparent);
        QPainter drawer(&drawing);
        paint(&drawer);
        drawer.end();
        painter->drawPixmap(topLeft, drawing);
        m_pixmaps.insert(key, new QPixmap(drawing), 4 * pixels.width() * pixels.height());
        return;
    }
    painter->drawPixmap(topLeft, *pixmap);
}

} // namespace Nocturne::Readable

#endif
