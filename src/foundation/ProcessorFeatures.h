#pragma once

#include <cstdint>

namespace Tessitor::Basics {

/// What the processor can do.
struct SProcessorFeatures {
    bool hasMmx = false;
    bool hasSse = false;
    bool hasSse2 = false;
    bool hasSse3 = false;
    bool hasHt = false;
};

/// @param ecx, edx  the registers that CPUID leaves for function 1.
SProcessorFeatures decodeProcessorFeatures(std::uint32_t ecx, std::uint32_t edx);

/// Asks the processor and keeps the answer, once at start-up.
void readProcessorFeatures();

/// @return what was read; nothing is set before. [any thread], after start-up
const SProcessorFeatures &getProcessorFeatures();

}  // namespace Tessitor::Basics
