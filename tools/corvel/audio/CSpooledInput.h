#pragma once

#include "corvel/audio/CStreamedSound.h"

#include <cstdio>
#include <filesystem>
#include <memory>

namespace Tessitor::Tool {

/// A copy of standard input, for kinds of file that cannot be read in order. It has no name, so it
/// ends with the program, whatever ends it.
class CSpooledInput {
public:
    /// Reads to the end of the input.
    /// @throws CJobError if it cannot be read or stored, or CInterruption.
    explicit CSpooledInput(CStreamedSound &input);

    std::filesystem::path path() const;

private:
    struct SCloser {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };

    std::unique_ptr<std::FILE, SCloser> m_file;
};

}  // namespace Tessitor::Tool
