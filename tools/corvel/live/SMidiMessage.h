#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace Tessitor::Tool {

/// A MIDI message of up to three bytes.
struct SMidiMessage {
    std::int32_t frame = 0;  // from the start of the block
    std::uint8_t status = 0, data1 = 0, data2 = 0;

    bool isForOneChannel() const { return status >= 0x80 && status < 0xF0; }
    int channel() const { return (status & 0x0F) + 1; }  ///< 1 to 16
    bool isController() const { return (status & 0xF0) == 0xB0; }
    bool isProgramChange() const { return (status & 0xF0) == 0xC0; }

    bool operator==(const SMidiMessage &) const = default;
};

/// @param bytes  as they came from somewhere else. Data bytes lose their highest bit.
/// @return nothing for what is no message of one to three bytes, such as system exclusive.
std::optional<SMidiMessage> midiMessageFrom(std::span<const std::uint8_t> bytes,
                                            std::int32_t frame);

}  // namespace Tessitor::Tool
