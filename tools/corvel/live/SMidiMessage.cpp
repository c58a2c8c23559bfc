#include "corvel/live/SMidiMessage.h"

namespace Tessitor::Tool {

std::optional<SMidiMessage> midiMessageFrom(std::span<const std::uint8_t> bytes,
                                            std::int32_t frame) {
    constexpr std::uint8_t firstStatus = 0x80, systemExclusive = 0xF0, dataBits = 0x7F;
    if (bytes.empty() || bytes.size() > 3 || bytes[0] < firstStatus || bytes[0] == systemExclusive)
        return std::nullopt;
    SMidiMessage message{frame, bytes[0]};
    if (bytes.size() > 1)
        message.data1 = bytes[1] & dataBits;
    if (bytes.size() > 2)
        message.data2 = bytes[2] & dataBits;
    if (message.isController() && bytes.size() < 3)
        return std::nullopt;
    if (message.isProgramChange() && bytes.size() < 2)
        return std::nullopt;
    return message;
}

}  // namespace Tessitor::Tool
