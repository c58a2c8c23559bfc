#include "Allocation.h"

#include <cstdlib>
#include <new>

static thread_local std::uint64_t allocations = 0;
static thread_local std::int64_t untilFailure = 0;  // allocations that still succeed
static thread_local std::int64_t failuresLeft = 0;

std::uint64_t allocationsOfThisThread() {
    return allocations;
}

CFailingAllocation::CFailingAllocation(std::int64_t index, std::int64_t failures) {
    untilFailure = index;
    failuresLeft = failures;
}

CFailingAllocation::~CFailingAllocation() {
    failuresLeft = 0;
}

static bool isToFail() {
    if (failuresLeft == 0 || untilFailure-- > 0)
        return false;
    --failuresLeft;
    return true;
}

// Aligned by hand, since the systems differ in what their malloc offers. The address of the whole
// block is stored just before the aligned part.
static void *allocate(std::size_t size, std::size_t alignment) {
    ++allocations;
    if (isToFail())
        throw std::bad_alloc();
    void *const block = std::malloc(size + alignment + sizeof(void *));
    if (block == nullptr)
        throw std::bad_alloc();
    const auto first = reinterpret_cast<std::uintptr_t>(block) + sizeof(void *);
    void *const result = reinterpret_cast<void *>((first + alignment - 1) / alignment * alignment);
    static_cast<void **>(result)[-1] = block;
    return result;
}

static void *allocateOrNull(std::size_t size) noexcept {
    try {
        return allocate(size, __STDCPP_DEFAULT_NEW_ALIGNMENT__);
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

static void release(void *result) {
    if (result != nullptr)
        std::free(static_cast<void **>(result)[-1]);
}

// Every form that the program uses must be replaced: the sanitizers define each form separately, so
// one form would not call another.
void *operator new(std::size_t size) {
    return allocate(size, __STDCPP_DEFAULT_NEW_ALIGNMENT__);
}
void *operator new[](std::size_t size) {
    return allocate(size, __STDCPP_DEFAULT_NEW_ALIGNMENT__);
}
void *operator new(std::size_t size, std::align_val_t alignment) {
    return allocate(size, static_cast<std::size_t>(alignment));
}
void *operator new[](std::size_t size, std::align_val_t alignment) {
    return allocate(size, static_cast<std::size_t>(alignment));
}
void *operator new(std::size_t size, const std::nothrow_t &) noexcept {
    return allocateOrNull(size);
}
void *operator new[](std::size_t size, const std::nothrow_t &) noexcept {
    return allocateOrNull(size);
}

void operator delete(void *result) noexcept {
    release(result);
}
void operator delete[](void *result) noexcept {
    release(result);
}
void operator delete(void *result, std::size_t) noexcept {
    release(result);
}
void operator delete[](void *result, std::size_t) noexcept {
    release(result);
}
void operator delete(void *result, std::align_val_t) noexcept {
    release(result);
}
void operator delete[](void *result, std::align_val_t) noexcept {
    release(result);
}
void operator delete(void *result, std::size_t, std::align_val_t) noexcept {
    release(result);
}
void operator delete[](void *result, std::size_t, std::align_val_t) noexcept {
    release(result);
}
