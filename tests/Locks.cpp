#include "Locks.h"

#include <pthread.h>

static thread_local std::uint64_t locks = 0;

std::uint64_t locksOfThisThread() {
    return locks;
}

// The linker sends the program's calls to __wrap_..., and those of __real_... to the system.
extern "C" int __real_pthread_mutex_lock(pthread_mutex_t *mutex);
extern "C" int __real_pthread_mutex_trylock(pthread_mutex_t *mutex);

extern "C" int __wrap_pthread_mutex_lock(pthread_mutex_t *mutex) {
    ++locks;
    return __real_pthread_mutex_lock(mutex);
}

extern "C" int __wrap_pthread_mutex_trylock(pthread_mutex_t *mutex) {
    ++locks;
    return __real_pthread_mutex_trylock(mutex);
}
