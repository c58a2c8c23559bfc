#pragma once

#include <cstddef>
#include <vector>

/// While it exists, plain new returns addresses above 4 GB, as in a process with a high heap. Below
/// are left a few free pieces of 64 KB, which no heap grows into.
class CHighHeap {
public:
    CHighHeap();
    ~CHighHeap();
    CHighHeap(const CHighHeap &) = delete;
    CHighHeap &operator=(const CHighHeap &) = delete;

private:
    void reserveLowMemory();
    void useUpLowHeap();
    void useUpLowHeap(std::size_t blockSize);
    void leaveSomeRoom();

    std::vector<void *> m_reserved;
    void *m_blocks = nullptr;  // of the heap: each begins with the address of the next one
};
