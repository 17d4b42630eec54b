#ifndef NOCTURNE_SLIDER_H
#define NOCTURNE_SLIDER_H

#include <nocturne/nocturneglobal.h>

#include <QtCore/QScopedPointer>
#include <QtWidgets/QSlider>

namespace Nocturne {
class Gesture;
}

/// A slider for value controls: it jumps to where it is clicked, tells one mouse gesture from the
/// next, reports the value under a hovering mouse and leaves the wheel to its parent.
///
/// Owned by its parent like every widget. To record one gesture as one undo step, start a new step
/// whenever the flag of valueChanged(double, bool) is true and merge into it while it is false:
///
/// \code
/// auto *level = new Slider(Qt::Horizontal, panel);
/// level->setRange(0, 1000);
/// QObject::connect(level, &Slider::valueChanged, mixer, [mixer](double value, bool first) {
///     mixer->setLevel(value / 1000.0, first ? Mixer::NewUndoStep : Mixer::MergeUndoStep);
/// });
/// QObject::connect(mixer, &Mixer::levelChanged, level, &Slider::positionChange);
/// \endcode
///
/// The name valueChanged stands for the signal with two arguments here; the toolkit's own
/// valueChanged(int) is &QSlider::valueChanged.
class NOCTURNE_EXPORT Slider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(bool directJump MEMBER m_directJump WRITE setEnableDirectJump)
    Q_PROPERTY(Qt::MouseButtons jumpButtons READ jumpButtons WRITE setJumpButtons)

public:
    explicit Slider(QWidget *parent = nullptr);
    explicit Slider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~Slider() override;

    /// Whether a click moves the slider to the clicked place and hovering is reported; on at first.
    /// Without it a click does what the style wants and sliderMoveChanged() is never emitted.
    ///
    /// The place is measured along x, on a vertical slider too.
    void setEnableDirectJump(bool enable);

    /// The buttons that the slider takes, all at first. Any other changes neither its value nor its
    /// flags, emits no mousePressed() and goes to the parent: leave out Qt::RightButton to open a
    /// menu of your own. Buttons that are held meanwhile end their gesture as they began it.
    void setJumpButtons(Qt::MouseButtons buttons);
    Qt::MouseButtons jumpButtons() const;

    /// Overrides isKeyPressed() until the next key event, for hosts that handle keys themselves.
    void setKeyPressed(bool pressed);

    /// Whether a key went down on the slider and has not come up again. Also false once the slider
    /// loses the focus, is hidden or disabled.
    bool isKeyPressed() const;

    /// Whether a gesture is on: from the first mouse button that goes down on the slider to the
    /// last that comes up. Whatever takes the pointer away ends it too: the slider is hidden,
    /// disabled or shut out by a modal window, a popup opens, or the pointer returns without a
    /// button.
    bool isMousePressed() const;

public Q_SLOTS:
    /// Sets the value, clamped to the range, without any signal: for hosts that follow a value from
    /// elsewhere.
    void positionChange(int value);

Q_SIGNALS:
    /// The value changed while isMousePressed(). \a firstChange is true for the first change of the
    /// gesture, usually the jump to the clicked place, and false for every further one, also when
    /// more buttons go down meanwhile. Changes by keys and by calls emit
    /// QSlider::valueChanged(int) alone while no button is held.
    void valueChanged(double value, bool firstChange);

    /// The mouse moved over the slider without a button, onto another \a value than before. The
    /// whole width of the widget stands for the range. \a x and \a y are in widget coordinates.
    void sliderMoveChanged(int x, int y, int value);

    /// A button went down, before the slider reacts to it.
    void mousePressed();

    /// A button was double-clicked. The second press of a double click neither moves the slider nor
    /// emits mousePressed().
    void mouseDoubleClick();

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void sliderChange(SliderChange change) override;

private:
    int valueForClick(int x) const;
    void letGo();

    QScopedPointer<Nocturne::Gesture> m_gesture;
    Qt::MouseButtons m_jumpButtons = Qt::AllButtons;
    bool m_firstChange = true;
    bool m_keyPressed = false;
    bool m_directJump = true;
    int m_lastHoverValue = 0;
};

#endif
