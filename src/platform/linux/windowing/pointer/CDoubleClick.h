#pragma once

#include "platform/SNativePoint.h"

#include <cstdint>
#include <optional>

/// Tells which press is the second one of a double click: of the same button in the same window,
/// within 500 ms and 4 pixels of the first.
class CDoubleClick {
public:
    struct SPress {
        std::uint32_t window = 0;
        int button = 0;
        SNativePoint position;   // on the screen
        std::uint32_t time = 0;  // ms of the server, which start again from 0 after 49 days
    };

    /// @return true for a second press. The press after it is a first one again.
    bool handlePress(const SPress &press);

private:
    std::optional<SPress> m_first;
};
