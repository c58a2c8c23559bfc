#include "corvel/console/Errors.h"

#include <filesystem>
#include <new>

namespace Tessitor::Tool {

std::string reasonOf(const std::exception &error) {
    if (dynamic_cast<const CCallError *>(&error) != nullptr ||
        dynamic_cast<const CJobError *>(&error) != nullptr)
        return error.what();
    if (const auto *file = dynamic_cast<const std::filesystem::filesystem_error *>(&error))
        return file->path1().string() + ": cannot be used (" + file->code().message() + ")";
    if (dynamic_cast<const std::bad_alloc *>(&error) != nullptr)
        return "not enough memory";
    return "failed for a reason that corvel does not know";
}

}  // namespace Tessitor::Tool
