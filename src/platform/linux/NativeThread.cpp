#include "platform/NativeThread.h"

#include "values/ToPointer.h"

#include <atomic>
#include <pthread.h>

namespace {

// Not a thread_local: in a library that was loaded later, its first use on each thread allocates.
struct SKey {
    SKey() : exists(pthread_key_create(&key, nullptr) == 0) {}
    ~SKey() {
        if (exists)
            pthread_key_delete(key);
    }
    SKey(const SKey &) = delete;
    SKey &operator=(const SKey &) = delete;

    pthread_key_t key = 0;
    bool exists;
};

const SKey &numbers() {
    static const SKey key;
    return key;
}

}  // namespace

std::uintptr_t numberNativeThread() {
    static std::atomic<std::uintptr_t> last = 0;
    if (!numbers().exists)
        return 0;
    if (nativeThreadNumber() == 0) {
        const std::uintptr_t number = ++last;
        pthread_setspecific(numbers().key, toPointer<void *>(number));
    }
    return nativeThreadNumber();
}

std::uintptr_t nativeThreadNumber() {
    const SKey &key = numbers();
    return key.exists ? reinterpret_cast<std::uintptr_t>(pthread_getspecific(key.key)) : 0;
}
