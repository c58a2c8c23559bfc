#include "platform/linux/windowing/pointer/CDoubleClick.h"

#include <cstdlib>

namespace {

constexpr std::uint32_t longestPause = 500;  // ms
constexpr int longestWay = 4;                // pixels

bool isClose(SNativePoint first, SNativePoint second) {
    return std::abs(first.x - second.x) <= longestWay && std::abs(first.y - second.y) <= longestWay;
}

}  // namespace

bool CDoubleClick::handlePress(const SPress &press) {
    const bool isSecond =
        m_first && m_first->window == press.window && m_first->button == press.button &&
        isClose(m_first->position, press.position) && press.time - m_first->time <= longestPause;
    m_first = isSecond ? std::nullopt : std::optional(press);
    return isSecond;
}
