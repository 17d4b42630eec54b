#ifndef NOCTURNE_RANGESLIDER_P_H
#define NOCTURNE_RANGESLIDER_P_H

#include "gestureend_p.h"

#include <nocturne/painting/paintsample_p.h>

#include <nocturne/widgets/rangeslider.h>

#include <QtCore/QPair>
#include <QtCore/QRect>
#include <QtCore/QString>

#include <array>

class QHelpEvent;
class QMouseEvent;
class QStyleOptionSlider;
class QStylePainter;

/// The state of a range slider, and what dragging and painting do with it.
///
/// Only the slider itself can fill a style option, so whatever asks the style is given one. Its
/// value and position are used as room to work in.
class RangeSliderPrivate
{
public:
    /// Also the number of a handle in all that holds something for each of them.
    enum Handle {
        NoHandle = -1,
        MinimumHandle,
        MaximumHandle,
        MainHandle,
    };

    /// One number for each handle: their values or their positions.
    using Triple = std::array<int, 3>;

    struct Hit
    {
        Handle handle;
        QRect rect; ///< of the handle; around both range handles when none is hit
    };

    explicit RangeSliderPrivate(RangeSlider *slider);
    virtual ~RangeSliderPrivate() = default;

    /// What a signal calls \a handle.
    static int code(Handle handle) { return handle == NoHandle ? 0 : 1 << handle; }

    /// The first two inside the slider's range, the lower first.
    Triple bounded(int minimum, int maximum, int main) const;

    /// Whether the handle is drawn and can be dragged.
    bool isHandleEnabled(Handle handle) const { return rangeEnabled || handle == MainHandle; }

    /// Also puts the handle in the place of the option's own.
    QRect handleRect(Handle handle, QStyleOptionSlider *option) const;

    Hit hitTest(const QPoint &point, QStyleOptionSlider *option) const;
    void grab(const Hit &hit, const QPoint &point);
    void jumpTo(const QPoint &point, QStyleOptionSlider *option);
    void dragTo(const QPoint &point, const QStyleOptionSlider &option);
    void endGesture();
    void reportHover(const QPoint &point, const QStyleOptionSlider &option);
    bool showHandleToolTip(const QHelpEvent *event, QStyleOptionSlider *option) const;

    /// Asks for a repaint where handles have moved that are not \a shown where they are now.
    void updateHandles(QStyleOptionSlider *option);

    void drawGroove(QStylePainter *painter, QStyleOptionSlider *option) const;
    void drawHandle(Handle handle, QStylePainter *painter, QStyleOptionSlider *option) const;

    RangeSlider *q_ptr;
    Nocturne::Gesture gesture;
    Triple values{0, 0, 50};
    Triple positions{0, 0, 50};
    int clickOffset = 0;   ///< from the leading edge of the grabbed handle to the press
    int pressPosition = 0; ///< of the grabbed handle; it snaps back there
    Handle grabbed = NoHandle;
    mutable Triple shown{};                  ///< positions that were painted last
    mutable std::array<QRect, 3> shownRects; ///< and where that was
    bool symmetricMoves = false;
    bool rangeEnabled = false;
    bool keyPressed = false;
    double frameRate = 25.0;
    QString handleToolTip;
    int lastHoverValue = 0;
    mutable Nocturne::PaintSample bar;
    mutable Nocturne::PaintSample rangeHandle;
    bool gestureChangedValue = false; ///< asks for valuesChanged() at the end of the gesture

private:
    Q_DISABLE_COPY(RangeSliderPrivate)

    bool isHorizontal() const { return q_ptr->orientation() == Qt::Horizontal; }
    int along(const QPoint &point) const { return isHorizontal() ? point.x() : point.y(); }
    bool isOn(Handle handle, const QPoint &point, QStyleOptionSlider *option) const;
    int valueUnderDrag(const QPoint &point, const QStyleOptionSlider &option) const;
    QRect barRect(QStyleOptionSlider *option) const;
};

#endif
