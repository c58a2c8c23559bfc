#pragma once

#include "hostlayer/VstInterface.h"

namespace Tessitor::Tool {

/// What this host tells one effect. The effect's `resvd1`, a field for the host, points to it.
/// Until it does, questions about the instance are answered with 0.
struct SHostState {
    VstTimeInfo time{};
    std::int32_t blockSize = 0;  // frames
    bool rightInputConnected = true;
    bool rightOutputConnected = true;
};

/// The host's entry for effects. [any thread]
std::intptr_t hostCallback(AEffect *effect, std::int32_t opcode, std::int32_t index,
                           std::intptr_t value, void *ptr, float opt);

}  // namespace Tessitor::Tool
