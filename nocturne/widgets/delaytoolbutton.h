#ifndef NOCTURNE_DELAYTOOLBUTTON_H
#define NOCTURNE_DELAYTOOLBUTTON_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QToolButton>

/// A tool button that disables itself for a while after each toggle, so that a nervous second click
/// does not undo the first.
///
/// Only a checkable button toggles; one that is not checkable never disables itself.
///
/// \code
/// auto *mute = new DelayToolButton(parent);
/// mute->setCheckable(true);
/// mute->setDelay(250);
/// \endcode
class NOCTURNE_EXPORT DelayToolButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(int delay MEMBER m_delay WRITE setDelay)

public:
    /// With a delay of 500 milliseconds.
    explicit DelayToolButton(QWidget *parent = nullptr);

    /// How long the button stays disabled from the next toggle on, in milliseconds. With 0 it is
    /// enabled again when the event loop next runs; negative values count as 0.
    void setDelay(int delay);

private Q_SLOTS:
    void disableButton();
    void enableButton();

private:
    int m_delay;
};

#endif
