#ifndef NOCTURNEGLOBAL_H
#define NOCTURNEGLOBAL_H

#include <QtCore/qglobal.h>

/// Marks what the shared library exports. Everything else in it is hidden.
#if defined(NOCTURNE_BUILD)
#define NOCTURNE_EXPORT Q_DECL_EXPORT
#else
#define NOCTURNE_EXPORT Q_DECL_IMPORT
#endif

/// Marks what hosts get by linking nocturne::hostkit, or from the header alone; the shared library
/// does not export it.
#define NOCTURNE_HOSTKIT

#endif
