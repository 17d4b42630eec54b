#include "driversilence_p.h"

#include <dlfcn.h>

#include <atomic>
#include <mutex>

// Looked up instead of linked: which of the two there is depends on how RtMidi was built.

namespace {

template <typename Function>
Function lookUp(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_DEFAULT, name));
}

thread_local int silencesOfThread = 0;

using JackHandler = void (*)(const char *text);

/// One of the two channels on which JACK prints: errors and information.
///
/// JACK has one handler for the whole process, so it is replaced while any thread is silent; the
/// replacement passes on what comes from the others.
class JackChannel
{
public:
    JackChannel(const char *setter, const char *current, JackHandler replacement)
        : m_set(lookUp<Setter>(setter))
        , m_current(lookUp<JackHandler *>(current))
        , m_replacement(replacement)
    {}

    void silence()
    {
        if (!m_set || !m_current)
            return;
        const JackHandler handler = *m_current;
        if (handler == m_replacement || !isJacksOwn(handler))
            return;
        m_original = handler;
        m_set(m_replacement);
    }

    void restore()
    {
        if (m_current && *m_current == m_replacement)
            m_set(m_original);
    }

    void passOn(const char *text) const
    {
        const JackHandler original = m_original;
        if (silencesOfThread == 0 && original)
            original(text);
    }

private:
    using Setter = void (*)(JackHandler);

    bool isJacksOwn(JackHandler handler) const
    {
        Dl_info ofHandler;
        Dl_info ofJack;
        return dladdr(reinterpret_cast<void *>(handler), &ofHandler)
               && dladdr(reinterpret_cast<void *>(m_set), &ofJack)
               && ofHandler.dli_fbase == ofJack.dli_fbase;
    }

    Setter m_set;
    JackHandler *m_current;
    JackHandler m_replacement;
    std::atomic<JackHandler> m_original{nullptr}; // read on any thread
};

JackChannel &jackErrors()
{
    static JackChannel channel("jack_set_error_function", "jack_error_callback",
                               [](const char *text) { jackErrors().passOn(text); });
    return channel;
}

JackChannel &jackInformation()
{
    static JackChannel channel("jack_set_info_function", "jack_info_callback",
                               [](const char *text) { jackInformation().passOn(text); });
    return channel;
}

std::mutex jackMutex;  // guards the channels' handlers and
int silentThreads = 0; // how many threads are silent

template <typename Handler>
Handler setAlsaHandler(Handler handler)
{
    static const auto set = lookUp<Handler (*)(Handler)>("snd_lib_error_set_local");
    return set ? set(handler) : nullptr;
}

} // namespace

namespace Nocturne {

DriverSilence::DriverSilence()
{
    if (silencesOfThread++ > 0)
        return;
    m_alsaHandler = setAlsaHandler<AlsaHandler>(
        [](const char *, int, const char *, int, const char *, va_list) {});
    const std::lock_guard<std::mutex> lock(jackMutex);
    ++silentThreads;
    jackErrors().silence();
    jackInformation().silence();
}

DriverSilence::~DriverSilence()
{
    if (--silencesOfThread > 0)
        return;
    setAlsaHandler<AlsaHandler>(m_alsaHandler);
    const std::lock_guard<std::mutex> lock(jackMutex);
    if (--silentThreads > 0)
        return;
    jackErrors().restore();
    jackInformation().restore();
}

} // namespace Nocturne
