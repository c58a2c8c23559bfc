#include "foundation/FailingAllocation.h"

#include <cstdlib>
#include <new>

namespace {

thread_local int allocationsUntilFailure = -1;  // below 0: none fails

void *allocate(std::size_t size) {
    if (allocationsUntilFailure >= 0 && allocationsUntilFailure-- == 0)
        throw std::bad_alloc();
    if (void *block = std::malloc(size > 0 ? size : 1))
        return block;
    throw std::bad_alloc();
}

}  // namespace

CFailingAllocation::CFailingAllocation(int index) {
    allocationsUntilFailure = index;
}

CFailingAllocation::~CFailingAllocation() {
    allocationsUntilFailure = -1;
}

void *operator new(std::size_t size) {
    return allocate(size);
}

void *operator new[](std::size_t size) {
    return allocate(size);
}

void operator delete(void *block) noexcept {
    std::free(block);
}

void operator delete[](void *block) noexcept {
    std::free(block);
}

void operator delete(void *block, std::size_t) noexcept {
    std::free(block);
}

void operator delete[](void *block, std::size_t) noexcept {
    std::free(block);
}
