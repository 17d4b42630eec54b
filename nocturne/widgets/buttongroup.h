#ifndef NOCTURNE_BUTTONGROUP_H
#define NOCTURNE_BUTTONGROUP_H

#include <nocturne/nocturneglobal.h>

#include <QtWidgets/QButtonGroup>

/// A button group whose checked button can be set by id from a signal.
///
/// Does not own its buttons.
///
/// \code
/// auto *group = new ButtonGroup(this);
/// group->addButton(busA, 0);
/// group->addButton(busB, 1);
/// connect(switcher, &Switcher::busChanged, group, &ButtonGroup::setValue);
/// \endcode
class NOCTURNE_EXPORT ButtonGroup : public QButtonGroup
{
    Q_OBJECT

public:
    explicit ButtonGroup(QObject *parent = nullptr);

public Q_SLOTS:
    /// Checks the button with the id \a value. An id that no button has changes nothing.
    void setValue(int value);
};

#endif
