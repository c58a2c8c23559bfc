#pragma once

#include <cstdint>

namespace Tessitor::Basics {

/// Some features of the processor.
struct SProcessorFeatures {
    bool hasMmx = false;
    bool hasSse = false;
    bool hasSse2 = false;
    bool hasSse3 = false;
    bool hasHt = false;
};

/// @param ecx, edx  the registers after CPUID function 1.
SProcessorFeatures decodeProcessorFeatures(std::uint32_t ecx, std::uint32_t edx);

/// Reads the features from the processor and stores them. Call once, at start-up.
void readProcessorFeatures();

/// @return the stored features; none before they are read. [any thread], after start-up
const SProcessorFeatures &getProcessorFeatures();

}  // namespace Tessitor::Basics
