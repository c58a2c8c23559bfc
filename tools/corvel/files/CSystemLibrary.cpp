#include "corvel/files/CSystemLibrary.h"

#include "corvel/console/Errors.h"
#include "platform/NativeLibrary.h"

#include <string>

namespace Tessitor::Tool {

namespace {

void *openLibrary(const std::string &name, const std::string &purpose) {
    std::string reason;
    void *library = openSystemLibrary(name, reason);
    if (library == nullptr)
        throw CJobError(name + ": cannot be loaded; " + purpose + " (" + reason + ")");
    return library;
}

}  // namespace

CSystemLibrary::CSystemLibrary(const char *name, const char *purpose)
    : m_name(name), m_library(openLibrary(name, purpose)) {}

CSystemLibrary::SFunction CSystemLibrary::function(const char *functionName) const {
    void *address = nativeSymbol(m_library, functionName);
    if (address == nullptr)
        throw CJobError(std::string(m_name) + ": is too old; it has no " + functionName);
    return {address};
}

}  // namespace Tessitor::Tool
