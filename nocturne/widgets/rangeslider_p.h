#ifndef NOCTURNE_RANGESLIDER_P_H
#define NOCTURNE_RANGESLIDER_P_H

#include "gestureend_p.h"

#include <nocturne/painting/paintsample_p.h>

#include <nocturne/widgets/rangeslider.h>

#include <QtCore/QRect>
#include <QtCore/QString>

class QHelpEvent;
class QMouseEvent;
class QStyleOptionSlider;
class QStylePainter;

/// The state of a range slider's handles, and what dragging and painting do with it.
class RangeSliderPrivate
{
public:
    enum Handle {
        NoHandle = 0,
        MinimumHandle = 1,
        MaximumHandle = 2,
        MainHandle = 4,
    };

    /// One number for each handle: their values or their positions.
    struct Triple
    {
        int minimum;
        int maximum;
        int main;

        bool operator==(const Triple &other) const
        {
            return minimum == other.minimum && maximum == other.maximum && main == other.main;
        }
        bool operator!=(const Triple &other) const { return !(*this == other); }
    };

    struct Hit
    {
        Handle handle;
        QRect rect; ///< of the handle; around both range handles when none is hit
    };

    explicit RangeSliderPrivate(RangeSlider *slider)
        : q_ptr(slider)
        , gesture(slider, [slider] { slider->endGesture(); })
    {}
    virtual ~RangeSliderPrivate() = default;

    static RangeSliderPrivate *get(RangeSlider *slider) { return slider->d_func(); }

    Triple values() const { return {minimumValue, maximumValue, mainValue}; }
    Triple positions() const { return {minimumPosition, maximumPosition, mainPosition}; }
    int value(Handle handle) const;
    int position(Handle handle) const;

    /// Both inside the slider's range, the lower first.
    QPair<int, int> clampedRange(int a, int b) const;

    /// Whether the handle is drawn and can be dragged.
    bool isHandleEnabled(Handle handle) const;

    /// The option of the slider with \a handle in the place of its own.
    QStyleOptionSlider handleOption(Handle handle) const;
    QRect handleRect(Handle handle) const;

    Hit hitTest(const QPoint &point) const;
    void grab(Handle handle, const QRect &handleRect, const QPoint &point);
    void jumpTo(const QPoint &point);
    void dragTo(const QPoint &point);
    void reportHover(const QPoint &point);
    bool showHandleToolTip(const QHelpEvent *event) const;

    QRect barRect(QStyleOptionSlider *option) const;
    void drawBar(QStylePainter *painter, QStyleOptionSlider *option) const;
    void drawHandle(QStylePainter *painter, Handle handle) const;

    RangeSlider *q_ptr;
    Nocturne::Gesture gesture;
    int maximumValue = 0;
    int minimumValue = 0;
    int mainValue = 50;
    int maximumPosition = 0;
    int minimumPosition = 0;
    int mainPosition = 50;
    int clickOffset = 0;   ///< from the leading edge of the grabbed handle to the press
    int pressPosition = 0; ///< of the grabbed handle; it snaps back there
    int selectedHandles = NoHandle;
    bool symmetricMoves = false;
    QString handleToolTip;
    int lastHoverValue = 0;
    mutable Nocturne::PaintSample bar;
    mutable Nocturne::PaintSample rangeHandle;
    bool gestureChangedValue = false; ///< asks for valuesChanged() at the end of the gesture

private:
    Q_DISABLE_COPY(RangeSliderPrivate)

    bool isHorizontal() const { return q_ptr->orientation() == Qt::Horizontal; }
    int along(const QPoint &point) const { return isHorizontal() ? point.x() : point.y(); }
    int valueUnderDrag(const QPoint &point) const;
    QStyleOptionSlider sliderOption() const;
};

#endif
