#include "corvel/files/CScratchFile.h"

#include "corvel/console/Errors.h"

#include <cerrno>
#include <system_error>

namespace Tessitor::Tool {

CScratchFile::CScratchFile(const std::filesystem::path &beside, EExisting existing)
    : m_beside(beside), m_pending(beside, existing),
      m_file(std::fopen(m_pending.path().c_str(), "w+b")) {
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
    throw CJobError(m_beside.string() + ": its temporary file cannot be used (" +
                    std::system_category().message(errno) + ")");
}

}  // namespace Tessitor::Tool
