#pragma once

#include <cstdint>

/// What the processor's identification instruction, CPUID, leaves in its registers.
struct SProcessorRegisters {
    std::uint32_t eax = 0, ebx = 0, ecx = 0, edx = 0;
};

/// @param function  the number asked for: 1 for the feature bits.
/// @return zeros if the processor does not know the function. [any thread]
SProcessorRegisters nativeProcessorRegisters(std::uint32_t function);
