#ifndef NOCTURNE_ACCESSIBLEFACTORY_P_H
#define NOCTURNE_ACCESSIBLEFACTORY_P_H

#include <QtGui/QAccessible>

namespace Nocturne {

/// Makes \a factory known to the toolkit, and takes it back when the library is unloaded. Called by
/// each widget that it is for, as the widget is made, so that nothing happens when the library is
/// loaded: and each time, because the end of one application object clears the list for the next.
template <QAccessible::InterfaceFactory factory>
void installAccessibleFactory()
{
    struct Remover
    {
        ~Remover() { QAccessible::removeFactory(factory); }
    };
    // Installing a factory again changes nothing.
    QAccessible::installFactory(factory);
    static const Remover remover;
}

} // namespace Nocturne

#endif
