#include "corvel/files/ReadAll.h"

#include "corvel/console/Errors.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

namespace Tessitor::Tool {

namespace {

struct SCloser {
    void operator()(std::FILE *file) const { std::fclose(file); }
};

[[noreturn]] void fail(const std::string &file, int reason) {
    if (reason == ENOENT)
        throw CJobError(file + ": no such file");
    throw CJobError(file + ": cannot be read (" + std::system_category().message(reason) + ")");
}

}  // namespace

std::string readAll(const std::string &file) {
    std::unique_ptr<std::FILE, SCloser> opened;
    if (file != "-") {
        opened.reset(std::fopen(file.c_str(), "rb"));
        if (opened == nullptr)
            fail(file, errno);
    }
    std::FILE *const stream = opened ? opened.get() : stdin;
    std::string bytes;
    std::array<char, 65536> chunk{};
    while (const std::size_t count = std::fread(chunk.data(), 1, chunk.size(), stream))
        bytes.append(chunk.data(), count);
    if (std::ferror(stream) != 0)
        fail(file == "-" ? "standard input" : file, errno);
    return bytes;
}

}  // namespace Tessitor::Tool
