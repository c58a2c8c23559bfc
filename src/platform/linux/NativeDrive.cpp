#include "platform/NativeDrive.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <linux/fs.h>
#include <memory>
#include <mntent.h>
#include <optional>
#include <string_view>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

struct SCloseTable {
    void operator()(FILE *table) const { endmntent(table); }
};

bool liesIn(const fs::path &folder, const fs::path &path) {
    return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first ==
           folder.end();
}

/// The kind of the file system that holds the path; nothing if there is no such path.
std::optional<std::string> fileSystemOf(const std::string &path) {
    std::error_code failed;
    const fs::path target = fs::canonical(path, failed);
    const std::unique_ptr<FILE, SCloseTable> table(setmntent("/proc/self/mounts", "r"));
    if (failed || table == nullptr)
        return {};
    mntent mount;
    char text[4096];
    std::string kind;
    std::size_t deepest = 0;
    while (getmntent_r(table.get(), &mount, text, sizeof text) != nullptr) {
        // Of two at one place, the later hides the earlier.
        const std::size_t depth = std::string_view(mount.mnt_dir).size();
        if (depth >= deepest && liesIn(mount.mnt_dir, target)) {
            deepest = depth;
            kind = mount.mnt_type;
        }
    }
    return kind;
}

/// What the file system itself says: not every kind answers.
std::string labelOf(const std::string &path) {
    char label[FSLABEL_MAX] = {};
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0)
        return {};
    if (ioctl(file, FS_IOC_GETFSLABEL, label) != 0)
        label[0] = '\0';
    close(file);
    return label;
}

bool isOnRemovableDisk(const std::string &path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0)
        return false;
    const std::string device = "/sys/dev/block/" + std::to_string(major(status.st_dev)) + ":" +
                               std::to_string(minor(status.st_dev));
    // A partition leaves the answer to the disk that it is on.
    for (const char *flag : {"/removable", "/../removable"})
        if (std::ifstream(device + flag).get() == '1')
            return true;
    return false;
}

template <std::size_t size>
bool isOneOf(const std::array<std::string_view, size> &kinds, std::string_view kind) {
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

constexpr std::array<std::string_view, 2> opticalKinds{"iso9660", "udf"};
constexpr std::array<std::string_view, 2> memoryKinds{"ramfs", "tmpfs"};
constexpr std::array<std::string_view, 10> remoteKinds{
    "9p", "afs", "ceph", "cifs", "fuse.glusterfs", "fuse.sshfs", "nfs", "nfs4", "smb3", "smbfs"};

}  // namespace

SNativeVolume nativeVolume(const std::string &drive) {
    const std::optional<std::string> kind = fileSystemOf(drive);
    if (!kind)
        return {};
    return {labelOf(drive), *kind};
}

ENativeDriveType nativeDriveType(const std::string &drive) {
    const std::optional<std::string> kind = fileSystemOf(drive);
    if (!kind)
        return ENativeDriveType::NoRoot;
    if (isOneOf(opticalKinds, *kind))
        return ENativeDriveType::Optical;
    if (isOneOf(remoteKinds, *kind))
        return ENativeDriveType::Remote;
    if (isOneOf(memoryKinds, *kind))
        return ENativeDriveType::RamDisk;
    return isOnRemovableDisk(drive) ? ENativeDriveType::Removable : ENativeDriveType::Fixed;
}

std::string nativeSystemFolder() {
    return "/usr";
}
