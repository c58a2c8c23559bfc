#pragma once

#include "hostlayer/VstInterface.h"

namespace Tessitor::Tool {

/// What one effect can learn of this host. The effect's `resvd1`, the host's own field, points to
/// it; until it does, the questions about one instance are answered with 0.
struct SHostState {
    VstTimeInfo time{};
    std::int32_t blockSize = 0;  // frames
    bool rightInputConnected = true;
    bool rightOutputConnected = true;
};

/// The host's side of the conversation. [any thread]
std::intptr_t hostCallback(AEffect *effect, std::int32_t opcode, std::int32_t index,
                           std::intptr_t value, void *ptr, float opt);

}  // namespace Tessitor::Tool
