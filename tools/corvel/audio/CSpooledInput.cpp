#include "corvel/audio/CSpooledInput.h"

#include "corvel/console/Errors.h"
#include "platform/NamelessFile.h"

#include <cerrno>
#include <system_error>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

CSpooledInput::CSpooledInput(CStreamedSound &input) {
    std::error_code error;
    const fs::path folder = fs::temp_directory_path(error);
    if (!error) {
        m_file.reset(openNamelessFile(folder.string()));
        if (m_file == nullptr || !input.copyTo(m_file.get()))
            error = {errno, std::system_category()};
    }
    if (error)
        throw CJobError("standard input: cannot be stored in a temporary file (" + error.message() +
                        ")");
}

fs::path CSpooledInput::path() const {
    return pathOfNamelessFile(m_file.get());
}

}  // namespace Tessitor::Tool
