#ifndef NOCTURNE_DIAL_H
#define NOCTURNE_DIAL_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QDial>

/// A dial that the mouse wheel never turns, so that scrolling past it changes nothing on air.
///
/// The wheel event goes on to the parent, usually a scroll area.
///
/// \code
/// auto *gain = new Dial(parent);
/// gain->setRange(-60, 12);
/// \endcode
class NOCTURNE_EXPORT Dial : public QDial
{
    Q_OBJECT

public:
    explicit Dial(QWidget *parent = nullptr);

protected:
    void wheelEvent(QWheelEvent *event) override;
};

#endif
