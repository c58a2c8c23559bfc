#include "corvel/batch/Inputs.h"

#include "corvel/audio/InputNames.h"
#include "corvel/files/FileFacts.h"

#include <algorithm>
#include <set>
#include <system_error>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

namespace {

bool isFolder(const fs::path &path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

class CFolderReader {
public:
    explicit CFolderReader(const std::optional<fs::path> &output) {
        if (output)
            m_output = placeOf(*output);
    }

    void read(const fs::path &folder, const fs::path &below) {
        const fs::path place = placeOf(folder);
        if (!m_open.insert(place).second)
            return;  // a link leads back here
        std::error_code error;
        for (const fs::path &entry : entriesOf(folder, error)) {
            if (!isFolder(entry) && isNamedLikeAudio(entry))
                m_inputs.push_back({entry, below});
            else if (isFolder(entry) && placeOf(entry) != m_output)
                read(entry, below / entry.filename());
        }
        if (error)
            m_inputs.push_back({folder, below, "cannot be read (" + error.message() + ")"});
        m_open.erase(place);
    }

    std::vector<SInput> m_inputs;

private:
    static std::vector<fs::path> entriesOf(const fs::path &folder, std::error_code &error) {
        std::vector<fs::path> entries;
        for (fs::directory_iterator next(folder, error); !error && next != fs::directory_iterator();
             next.increment(error))
            if (!next->path().filename().string().starts_with('.'))
                entries.push_back(next->path());
        std::sort(entries.begin(), entries.end());
        return entries;
    }

    fs::path m_output;
    std::set<fs::path> m_open;  // folders on the way to the present one
};

}  // namespace

std::vector<SInput> filesIn(const std::vector<std::string> &names,
                            const std::optional<fs::path> &output) {
    CFolderReader reader(output);
    for (const std::string &name : names) {
        if (isFolder(name))
            reader.read(name, "");
        else
            reader.m_inputs.push_back({name});
    }
    return reader.m_inputs;
}

std::vector<SInput> filesNamed(const std::vector<std::string> &names) {
    std::vector<SInput> inputs;
    inputs.reserve(names.size());
    for (const std::string &name : names)
        inputs.push_back(
            {name, "", isFolder(name) ? "is a folder; --recursive renders the files in it" : ""});
    return inputs;
}

}  // namespace Tessitor::Tool
