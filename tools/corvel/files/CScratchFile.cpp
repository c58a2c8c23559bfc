#include "corvel/files/CScratchFile.h"

#include "corvel/audio/StandardStream.h"
#include "corvel/console/Errors.h"
#include "platform/NamelessFile.h"

#include <cerrno>
#include <system_error>

namespace Tessitor::Tool {

namespace {

std::filesystem::path folderFor(const std::filesystem::path &place) {
    if (isStandardStream(place))
        return std::filesystem::temp_directory_path();
    return place.has_parent_path() ? place.parent_path() : ".";
}

}  // namespace

CScratchFile::CScratchFile(const std::filesystem::path &place)
    : m_place(place), m_file(openNamelessFile(folderFor(place))) {
    if (m_file == nullptr)
        fail();
}

void CScratchFile::write(const void *bytes, std::size_t count) {
    if (std::fwrite(bytes, 1, count, m_file.get()) != count)
        fail();
}

void CScratchFile::rewind() {
    // Moving writes what is left in the buffer, so the disk may be full only now.
    if (std::fseek(m_file.get(), 0, SEEK_SET) != 0)
        fail();
}

std::size_t CScratchFile::read(void *bytes, std::size_t count) {
    const std::size_t got = std::fread(bytes, 1, count, m_file.get());
    if (got < count && std::ferror(m_file.get()) != 0)
        fail();
    return got;
}

void CScratchFile::fail() const {
    throw CJobError(nameOfOutput(m_place) + ": its temporary file cannot be used (" +
                    std::system_category().message(errno) + ")");
}

}  // namespace Tessitor::Tool
