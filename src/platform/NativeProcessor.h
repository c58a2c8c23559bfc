#pragma once

#include <cstdint>

/// The registers after the processor's CPUID instruction.
struct SProcessorRegisters {
    std::uint32_t eax = 0, ebx = 0, ecx = 0, edx = 0;
};

/// @param function  the CPUID function; 1 gives the feature bits.
/// @return zeros if the processor does not have that function. [any thread]
SProcessorRegisters nativeProcessorRegisters(std::uint32_t function);
