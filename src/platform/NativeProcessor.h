#pragma once

#include <cstdint>

/// What the CPUID instruction leaves in the registers.
struct SProcessorRegisters {
    std::uint32_t eax = 0, ebx = 0, ecx = 0, edx = 0;
};

/// @param function  the CPUID function; 1 returns the feature bits.
/// @return zeros if the processor does not have that function. [any thread]
SProcessorRegisters nativeProcessorRegisters(std::uint32_t function);
