#ifndef NOCTURNE_RANGESLIDER_H
#define NOCTURNE_RANGESLIDER_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QScopedPointer>
#include <QtWidgets/QSlider>

class RangeSliderPrivate;

namespace Nocturne {
class RangeHandles;
} // namespace Nocturne

/// A slider with three handles on one groove: a minimum and a maximum handle that bound a range,
/// and a main handle that moves over the whole slider. For trimming a stretch of a timeline and
/// showing the current position in it.
///
/// minimum() and maximum() bound all three handles; value() of the toolkit's slider is not used.
/// Each handle has a value and a position: the position is where the handle is drawn and dragged
/// to, the value is what was committed. With tracking() on, every position is committed at once;
/// with tracking() off, dragging changes positions only, and values stay until a setter is called.
///
/// The range handles are off until setEnableRange(true); the bar between them is always drawn.
/// Neither keys nor the wheel move a handle. Owned by its parent like every widget. A slot that
/// wants to delete the slider uses deleteLater(): what interrupts a gesture reports its end in the
/// middle of the toolkit's work.
///
/// \code
/// auto *trim = new RangeSlider(Qt::Horizontal, panel);
/// trim->setRange(0, clip->frameCount());
/// trim->setEnableRange(true);
/// trim->setValues(clip->in(), clip->out(), clip->position());
/// QObject::connect(trim, &RangeSlider::minimumValueChanged, clip, &Clip::setIn);
/// QObject::connect(trim, &RangeSlider::maximumValueChanged, clip, &Clip::setOut);
/// QObject::connect(trim, &RangeSlider::mainValueChanged, clip, &Clip::seek);
/// QObject::connect(clip, &Clip::positionChanged, trim, &RangeSlider::positionChange);
/// \endcode
///
/// In mousePressed() and mouseReleased() a handle is 1 for minimum, 2 for maximum, 4 for main and
/// 0 for none.
class NOCTURNE_EXPORT RangeSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(int minimumValue READ minimumValue WRITE setMinimumValue NOTIFY minimumValueChanged)
    Q_PROPERTY(int maximumValue READ maximumValue WRITE setMaximumValue NOTIFY maximumValueChanged)
    Q_PROPERTY(int mainValue READ mainValue WRITE setMainValue NOTIFY mainValueChanged)
    Q_PROPERTY(int minimumPosition READ minimumPosition WRITE setMinimumPosition NOTIFY
                   minimumPositionChanged DESIGNABLE false STORED false)
    Q_PROPERTY(int maximumPosition READ maximumPosition WRITE setMaximumPosition NOTIFY
                   maximumPositionChanged DESIGNABLE false STORED false)
    Q_PROPERTY(int mainPosition READ mainPosition WRITE setMainPosition NOTIFY mainPositionChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(bool enableRange READ isRangeEnabled WRITE setEnableRange)
    Q_PROPERTY(bool symmetricMoves READ symmetricMoves WRITE setSymmetricMoves)
    Q_PROPERTY(QString handleToolTip READ handleToolTip WRITE setHandleToolTip)
    Q_PROPERTY(double frameRate READ frameRate WRITE setFrameRate)

public:
    /// The range handles start at the ends of the slider's range, the main handle at 50.
    explicit RangeSlider(QWidget *parent = nullptr);
    explicit RangeSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~RangeSlider() override;

    int minimumValue() const;
    int maximumValue() const;
    int mainValue() const;

    int minimumPosition() const;
    int maximumPosition() const;
    int mainPosition() const;

    /// Moves the handles. \a min and \a max are clamped to the slider's range and swapped when in
    /// the wrong order; \a main is taken as it is. With tracking() on, the positions are committed
    /// to the values. Nothing happens when nothing moves.
    void setPositions(int min, int max, int main);

    /// Moves the minimum handle, and pushes the maximum handle along when it is in the way.
    void setMinimumPosition(int position);

    /// Moves the maximum handle, and pushes the minimum handle along when it is in the way.
    void setMaximumPosition(int position);

    /// Moves the main handle. Not clamped.
    void setMainPosition(int position);

    /// Whether the user is dragging the handle.
    bool isMinimumSliderDown() const;
    bool isMaximumSliderDown() const;
    bool isMainSliderDown() const;

    /// Whether dragging one range handle moves the other one the opposite way by the same amount;
    /// off at first. A change takes effect with the next mouse move.
    bool symmetricMoves() const;
    void setSymmetricMoves(bool symmetric);

    /// The tool tip of the minimum and the maximum handle, in which "%1" becomes the handle's
    /// value. The handles have none of their own while it is empty, as it is at first.
    QString handleToolTip() const;
    void setHandleToolTip(const QString &toolTip);

    /// Whether minimum and maximum handle are shown and can be dragged; off at first. Their values
    /// can be set all the same.
    void setEnableRange(bool enable);

    /// Frames a second of what the slider stands for, kept for the host; 25 at first.
    double frameRate() const;
    void setFrameRate(double framesPerSecond);

    /// Whether the left button went down on the slider and no button has come up since. Whatever
    /// takes the pointer away ends a drag as a release does: the slider is hidden, disabled or shut
    /// out by a modal window, a popup opens, or the pointer returns without a button.
    bool isMousePressed() const;

    /// Whether a key went down on the slider and none has come up since. Also false once the slider
    /// loses the focus, is hidden or disabled.
    bool isKeyPressed() const;

Q_SIGNALS:
    /// A value changed, by a setter or by the user. The three are emitted in this order.
    void minimumValueChanged(int min);
    void maximumValueChanged(int max);
    void mainValueChanged(int main);

    /// The user ended a gesture in the course of which a value changed; emitted once, after
    /// mouseReleased(). Setters do not emit it.
    void valuesChanged(int min, int max, int main);

    /// A position changed while the user holds a handle.
    void minimumPositionChanged(int min);
    void maximumPositionChanged(int max);
    void mainPositionChanged(int main);

    /// At least one position changed while the user holds a handle. Comes after the signals of
    /// single positions when the handle was dragged, before them when values were set meanwhile.
    void positionsChanged(int min, int max, int main);

    /// The mouse moved with the button held but no handle grabbed, onto another \a value than
    /// before. The whole length of the widget stands for the range. \a x and \a y are in widget
    /// coordinates.
    void sliderMoveChanged(int x, int y, int value);

    /// The left button went down over \a handle, before the slider reacts to it. A press on the
    /// empty groove (0), or on a range handle while the range is off, grabs the main handle.
    /// Not emitted when the slider's range is empty or another button is held.
    void mousePressed(int handle);

    /// A button came up while \a handle was grabbed, or 0 when none was.
    void mouseReleased(int handle);

public Q_SLOTS:
    /// Sets one value, and pushes the other end of the range along when it is in the way.
    void setMinimumValue(int value);
    void setMaximumValue(int value);

    /// Sets the main value. Not clamped, neither to the range handles nor to the slider's range.
    void setMainValue(int value);

    /// Sets the values and moves the handles there. \a min and \a max are clamped to the slider's
    /// range and swapped when in the wrong order; \a main is taken as it is.
    void setValues(int min, int max, int main);

    /// Sets the main value without any signal: for hosts that follow a play-head. Signals that the
    /// host had blocked are unblocked.
    void positionChange(int value);

protected Q_SLOTS:
    /// Clamps the values again, for subclasses to connect to a change of the slider's range. The
    /// arguments are not used.
    void onRangeChanged(int minimum, int maximum, int main);

protected:
    /// For subclasses that keep more state. Takes ownership of \a dd, whose back pointer is set.
    explicit RangeSlider(RangeSliderPrivate *dd, QWidget *parent);
    RangeSlider(RangeSliderPrivate *dd, Qt::Orientation orientation, QWidget *parent);

    RangeSliderPrivate *d_func();
    const RangeSliderPrivate *d_func() const;

    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    /// Fill the style option a handle is painted with; reimplement them to change its look. They
    /// have no say in where a handle is hit.
    virtual void initMinimumSliderStyleOption(QStyleOptionSlider *option) const;
    virtual void initMaximumSliderStyleOption(QStyleOptionSlider *option) const;
    virtual void initMainSliderStyleOption(QStyleOptionSlider *option) const;

private:
    friend class Nocturne::RangeHandles;

    void initialize();
    void emitChange(void (RangeSlider::*signal)(int), int number);
    void updateHandles();
    bool isRangeEnabled() const;

    QScopedPointer<RangeSliderPrivate> m_private;
};

#endif
