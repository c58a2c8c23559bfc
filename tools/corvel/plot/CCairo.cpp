#include "corvel/plot/CCairo.h"

#include "corvel/console/Errors.h"
#include "platform/NativeLibrary.h"

#include <string>

namespace Tessitor::Tool {

namespace {

constexpr const char *libraryName = "libcairo.so.2";

void *openCairo() {
    std::string reason;
    void *library = openSystemLibrary(libraryName, reason);
    if (library == nullptr)
        throw CJobError(std::string(libraryName) +
                        ": cannot be loaded; pictures are drawn with it (" + reason + ")");
    return library;
}

}  // namespace

const CCairo &CCairo::get() {
    static const CCairo cairo;
    return cairo;
}

CCairo::SFunction CCairo::find(const char *name) {
    static void *const library = openCairo();  // stays open: the functions are kept
    void *address = nativeSymbol(library, name);
    if (address == nullptr)
        throw CJobError(std::string(libraryName) + ": is too old to draw pictures; it has no " +
                        name);
    return {address};
}

}  // namespace Tessitor::Tool
