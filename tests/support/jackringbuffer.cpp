// Tells the thread checker in what order JACK's ring buffer hands bytes from one thread to another:
// what was written before the writer's index moved is read after it has. The checker can't see that
// in a library that is not compiled for it.

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <stddef.h>

namespace {

template <typename... Arguments>
size_t inOrder(const char *function, void *buffer, Arguments... arguments)
{
    using Function = size_t (*)(void *, Arguments...);
    const auto call = reinterpret_cast<Function>(dlsym(RTLD_NEXT, function));
    __tsan_acquire(buffer);
    const size_t bytes = call(buffer, arguments...);
    __tsan_release(buffer);
    return bytes;
}

} // namespace

#pragma GCC visibility push(default)
extern "C" {

size_t jack_ringbuffer_write(void *buffer, const char *bytes, size_t count)
{
    return inOrder("jack_ringbuffer_write", buffer, bytes, count);
}

size_t jack_ringbuffer_read(void *buffer, char *bytes, size_t count)
{
    return inOrder("jack_ringbuffer_read", buffer, bytes, count);
}

size_t jack_ringbuffer_peek(void *buffer, char *bytes, size_t count)
{
    return inOrder("jack_ringbuffer_peek", buffer, bytes, count);
}

} // extern "C"
#pragma GCC visibility pop
