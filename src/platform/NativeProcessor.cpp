#include "platform/NativeProcessor.h"

#include <cpuid.h>

// The compiler's own header, the same on every system.
SProcessorRegisters nativeProcessorRegisters(std::uint32_t function) {
    SProcessorRegisters registers;
    __get_cpuid(function, &registers.eax, &registers.ebx, &registers.ecx, &registers.edx);
    return registers;
}
