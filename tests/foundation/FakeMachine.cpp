#include "foundation/FakeMachine.h"

#include <algorithm>

namespace {

template <typename Value>
Value valueAt(const std::map<std::string, Value> &values, const std::string &key) {
    const auto found = values.find(key);
    return found != values.end() ? found->second : Value();
}

}  // namespace

SFakeMachine &fakeMachine() {
    static SFakeMachine machine;
    return machine;
}

std::string nativeDriveOf(const std::string &path) {
    const auto &drives = fakeMachine().drives;
    const auto found = std::ranges::find_if(
        drives, [&](const auto &drive) { return path.starts_with(drive.first); });
    return found != drives.end() ? found->first : "";
}

SNativeVolume nativeVolume(const std::string &drive) {
    return valueAt(fakeMachine().drives, drive).volume;
}

ENativeDriveType nativeDriveType(const std::string &drive) {
    return valueAt(fakeMachine().drives, drive).type;
}

std::string nativeSystemFolder() {
    return fakeMachine().systemFolder;
}

std::optional<SNativeFile> nativeFile(const std::string &path) {
    const auto &files = fakeMachine().files;
    const auto found = files.find(path);
    return found != files.end() ? std::optional(found->second) : std::nullopt;
}

bool isNativeFolder(const std::string &path) {
    return (valueAt(fakeMachine().files, path).attributes & nativeFolderAttribute) != 0;
}

int nativeFileCount(const std::string &folder) {
    return valueAt(fakeMachine().fileCounts, folder);
}

SNativeTime nativeLocalTime() {
    return fakeMachine().localTime;
}

SNativeRect nativeVirtualScreen() {
    return fakeMachine().virtualScreen;
}
