#ifndef NOCTURNE_GESTUREEND_P_H
#define NOCTURNE_GESTUREEND_P_H

#include <QtCore/QObject>

#include <functional>

class QWidget;

namespace Nocturne {

/// What one hand does to a widget, from the first button that goes down to the last that comes up.
///
/// The widget tells of its buttons. While one is held, whatever keeps its release from arriving
/// ends the gesture and calls the function given, once: the widget is hidden, disabled or shut out
/// by a modal window, a popup opens, the pointer comes without a button, or the same button is
/// pressed a second time. A window that merely loses the focus still gets the rest of a drag.
class Gesture : public QObject
{
public:
    /// \a widget outlives the gesture, which belongs to it.
    Gesture(QWidget *widget, std::function<void()> interrupted);

    bool isRunning() const { return m_held != Qt::NoButton; }

    /// \a button went down.
    void press(Qt::MouseButton button);
    /// \a button came up. Returns whether that was the end of the gesture.
    bool release(Qt::MouseButton button);
    /// The gesture is over, whatever is held.
    void end();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isInterruptedBy(const QObject *watched, const QEvent *event) const;

    QWidget *m_widget;
    std::function<void()> m_interrupted;
    Qt::MouseButtons m_held;
    bool m_isReal = false; ///< made by a pointer that the application knows of
};

} // namespace Nocturne

#endif
