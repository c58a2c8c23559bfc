#include "corvel/files/CPendingFile.h"

#include "corvel/console/Errors.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <random>
#include <string>
#include <system_error>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

namespace {

[[noreturn]] void fail(const fs::path &name, const std::string &reason) {
    throw CJobError(name.string() + ": cannot be written (" + reason + ")");
}

[[noreturn]] void failSinceItExists(const fs::path &name) {
    throw CJobError(name.string() + ": exists already; --force replaces it");
}

// Follows links, also one that leads nowhere, so that the target is written and the link stays.
fs::path withoutLinks(fs::path place) {
    constexpr int mostLinks = 40;  // as on Linux
    for (int links = 0; links < mostLinks; ++links) {
        std::error_code notALink;
        const fs::path target = fs::read_symlink(place, notALink);
        if (notALink)
            break;
        place = place.parent_path() / target;
    }
    return place;
}

// A superuser may write to every file, so the mode is looked at as well.
bool isWriteProtected(const fs::path &file, fs::perms mode) {
    constexpr fs::perms anyWrite =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if ((mode & anyWrite) == fs::perms::none)
        return true;
    std::FILE *opened = std::fopen(file.c_str(), "r+b");
    if (opened != nullptr)
        std::fclose(opened);
    return opened == nullptr;
}

// Short, whatever the name of the finished file: names are limited to 255 bytes.
std::string randomName() {
    std::random_device random;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), ".corvel-%08x%08x.part", random(), random());
    return text.data();
}

}  // namespace

CPendingFile::CPendingFile(const fs::path &place, EExisting existing)
    : m_name(place), m_place(withoutLinks(place)), m_existing(existing),
      m_mode(modeToReplace(m_name, m_place, existing)) {
    makeFileBeside();
}

void CPendingFile::requireWritable(const fs::path &place, EExisting existing) {
    const fs::path target = withoutLinks(place);
    modeToReplace(place, target, existing);
    std::error_code error;
    if (!fs::is_directory(target.has_parent_path() ? target.parent_path() : ".", error))
        fail(place, (error ? error : std::make_error_code(std::errc::not_a_directory)).message());
}

// @return the mode of the file at the place; none if there is no file.
std::optional<fs::perms> CPendingFile::modeToReplace(const fs::path &name, const fs::path &place,
                                                     EExisting existing) {
    std::error_code error;
    const fs::file_status status = fs::status(place, error);
    if (status.type() == fs::file_type::not_found)
        return std::nullopt;
    if (!fs::exists(status))
        fail(name, error.message());
    // Renaming would replace a device or a pipe with a file.
    if (!fs::is_regular_file(status))
        fail(name, "not a file");
    if (existing == EExisting::Kept)
        failSinceItExists(name);
    if (isWriteProtected(place, status.permissions()))
        throw CJobError(name.string() + ": is write-protected and was not replaced");
    return status.permissions();
}

CPendingFile::~CPendingFile() {
    std::error_code ignored;  // nothing can be done about it
    if (!m_committed)
        fs::remove(m_path, ignored);
}

// Opens with "x", so that no existing file is overwritten, not even that of another corvel process.
void CPendingFile::makeFileBeside() {
    constexpr int attempts = 100;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        m_path = m_place;
        m_path.replace_filename(randomName());
        m_part.emplace(m_path);
        if (std::FILE *file = std::fopen(m_path.c_str(), "wbx")) {
            std::fclose(file);
            break;
        }
        const int reason = errno;
        m_part.reset();
        if (reason != EEXIST || attempt + 1 == attempts)
            fail(m_name, std::system_category().message(reason));
    }
    // Nobody who cannot read the old file may read the new one, not even while it is written.
    std::error_code ignored;
    if (m_mode)
        fs::permissions(m_path, fs::perms::owner_read | fs::perms::owner_write, ignored);
}

void CPendingFile::commit() {
    m_existing == EExisting::Replaced ? replace() : appear();
    m_committed = true;
    m_part.reset();
}

void CPendingFile::replace() {
    std::error_code error;
    if (m_mode)
        fs::permissions(m_path, *m_mode, error);
    if (!error)
        fs::rename(m_path, m_place, error);
    if (error)
        fail(m_name, error.message());
}

// A second name, unlike a new name, never replaces a file that another program has made meanwhile.
void CPendingFile::appear() {
    std::error_code error, ignored;
    fs::create_hard_link(m_path, m_place, error);
    if (!error) {
        fs::remove(m_path, ignored);
        return;
    }
    if (fs::exists(m_place, ignored))
        failSinceItExists(m_name);
    fs::rename(m_path, m_place, error);  // file systems like FAT allow only one name
    if (error)
        fail(m_name, error.message());
}

}  // namespace Tessitor::Tool
