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

struct SMount {
    std::string folder;
    std::string fileSystem;
};

/// @return the deepest mount that contains the path; nothing if there is no such path.
std::optional<SMount> mountOf(const std::string &path) {
    std::error_code failed;
    const fs::path target = fs::canonical(path, failed);
    const std::unique_ptr<FILE, SCloseTable> table(setmntent("/proc/self/mounts", "r"));
    if (failed || table == nullptr)
        return {};
    mntent mount;
    char text[4096];
    SMount deepest;
    while (getmntent_r(table.get(), &mount, text, sizeof text) != nullptr) {
        // A later mount on the same folder hides the earlier one.
        const std::string_view folder = mount.mnt_dir;
        if (folder.size() >= deepest.folder.size() && liesIn(folder, target))
            deepest = {mount.mnt_dir, mount.mnt_type};
    }
    return deepest;
}

/// @return the label that the file system reports; "" if it cannot report one.
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
    // Only a whole disk has this flag. For a partition, look one level up.
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

std::string nativeDriveOf(const std::string &path) {
    const std::optional<SMount> mount = mountOf(path);
    return mount ? mount->folder : "";
}

SNativeVolume nativeVolume(const std::string &drive) {
    const std::optional<SMount> mount = mountOf(drive);
    if (!mount)
        return {};
    return {labelOf(drive), mount->fileSystem};
}

ENativeDriveType nativeDriveType(const std::string &drive) {
    const std::optional<SMount> mount = mountOf(drive);
    if (!mount)
        return ENativeDriveType::NoRoot;
    if (isOneOf(opticalKinds, mount->fileSystem))
        return ENativeDriveType::Optical;
    if (isOneOf(remoteKinds, mount->fileSystem))
        return ENativeDriveType::Remote;
    if (isOneOf(memoryKinds, mount->fileSystem))
        return ENativeDriveType::RamDisk;
    return isOnRemovableDisk(drive) ? ENativeDriveType::Removable : ENativeDriveType::Fixed;
}

std::string nativeSystemFolder() {
    return "/usr";
}
