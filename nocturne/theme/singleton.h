#ifndef NOCTURNE_SINGLETON_H
#define NOCTURNE_SINGLETON_H

#include <QtCore/qglobal.h>

class DarkUX;

// The registered pointer is taken before the derived object is complete, which is meant; the
// sanitizer that watches for such casts need not report it.
#if defined(__GNUC__)
#define NOCTURNE_UNFINISHED_CAST __attribute__((no_sanitize("vptr")))
#else
#define NOCTURNE_UNFINISHED_CAST
#endif

/// Keeps a process-wide pointer to the one live object of class \a T.
///
/// The object registers itself when it is constructed and is forgotten when it is destroyed; the
/// template never creates, owns or deletes it. Copies are not registered, and destroying a copy
/// leaves the registered object in place.
///
/// Not thread-safe: construct, read and destroy on the GUI thread.
template <typename T>
class Singleton
{
public:
    /// Registers this object, replacing one that is registered already.
    NOCTURNE_UNFINISHED_CAST Singleton() { m_instance = static_cast<T *>(this); }

    /// Leaves the registration as it is.
    Singleton(const Singleton &) {}

    /// Forgets this object if it is the registered one.
    virtual ~Singleton()
    {
        if (static_cast<Singleton *>(m_instance) == this)
            m_instance = nullptr;
    }

    /// Changes nothing.
    Singleton &operator=(const Singleton &) { return *this; }

    /// The registered object. Ends the process with one line that names the mistake while there
    /// is none; hosts that may run without it ask getInstancePtr() instead.
    static T &getInstance()
    {
        if (Q_UNLIKELY(!m_instance))
            reportMissingInstance();
        return *m_instance;
    }

    /// The registered object, or null while none exists.
    static T *getInstancePtr() { return m_instance; }

    static T *m_instance;

private:
    [[noreturn]] static void reportMissingInstance();
};

#undef NOCTURNE_UNFINISHED_CAST

#endif
