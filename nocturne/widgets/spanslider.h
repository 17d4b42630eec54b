#ifndef NOCTURNE_SPANSLIDER_H
#define NOCTURNE_SPANSLIDER_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QScopedPointer>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyle>

class QStylePainter;

namespace Nocturne {
class Gesture;
class PaintSample;
} // namespace Nocturne

/// A slider with two handles, lower and upper, that select a span inside the slider's range. Both
/// can be dragged and moved by keys, and the groove between them is filled.
///
/// minimum() and maximum() bound both handles; value() of the toolkit's slider is not used. Each
/// handle has a value (committed) and a position (drawn and dragged). With tracking() on, every
/// position is committed at once; with tracking() off, the release of the mouse commits it.
///
/// Home moves the lower handle to the minimum, End the upper one to the maximum. The arrow keys
/// along the slider move one handle, the main control, and those across it the other one; which is
/// which changes when the handles pass each other. The wheel moves nothing. Owned by its parent
/// like every widget.
///
/// Whatever takes the pointer away ends a drag as a release does: the slider is hidden, disabled or
/// shut out by a modal window, a popup opens, or the pointer returns without a button.
///
/// \code
/// auto *band = new SpanSlider(Qt::Horizontal, panel);
/// band->setRange(20, 20000);
/// band->setHandleMovementMode(SpanSlider::NoOverlapping);
/// band->setSpan(200, 8000);
/// QObject::connect(band, &SpanSlider::spanChanged, filter, &Filter::setBand);
/// \endcode
class NOCTURNE_EXPORT SpanSlider : public QSlider
{
    Q_OBJECT
    // The upper one first, as a form sets them in this order.
    Q_PROPERTY(int upperValue READ upperValue WRITE setUpperValue NOTIFY upperValueChanged)
    Q_PROPERTY(int lowerValue READ lowerValue WRITE setLowerValue NOTIFY lowerValueChanged)
    Q_PROPERTY(int lowerPosition READ lowerPosition WRITE setLowerPosition NOTIFY
                   lowerPositionChanged DESIGNABLE false STORED false)
    Q_PROPERTY(int upperPosition READ upperPosition WRITE setUpperPosition NOTIFY
                   upperPositionChanged DESIGNABLE false STORED false)
    Q_PROPERTY(
        HandleMovementMode handleMovementMode READ handleMovementMode WRITE setHandleMovementMode)

public:
    enum SpanHandle {
        NoHandle = 0,
        LowerHandle = 1,
        UpperHandle = 2,
    };
    Q_ENUM(SpanHandle)

    /// What happens when a handle is moved to the other one.
    enum HandleMovementMode {
        FreeMovement = 0,  ///< it passes, and the two swap their roles
        NoCrossing = 1,    ///< it stops at the other one's value
        NoOverlapping = 2, ///< it stops one short of the other one's value
    };
    Q_ENUM(HandleMovementMode)

    /// Both handles start at 0.
    explicit SpanSlider(QWidget *parent = nullptr);
    explicit SpanSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~SpanSlider() override;

    /// The smaller and the larger of the two values.
    int lowerValue() const;
    int upperValue() const;

    int lowerPosition() const;
    int upperPosition() const;

    /// FreeMovement at first. Does not move handles that are already closer than it allows, and
    /// does not bind the setters.
    HandleMovementMode handleMovementMode() const;
    void setHandleMovementMode(HandleMovementMode mode);

    /// Moves the handle that is the main control (\a main) or the other one. Knows single steps and
    /// the two ends; SliderNoAction and SliderMove only commit the positions. Any other action is
    /// warned about and sends the lower handle to 0.
    void triggerAction(SliderAction action, bool main);

    /// Lower and upper handle change their roles: values, grabs and main control.
    void swapControls();

    /// The coordinate of \a point along the slider.
    int pick(const QPoint &point) const;

    /// The value when the leading edge of a handle is at \a pos along the slider.
    int pixelPosToRangeValue(int pos) const;

    /// Grabs \a handle, which has \a value, when \a pos is on it. \a control becomes what is there:
    /// SC_SliderHandle when it was grabbed.
    void handleMousePress(const QPoint &pos, QStyle::SubControl &control, int value,
                          SpanHandle handle);

    /// Fills \a option to measure or paint \a handle. Does nothing when \a option is null.
    void initStyleOption(QStyleOptionSlider *option, SpanHandle handle) const;

    void drawHandle(QStylePainter *painter, SpanHandle handle) const;

    /// Fills \a rect, as far as it lies in the groove.
    void drawSpan(QStylePainter *painter, const QRect &rect) const;

    /// Sets pen and brush of the span: shades of the palette's Highlight, from x1, y1 to x2, y2.
    void setupPainter(QPainter *painter, Qt::Orientation orientation, qreal x1, qreal y1, qreal x2,
                      qreal y2) const;

public Q_SLOTS:
    /// Sets one value; see setSpan().
    void setLowerValue(int lower);
    void setUpperValue(int upper);

    /// Sets both values and moves the handles there. Clamped to the slider's range, and swapped
    /// when in the wrong order.
    void setSpan(int lower, int upper);

    /// Moves a handle, without clamping. With tracking() on, the positions are committed, which
    /// does clamp.
    void setLowerPosition(int lower);
    void setUpperPosition(int upper);

    /// Clamps the values again; connected to rangeChanged(). The arguments are not used.
    void updateRange(int min, int max);

    /// Commits the position of the handle that was grabbed last; connected to sliderReleased().
    void movePressedHandle();

Q_SIGNALS:
    /// A value changed, by a setter or by the user. Comes after the signals of single values.
    void spanChanged(int lower, int upper);
    void lowerValueChanged(int lower);
    void upperValueChanged(int upper);

    /// A position changed while the user holds a handle.
    void lowerPositionChanged(int lower);
    void upperPositionChanged(int upper);

protected:
    using QSlider::initStyleOption;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void initialize();
    bool isHorizontal() const { return orientation() == Qt::Horizontal; }
    bool isHandleDown() const;
    void moveLowerHandle(int target, int upperBound);
    void moveUpperHandle(int target, int lowerBound);
    int valueUnderDrag(const QPoint &point) const;
    void placeHandle(QStyleOptionSlider *option, SpanHandle handle) const;
    void moveHandle(SpanHandle handle, int position);
    QRect spanRect(QStyleOptionSlider *option);
    void paintSpan(QStylePainter *painter, const QStyleOptionSlider &option,
                   const QRect &rect) const;
    void paintHandle(QStylePainter *painter, QStyleOptionSlider *option, SpanHandle handle) const;
    void endGesture();

    int m_lower = 0;
    int m_upper = 0;
    int m_lowerPosition = 0;
    int m_upperPosition = 0;
    int m_offset = 0;
    int m_pressValue = 0;
    SpanHandle m_lastPressed = NoHandle;
    SpanHandle m_mainControl = LowerHandle;
    QStyle::SubControl m_lowerPressed = QStyle::SC_None;
    QStyle::SubControl m_upperPressed = QStyle::SC_None;
    HandleMovementMode m_movement = FreeMovement;
    QRect m_shownLower; ///< where the handles were painted last
    QRect m_shownUpper;
    bool m_firstMovement = false;
    bool m_blockTracking = false;
    QScopedPointer<Nocturne::Gesture> m_gesture;
    QScopedPointer<Nocturne::PaintSample> m_spanSample;
};

#endif
