#include "platform/NativeProcessor.h"

#include <cpuid.h>

// <cpuid.h> comes with the compiler and is the same on every system.
SProcessorRegisters nativeProcessorRegisters(std::uint32_t function) {
    SProcessorRegisters registers;
    __get_cpuid(function, &registers.eax, &registers.ebx, &registers.ecx, &registers.edx);
    return registers;
}
