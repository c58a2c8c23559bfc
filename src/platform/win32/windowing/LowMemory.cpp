#include "platform/win32/windowing/LowMemory.h"

#include "values/ToPointer.h"

#include <cstdint>
#include <new>
#include <windows.h>

namespace {

constexpr std::uintptr_t granularity = 0x10000, limit = 0x80000000;

}  // namespace

void *allocateLowMemory(std::size_t size) {
    MEMORY_BASIC_INFORMATION region;
    for (std::uintptr_t address = granularity; address + size < limit;) {
        if (VirtualQuery(toPointer<void *>(address), &region, sizeof region) == 0)
            break;
        const std::uintptr_t end =
            reinterpret_cast<std::uintptr_t>(region.BaseAddress) + region.RegionSize;
        const bool fits = region.State == MEM_FREE && address + size <= end;
        void *memory = fits ? VirtualAlloc(toPointer<void *>(address), size,
                                           MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE)
                            : nullptr;
        if (memory != nullptr)
            return memory;
        address = (end + granularity - 1) / granularity * granularity;
    }
    throw std::bad_alloc();
}

void freeLowMemory(void *memory) {
    if (memory != nullptr)
        VirtualFree(memory, 0, MEM_RELEASE);
}
