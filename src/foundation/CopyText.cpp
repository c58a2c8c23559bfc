#include "foundation/CopyText.h"

#include <algorithm>
#include <cstring>

namespace Tessitor::Basics {

void copyText(char *target, long size, const char *text) {
    if (target == nullptr || size < 1)
        return;
    const auto room = static_cast<std::size_t>(size);
    const std::size_t length = std::min(std::strlen(text), room - 1);
    std::fill(std::copy_n(text, length, target), target + room, '\0');
}

}  // namespace Tessitor::Basics
