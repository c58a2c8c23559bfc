#pragma once

#include "hostlayer/VstInterface.h"

#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// A loaded effect file. It must outlive the instances made from it.
class CEffectLibrary {
public:
    /// @throws CJobError if the file is missing, is not a library or exports no entry function.
    explicit CEffectLibrary(const std::filesystem::path &file);
    ~CEffectLibrary();
    CEffectLibrary(const CEffectLibrary &) = delete;
    CEffectLibrary &operator=(const CEffectLibrary &) = delete;

    /// @return the named file, otherwise the first of effectPlaces() that exists.
    /// @throws CJobError if no file is named and none of them exists.
    static std::filesystem::path choose(const std::optional<std::string> &named);

    const std::filesystem::path &file() const { return m_file; }
    /// The entry functions that the file exports. The first one is used.
    const std::vector<std::string> &entryNames() const { return m_entryNames; }

    /// Calls the entry function. @return null if the effect refuses.
    AEffect *enter(audioMasterCallback host) const { return m_entry(host); }

    /// Must be held while an instance is created or destroyed: hosts do both on one thread, so
    /// effects count their instances without a lock.
    std::mutex &lifetimeLock() const { return m_lifetimeLock; }

private:
    using Entry = AEffect *(*)(audioMasterCallback host);

    std::filesystem::path m_file;
    void *m_handle;
    Entry m_entry = nullptr;
    std::vector<std::string> m_entryNames;
    mutable std::mutex m_lifetimeLock;
};

}  // namespace Tessitor::Tool
