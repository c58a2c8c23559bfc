#include "platform/NativeProcessor.h"

#include <gtest/gtest.h>

namespace {

TEST(NativeProcessor, EveryProcessorOfThisArchitectureHasSse2) {
    const SProcessorRegisters features = nativeProcessorRegisters(1);
    EXPECT_NE(features.edx & (1u << 26), 0u);
    EXPECT_NE(features.eax, 0u);
}

TEST(NativeProcessor, AnUnknownFunctionReturnsZeros) {
    const SProcessorRegisters nothing = nativeProcessorRegisters(0x7fffffff);
    EXPECT_EQ(nothing.eax | nothing.ebx | nothing.ecx | nothing.edx, 0u);
}

}  // namespace
