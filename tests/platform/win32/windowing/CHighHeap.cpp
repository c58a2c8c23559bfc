#include "platform/win32/windowing/CHighHeap.h"

#include <algorithm>
#include <cstdint>
#include <new>
#include <utility>
#include <windows.h>

namespace {

constexpr std::uintptr_t granularity = 0x10000, limit = 0x100000000;
constexpr std::size_t smallPieces = 128;  // every second of them becomes room

std::uintptr_t toAddress(const void *pointer) {
    return reinterpret_cast<std::uintptr_t>(pointer);
}

}  // namespace

CHighHeap::CHighHeap() {
    m_reserved.reserve(10'000);  // while the heap may still grow
    reserveLowMemory();
    useUpLowHeap();
    leaveSomeRoom();
}

CHighHeap::~CHighHeap() {
    while (m_blocks != nullptr)
        ::operator delete(std::exchange(m_blocks, *static_cast<void **>(m_blocks)));
    for (void *memory : m_reserved)
        VirtualFree(memory, 0, MEM_RELEASE);
}

void CHighHeap::reserveLowMemory() {
    MEMORY_BASIC_INFORMATION region;
    for (std::uintptr_t address = granularity; address < limit;) {
        VirtualQuery(reinterpret_cast<void *>(address), &region, sizeof region);
        std::uintptr_t end = std::min(toAddress(region.BaseAddress) + region.RegionSize, limit);
        if (region.State == MEM_FREE) {
            if (m_reserved.size() < smallPieces)
                end = std::min(end, address + granularity);
            void *memory = VirtualAlloc(reinterpret_cast<void *>(address), end - address,
                                        MEM_RESERVE, PAGE_NOACCESS);
            if (memory != nullptr)
                m_reserved.push_back(memory);
        }
        address = (end + granularity - 1) / granularity * granularity;
    }
}

// The heap keeps free blocks by their size.
void CHighHeap::useUpLowHeap() {
    for (std::size_t size = 0x40000; size > 1024; size /= 2)
        useUpLowHeap(size);
    for (std::size_t size = 1024; size > 0; size -= 16)
        useUpLowHeap(size);
}

void CHighHeap::useUpLowHeap(std::size_t blockSize) {
    for (int highInARow = 0; highInARow < 50;) {
        void *block = ::operator new(blockSize);
        highInARow = toAddress(block) < limit ? 0 : highInARow + 1;
        *static_cast<void **>(block) = std::exchange(m_blocks, block);
    }
}

void CHighHeap::leaveSomeRoom() {
    for (std::size_t i = 0; i < std::min(smallPieces, m_reserved.size()); i += 2)
        VirtualFree(std::exchange(m_reserved[i], nullptr), 0, MEM_RELEASE);
}
