#pragma once

#include "hostlayer/VstInterface.h"

namespace Tessitor::Tool {

/// The window of an effect's editor. [gui thread]
class IEditorHost {
public:
    virtual void resizeEditor(std::int32_t width, std::int32_t height) = 0;

protected:
    ~IEditorHost() = default;
};

/// What this host tells one instance of an effect. The `resvd1` of the instance, a field reserved
/// for the host, points to it. Before that is set, the answer to any question about the instance
/// is 0.
struct SHostState {
    VstTimeInfo time{};
    std::int32_t blockSize = 0;  // frames
    bool rightInputConnected = true;
    bool rightOutputConnected = true;
    IEditorHost *editor = nullptr;  // while it is open
};

/// Sets the answer for effects that ask, on the calling thread, what it works for.
/// @param level  of VstProcessLevel; kVstProcessLevelOffline on threads that never called this.
/// [any thread] Cheap enough to be called for every block.
void setProcessLevelOfThread(std::int32_t level);

/// The function through which effects call this host. [any thread]
std::intptr_t hostCallback(AEffect *effect, std::int32_t opcode, std::int32_t index,
                           std::intptr_t value, void *ptr, float opt);

}  // namespace Tessitor::Tool
