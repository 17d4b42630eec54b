#ifndef NOCTURNE_SPINBOX_H
#define NOCTURNE_SPINBOX_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QPoint>
#include <QtCore/QScopedPointer>
#include <QtWidgets/QSpinBox>

class QMouseEvent;

namespace Nocturne {
class Gesture;
}

/// A whole number that is changed by dragging across it, like a jog control.
///
/// A drag right or up raises the value, left or down lowers it, one unit a pixel; twice as fast
/// with Ctrl, half as fast with Shift. A click without a drag turns the field into an ordinary
/// text field, as does keyboard focus; it returns to dragging when it loses focus or when the
/// pointer moves over it or one of its siblings. The mouse wheel is left to the parent.
///
/// Whatever takes the pointer away ends a drag where it is: the spin box is hidden, disabled or
/// shut out by a modal window, a popup opens, or the pointer comes without a button.
///
/// In relative mode the field shows "--" instead of a number, for a selection whose values differ.
///
/// \code
/// auto *opacity = new SpinBox(panel);
/// opacity->setRange(0, 100);
/// connect(opacity, QOverload<double, bool>::of(&SpinBox::valueChanged), track,
///         [track](double value, bool first) { track->setOpacity(value, first ? NewEdit : Merge);
///         });
/// \endcode
class NOCTURNE_EXPORT SpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit SpinBox(QWidget *parent = nullptr);
    ~SpinBox() override;

    /// Sets the nearest whole number, clamped to the range, and the relative mode. Nothing happens
    /// when both are as they were; numbers that are not finite are ignored.
    void setValue(double val, bool relative);

    /// Whether the field shows "--". False at first.
    bool relative() const { return m_relativeMode; }

    /// Whether the pointer is held by this spin box.
    bool isDragging() const;

    /// Starts a drag at the event's position, in coordinates of the spin box, and grabs the mouse.
    void dragStart(QMouseEvent *event);
    /// Changes the value by the distance from the last position. Does nothing outside a drag.
    void dragMove(QMouseEvent *event);
    /// Ends a drag and lets go of the mouse.
    void dragEnd(QMouseEvent *event);

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// Sets the nearest whole number (halves round up), clamped to the range. The relative mode
    /// stays. Numbers that are not finite are ignored.
    void setValue(double val);

    /// Reports a change that did not come from dragging. Connected to the signal of the same name.
    void valueChanged(int value);

Q_SIGNALS:
    /// The value has changed. \a first is true for the first change of a drag and for every change
    /// by keyboard, text or program; it is false for the further changes of the same drag, so that
    /// a host can merge one drag into one undo step.
    void valueChanged(double value, bool first);

protected:
    QString textFromValue(int value) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool filterOwnEvent(QEvent *event);
    void pressed(QMouseEvent *event, const QPoint &position);
    void released(QMouseEvent *event);
    void abandonDrag();
    void startEditing();
    void returnUnfocusedSiblingsToDragging();
    bool isCursorInside() const;
    int boundedRound(double value) const;
    void showCursor(Qt::CursorShape shape);
    void dropCursor();

    QScopedPointer<Nocturne::Gesture> m_gesture;
    QPoint m_lastPos;
    bool m_moved = false;
    bool m_firstStep = true;
    bool m_dragging = false;
    bool m_relativeMode = false;
    bool m_ownsOverrideCursor = false;
};

#endif
