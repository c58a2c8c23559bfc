#include "platform/NativeThread.h"

#include "values/ToPointer.h"

#include <atomic>
#include <windows.h>

namespace {

// Not a thread_local: its first use on each thread allocates.
struct SSlot {
    SSlot() : index(TlsAlloc()) {}
    ~SSlot() {
        if (exists())
            TlsFree(index);
    }
    SSlot(const SSlot &) = delete;
    SSlot &operator=(const SSlot &) = delete;

    bool exists() const { return index != TLS_OUT_OF_INDEXES; }

    DWORD index;
};

const SSlot &numbers() {
    static const SSlot slot;
    return slot;
}

}  // namespace

std::uintptr_t numberNativeThread() {
    static std::atomic<std::uintptr_t> last = 0;
    if (!numbers().exists())
        return 0;
    if (nativeThreadNumber() == 0) {
        const std::uintptr_t number = ++last;
        TlsSetValue(numbers().index, toPointer<void *>(number));
    }
    return nativeThreadNumber();
}

std::uintptr_t nativeThreadNumber() {
    const SSlot &slot = numbers();
    return slot.exists() ? reinterpret_cast<std::uintptr_t>(TlsGetValue(slot.index)) : 0;
}
