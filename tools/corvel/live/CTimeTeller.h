#pragma once

#include "hostlayer/VstInterface.h"

#include <cstdint>
#include <optional>

namespace Tessitor::Tool {

/// Where the server's transport is at the start of a block.
struct STransport {
    /// Known only if a program on the server keeps the time.
    struct SBeat {
        double beatsPerMinute = 120.0;
        double beatsPerBar = 4.0;
        double beatType = 4.0;  // 4 for quarter notes
        std::int32_t bar = 1;   // from 1
        double beat = 0.0;      // in the bar, from 0
    };

    std::uint64_t frame = 0;
    bool isRolling = false;
    std::optional<SBeat> beat;
};

/// Tells effects the time, and whether it has jumped.
class CTimeTeller {
public:
    /// @param tempo  beats per minute, when nobody on the server keeps the time.
    explicit CTimeTeller(double tempo) : m_tempo(tempo) {}

    /// [audio thread]
    /// @param frames  of the block that begins.
    VstTimeInfo timeOf(const STransport &transport, double sampleRate, std::int32_t frames);

private:
    const double m_tempo;
    std::optional<std::uint64_t> m_expectedFrame;
    bool m_wasRolling = false;
};

}  // namespace Tessitor::Tool
