#include "corvel/live/CGate.h"

#include <chrono>
#include <thread>

namespace Tessitor::Tool {

void CGate::close() {
    m_isOpen = false;
    while (m_isInside)
        std::this_thread::sleep_for(std::chrono::microseconds(100));
}

}  // namespace Tessitor::Tool
