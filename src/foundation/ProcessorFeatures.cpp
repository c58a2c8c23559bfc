#include "foundation/ProcessorFeatures.h"

#include "platform/NativeProcessor.h"

namespace Tessitor::Basics {

namespace {

SProcessorFeatures features;

constexpr std::uint32_t bit(int number) {
    return std::uint32_t{1} << number;
}

}  // namespace

SProcessorFeatures decodeProcessorFeatures(std::uint32_t ecx, std::uint32_t edx) {
    SProcessorFeatures decoded;
    decoded.hasMmx = (edx & bit(23)) != 0;
    decoded.hasSse = (edx & bit(25)) != 0;
    decoded.hasSse2 = (edx & bit(26)) != 0;
    // Kept: bit 28, which is AVX, also counts as SSE3.
    decoded.hasSse3 = (ecx & (bit(0) | bit(28))) != 0;
    decoded.hasHt = (edx & bit(28)) != 0;
    return decoded;
}

void readProcessorFeatures() {
    const SProcessorRegisters registers = nativeProcessorRegisters(1);
    features = decodeProcessorFeatures(registers.ecx, registers.edx);
}

const SProcessorFeatures &getProcessorFeatures() {
    return features;
}

}  // namespace Tessitor::Basics
