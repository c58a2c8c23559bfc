#pragma once

#include <cstdint>

namespace Tessitor::IO {

/// The direction in which a file stream is opened.
enum class EStreamMode : std::int32_t { Read = 0, Write = 1 };

}  // namespace Tessitor::IO
