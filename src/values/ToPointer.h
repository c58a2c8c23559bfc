#pragma once

#include <cstdint>
#include <type_traits>

/// The pointer that an interface passes as an integer of the same width.
template <typename Pointer, typename Integer>
Pointer toPointer(Integer value) {
    static_assert(std::is_pointer_v<Pointer> && std::is_integral_v<Integer>);
    const auto address = static_cast<std::uintptr_t>(value);
    return reinterpret_cast<Pointer>(address);  // NOLINT(performance-no-int-to-ptr)
}
