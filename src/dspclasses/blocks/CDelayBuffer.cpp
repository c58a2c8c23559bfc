#include "dspclasses/blocks/CDelayBuffer.h"

#include "dspclasses/blocks/WholeCount.h"
#include "dspclasses/kernels/SingleMath.h"

#include <cmath>
#include <cstddef>
#include <utility>

CDelayBuffer::SMemory::SMemory(std::uint32_t length)
    : capacity(length), cells(std::make_unique<float[]>(std::size_t{length} + 1)) {}

/// 2^ceil(log2(size)). Kept: the logarithm is in single precision. A result of 2^32 wraps to 0; the
/// line then does not grow.
static std::uint32_t roundedUpToPowerOfTwo(std::uint32_t size) {
    if ((size & (size - 1)) == 0)
        return size;
    constexpr double log2e = 1.4426950408889634;
    const double exponent = double{logSingle(static_cast<float>(size))} * log2e;
    return wholeCount(powSingle(2.0f, std::ceil(static_cast<float>(exponent))));
}

static std::uint32_t capacityFor(std::uint32_t size) {
    return roundedUpToPowerOfTwo(size == 0 ? 2 : size);
}

CDelayBuffer::CDelayBuffer(std::uint32_t size) : newest(new SMemory(capacityFor(size))) {}

CDelayBuffer::~CDelayBuffer() {
    for (const SMemory *memory = newest; memory != nullptr;)
        delete std::exchange(memory, memory->older);
}

bool CDelayBuffer::grow(std::uint32_t size) {
    const std::uint32_t capacity = capacityFor(size);
    SMemory *present = newest.load(std::memory_order_acquire);
    if (capacity <= present->capacity)
        return false;
    auto grown = std::make_unique<SMemory>(capacity);
    // Another thread may put its own memory in front first. If that one is large enough, ours is
    // dropped.
    while (capacity > present->capacity) {
        grown->older = present;
        if (newest.compare_exchange_weak(present, grown.get(), std::memory_order_acq_rel)) {
            static_cast<void>(grown.release());
            return true;
        }
    }
    return false;
}
