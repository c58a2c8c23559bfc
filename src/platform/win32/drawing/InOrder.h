#pragma once

#include "platform/SNativeRect.h"

#include <algorithm>

/// @return the rectangle with its edges in order.
inline SNativeRect inOrder(const SNativeRect &rect) {
    return {std::min(rect.left, rect.right), std::min(rect.top, rect.bottom),
            std::max(rect.left, rect.right), std::max(rect.top, rect.bottom)};
}
