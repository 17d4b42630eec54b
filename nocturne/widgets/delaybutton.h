#ifndef NOCTURNE_DELAYBUTTON_H
#define NOCTURNE_DELAYBUTTON_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QPushButton>

/// A push button that disables itself for a while after each toggle, so that a nervous second click
/// does not undo the first.
///
/// Only a checkable button toggles; one that is not checkable never disables itself.
///
/// \code
/// auto *record = new DelayButton(parent);
/// record->setCheckable(true);
/// record->setDelay(1000);
/// \endcode
class NOCTURNE_EXPORT DelayButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(int delay MEMBER m_delay WRITE setDelay)

public:
    /// With a delay of 500 milliseconds.
    explicit DelayButton(QWidget *parent = nullptr);

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
